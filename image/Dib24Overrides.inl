// The overrides of an image class of three bytes a pixel, and its remembered directories. The including file names the
// class as IMAGE_CLASS.
using Members = KestDib24Members<IMAGE_CLASS>;

char IMAGE_CLASS::cFullFilePathOpen[KEST_NAME_SIZE] = "C:\\NONE.bmp";
char IMAGE_CLASS::cFullFilePathSave[KEST_NAME_SIZE] = "C:\\NONE.bmp";

int IMAGE_CLASS::Load(CcObjectStorage* pStorage) { return Members::Load(*this, pStorage); }

int IMAGE_CLASS::Store(CcObjectStorage* pStorage) { return Members::Store(*this, pStorage); }

int IMAGE_CLASS::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, Members::Traits::className);
}

int IMAGE_CLASS::CopyToClipboard(HWND hWnd, unsigned short, RECT* pRect) {
    return Members::CopyToClipboard(*this, hWnd, pRect);
}

// Unlike the 8-bit images, the colour images do not report a missing device context or window.
int IMAGE_CLASS::Show(HDC hDC, RECT* pRect, unsigned short, unsigned short usMode, int iXOffset, int iYOffset,
                      int iZoom) {
    if (!hDC) return KEST_OK;
    return kest::ShowInRect(
        hDC, pRect, [this] { return Members::Look(*this); }, {usMode, iXOffset, iYOffset, iZoom});
}

int IMAGE_CLASS::Show(HDC hDC, HWND hWnd, unsigned short, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    if (!hDC || !hWnd) return KEST_OK;
    return kest::ShowInWindow(
        hDC, hWnd, [this] { return Members::Look(*this); }, {usMode, iXOffset, iYOffset, iZoom});
}

int IMAGE_CLASS::Show(HWND hWnd, unsigned short, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    if (!hWnd) return KEST_OK;
    return kest::ShowInWindow(
        hWnd, [this] { return Members::Look(*this); }, {usMode, iXOffset, iYOffset, iZoom});
}

int IMAGE_CLASS::Print(HWND hWnd, unsigned short, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    return Members::Print(*this, hWnd, {usMode, iXOffset, iYOffset, iZoom});
}

int IMAGE_CLASS::GetDisplayLUT(int, int, tagPoints*) { return KEST_FAILED; }

int IMAGE_CLASS::SetDisplayLUT(int, int, tagPoints*) { return KEST_FAILED; }

int IMAGE_CLASS::OpenBMPFile(const char* pszPath) { return Members::Open(*this, pszPath); }

int IMAGE_CLASS::SaveBMPFile(const char* pszPath) { return Members::Save(*this, pszPath); }

int IMAGE_CLASS::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    return Members::MakeBlank(*this, iNewHeight, iNewWidth, iValue, pszName);
}

int IMAGE_CLASS::BeginThresholding(HWND, unsigned short) { return Members::Backup(*this).Make(); }

float IMAGE_CLASS::GetMinPixelValue() { return 0.0F; }

float IMAGE_CLASS::GetMaxPixelValue() { return 255.0F; }

int IMAGE_CLASS::SizeOf() { return kest::PlaneBytesPerPixel; }

int IMAGE_CLASS::SetAutoUpdateDisplay(int) { return KEST_OK; }

int IMAGE_CLASS::GetAutoUpdateDisplay() { return 1; }

float& IMAGE_CLASS::operator()(float fX, float fY) { return Members::ReadPosition(*this, fX, fY); }

float& IMAGE_CLASS::operator()(int iX, int iY) { return Members::ReadPixel(*this, iX, iY); }

void IMAGE_CLASS::operator=(float fValue) { Members::WritePixel(*this, fValue); }

CcImage* IMAGE_CLASS::GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) {
    return Members::CutRegion(*this, pRoi, iFillValue, iAlign);
}

int IMAGE_CLASS::GetAccess() { return iAccess; }
