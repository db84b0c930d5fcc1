// CcGraph: curves drawn between two labelled axes, their break points picked and dragged with the mouse.
#pragma once

#include "CcCurve.h"
#include "CcList.h"
#include "KestBlocks.h"

namespace kest {
struct GraphAxis;
struct GraphPlane;
struct GraphScales;
struct HitAxes;
}  // namespace kest

/// Curves that a graph keeps a default appearance for.
constexpr int KEST_GRAPH_CURVES = 100;
/// Characters of a graph's title and axis texts, their terminator included.
constexpr int KEST_GRAPH_TEXT_SIZE = 80;

/// The default appearance of one curve of a graph, in memory and in appearance files: 32 bytes.
struct tagCURVEAPPEARANCE {
    COLORREF ulColor;  ///< of lines or squares
    int iStyle;        ///< as CcCurve::SetCurveStyle takes it
    int iWidth;        ///< pixels
    char szName[20];   ///< NUL-terminated, at most 19 characters
};
static_assert(sizeof(tagCURVEAPPEARANCE) == 32);

/// A graph: a list of curves with axis ranges, label precisions, tick and grid settings, texts, and an origin cross. It
/// is drawn into any device context; once it was drawn into a window, mouse positions there can be turned into data.
///
/// Three coordinate spaces meet here. Device coordinates are pixels, y downward. Logical coordinates are the graph's
/// own mapping of the device context, one unit a pixel, y upward. Data coordinates are the points of the curves. Every
/// operation that takes a device context sets the graph's mapping on it and puts the mapping mode back before it
/// returns; window and viewport origins stay as the graph set them.
///
/// Curves are members of a CcList that the caller owns; members that are no CcCurve count as null. The graph itself has
/// no class name and cannot be written to an object stream; SaveAppearance keeps its settings.
class KEST_API CcGraph : public CcHLObject {
public:
    /// Ranges 0 to 500, three major and three minor marks an axis, major grid lines. Loads the library with the
    /// templates of the settings dialogs, "Kest_GRes.dll", from the folder of this library; where it does not lie there
    /// the first dialog loads it by its name.
    CcGraph();
    CcGraph(const CcGraph&) = default;
    CcGraph& operator=(const CcGraph&) = default;

    ~CcGraph() override;  // slot 0

    /// Keeps the pointer; null for no curves.
    int SetCurveList(CcList* pList);
    CcList* GetCurveList();  ///< what SetCurveList kept, or null

    /// Title and axis texts: at most 79 characters each, the rest is cut off. Null leaves a text as it is.
    int SetGraphText(const char* pszTitle, const char* pszXText, const char* pszYText);
    /// Each buffer must hold 80 bytes. Null is skipped.
    int GetGraphText(char* pszTitle, char* pszXText, char* pszYText);

    /// Ranges in data coordinates; exponents by which the labels are scaled (3: thousands); decimals of the labels.
    /// Corrects, with a message box of the caption "Error": a precision outside 0 to 5 to 2, and a maximum that
    /// equals its minimum to 1 more. The boxes come when all is stored and corrected. A minimum above its maximum turns
    /// the axis round. Always 0.
    int SetMinMaxValues(float fNewXMin, float fNewXMax, float fNewYMin, float fNewYMax, int iXOption,
                        int iNewXPrecision, int iYOption, int iNewYPrecision);
    /// The same values in the same order. Null is skipped.
    int GetMinMaxValues(float* pfXMin, float* pfXMax, float* pfYMin, float* pfYMax, int* piXOption, int* piXPrecision,
                        int* piYOption, int* piYPrecision);

    /// Numbers of marks (major: on the whole axis, at least 2; minor: between two major ones), then whether they are
    /// lines across the plot (1) or short marks (0).
    int SetGridMarkings(int iXMajor, int iYMajor, int iXMinor, int iYMinor, int iXMajorLines, int iYMajorLines,
                        int iXMinorLines, int iYMinorLines);
    /// The same values in the same order. Null is skipped.
    int GetGridMarkings(int* piXMajor, int* piYMajor, int* piXMinor, int* piYMinor, int* piXMajorLines,
                        int* piYMajorLines, int* piXMinorLines, int* piYMinorLines);

    /// Where the axis lines cross, in data coordinates.
    int SetXYOriginCross(float fX, float fY);
    /// Null is skipped.
    int GetXYOriginCross(float* pfX, float* pfY);

    /// The default appearance of curve 0 to 99; -1 for another index or null. A curve takes it over only when the host
    /// (or the line style dialog) gives it to CcCurve::SetCurveStyle.
    int GetCurveAppearance(int iIndex, tagCURVEAPPEARANCE* pAppearance);
    /// Its name is kept with a terminator.
    int SetCurveAppearance(int iIndex, const tagCURVEAPPEARANCE* pAppearance);

    /// Writes the settings, without the curves, to a file of 3560 bytes. -1 after a message box "Can't open file:%s for
    /// saving" with the caption "Error...". What the disk does not take is told by a box "Can't write file:%s"; an old
    /// file is then as it was, and the result 0.
    int SaveAppearance(const char* pszFileName);
    /// Reads what SaveAppearance wrote. -1 after a message box "Can't open file:%s for reading" with the caption
    /// "Error..."; -1 without a box, and nothing changed, for a file that is too short.
    int RestoreAppearance(const char* pszFileName);

    /// Draws the graph: into the client area of `hWnd`, or, with `iDevice` 1, onto the whole surface of the device (a
    /// page). Uses the font of `hDC`. Always 0. Nothing is drawn but the frame of a page when the ranges are empty or
    /// not finite, the place has no room for a plot, or a logical unit is over 10,000 pixels and the place's longer
    /// side; points that are not finite leave gaps in their curves. Whatever the settings say, a drawing costs no more
    /// than its surface: what lies far beside that is left out, and texts whose letters would be several times as
    /// large.
    int ShowGraph(HWND hWnd, HDC hDC, int iDevice);
    /// Draws one more curve over a graph, in the pen of `hDC`; the gaps of broken lines show what is behind. Always 0.
    int ShowCurveOnGraph(HWND hWnd, HDC hDC, tagPoints* pPoints, int iCount, int iDevice);
    /// Marks points of the selected curve with squares of 10 pixels, in the pen and brush of `hDC`; indices that are no
    /// point are skipped. Always 0.
    int ShowListOfSelPoints(HWND hWnd, HDC hDC, int* piIndices, int iCount, int iDevice);

    /// @name Picking
    /// Positions are in device coordinates of the window that the graph was last drawn into, and `hDC` is a device
    /// context of it. A break point is hit within 4 pixels; the first one in the order of list and points counts.
    /// @{

    /// The index of the point that is hit, which becomes the selected point, its curve the selected one of the list; -1
    /// for no hit. A null member of the list is shown in a message box with the caption "Graph Error" and passed over.
    int IsCursorOnBP(HDC hDC, POINT* ptDevice);
    /// The same, but x does not count.
    int IsCursorOnBPnoX(HDC hDC, POINT* ptDevice);
    /// The same, but y does not count.
    int IsCursorOnBPnoY(HDC hDC, POINT* ptDevice);
    /// The same among the points of the list's selected curve. -1 also when none is selected.
    int IsCursorOnSelectedBP(HDC hDC, POINT* ptDevice);

    /// Moves the selected point of the list's selected curve to a device position. 0, also when no curve is selected;
    /// -1 when no point is selected, the curve has no such point, or positions cannot be turned into data.
    int SetSelBPViaMouse(HDC hDC, POINT* ptDevice);
    /// The logical and the data coordinates of a device position. Always 0.
    int GetPositionViaMouse(HDC hDC, POINT* ptDevice, POINT* ptLogical, tagPoints* ptData);
    /// Moves the selected point by value. 0, also when no curve is selected; -1 without a curve list or selected point,
    /// or when the curve has no such point.
    int SetSelBPDirect(float fX, float fY);
    /// Reads it. Results as above; null is skipped.
    int GetSelBPDirect(float* pfX, float* pfY);

    /// @}
    /// @name Settings dialogs
    /// Modal to the window with the focus. 0 however they are closed; -1 when the library with their templates
    /// could not be loaded. A dialog that cannot be made, for want of its template or of memory, changes nothing and
    /// returns 0 after a message box "Can't open dialog:%s" with the caption "Error...". Redraw the graph afterwards.
    ///
    /// The host's timers and paint handlers run meanwhile. They may change the list of curves: a curve that is no
    /// longer in it when the user accepts is not touched. When they delete the graph its dialog is cancelled.
    /// @{

    int ShowDLBLineStyle();        ///< colour, style and width of the curves
    int ShowDLBSetGridMarkings();  ///< numbers of marks, lines or short marks
    int ShowDLBSetMM();            ///< ranges, exponents and decimals of the axes, origin cross
    int ShowDLBTitle();            ///< title and axis texts
    /// @}

protected:
    int stMapExtents[4];   ///< window extent x and y, viewport extent x and y
    int stMapOrigins[4];   ///< viewport origin x and y (device), window origin x and y (logical)
    float fXMin;           ///< data coordinate at the left end
    float fXOrigin;        ///< where the y axis crosses
    float fXMax;           ///< data coordinate at the right end
    float fYMin;           ///< data coordinate at the lower end
    float fYOrigin;        ///< where the x axis crosses
    float fYMax;           ///< data coordinate at the upper end
    int stPlotRect[4];     ///< the plot's left, top, right and bottom, in device units
    int iWorkValues[4];    ///< not used
    int iGridMarkings[8];  ///< lines or marks: x major, x minor, y major, y minor; numbers: x major, y major, x minor,
                           ///< y minor
    char szXAxisText[KEST_GRAPH_TEXT_SIZE];                   ///< text under the x axis
    char szYAxisText[KEST_GRAPH_TEXT_SIZE];                   ///< text beside the y axis
    char szTitleText[KEST_GRAPH_TEXT_SIZE];                   ///< title
    int iXAxisOption;                                         ///< exponent of the x labels
    int iXPrecision;                                          ///< decimals of the x labels
    int iYAxisOption;                                         ///< exponent of the y labels
    int iYPrecision;                                          ///< decimals of the y labels
    tagCURVEAPPEARANCE stCurveAppearance[KEST_GRAPH_CURVES];  ///< defaults
    CcCurve* pSelectedCurve;                                  ///< curve of the selected point
    int iSelectedPoint;                                       ///< index into the selected curve's points, -1 for none
    int iReserved;                                            ///< not used
    KestLibrary hResourceLibrary;                             ///< the dialogs' templates
    int bOriginSelected;                                      ///< 1: the cursor was near the origin cross
    CcList* pCurveList;                                       ///< the caller's list, or null

private:
    /// Whether the cursor is within 9 pixels of the origin cross, kept in bOriginSelected.
    int IsCursorOnOrigin(HDC hDC, POINT* ptDevice);
    /// Moves the viewport origin to a device position.
    int SetOriginViaMouse(POINT* ptDevice);

    using RunDialog = void(CcGraph& graph, HMODULE resources, HWND owner);
    int ShowDialog(RunDialog* pRun);
    kest::GraphAxis XAxis() const;
    kest::GraphAxis YAxis() const;
    kest::GraphScales Scales() const;
    void SetMapping(HDC hDC) const;
    bool LayOut(HWND hWnd, HDC hDC, int iDevice, bool bFramePage, kest::GraphPlane& plane);
    void DrawCurves(HDC hDC, const kest::GraphPlane& plane);
    int FindBreakPoint(HDC hDC, POINT* ptDevice, const kest::HitAxes& axes);
    int FindSelectedPoint(tagPoints*& pPoint);
    template <class Visitor>
    void VisitAppearance(Visitor visit);
};
