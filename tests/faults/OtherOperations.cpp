// The operations of lists, bags, streams, calibrations, graphs and the tool loader.
#include "faults/Scenes.h"

namespace test {
namespace {

struct Calibrated {
    CcCalibration calibration;

    explicit Calibrated(float size = 2, const char* name = "c") {
        Fit(size, sceneWidth, sceneHeight);
        calibration.SetName(name);
    }
    int Fit(float size, int width, int height) {
        tagPoints image[] = {{0, 0}, {20, 0}, {20, 20}, {0, 20}},
                  world[] = {{0, 0}, {size, 0}, {size, size}, {0, size}};
        return calibration.DoCalibration(image, world, 4, width, height);
    }
    static std::string State(Calibrated& of) {
        std::string text = std::string(of.calibration.GetName()) + of.calibration.GetUnitsOfMeasure();
        text.append(reinterpret_cast<const char*>(of.calibration.GetTransform()), 8 * sizeof(float));
        return text + std::to_string(of.calibration.GetAreaOfPixel(3, 3));
    }
};

struct SavedCalibration : Calibrated {
    std::shared_ptr<TemporaryFile> file = OldFile("fault.cal");
};

struct OtherCalibration : SavedCalibration {
    OtherCalibration() {
        calibration.Save(file->Path());
        Fit(5, sceneWidth, sceneHeight);
        calibration.SetName("other");
    }
};

struct Graph {
    CcGraph graph;
    std::shared_ptr<TemporaryFile> file = OldFile("fault.gra");

    Graph() { SetRange(10); }
    void SetRange(float range) { graph.SetMinMaxValues(0, range, 0, range, 0, 1, 0, 1); }
};

struct SavedGraph : Graph {
    SavedGraph() {
        SetRange(5);
        graph.SaveAppearance(file->Path());
        SetRange(10);
    }
    static std::string Range(SavedGraph& of) {
        float left, right, low, high;
        int option, digits;
        of.graph.GetMinMaxValues(&left, &right, &low, &high, &option, &digits, &option, &digits);
        return std::to_string(right);
    }
};

struct GraphOnPaper : Graph {
    MemoryPicture paper{300, 200};
    CcCurve curve;
    CcList curves;

    GraphOnPaper() {
        static tagPoints points[] = {{0, 0}, {5, 9}, {10, 3}};
        curve.SetCurveStyle(PS_DASH, RGB(200, 0, 0), 1);
        curve.SetCurveData(points, 3);
        curves.InsertTail(&curve);
        graph.SetCurveList(&curves);
    }
};

struct RoiList {
    CcRoiRect rois[4];
    CcRoiPoint added;
    CcList list{2, 2};

    RoiList() {
        for (CcRoiRect& roi : rois) {
            roi.SetName("member");
            list.InsertTail(&roi);
        }
        added.SetName("added");
    }
    CcHLObject& Object() { return list; }
};

/// As it is read back, it deletes its members.
struct OwningList {
    CcList list;

    OwningList() {
        list.SetDestructionType(1);
        for (int i = 0; i < 4; ++i) list.InsertTail(new CcRoiRect);
        for (int i = 0; i < 4; ++i) list.GetAtIndex(i)->SetName("member");
    }
    CcHLObject& Object() { return list; }
};

struct Bag {
    CcPropertyBag bag;
    std::string large = std::string(300000, 'c');

    Bag() {
        bag.PutInt("number", 7);
        bag.PutBlob("blob", large.data(), 1000);
    }
};

struct ObjectFile {
    std::shared_ptr<TemporaryFile> file = OldFile("fault.ost");
    std::array<std::shared_ptr<Cc24BitRGBImage>, 2> images = {SceneImage<Cc24BitRGBImage>(),
                                                              SceneImage<Cc24BitRGBImage>()};
};

struct WrittenObjects : ObjectFile {
    WrittenObjects() {
        CcFileObjectStorage stream;
        stream.Open(file->Path(), GENERIC_WRITE);
        for (auto& image : images) {
            stream.PutObject(image.get());
            image = std::make_shared<Cc24BitRGBImage>();
        }
    }
};

struct Tool {
    CLOADDLL tool;
};

int WriteObject(ObjectFile& to) {
    CcFileObjectStorage stream;
    const int opened = stream.Open(to.file->Path(), GENERIC_READ | GENERIC_WRITE);
    if (opened < 0) return opened;
    const int put = stream.PutObject(to.images[0].get());
    const int rewound = stream.Reset();
    return put < 0 ? put : rewound == KEST_AT_START ? 0 : -1;
}

int ReadObjects(WrittenObjects& from) {
    CcFileObjectStorage stream;
    int result = stream.Open(from.file->Path(), GENERIC_READ);
    for (const auto& image : from.images)
        if (result >= 0) result = stream.GetNextObject(image.get());
    return result;
}

}  // namespace

std::vector<Operation> OtherOperations() {
    std::vector<Operation> list = {
        On<RoiList>(
            "CcList InsertAtIndex", Nothing, [](RoiList& made) { return RecordOf(made.list); },
            [](RoiList& made) { return made.list.InsertAtIndex(&made.added, 1); }),
        IntoStream<RoiList>("CcList"),
        FromStream<OwningList>("CcList"),
        On<Bag>(
            "CcPropertyBag PutBlob", Nothing, [](Bag& made) { return RecordOf(made.bag); },
            [](Bag& made) { return made.bag.PutBlob("large", made.large.data(), 300000); }),
        On<ObjectFile>("object stream into a file", PartlyDone, FileOf, WriteObject),
        On<WrittenObjects>(
            "object stream from a file", PartlyDone,
            [](WrittenObjects& made) { return SamplesOf(made.images[0].get()) + SamplesOf(made.images[1].get()); },
            ReadObjects),
        On<ObjectFile>("KestWholeFile given up", Nothing, FileOf,
                       [](ObjectFile& made) { return KestWholeFile(made.file->Path()).Write("other", 5); }),
        On<Calibrated>("CcCalibration DoCalibration", PartlyDone, Calibrated::State,
                       [](Calibrated& made) { return made.Fit(9, 33, 22); }),
        On<SavedCalibration>("CcCalibration Save", Told, FileOf,
                             [](SavedCalibration& made) { return made.calibration.Save(made.file->Path()); }),
        On<OtherCalibration>(
            "CcCalibration Open", PartlyDone, [](OtherCalibration& made) { return Calibrated::State(made); },
            [](OtherCalibration& made) { return made.calibration.Open(made.file->Path()); }),
        On<Graph>("CcGraph SaveAppearance", Told, FileOf,
                  [](Graph& made) { return made.graph.SaveAppearance(made.file->Path()); }),
        On<SavedGraph>("CcGraph RestoreAppearance", Nothing, SavedGraph::Range,
                       [](SavedGraph& made) { return made.graph.RestoreAppearance(made.file->Path()); }),
        On<GraphOnPaper>("CcGraph ShowGraph", Drawn, Unseen,
                         [](GraphOnPaper& made) { return made.graph.ShowGraph(SceneWindow(), made.paper, 0); }),
        On<Tool>(
            "CLOADDLL LoadDll", PartlyDone, [](Tool& made) { return std::string(made.tool.GetMenuText()); },
            [](Tool& made) { return made.tool.LoadDll("HistogramTool.dll"); })};
    for (const auto& [name, dialog] : {std::pair{"lines", &CcGraph::ShowDLBLineStyle},
                                       {"grid", &CcGraph::ShowDLBSetGridMarkings},
                                       {"ranges", &CcGraph::ShowDLBSetMM},
                                       {"titles", &CcGraph::ShowDLBTitle}})
        list.push_back(On<Graph>(std::string("CcGraph dialog of ") + name, Nothing, Unseen,
                                 [show = dialog](Graph& made) { return (made.graph.*show)(); }));
    return list;
}

}  // namespace test
