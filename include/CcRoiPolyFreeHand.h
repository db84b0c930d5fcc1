// CcRoiPolyFreeHand: the closed polygon.
#pragma once

#include "CcRoiBase.h"
#include "KestOutline.h"

/// A closed polygon between clicked vertices (iAddVertex 1 of DoMouseDrag fixes one). Its rows are filled by the
/// even-odd rule, the outline included, each column once.
class KEST_API CcRoiPolyFreeHand : public CcRoiBase {
public:
    CcRoiPolyFreeHand();
    CcRoiPolyFreeHand(const CcRoiPolyFreeHand&) = default;
    CcRoiPolyFreeHand& operator=(const CcRoiPolyFreeHand&) = default;

    ~CcRoiPolyFreeHand() override;                              // slot 0
    int Load(CcObjectStorage* pStorage) override;               // slot 1
    int Store(CcObjectStorage* pStorage) override;              // slot 2
    int GetClassNameA(char* pszBuffer, long lLength) override;  // slot 3
    int Save(const char* pszFileName) override;                 // slot 6
    int Restore(const char* pszFileName) override;              // slot 7
    /// `pRecord` is a PixelGroupTag, of which the points are copied. -1 for null, a count below 1, or without memory,
    /// in which case the outline has no points left.
    int SetRoiImageCord(void* pRecord) override;  // slot 8
    /// A PixelGroupTag. Its points may be moved in place; the next GetBoundingRect sees it.
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

    /// Writes the outline's pixels as text, a line each: index, x and y, separated by tabs. 0 also when the file cannot
    /// be opened; -1, after a message and with an old file as it was, when the disk does not take it.
    int PrintPerimiterPointsToFile(const char* pszFileName);

    static int iPFreeROICount;  ///< polygons named so far

    /// @name Work arrays
    /// Class-wide: only one ROI of the class can be drawn at a time.
    /// @{
    static POINT stDrawSegStartPoint[KEST_MAX_SEGMENTS];     ///< drawn segments, client pixels
    static POINT stDrawSegStopPoint[KEST_MAX_SEGMENTS];      ///< where each of them ends
    static POINT stDrawSegStartPointImg[KEST_MAX_SEGMENTS];  ///< the same in image coordinates
    static POINT stDrawSegStopPointImg[KEST_MAX_SEGMENTS];   ///< where each of them ends
    static PixelGroupTag stWindowFreeHand;                   ///< empty; kept for its place
    static int iSizeOfWindowFreeHand;                        ///< 0
    static CommPerPolyPointsTag* stXCommonPerimPoints;       ///< the pixels of the row queried last
    static CommPerPolyPointsTag* stYCommonPerimPoints;       ///< the pixels of the column queried last
    static HGLOBAL hstXCommonPerimPoints;                    ///< the block behind stXCommonPerimPoints
    static HGLOBAL hstYCommonPerimPoints;                    ///< the block behind stYCommonPerimPoints
    static int iSizeOfCommonPerimPointsArr;                  ///< records in each of the two
    static int iNumOfFreeHandROIs;                           ///< objects of the class alive
    /// @}

protected:
    PixelGroupTag stImageFreeHand;  ///< the outline in image coordinates
    int iSegIndex;                  ///< of the segment that is being drawn
    POINT stLastMouse;              ///< client pixels
    POINT stLastMouseImg;           ///< image coordinates
    KestDragDc hDragDC;             ///< held while a drag runs
    int iDragMode;                  ///< -1 while no drag runs

private:
    friend struct kest::OutlineParts;
    kest::OutlineParts Parts();  // what the functions of the family work on
    KestGlobalBlock hPoints;     // behind stImageFreeHand.stPOINTS
    KestOutlineQueries stQueries;
};
