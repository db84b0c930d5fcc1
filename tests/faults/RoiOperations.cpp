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

/// A drag over three points; the code of the first step that fails.
int DragOver(CcRoiBase& roi, CcImage& image, int mode, POINT from, POINT over, POINT to) {
    const HWND window = SceneWindow();
    for (const int result :
         {roi.StartMouseDrag(window, 0, 0, 1, &image, from, mode, nullptr, 1),
          roi.DoMouseDrag(window, 0, 0, 1, &image, over, 1), roi.StopMouseDrag(window, 0, 0, 1, &image, to)})
        if (result < 0) return result;
    return 0;
}

template <class Roi>
struct DrawnRoi {
    std::shared_ptr<CcGrayImage256> image = SceneImage<CcGrayImage256>();
    std::shared_ptr<Roi> roi = SceneRoi<Roi>(*image);
    CcHLObject& Object() { return *roi; }
};

template <class Made>
std::string RecordAndRows(Made& made) {
    return RecordOf(*made.roi) + RowsOf(*made.roi);
}

template <class Roi>
void Add(std::vector<Operation>& list, const std::string& name) {
    struct Made : DrawnRoi<Roi> {
        MemoryPicture paper{sceneWidth, sceneHeight};
        std::string rows;
        std::shared_ptr<KestRoiMeasurement> measured = std::make_shared<KestRoiMeasurement>();
    };
    struct WithFile : DrawnRoi<Roi> {
        std::shared_ptr<TemporaryFile> file = OldFile("fault.roi");
    };
    struct Fresh {
        std::shared_ptr<CcGrayImage256> image = SceneImage<CcGrayImage256>();
        std::unique_ptr<Roi> roi = std::make_unique<Roi>();
    };
    struct Saved : WithFile {
        Saved() {
            this->roi->Save(this->file->Path());
            this->roi = std::make_shared<Roi>();
            DragOver(*this->roi, *this->image, KEST_DRAG_CREATE, {2, 2}, {9, 9}, {9, 9});
            this->roi->SetName("other");
        }
    };
    list.push_back(
        On<WithFile>(name + " Save", Told, FileOf, [](auto& made) { return made.roi->Save(made.file->Path()); }));
    list.push_back(On<Saved>(name + " Restore", Nothing, RecordAndRows,
                             [](auto& made) { return made.roi->Restore(made.file->Path()); }));
    list.push_back(On<Made>(name + " drawn, moved and resized", PartlyDone, RecordAndRows, [](auto& made) {
        for (const int mode : {KEST_DRAG_MOVE, KEST_DRAG_CREATE})
            if (const int result = DragOver(*made.roi, *made.image, mode, {10, 10}, {12, 20}, {14, 25}); result < 0)
                return result;
        return 0;
    }));
    list.push_back(On<Fresh>(name + " deleted in mid-drag", Nothing, Unseen, [](auto& made) {
        const HWND window = SceneWindow();
        const int started =
            made.roi->StartMouseDrag(window, 0, 0, 1, made.image.get(), {10, 10}, KEST_DRAG_CREATE, nullptr, 1);
        const int moved = made.roi->DoMouseDrag(window, 0, 0, 1, made.image.get(), {12, 20}, 1);
        made.roi.reset();
        return started < 0 ? started : moved;
    }));
    list.push_back(On<Made>(name + " ShowROI", Drawn, Unseen, [](auto& made) {
        return made.roi->ShowROI(made.paper, SceneWindow(), 0, 0, 1, made.image.get(), 2, -1);
    }));
    list.push_back(On<Made>(
        name + " rows", Nothing, [](Made& made) { return made.rows; },
        [](auto& made) {
            made.rows = RowsOf(*made.roi);
            return made.rows.empty() ? -1 : 0;
        }));
    list.push_back(On<Made>(
        name + " KestMeasureRoi", Nothing,
        [](Made& made) { return std::string(reinterpret_cast<char*>(made.measured.get()), sizeof *made.measured); },
        [](auto& made) { return KestMeasureRoi(made.image.get(), made.roi.get(), made.measured.get()); }));
    list.push_back(IntoStream<DrawnRoi<Roi>>(name));
    list.push_back(FromStream<DrawnRoi<Roi>>(name));
}

template <class Outline>
void AddOutline(std::vector<Operation>& list, const std::string& name) {
    using Made = DrawnRoi<Outline>;
    Add<Outline>(list, name);
    // Without memory an outline has no points left.
    list.push_back(On<Made>(name + " SetRoiImageCord", PartlyDone, RecordAndRows, [](auto& made) {
        return SetOutline(*made.roi, {{1, 1}, {2, 1}, {3, 2}, {2, 3}, {1, 2}});
    }));
    struct WithFile : Made {
        std::shared_ptr<TemporaryFile> file = OldFile("fault.txt");
    };
    list.push_back(On<WithFile>(name + " PrintPerimiterPointsToFile", SilentIfOpen, FileOf,
                                [](auto& made) { return made.roi->PrintPerimiterPointsToFile(made.file->Path()); }));
}

/// A list with a history of three edits: one ROI deleted, one moved, one added.
template <int undone>
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
        for (int i = 0; i < undone; ++i) history.Undo();
    }
    template <class Roi>
    void AddRoi(const char* name) {
        auto* roi = new Roi;
        RECT place = {3, 12, 14, 4};
        if (roi->GetROIType() == KEST_ROI_RECT || roi->GetROIType() == KEST_ROI_ELLIPSE) roi->SetRoiImageCord(&place);
        roi->SetName(name);
        list.InsertTail(roi);
    }
    static std::string State(Edited& edited) {
        return RecordOf(edited.list) + std::to_string(edited.history.CanUndo()) +
               std::to_string(edited.history.CanRedo());
    }
};

template <int undone = 0>
Operation Step(const std::string& name, int (CcRoiHistory::*step)()) {
    return On<Edited<undone>>("CcRoiHistory " + name, Nothing, Edited<undone>::State,
                              [=](auto& edited) { return (edited.history.*step)(); });
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
    list.push_back(Step("Remember", &CcRoiHistory::Remember));
    list.push_back(Step("Undo", &CcRoiHistory::Undo));
    list.push_back(Step<1>("second Undo", &CcRoiHistory::Undo));
    list.push_back(Step<2>("Redo", &CcRoiHistory::Redo));
    list.push_back(Step("Cancel", &CcRoiHistory::Cancel));
    return list;
}

}  // namespace test
