// The editor of the display tables: points of a curve are dragged in the graph, and the picture follows.
//
// The curve's few points are the document's (Document::TableCurve); the library's table gets as many points as it has,
// interpolated between them.
#include "panes/DisplayTablePane.h"

#include <algorithm>
#include <cmath>

#include "platform/Text.h"
#include "res/Resource.h"

namespace kestview {
namespace {

constexpr std::size_t mostPoints = 16;
constexpr float topLevel = 255;

struct TableCurve {
    const char* name;
    int channel;
    COLORREF colour;
};
constexpr TableCurve colourCurves[] = {
    {"Red", 1, RGB(220, 0, 0)}, {"Green", 2, RGB(0, 150, 0)}, {"Blue", 3, RGB(0, 0, 220)}};
constexpr TableCurve grayCurve = {"Gray", 0, RGB(60, 60, 60)};

/// Five points from black to white over a range of input values.
std::vector<tagPoints> StraightCurve(const tagPoints& range) {
    std::vector<tagPoints> points;
    for (int i = 0; i <= 4; ++i)
        points.push_back(
            {range.x + (range.y - range.x) * static_cast<float>(i) / 4, topLevel * static_cast<float>(i) / 4});
    return points;
}

}  // namespace

void DisplayTablePane::OnInit() {
    GraphPane::OnInit();
    graph.onPointDragged = [this](int curve, int point) { OnDragged(curve, point); };
    graph.onPointPicked = [this](int curve, int point) {
        Send(IDC_TABLE_CHANNEL, CB_SETCURSEL, static_cast<WPARAM>(curve));
        NotePicked(point);
    };
}

void DisplayTablePane::Refresh(unsigned change) {
    if (change & TableChosen) graph.FollowRanges();
    if (change & (PictureChanged | TableChosen)) UpdateSoon();
}

/// All samples, and what is shown of their range.
tagPoints DisplayTablePane::Axis() const {
    const tagPoints whole = document->WholeRange(), shown = document->ShownRange();
    const tagPoints all = {std::min(whole.x, shown.x), std::max(whole.y, shown.y)};
    return {all.x, all.y > all.x ? all.y : all.x + 1};
}

int DisplayTablePane::Channel(int curve) const {
    return document && document->DisplayTable() == 101 ? colourCurves[curve].channel : 0;
}

std::vector<tagPoints> DisplayTablePane::CurveOf(int channel) const {
    const auto edited = document->TableCurves().find({document->DisplayTable(), channel});
    return edited == document->TableCurves().end() ? StraightCurve(document->ShownRange()) : edited->second;
}

void DisplayTablePane::Update() {
    const int table = document ? document->DisplayTable() : 0;
    const bool isEditable =
        document && !document->Class().isColour && document->Class().type != KEST_IMAGE_BINARY && table > 100;
    const int selected = std::max(0, graph.SelectedCurve());
    graph.ClearCurves();
    NotePicked(-1);
    Send(IDC_TABLE_CHANNEL, CB_RESETCONTENT);
    for (const int id : {IDC_TABLE_CHANNEL, IDC_TABLE_RESET, IDC_TABLE_INVERT, IDC_TABLE_ADD}) Enable(id, isEditable);
    if (!isEditable) {
        graph.SetTexts("Display table", "", "");
        graph.SetRanges(0, topLevel, 0, topLevel);
        SetText(IDC_GRAPH_NOTE, document && table == 100
                                    ? "Table 100 shows the file's own colours. Choose 101 to 104 in the Display menu."
                                : document ? "Pictures of this class have no display table."
                                           : "");
        return;
    }
    const auto add = [&](const TableCurve& curve) {
        graph.AddCurve(curve.name, CurveOf(curve.channel), PS_SOLID, curve.colour);
        Send(IDC_TABLE_CHANNEL, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(curve.name));
    };
    if (table == 101)
        std::for_each(std::begin(colourCurves), std::end(colourCurves), add);
    else
        add(grayCurve);
    const int front = std::min(selected, graph.CurveCount() - 1);
    graph.SelectCurve(front);
    Send(IDC_TABLE_CHANNEL, CB_SETCURSEL, static_cast<WPARAM>(front));
    graph.SetRanges(Axis().x, Axis().y, 0, topLevel);
    graph.SetTexts(Format("Display table %d", table), "Value", "Level shown");
    SetText(IDC_GRAPH_NOTE, "Drag the points; the picture follows.");
}

void DisplayTablePane::OnDragged(int curve, int index) {
    std::vector<tagPoints>& points = graph.Points(curve);
    if (index >= static_cast<int>(points.size())) return;
    tagPoints& point = points[static_cast<std::size_t>(index)];
    const bool isFirst = index == 0, isLast = index == static_cast<int>(points.size()) - 1;
    point.y = std::clamp(point.y, 0.0f, topLevel);
    // The points keep their order. The ends stand at the ends of the input values; of wide pictures they may be moved,
    // which moves the range that is shown.
    const tagPoints range = document->ShownRange();
    const float step = (range.y - range.x) / 255;
    const auto at = static_cast<std::size_t>(index);
    if ((isFirst || isLast) && !document->Class().isWide) {
        point.x = isFirst ? range.x : range.y;
    } else {
        if (!isFirst) point.x = std::max(point.x, points[at - 1].x + step);
        if (!isLast) point.x = std::min(point.x, points[at + 1].x - step);
        const bool isInteger = document->Class().type == KEST_IMAGE_INT16 || document->Class().type == KEST_IMAGE_INT32;
        // A whole sample, before the next point.
        if (isFirst && isInteger) point.x = std::min(std::round(point.x), std::ceil(points[at + 1].x) - 1);
        if (isLast && isInteger) point.x = std::max(std::round(point.x), std::floor(points[at - 1].x) + 1);
        // What is dragged out of the graph could not be dragged back.
        if (isFirst) point.x = std::max(point.x, Axis().x);
        if (isLast) point.x = std::min(point.x, Axis().y);
    }
    Apply(curve);
}

/// The ends of a curve stay.
bool DisplayTablePane::IsInner(int point) {
    const int curve = graph.SelectedCurve();
    return curve >= 0 && point > 0 && point < static_cast<int>(graph.Points(curve).size()) - 1;
}

void DisplayTablePane::NotePicked(int point) {
    pickedPoint = point;
    Enable(IDC_TABLE_REMOVE, IsInner(point));
}

void DisplayTablePane::Apply(int curve) {
    const int table = document->DisplayTable(), channel = Channel(curve);
    document->SetTableCurve(table, channel, graph.Points(curve));
    TakeCurves();
    ShowAtOnce();
}

/// The range that the picture has come to show is that of all curves.
void DisplayTablePane::TakeCurves() {
    for (int curve = 0; document->Class().isWide && curve < graph.CurveCount(); ++curve) {
        graph.Points(curve) = CurveOf(Channel(curve));
        graph.PointsResized(curve);
    }
}

void DisplayTablePane::ShowAtOnce() {
    host.RepaintPicture();
    UpdateWindow(host.Canvas());
}

void DisplayTablePane::Reset() {
    const int curve = graph.SelectedCurve();
    if (curve < 0) return;
    document->ResetTableCurve(document->DisplayTable(), Channel(curve));
    graph.Points(curve) = CurveOf(Channel(curve));
    graph.PointsResized(curve);
    NotePicked(-1);
    TakeCurves();
    ShowAtOnce();
}

void DisplayTablePane::Invert() {
    const int curve = graph.SelectedCurve();
    if (curve < 0) return;
    for (tagPoints& point : graph.Points(curve)) point.y = topLevel - point.y;
    graph.PointsResized(curve);
    Apply(curve);
}

void DisplayTablePane::AddPoint() {
    const int curve = graph.SelectedCurve();
    if (curve < 0 || graph.Points(curve).size() >= mostPoints) return;
    std::vector<tagPoints>& points = graph.Points(curve);
    // In the middle of the widest gap.
    std::size_t widest = 1;
    for (std::size_t i = 2; i < points.size(); ++i)
        if (points[i].x - points[i - 1].x > points[widest].x - points[widest - 1].x) widest = i;
    const tagPoints middle = {(points[widest].x + points[widest - 1].x) / 2,
                              (points[widest].y + points[widest - 1].y) / 2};
    points.insert(points.begin() + static_cast<std::ptrdiff_t>(widest), middle);
    NotePicked(static_cast<int>(widest));
    graph.PointsResized(curve);
    Apply(curve);
}

void DisplayTablePane::RemovePoint() {
    const int curve = graph.SelectedCurve();
    if (curve < 0) return;
    std::vector<tagPoints>& points = graph.Points(curve);
    if (!IsInner(pickedPoint)) return;
    points.erase(points.begin() + pickedPoint);
    NotePicked(-1);
    graph.PointsResized(curve);
    Apply(curve);
}

bool DisplayTablePane::OnCommand(int id, int code) {
    if (!document) return true;
    switch (id) {
        case IDC_TABLE_CHANNEL:
            if (code == CBN_SELCHANGE) {
                graph.SelectCurve(static_cast<int>(Send(IDC_TABLE_CHANNEL, CB_GETCURSEL)));
                NotePicked(-1);
            }
            break;
        case IDC_TABLE_RESET: Reset(); break;
        case IDC_TABLE_INVERT: Invert(); break;
        case IDC_TABLE_ADD: AddPoint(); break;
        case IDC_TABLE_REMOVE: RemovePoint(); break;
        default: break;
    }
    return true;
}

}  // namespace kestview
