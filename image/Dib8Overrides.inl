// The overrides of an image class of one byte a pixel, and its remembered paths. The including file names the class as
// IMAGE_CLASS.
using Members = KestDib8Members<IMAGE_CLASS>;

char IMAGE_CLASS::cFullFilePathOpen[KEST_NAME_SIZE] = "C:\\NONE.bmp";
char IMAGE_CLASS::cFullFilePathSave[KEST_NAME_SIZE] = "C:\\NONE.bmp";

int IMAGE_CLASS::Load(CcObjectStorage* pStorage) { return Members::Load(*this, pStorage); }

int IMAGE_CLASS::Store(CcObjectStorage* pStorage) { return Members::Store(*this, pStorage); }

int IMAGE_CLASS::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, Members::Traits::className);
}

void* IMAGE_CLASS::GetBitMapImageData() { return lpBits; }

int IMAGE_CLASS::Show(HDC hDC, RECT* pRect, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                      int iZoom) {
    if (!MakeTables()) return KEST_FAILED;
    return kest::ShowInRect(
        hDC, pRect, [&] { return Look(usLUT); }, {usMode, iXOffset, iYOffset, iZoom});
}

int IMAGE_CLASS::Show(HDC hDC, HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                      int iZoom) {
    if (!MakeTables()) return KEST_FAILED;
    return kest::ShowInWindow(
        hDC, hWnd, [&] { return Look(usLUT); }, {usMode, iXOffset, iYOffset, iZoom});
}

int IMAGE_CLASS::Show(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    if (!MakeTables()) return KEST_FAILED;
    return kest::ShowInWindow(
        hWnd, [&] { return Look(usLUT); }, {usMode, iXOffset, iYOffset, iZoom});
}

int IMAGE_CLASS::OpenBMPFile(const char* pszPath) { return Members::Open(*this, pszPath); }

int IMAGE_CLASS::SaveBMPFile(const char* pszPath) { return Members::Save(*this, pszPath); }

int IMAGE_CLASS::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    return Members::MakeBlank(*this, iNewHeight, iNewWidth, iValue, pszName);
}

int IMAGE_CLASS::SizeOf() { return 1; }

int IMAGE_CLASS::SetAutoUpdateDisplay(int) { return KEST_OK; }

int IMAGE_CLASS::GetAutoUpdateDisplay() { return KEST_FAILED; }

float& IMAGE_CLASS::operator()(float fX, float fY) { return Members::ReadPosition(*this, fX, fY); }

float& IMAGE_CLASS::operator()(int iX, int iY) { return Members::ReadPixel(*this, iX, iY); }

void IMAGE_CLASS::operator=(float fValue) { Members::WritePixel(*this, fValue); }

CcImage* IMAGE_CLASS::GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) {
    return Members::CutRegion(*this, pRoi, iFillValue, iAlign);
}
