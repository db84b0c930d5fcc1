// CcRoiEllipse: the ellipse.
#pragma once

#include "CcRoiBase.h"

/// An ellipse, inscribed in its bounding rectangle (left, top, right, bottom in image coordinates, top above or at
/// bottom). Four handles: codes 1 top, 2 bottom, 3 left, 4 right middle of the bounding rectangle.
class KEST_API CcRoiEllipse : public CcRoiBase {
public:
    CcRoiEllipse();
    CcRoiEllipse(const CcRoiEllipse&) = default;
    CcRoiEllipse& operator=(const CcRoiEllipse&) = default;

    ~CcRoiEllipse() override;                                   // slot 0
    int Load(CcObjectStorage* pStorage) override;               // slot 1
    int Store(CcObjectStorage* pStorage) override;              // slot 2
    int GetClassNameA(char* pszBuffer, long lLength) override;  // slot 3
    int Save(const char* pszFileName) override;                 // slot 6
    int Restore(const char* pszFileName) override;              // slot 7
    /// `pRecord` is a RECT, the bounding rectangle. -1 for null.
    int SetRoiImageCord(void* pRecord) override;  // slot 8
    /// A RECT, the bounding rectangle.
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
    RECT* GetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                           int iShowZoom);

    static int iEllipseROICount;  ///< ellipses named so far

protected:
    RECT stImageEllipse;   ///< the bounding rectangle in image coordinates
    RECT stWindowEllipse;  ///< the same in client pixels
    POINT stLastMouse;     ///< client pixels
    KestDragDc hDragDC;    ///< held while a drag runs
    int iDragMode;         ///< -1 while no drag runs

private:
    kest::ShapeParts Parts();  // what the functions of the family work on
};
