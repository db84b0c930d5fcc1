// The operations of the eight ROI classes, and their history.
#include "faults/Scenes.h"

namespace test {
namespace {

/// The ROI's pixels, row by row; nothing when memory is short.
std::string RowsOf(CcRoiBase& roi) {
    std::string text;
    const RECT* bounds = roi.GetBoundingRect();
    if (!bounds) return {};
    for (int row = bounds->bottom; row <= bounds->top; ++row) {
        int count = 0;
        const int* columns = roi.GetXBoundary(row, &count);
        if (count < 0) return {};
        if (columns) text.append(reinterpret_cast<const char*>(columns), static_cast<std::size_t>(count) * sizeof(int));
    }
    return text + ".";
}

template <class Roi>
void Add(std::vector<Operation>& list, const std::string& name) {
    using Image = CcGrayImage256;
    list.push_back({name + " Save",
                    [] {
                        auto roi = SceneRoi<Roi>(*SceneImage<Image>());
                        auto file = OldFile("fault.roi");
                        return Scene{[=] { return roi->Save(file->Path()); }, [=] { return ContentOf(*file); }};
                    },
                    Told});
    list.push_back(
        {name + " Restore", [] {
             auto file = OldFile("fault.roi");
             auto image = SceneImage<Image>();
             SceneRoi<Roi>(*image)->Save(file->Path());
             auto roi = std::make_shared<Roi>();
             roi->StartMouseDrag(SceneWindow(), 0, 0, 1, image.get(), {2, 2}, KEST_DRAG_CREATE, nullptr, 1);
             roi->DoMouseDrag(SceneWindow(), 0, 0, 1, image.get(), {9, 9}, 1);
             roi->StopMouseDrag(SceneWindow(), 0, 0, 1, image.get(), {9, 9});
             roi->SetName("other");
             return Scene{[=] { return roi->Restore(file->Path()); }, [=] { return RecordOf(*roi) + RowsOf(*roi); }};
         }});
    list.push_back({name + " drawn, moved and resized",
                    [] {
                        auto image = SceneImage<Image>();
                        auto roi = SceneRoi<Roi>(*image);
                        return Scene{[=] {
                                         for (const int mode : {KEST_DRAG_MOVE, KEST_DRAG_CREATE})
                                             for (const int result :
                                                  {roi->StartMouseDrag(SceneWindow(), 0, 0, 1, image.get(), {10, 10},
                                                                       mode, nullptr, 1),
                                                   roi->DoMouseDrag(SceneWindow(), 0, 0, 1, image.get(), {12, 20}, 1),
                                                   roi->StopMouseDrag(SceneWindow(), 0, 0, 1, image.get(), {14, 25})})
                                                 if (result < 0) return result;
                                         return 0;
                                     },
                                     [=] { return RecordOf(*roi) + RowsOf(*roi); }};
                    },
                    PartlyDone});
    list.push_back({name + " deleted in mid-drag", [] {
                        auto image = SceneImage<Image>();
                        auto roi = std::make_shared<std::unique_ptr<Roi>>(new Roi);
                        return Scene{
                            [=] {
                                const int started = (*roi)->StartMouseDrag(SceneWindow(), 0, 0, 1, image.get(),
                                                                           {10, 10}, KEST_DRAG_CREATE, nullptr, 1);
                                const int moved = (*roi)->DoMouseDrag(SceneWindow(), 0, 0, 1, image.get(), {12, 20}, 1);
                                roi->reset();
                                return started < 0 ? started : moved;
                            },
                            [=] { return ""; }};
                    }});
    list.push_back({name + " ShowROI",
                    [] {
                        auto image = SceneImage<Image>();
                        auto roi = SceneRoi<Roi>(*image);
                        auto paper = std::make_shared<MemoryPicture>(sceneWidth, sceneHeight);
                        return Scene{[=] { return roi->ShowROI(*paper, SceneWindow(), 0, 0, 1, image.get(), 2, -1); },
                                     [] { return ""; }};
                    },
                    Drawn});
    list.push_back({name + " rows", [] {
                        auto roi = SceneRoi<Roi>(*SceneImage<Image>());
                        auto rows = std::make_shared<std::string>();
                        return Scene{[=] {
                                         *rows = RowsOf(*roi);
                                         return rows->empty() ? -1 : 0;
                                     },
                                     [=] { return *rows; }};
                    }});
    list.push_back({name + " KestMeasureRoi", [] {
                        auto image = SceneImage<Image>();
                        auto roi = SceneRoi<Roi>(*image);
                        auto result = std::make_shared<KestRoiMeasurement>();
                        return Scene{
                            [=] { return KestMeasureRoi(image.get(), roi.get(), result.get()); },
                            [=] { return std::string(reinterpret_cast<const char*>(result.get()), sizeof *result); }};
                    }});
    list.push_back(
        {name + " into a stream",
         [] {
             auto roi = SceneRoi<Roi>(*SceneImage<Image>());
             auto stream = std::make_shared<CcMemObjectStorage>(10, 10);
             return Scene{[=] { return stream->PutObject(roi.get()); }, [=] { return Text(ContentOf(*stream)); }};
         },
         PartlyDone});
    list.push_back(ReadBack(name, [] { return RecordOf(*SceneRoi<Roi>(*SceneImage<Image>())); }));
}

template <class Outline>
void AddOutline(std::vector<Operation>& list, const std::string& name) {
    Add<Outline>(list, name);
    list.push_back({name + " SetRoiImageCord",
                    [] {
                        auto image = SceneImage<CcGrayImage256>();
                        auto roi = SceneRoi<Outline>(*image);
                        auto points = std::make_shared<std::vector<POINT>>(
                            std::vector<POINT>{{1, 1}, {2, 1}, {3, 2}, {2, 3}, {1, 2}});
                        auto record = std::make_shared<PixelGroupTag>();
                        record->iNumOfPoints = static_cast<int>(points->size());
                        record->stPOINTS = points->data();
                        return Scene{[=, keep = points] { return roi->SetRoiImageCord(record.get()); },
                                     [=] { return RecordOf(*roi) + RowsOf(*roi); }};
                    },
                    PartlyDone});  // without memory an outline has no points left
    list.push_back({name + " PrintPerimiterPointsToFile",
                    [] {
                        auto roi = SceneRoi<Outline>(*SceneImage<CcGrayImage256>());
                        auto file = OldFile("fault.txt");
                        return Scene{[=] { return roi->PrintPerimiterPointsToFile(file->Path()); },
                                     [=] { return ContentOf(*file); }};
                    },
                    SilentIfOpen});
}

/// A list with a history of three edits: one ROI deleted, one moved, one added.
struct Edited {
    std::shared_ptr<CcGrayImage256> image = SceneImage<CcGrayImage256>();
    CcList list;
    CcRoiHistory history{&list};

    Edited() {
        list.SetDestructionType(1);
        AddRoi<CcRoiEllipse>("first");
        AddRoi<CcRoiFreeHand>("second");
        history.Remember();
        list.DeleteAtIndex(0);
        RECT moved = {1, 9, 8, 2};
        AddRoi<CcRoiRect>("third");
        history.Remember();
        static_cast<CcRoiBase*>(list.GetTail())->SetRoiImageCord(&moved);
        AddRoi<CcRoiPolyLine>("fourth");
    }
    template <class Roi>
    void AddRoi(const char* name) {
        auto* roi = new Roi;
        RECT place = {3, 12, 14, 4};
        if (roi->GetROIType() == KEST_ROI_RECT || roi->GetROIType() == KEST_ROI_ELLIPSE) roi->SetRoiImageCord(&place);
        roi->SetName(name);
        list.InsertTail(roi);
    }
};

Operation Step(const std::string& name, int (CcRoiHistory::*step)(), int undone) {
    return {"CcRoiHistory " + name, [=] {
                auto edited = std::make_shared<Edited>();
                for (int i = 0; i < undone; ++i) edited->history.Undo();
                return Scene{[=] { return (edited->history.*step)(); },
                             [=] {
                                 return RecordOf(edited->list) + std::to_string(edited->history.CanUndo()) +
                                        std::to_string(edited->history.CanRedo());
                             }};
            }};
}

}  // namespace

std::vector<Operation> RoiOperations() {
    std::vector<Operation> list;
    Add<CcRoiPoint>(list, "CcRoiPoint");
    Add<CcRoiLine>(list, "CcRoiLine");
    Add<CcRoiRect>(list, "CcRoiRect");
    Add<CcRoiEllipse>(list, "CcRoiEllipse");
    AddOutline<CcRoiFreeHand>(list, "CcRoiFreeHand");
    AddOutline<CcRoiFreeHandLine>(list, "CcRoiFreeHandLine");
    AddOutline<CcRoiPolyLine>(list, "CcRoiPolyLine");
    AddOutline<CcRoiPolyFreeHand>(list, "CcRoiPolyFreeHand");
    list.push_back(Step("Remember", &CcRoiHistory::Remember, 0));
    list.push_back(Step("Undo", &CcRoiHistory::Undo, 0));
    list.push_back(Step("second Undo", &CcRoiHistory::Undo, 1));
    list.push_back(Step("Redo", &CcRoiHistory::Redo, 2));
    list.push_back(Step("Cancel", &CcRoiHistory::Cancel, 0));
    return list;
}

}  // namespace test
