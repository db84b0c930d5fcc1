// CcRoiBase: the root of all regions of interest (ROIs).
#pragma once

#include "CcHLObject.h"
#include "KestBlocks.h"
#include "KestPlatform.h"

class CcImage;

namespace kest {  // of the library's own
struct BoundaryBuffer;
struct ShapeParts;
}  // namespace kest

/// The device context of a window in which a ROI is being dragged. A copy of the ROI takes no part in the drag.
class KEST_API KestDragDc {
public:
    KestDragDc() = default;
    /// Holds nothing.
    KestDragDc(const KestDragDc&) {}
    /// Keeps what is held.
    KestDragDc& operator=(const KestDragDc&) { return *this; }

    /// Gets the window's device context for a rubber band: drawing the same outline twice erases it. What is held is
    /// released first. False, and nothing held, when there is none to be had.
    bool Take(HWND hNewWindow);
    /// Gives the device context back to its window.
    void Release();
    /// True while a device context is held whose window is there.
    bool IsUsable() const;
    /// True while the window of the device context has the mouse capture.
    bool HasCapture() const;
    /// Null while nothing is held.
    operator HDC() const { return hDC; }

private:
    HDC hDC = nullptr;
    HWND hWindow = nullptr;
};

/// What CcRoiBase::GetROIType returns; the code stands in every ROI file.
enum KestRoiType : int {
    KEST_ROI_NONE = -1,         ///< CcRoiBase itself
    KEST_ROI_RECT = 0,          ///< CcRoiRect
    KEST_ROI_LINE = 1,          ///< CcRoiLine
    KEST_ROI_FREEHANDLINE = 2,  ///< CcRoiFreeHandLine
    KEST_ROI_POLYLINE = 3,      ///< CcRoiPolyLine
    KEST_ROI_ELLIPSE = 4,       ///< CcRoiEllipse
    KEST_ROI_FREEHAND = 5,      ///< CcRoiFreeHand
    KEST_ROI_POLYFREEHAND = 6,  ///< CcRoiPolyFreeHand
    KEST_ROI_POINT = 7,         ///< CcRoiPoint
};

/// The iDragMode argument of StartMouseDrag.
enum KestDragMode : int {
    KEST_DRAG_CONVERT = 0,  ///< take the place of another ROI, then move; a drawn outline moves from where it is
    KEST_DRAG_MOVE = 1,     ///< carry the whole ROI along
    KEST_DRAG_CREATE = 2,   ///< draw it
    KEST_DRAG_RESIZE = 3,   ///< by the handle that MouseHitTest found
};

/// A shape that the user draws with the mouse over a shown image; the pixels under it can be cut out and measured.
///
/// Coordinates are image pixels, x from the left column, y from the BOTTOM row. The display arguments (window, offsets,
/// mode, image, zoom) are those that the image was shown with, see CcImage.
///
/// Colours and pens are one set for all ROIs. Results: 0, or -1 (null) for failure; a ROI shows no message unless said.
/// A copy shares the points of its source (see KestBlocks.h), but takes no part in a drag that runs, and answers its
/// boundary queries from a work buffer of its own. It is not counted in iNumOfROIs when it is made, though it is when
/// it is destroyed.
class KEST_API CcRoiBase : public CcHLObject {
public:
    CcRoiBase();
    CcRoiBase(const CcRoiBase&) = default;
    CcRoiBase& operator=(const CcRoiBase&) = default;

    // Virtual operations in slot order; the base versions of slots 6 to 22 do nothing and return -1, null or 0.
    ~CcRoiBase() override;  // slot 0
    // slots 1 to 5: Load, Store, GetClassNameA, GetObjectName, SetObjectName, inherited
    /// Writes the ROI to a file of its own, not shared meanwhile. -1 when it cannot be created, or is open elsewhere.
    /// What the disk does not take is told in a message, not by the result, which is 0; an old file is then as it was.
    virtual int Save(const char* pszFileName);  // slot 6
    /// Reads such a file. -1, with nothing changed, when it cannot be read, is not a ROI of this class, or memory is
    /// short; and for the file of an outline without points, if this one has some.
    virtual int Restore(const char* pszFileName);  // slot 7
    /// Copies the class's coordinate record in.
    virtual int SetRoiImageCord(void* pRecord);  // slot 8
    /// The ROI's own coordinate record.
    virtual void* GetRoiImageCord();  // slot 9
    /// Begins drawing, moving or resizing at the mouse position (client pixels) and captures the mouse. -1 for a mode
    /// that the class does not have, for mode 0 without another ROI, and for moving an outline without points. -1 as
    /// well, with the mouse left alone, when the window has no device context to draw in or no size, or memory is
    /// short.
    virtual int StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                               POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI, int iNewZoom);  // slot 10
    /// Follows the mouse. iAddVertex 1 fixes a vertex of a polygon. -1 when no drag runs, when its window has gone
    /// (the drag has then ended, and the mouse is free), or when the window's size cannot be had (nothing has changed).
    virtual int DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                            POINT stMouse, int iAddVertex);  // slot 11
    /// Ends the drag and releases the mouse, also where it returns -1 for what DoMouseDrag does, for too many segments,
    /// or when memory is short. The application then draws the ROI with ShowROI. A rectangle that is drawn (mode 2)
    /// keeps the sides that the last DoMouseDrag gave it; one of them that lies at the mouse goes a pixel further right
    /// or down, so that a click gives a rectangle and not nothing. A rectangle released where it was last drawn is
    /// therefore one pixel larger than what was seen. The other shapes end at the mouse.
    virtual int StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                              POINT stMouse);  // slot 12
    /// The bounding rectangle (top above bottom), without preparing queries; a line's is from its start (left, top) to
    /// its end.
    virtual RECT* GetCurrentBoundingRect();  // slot 13
    /// @name Showing
    /// iPenSelect 1 draws selected, -1 as the ROI's own state says, anything else unselected. -1 for a null device
    /// context, rectangle or image. The device context is left as it was. Coordinates may lie anywhere: only what is
    /// near the surface is drawn.
    /// @{

    /// For output without a window: the rectangle's right and bottom stand for the client area's width and height.
    virtual int ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                        int iShowZoom, int iPenSelect);  // slot 14
    /// Into a device context, with the size of the window's client area.
    virtual int ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                        int iShowZoom, int iPenSelect);  // slot 15
    /// Into the window's client area.
    virtual int ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                        int iShowZoom, int iPenSelect);  // slot 16
    /// @}
    /// The code of what lies under the mouse: -1 nothing, 0 the shape, above 0 one of its handles.
    virtual int MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                             POINT stMouse, int iTestZoom);  // slot 17
    /// The bounding rectangle (top above bottom); prepares the boundary queries. Null for an outline without
    /// points, or when memory is short.
    virtual RECT* GetBoundingRect();  // slot 18
    /// The y values of the ROI on a column, `*piCount` of them; null and 0 when it misses the column, null and -1 when
    /// memory is short. The buffer stays the ROI's and is overwritten or replaced by the next query. Call
    /// GetBoundingRect first.
    virtual int* GetYBoundary(int iColumn, int* piCount);  // slot 19
    /// The x values of the ROI on a row, in the same way.
    virtual int* GetXBoundary(int iRow, int* piCount);  // slot 20
    /// Every shape returns 0: there is nothing to update.
    virtual int UpdateImageIfNeeded(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode,
                                    CcImage* pImage, int iShowZoom);  // slot 21
    /// Every shape returns 0.
    virtual int IsRoiAGraphicObject();  // slot 22

    int GetROIType();  ///< one of KestRoiType
    /// Exactly 1 selects.
    int SetSelected(int bSelect);
    int IsROISelected();  ///< 1 or 0

    /// @name Colours and pens
    /// Class-wide: what every ROI is drawn with. -1 for null, or when a pen cannot be made (the old one stays).
    /// @{
    int SetSelectedColor(RGBTRIPLE* pColor);    ///< for selected ROIs
    int SetUnSelectedColor(RGBTRIPLE* pColor);  ///< for the others
    int GetSelectedColor(RGBTRIPLE* pColor);    ///< a copy
    int GetUnSelectedColor(RGBTRIPLE* pColor);  ///< a copy
    /// Makes both pens anew at this width, so that outlines thicken with the zoom. When only the second pen cannot be
    /// made, the first is new already and the result is -1.
    int SetZoomPen(int iPenWidth);
    /// @}

    static RGBTRIPLE stSelectedColor;    ///< red again whenever the first of all ROIs is made
    static RGBTRIPLE stUnSelectedColor;  ///< green, likewise
    static HPEN hSelectedPen;            ///< null while there is no ROI
    static HPEN hUnSelectedPen;          ///< likewise
    static int iNumOfROIs;               ///< ROI objects alive

protected:
    int iROIType;                ///< one of KestRoiType
    int iZoom;                   ///< of the drag that runs or ran last
    int iHitCode;                ///< of the handle that MouseHitTest found last, -1 at first
    int bSelected;               ///< 1 or 0
    RECT stCurrentBoundingRect;  ///< what GetCurrentBoundingRect returns
    RECT stBoundingRect;         ///< what GetBoundingRect returns
    int* piBoundary;             ///< what the boundary queries return
    KestWorkBlock hBoundary;     ///< the block behind it
    /// Entries in the work buffer, if there is one: after GetBoundingRect two for each pixel of the larger side, or
    /// 131,072 when that is more; a query that lists more makes room for them.
    int iBoundarySize;

    /// Makes the work buffer ready for queries over stBoundingRect. False without memory.
    bool SizeBoundary();
    /// What a boundary query returns that lists every value from iFirst to iLast, both included.
    int* ListRange(int iFirst, int iLast, int* piCount);
    /// The members above, for the library's own classes.
    kest::BoundaryBuffer Boundary();
    /// The pen for an iPenSelect argument.
    HPEN PenFor(int iPenSelect);
};
