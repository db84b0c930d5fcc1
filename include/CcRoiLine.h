// CcRoiLine: the straight line.
#pragma once

#include "CcRoiBase.h"

/// The coordinates of a line: 16 bytes.
struct tagROILINE {
    int iStartX;  ///< column of the start
    int iStartY;  ///< row of the start, from the bottom
    int iEndX;    ///< column of the end
    int iEndY;    ///< row of the end, from the bottom
};

/// A line from its start to its end, in image coordinates. Its pixels are one a row or one a column, whichever are
/// more, the end with the larger coordinate excluded; a line of no length has none. Two handles: codes 5 start and 8
/// end.
class KEST_API CcRoiLine : public CcRoiBase {
public:
    CcRoiLine();
    CcRoiLine(const CcRoiLine&) = default;
    CcRoiLine& operator=(const CcRoiLine&) = default;

    ~CcRoiLine() override;                                      // slot 0
    int Load(CcObjectStorage* pStorage) override;               // slot 1
    int Store(CcObjectStorage* pStorage) override;              // slot 2
    int GetClassNameA(char* pszBuffer, long lLength) override;  // slot 3
    int Save(const char* pszFileName) override;                 // slot 6
    int Restore(const char* pszFileName) override;              // slot 7
    /// `pRecord` is a tagROILINE. -1 for null.
    int SetRoiImageCord(void* pRecord) override;  // slot 8
    /// A tagROILINE.
    void* GetRoiImageCord() override;  // slot 9
    int StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI, int iNewZoom) override;  // slot 10
    int DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage, POINT stMouse,
                    int iAddVertex) override;  // slot 11
    int StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                      POINT stMouse) override;  // slot 12
    RECT* GetCurrentBoundingRect() override;    // slot 13
    int ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                int iShowZoom, int iPenSelect) override;  // slot 14
    int ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                int iShowZoom, int iPenSelect) override;  // slot 15
    int ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage, int iShowZoom,
                int iPenSelect) override;  // slot 16
    int MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                     POINT stMouse, int iTestZoom) override;  // slot 17
    RECT* GetBoundingRect() override;                         // slot 18
    int* GetYBoundary(int iColumn, int* piCount) override;    // slot 19
    int* GetXBoundary(int iRow, int* piCount) override;       // slot 20
    int UpdateImageIfNeeded(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                            int iShowZoom) override;  // slot 21
    int IsRoiAGraphicObject() override;               // slot 22

    /// Converts the window copy into the image record. -1 for a null image or window.
    int SetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                         int iShowZoom);
    /// Recomputes the window copy from the image record and returns it; a null image leaves it as it was.
    tagROILINE* GetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                 int iShowZoom);

    static int iLineROICount;  ///< lines named so far

protected:
    tagROILINE stImageLine;   ///< the line in image coordinates
    tagROILINE stWindowLine;  ///< the same in client pixels
    POINT stLastMouse;        ///< client pixels
    KestDragDc hDragDC;       ///< held while a drag runs
    int iDragMode;            ///< -1 while no drag runs

private:
    kest::ShapeParts Parts();  // what the functions of the family work on
};
