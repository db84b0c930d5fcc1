// The operations of lists, bags, streams, calibrations, graphs and the tool loader.
#include "faults/Scenes.h"

namespace test {
namespace {

void Calibrate(CcCalibration& calibration, float size) {
    tagPoints image[] = {{0, 0}, {20, 0}, {20, 20}, {0, 20}}, world[] = {{0, 0}, {size, 0}, {size, size}, {0, size}};
    calibration.DoCalibration(image, world, 4, sceneWidth, sceneHeight);
}

std::string StateOf(CcCalibration& calibration) {
    std::string text = std::string(calibration.GetName()) + calibration.GetUnitsOfMeasure();
    text.append(reinterpret_cast<const char*>(calibration.GetTransform()), 8 * sizeof(float));
    return text + std::to_string(calibration.GetAreaOfPixel(3, 3));
}

std::shared_ptr<CcCalibration> Calibrated(float size, const char* name) {
    auto calibration = std::make_shared<CcCalibration>();
    Calibrate(*calibration, size);
    calibration->SetName(name);
    return calibration;
}

std::shared_ptr<CcGraph> SceneGraph(float range) {
    auto graph = std::make_shared<CcGraph>();
    graph->SetMinMaxValues(0, range, 0, range, 0, 1, 0, 1);
    return graph;
}

std::shared_ptr<CcList> ListOfRois() {
    static CcRoiRect rois[4];
    auto list = std::make_shared<CcList>(2, 2);
    for (CcRoiRect& roi : rois) {
        roi.SetName("member");
        list->InsertTail(&roi);
    }
    return list;
}

std::shared_ptr<CcPropertyBag> FullBag() {
    auto bag = std::make_shared<CcPropertyBag>();
    const std::string blob(1000, 'b');
    bag->PutInt("number", 7);
    bag->PutBlob("blob", blob.data(), static_cast<long>(blob.size()));
    return bag;
}

void AddStreams(std::vector<Operation>& list) {
    list.push_back({"CcList InsertTail", [] {
                        auto members = ListOfRois();
                        auto added = std::make_shared<CcRoiPoint>();
                        added->SetName("added");
                        return Scene{[=, keep = added] { return members->InsertAtIndex(added.get(), 1); },
                                     [=] { return RecordOf(*members); }};
                    }});
    list.push_back(
        {"CcList into a stream",
         [] {
             auto members = ListOfRois();
             auto stream = std::make_shared<CcMemObjectStorage>(10, 10);
             return Scene{[=] { return stream->PutObject(members.get()); }, [=] { return Text(ContentOf(*stream)); }};
         },
         PartlyDone});
    list.push_back(ReadBack("CcList", [] {
        auto members = ListOfRois();
        members->SetDestructionType(1);  // that of the list read back
        const std::string record = RecordOf(*members);
        members->SetDestructionType(0);
        return record;
    }));
    list.push_back({"CcPropertyBag PutBlob", [] {
                        auto bag = FullBag();
                        auto blob = std::make_shared<std::string>(300000, 'c');
                        return Scene{
                            [=] { return bag->PutBlob("large", blob->data(), static_cast<long>(blob->size())); },
                            [=] { return RecordOf(*bag); }};
                    }});
    list.push_back({"object stream into a file",
                    [] {
                        auto file = OldFile("fault.ost");
                        auto image = SceneImage<Cc24BitRGBImage>();
                        return Scene{[=] {
                                         CcFileObjectStorage stream;
                                         const int opened = stream.Open(file->Path(), GENERIC_READ | GENERIC_WRITE);
                                         if (opened < 0) return opened;
                                         const int put = stream.PutObject(image.get());
                                         const int rewound = stream.Reset();
                                         if (put < 0) return put;
                                         return rewound == KEST_AT_START ? 0 : -1;
                                     },
                                     [=] { return ContentOf(*file); }};
                    },
                    PartlyDone});
    list.push_back({"KestWholeFile given up", [] {
                        auto file = OldFile("fault.txt");
                        return Scene{[=] {
                                         KestWholeFile given(file->Path());
                                         return given.Write("other", 5);
                                     },
                                     [=] { return ContentOf(*file); }};
                    }});
    list.push_back({"object stream from a file",
                    [] {
                        auto file = OldFile("fault.ost");
                        auto images = std::make_shared<std::array<Cc24BitRGBImage, 2>>();
                        {
                            CcFileObjectStorage stream;
                            stream.Open(file->Path(), GENERIC_WRITE);
                            for (int i = 0; i < 2; ++i) stream.PutObject(SceneImage<Cc24BitRGBImage>().get());
                        }
                        return Scene{[=] {
                                         CcFileObjectStorage stream;
                                         int result = stream.Open(file->Path(), GENERIC_READ);
                                         for (CcImage& image : *images)
                                             if (result >= 0) result = stream.GetNextObject(&image);
                                         return result;
                                     },
                                     [=] { return SamplesOf(&(*images)[0]) + SamplesOf(&(*images)[1]); }};
                    },
                    PartlyDone});
}

void AddCalibrations(std::vector<Operation>& list) {
    list.push_back({"CcCalibration DoCalibration",
                    [] {
                        auto calibration = Calibrated(2, "old");
                        return Scene{[=] {
                                         tagPoints image[] = {{0, 0}, {20, 0}, {20, 20}, {0, 20}},
                                                   world[] = {{0, 0}, {9, 0}, {9, 9}, {0, 9}};
                                         return calibration->DoCalibration(image, world, 4, 33, 22);
                                     },
                                     [=] { return StateOf(*calibration); }};
                    },
                    PartlyDone});
    list.push_back({"CcCalibration Save",
                    [] {
                        auto calibration = Calibrated(2, "c");
                        auto file = OldFile("fault.cal");
                        return Scene{[=] { return calibration->Save(file->Path()); }, [=] { return ContentOf(*file); }};
                    },
                    Told});
    list.push_back(
        {"CcCalibration Open",
         [] {
             auto file = OldFile("fault.cal");
             Calibrated(2, "c")->Save(file->Path());
             auto calibration = Calibrated(5, "other");
             return Scene{[=] { return calibration->Open(file->Path()); }, [=] { return StateOf(*calibration); }};
         },
         PartlyDone});
}

void AddGraphs(std::vector<Operation>& list) {
    list.push_back(
        {"CcGraph SaveAppearance",
         [] {
             auto graph = SceneGraph(10);
             auto file = OldFile("fault.gra");
             return Scene{[=] { return graph->SaveAppearance(file->Path()); }, [=] { return ContentOf(*file); }};
         },
         Told});
    list.push_back({"CcGraph RestoreAppearance", [] {
                        auto file = OldFile("fault.gra");
                        SceneGraph(5)->SaveAppearance(file->Path());
                        auto graph = SceneGraph(10);
                        return Scene{[=] { return graph->RestoreAppearance(file->Path()); },
                                     [=] {
                                         float left, right, low, high;
                                         int option, digits;
                                         graph->GetMinMaxValues(&left, &right, &low, &high, &option, &digits, &option,
                                                                &digits);
                                         return std::to_string(right);
                                     }};
                    }});
    list.push_back({"CcGraph ShowGraph",
                    [] {
                        auto graph = SceneGraph(10);
                        auto curve = std::make_shared<CcCurve>();
                        static tagPoints points[] = {{0, 0}, {5, 9}, {10, 3}};
                        curve->SetCurveStyle(PS_DASH, RGB(200, 0, 0), 1);
                        curve->SetCurveData(points, 3);
                        auto curves = std::make_shared<CcList>();
                        curves->InsertTail(curve.get());
                        graph->SetCurveList(curves.get());
                        auto paper = std::make_shared<MemoryPicture>(300, 200);
                        return Scene{
                            [=, keep = curve, list = curves] { return graph->ShowGraph(SceneWindow(), *paper, 0); },
                            [] { return ""; }};
                    },
                    Drawn});
    for (const auto& [name, dialog] : {std::pair{"lines", &CcGraph::ShowDLBLineStyle},
                                       {"grid", &CcGraph::ShowDLBSetGridMarkings},
                                       {"ranges", &CcGraph::ShowDLBSetMM},
                                       {"titles", &CcGraph::ShowDLBTitle}})
        list.push_back(
            {std::string("CcGraph dialog of ") + name, [show = dialog] {
                 return Scene{[graph = SceneGraph(10), show] { return (*graph.*show)(); }, [] { return ""; }};
             }});
}

}  // namespace

std::vector<Operation> OtherOperations() {
    std::vector<Operation> list;
    AddStreams(list);
    AddCalibrations(list);
    AddGraphs(list);
    list.push_back({"CLOADDLL LoadDll",
                    [] {
                        auto tool = std::make_shared<CLOADDLL>();
                        return Scene{[=] { return tool->LoadDll("HistogramTool.dll"); },
                                     [=] { return std::string(tool->GetMenuText()); }};
                    },
                    PartlyDone});
    return list;
}

}  // namespace test
