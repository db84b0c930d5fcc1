// The overrides of a ROI class, for all eight: each calls the member that the class's family has in common. The including
// file names the class as ROI_CLASS, and its family's members as Members.

int ROI_CLASS::Load(CcObjectStorage* pStorage) { return Members::Load(*this, pStorage); }

int ROI_CLASS::Store(CcObjectStorage* pStorage) { return Members::Store(*this, pStorage); }

int ROI_CLASS::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, Members::Traits::className);
}

int ROI_CLASS::Save(const char* pszFileName) { return Members::Save(*this, pszFileName); }

int ROI_CLASS::Restore(const char* pszFileName) { return Members::Restore(*this, pszFileName); }

int ROI_CLASS::SetRoiImageCord(void* pRecord) { return Members::TakeRecord(*this, pRecord); }

void* ROI_CLASS::GetRoiImageCord() { return Members::RecordOf(*this); }

int ROI_CLASS::StartMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                              POINT stMouse, int iNewDragMode, CcRoiBase* pSourceROI, int iNewZoom) {
    return Members::StartDrag(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iNewZoom}, stMouse, iNewDragMode,
                              pSourceROI);
}

// During a drag the zoom of its start counts.
int ROI_CLASS::DoMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                           POINT stMouse, int iAddVertex) {
    return Members::ContinueDrag(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse, iAddVertex);
}

int ROI_CLASS::StopMouseDrag(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                             POINT stMouse) {
    return Members::StopDrag(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iZoom}, stMouse);
}

RECT* ROI_CLASS::GetCurrentBoundingRect() { return Members::CurrentBounds(*this); }

int ROI_CLASS::ShowROI(HDC hDC, RECT* pRect, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    return Members::Show(*this, hDC, pRect, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom}, iPenSelect);
}

int ROI_CLASS::ShowROI(HDC hDC, HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    return Members::Show(*this, hDC, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom}, iPenSelect);
}

int ROI_CLASS::ShowROI(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                       int iShowZoom, int iPenSelect) {
    const kest::WindowDc dc(hWnd);
    return Members::Show(*this, dc, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom}, iPenSelect);
}

int ROI_CLASS::MouseHitTest(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                            POINT stMouse, int iTestZoom) {
    return Members::HitTest(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iTestZoom}, stMouse);
}

RECT* ROI_CLASS::GetBoundingRect() { return Members::Bounds(*this); }

int* ROI_CLASS::GetYBoundary(int iColumn, int* piCount) {
    return PrepareCopy() ? Members::ListColumn(*this, iColumn, piCount) : ListFailed(piCount);
}

int* ROI_CLASS::GetXBoundary(int iRow, int* piCount) {
    return PrepareCopy() ? Members::ListRow(*this, iRow, piCount) : ListFailed(piCount);
}

int ROI_CLASS::UpdateImageIfNeeded(HWND, int, int, unsigned short, CcImage*, int) { return KEST_OK; }

int ROI_CLASS::IsRoiAGraphicObject() { return 0; }
