// What one tab shows: a picture with its regions of interest (ROIs), their undo history, the calibration, and how it is
// shown.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "KestApi.h"
#include "document/ImageClasses.h"
#include "document/ThresholdPreview.h"

namespace kestview {

/// What has changed, for those who show it; the values add up.
enum Change : unsigned {
    PictureChanged = 1,  ///< pixels
    RoisChanged = 2,     ///< number, shape, name or selection of ROIs
    CalibrationChanged = 4,
    DisplayChanged = 8,   ///< display table, threshold bands
    ViewChanged = 16,     ///< zoom or scroll position
    TitleChanged = 32,    ///< name, or saved or not
    TableChosen = 64,     ///< another display table
    ChannelChosen = 128,  ///< another channel of a colour picture
    BandsChanged = 256,   ///< threshold bands: what is in them is measured
    EverythingChanged = ~0u,
};

/// The four points of the calibration pane, as far as they are picked and typed.
struct CalibrationDraft {
    struct Point {
        bool isPicked = false;
        tagPoints pixel = {};        ///< clicked ones are whole; those of a file can lie between pixels
        std::string worldX, worldY;  ///< as typed
        bool operator==(const Point& other) const {
            return isPicked == other.isPicked && pixel.x == other.pixel.x && pixel.y == other.pixel.y &&
                   worldX == other.worldX && worldY == other.worldY;
        }
    };
    Point points[4];
    std::string unit = "mm";
    bool operator==(const CalibrationDraft&) const = default;
};

struct ViewState {
    int zoom = 0;  ///< 1 to 16; 0 fits the whole picture into the view
    int xOffset = 0;
    int yOffset = 0;
};

constexpr int largestZoom = 16;

class Document {
public:
    explicit Document(std::unique_ptr<CcImage> newImage);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    CcImage& Image() { return *image; }
    SIZE Size() { return SizeOf(*image); }
    std::string Name() { return image->GetName(); }
    const ImageClass& Class() { return ImageClassOf(*image); }

    std::string picturePath;  ///< the file it was opened from, if any
    std::string sessionPath;  ///< empty until it was saved as a session

    // ROIs. The image owns them; the list is walked by index, as every step moves the list's one cursor.
    int RoiCount() { return image->GetListROI()->GetNumberOfObjects(); }
    CcRoiBase& Roi(int index) { return *static_cast<CcRoiBase*>(image->GetListROI()->GetAtIndex(index)); }
    int IndexOf(const CcRoiBase* roi);
    std::vector<CcRoiBase*> SelectedRois();
    /// The first selected one, or null.
    CcRoiBase* SelectedRoi();
    /// Null selects none.
    void SelectOnly(CcRoiBase* roi);
    void SetSelected(CcRoiBase& roi, bool isSelected);

    // Edits: each is one step of the history.
    /// Nothing has changed when the list of ROIs cannot grow, which the library tells.
    void AddRoi(std::unique_ptr<CcRoiBase> roi);
    /// The kind's name with the first number that no ROI here has: the library counts over all pictures.
    std::string FreeName(CcRoiBase& roi);
    void DeleteSelectedRois();
    void RenameRoi(CcRoiBase& roi, const std::string& name);
    /// To be called before any other edit of the ROIs, and RoisEdited after it. Throws std::bad_alloc when memory is
    /// short for the step back: there is no edit without one.
    void BeforeRoiEdit();
    void RoisEdited() { Changed(RoisChanged, true); }
    /// Instead of RoisEdited: all is as it was before BeforeRoiEdit.
    void CancelRoiEdit();
    bool CanUndo() const { return history->CanUndo() != 0; }
    bool CanRedo() const { return history->CanRedo() != 0; }
    void Undo();
    void Redo();

    // How it is shown
    ViewState view;
    /// Display table 100 to 104; table 101 while the library's thresholding is previewed.
    unsigned short ShownTable() const { return preview.ChangesPicture() ? 101 : displayTable; }
    /// Draws the picture as it is shown, with the bands over it: `show` draws an image as the picture stands in `area`.
    /// False, with some of it left out, when memory is short.
    bool Draw(HDC dc, SIZE area, const ShowImage& show);
    unsigned short DisplayTable() const { return displayTable; }
    void SetDisplayTable(unsigned short table);
    /// The few points between which a display table's channel (see GetDisplayLUT) was interpolated, by table and
    /// channel; only of those that were edited.
    const std::map<std::pair<int, int>, std::vector<tagPoints>>& TableCurves() const { return tableCurves; }
    /// Of a wide picture the sample values that are shown black (x) and white (y), exactly; 0 and 255 of the others.
    tagPoints ShownRange() const { return shownRange; }
    /// From the smallest to the largest sample of a wide picture that is a number; 0 and 255 of the others.
    tagPoints WholeRange() const { return wholeRange; }
    /// Interpolates the table between these points, which are in ascending order. Of wide pictures the first and the
    /// last one are the range that all tables show.
    void SetTableCurve(int table, int channel, const std::vector<tagPoints>& points);
    /// The table is straight again, and counts as not edited. A wide picture shows its whole range.
    void ResetTableCurve(int table, int channel);

    // Calibration: shared with the image, owned here.
    CcCalibration* Calibration() const { return calibration.get(); }
    /// False when it was made for a picture of another size. An empty path: it is in no file.
    bool SetCalibration(std::unique_ptr<CcCalibration> newCalibration, const std::string& path);
    void RemoveCalibration();
    /// Takes over what another document is calibrated by, of a picture of the same size,
    /// or of a part of that picture whose lower left pixel is `origin` there.
    void CalibrateLike(const Document& other, POINT origin);
    std::string calibrationPath;
    CalibrationDraft calibrationDraft;
    /// Keeps the numbers as they were typed, once they have been applied.
    void KeepDraft(const CalibrationDraft& typed) { calibrationDraft = appliedDraft = typed; }
    /// False when the draft is what the picture is calibrated by.
    bool IsDraftChanged() const { return calibration && calibrationDraft != appliedDraft; }

    // Threshold bands: of sample values in a wide picture, of levels in the others. There are none until someone makes
    // one.
    const std::vector<Band>& Bands() const { return bands; }
    void SetBands(std::vector<Band> newBands);
    /// Shows the bands in their colours over the picture in `canvas`, as long as there are some.
    void PreviewBands(bool isShown, HWND canvas);
    bool IsPreviewing() const { return preview.IsOn(); }
    /// The bands are to be shown, and memory is short.
    bool LacksPreview() const { return IsPreviewDue() && !preview.IsOn(); }
    /// Whether the preview lies over the picture, and not in it.
    bool HasBandLayer() const { return preview.IsOn() && !preview.ChangesPicture(); }
    /// Blue, green and red of an RGB picture's pixels, or lightness, saturation and hue of an HSL picture's, also while
    /// bands are shown over them. Null for other pictures.
    const unsigned char* Colours();
    /// Like the preview: a byte a pixel, 1 in a band.
    std::vector<std::uint8_t> BandMask() { return preview.Mask(bands); }
    /// What a colour image's pixel operators and thresholds see, see SetAccess; -1 for the other images.
    int Channel();
    void SetChannel(int channel);

    bool IsModified() const { return isModified; }
    void SetModified(bool isNowModified);

    /// Called after every change.
    std::function<void(unsigned change)> onChange;
    void Changed(unsigned change, bool isEdit = false);
    /// The image's samples are others now: what depends on them is brought in step.
    void PixelsReplaced();
    /// True after an edit of anything beside the pixels.
    bool HasEdits() const { return hasEdits; }

private:
    friend class PlainPixels;

    std::unique_ptr<CcCalibration> calibration;  // outlives the image, which refers to it
    std::unique_ptr<CcImage> image;
    std::unique_ptr<CcRoiHistory> history;
    CalibrationDraft appliedDraft;
    ThresholdPreview preview;
    HWND previewCanvas = nullptr;  ///< where the bands are to be shown, if they are
    std::vector<Band> bands;
    bool IsPreviewDue() const { return previewCanvas && !bands.empty() && ThresholdPreview::IsPossible(*image); }
    void UpdatePreview();
    unsigned short displayTable = 102;
    std::map<std::pair<int, int>, std::vector<tagPoints>> tableCurves;
    tagPoints shownRange = {0, 255};
    tagPoints wholeRange = {0, 255};
    std::vector<tagPoints> PointsFor(int table, const std::vector<tagPoints>& curve);
    void TakeWholeRange();
    bool isModified = false;
    bool hasEdits = false;
};

/// Takes the threshold preview away for as long as the guard lives: saving, measuring and converting work on the
/// picture's own pixels.
class PlainPixels {
public:
    explicit PlainPixels(Document& newDocument);
    ~PlainPixels();
    PlainPixels(const PlainPixels&) = delete;
    PlainPixels& operator=(const PlainPixels&) = delete;

private:
    Document& document;
    bool wasOn;
};

}  // namespace kestview
