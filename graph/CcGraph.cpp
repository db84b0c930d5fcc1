// CcGraph: the settings of a graph and its settings dialogs.
#include "CcGraph.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

#include "core/Messages.h"
#include "core/kernel/TextField.h"
#include "graph/Dialogs.h"
#include "graph/Outputs.h"
#include "graph/ResourceLibrary.h"

namespace {

constexpr int defaultPrecision = 2, highestPrecision = 5;

// The default colours repeat every ten curves; red is the low byte.
constexpr COLORREF curveColours[] = {0x0000FF, 0x00FF00, 0xFF0000, 0xFF00FF, 0xFFFF00,
                                     0x8000FF, 0x004080, 0xFF8000, 0x008000, 0x000000};

bool Correct(int& precision, bool isWrong) {
    if (isWrong) precision = defaultPrecision;
    return isWrong;
}

bool CorrectRange(float minimum, float& maximum) {
    if (minimum != maximum) return false;
    maximum += 1.0F;
    return true;
}

void SetText(char (&field)[KEST_GRAPH_TEXT_SIZE], const char* text) {
    if (text) kest::CopyCut(field, text);
}

void GetText(char* buffer, const char (&field)[KEST_GRAPH_TEXT_SIZE]) {
    if (buffer) std::memcpy(buffer, field, kest::FieldLength(field, sizeof field - 1) + 1);
}

constexpr bool IsAppearanceIndex(int index) { return index >= 0 && index < KEST_GRAPH_CURVES; }

}  // namespace

CcGraph::CcGraph()
    : stMapExtents{1, -1, 1, 1},
      stMapOrigins{},
      fXMin(0.0F),
      fXOrigin(0.0F),
      fXMax(500.0F),
      fYMin(0.0F),
      fYOrigin(0.0F),
      fYMax(500.0F),
      stPlotRect{},
      iWorkValues{},
      iGridMarkings{1, 0, 1, 0, 3, 3, 3, 3},
      szXAxisText("X Axis"),
      szYAxisText("Y Axis"),
      szTitleText("Title of Graph"),
      iXAxisOption(0),
      iXPrecision(defaultPrecision),
      iYAxisOption(0),
      iYPrecision(defaultPrecision),
      stCurveAppearance{},
      pSelectedCurve(nullptr),
      iSelectedPoint(-1),
      iReserved(-1),
      bOriginSelected(0),
      pCurveList(nullptr) {
    SetType(KEST_TYPE_GRAPH);
    for (int i = 0; i < KEST_GRAPH_CURVES; ++i) {
        tagCURVEAPPEARANCE& appearance = stCurveAppearance[i];
        appearance.ulColor = curveColours[i % std::size(curveColours)];
        appearance.iWidth = 1;
        std::snprintf(appearance.szName, sizeof appearance.szName, "Curve %d", i);
    }
    hResourceLibrary.Adopt(kest::LoadOwnGraphResources());
}

CcGraph::~CcGraph() { kest::CloseSettingsDialogs(*this); }

int CcGraph::SetCurveList(CcList* pList) {
    pCurveList = pList;
    return KEST_OK;
}

CcList* CcGraph::GetCurveList() { return pCurveList; }

int CcGraph::SetGraphText(const char* pszTitle, const char* pszXText, const char* pszYText) {
    SetText(szTitleText, pszTitle);
    SetText(szXAxisText, pszXText);
    SetText(szYAxisText, pszYText);
    return KEST_OK;
}

int CcGraph::GetGraphText(char* pszTitle, char* pszXText, char* pszYText) {
    GetText(pszTitle, szTitleText);
    GetText(pszXText, szXAxisText);
    GetText(pszYText, szYAxisText);
    return KEST_OK;
}

int CcGraph::SetMinMaxValues(float fNewXMin, float fNewXMax, float fNewYMin, float fNewYMax, int iXOption,
                             int iNewXPrecision, int iYOption, int iNewYPrecision) {
    fXMin = fNewXMin;
    fXMax = fNewXMax;
    fYMin = fNewYMin;
    fYMax = fNewYMax;
    iXAxisOption = iXOption;
    iXPrecision = iNewXPrecision;
    iYAxisOption = iYOption;
    iYPrecision = iNewYPrecision;

    constexpr char negative[] = "You cannot have a negative Precision.\n\nPrecision will be set to default.";
    constexpr char tooHigh[] = "A Maximum Precision of 5 is allowed.\n\nPrecision will be set to default.";
    constexpr char equal[] = "The Minimum and Maximum values cannot be equal.";
    const struct {
        bool isMade;
        const char* message;
    } corrections[] = {{Correct(iXPrecision, iXPrecision < 0), negative},
                       {Correct(iYPrecision, iYPrecision < 0), negative},
                       {Correct(iXPrecision, iXPrecision > highestPrecision), tooHigh},
                       {Correct(iYPrecision, iYPrecision > highestPrecision), tooHigh},
                       {CorrectRange(fXMin, fXMax), equal},
                       {CorrectRange(fYMin, fYMax), equal}};
    // A box runs the host's timers, which may set values of their own or delete the graph.
    for (const auto& [isMade, message] : corrections)
        if (isMade) kest::ShowMessage(message, "Error");
    return KEST_OK;
}

int CcGraph::GetMinMaxValues(float* pfXMin, float* pfXMax, float* pfYMin, float* pfYMax, int* piXOption,
                             int* piXPrecision, int* piYOption, int* piYPrecision) {
    kest::Put(pfXMin, fXMin);
    kest::Put(pfXMax, fXMax);
    kest::Put(pfYMin, fYMin);
    kest::Put(pfYMax, fYMax);
    kest::Put(piXOption, iXAxisOption);
    kest::Put(piXPrecision, iXPrecision);
    kest::Put(piYOption, iYAxisOption);
    kest::Put(piYPrecision, iYPrecision);
    return KEST_OK;
}

int CcGraph::SetGridMarkings(int iXMajor, int iYMajor, int iXMinor, int iYMinor, int iXMajorLines, int iYMajorLines,
                             int iXMinorLines, int iYMinorLines) {
    const int markings[] = {iXMajorLines, iXMinorLines, iYMajorLines, iYMinorLines, iXMajor, iYMajor, iXMinor, iYMinor};
    std::copy(std::begin(markings), std::end(markings), iGridMarkings);
    return KEST_OK;
}

int CcGraph::GetGridMarkings(int* piXMajor, int* piYMajor, int* piXMinor, int* piYMinor, int* piXMajorLines,
                             int* piYMajorLines, int* piXMinorLines, int* piYMinorLines) {
    int* const places[] = {piXMajorLines, piXMinorLines, piYMajorLines, piYMinorLines,
                           piXMajor,      piYMajor,      piXMinor,      piYMinor};
    for (std::size_t i = 0; i < std::size(places); ++i) kest::Put(places[i], iGridMarkings[i]);
    return KEST_OK;
}

int CcGraph::SetXYOriginCross(float fX, float fY) {
    fXOrigin = fX;
    fYOrigin = fY;
    return KEST_OK;
}

int CcGraph::GetXYOriginCross(float* pfX, float* pfY) {
    kest::Put(pfX, fXOrigin);
    kest::Put(pfY, fYOrigin);
    return KEST_OK;
}

int CcGraph::GetCurveAppearance(int iIndex, tagCURVEAPPEARANCE* pAppearance) {
    if (!IsAppearanceIndex(iIndex) || !pAppearance) return KEST_FAILED;
    *pAppearance = stCurveAppearance[iIndex];
    return KEST_OK;
}

int CcGraph::SetCurveAppearance(int iIndex, const tagCURVEAPPEARANCE* pAppearance) {
    if (!IsAppearanceIndex(iIndex) || !pAppearance) return KEST_FAILED;
    stCurveAppearance[iIndex] = *pAppearance;
    stCurveAppearance[iIndex].szName[sizeof pAppearance->szName - 1] = 0;
    return KEST_OK;
}
