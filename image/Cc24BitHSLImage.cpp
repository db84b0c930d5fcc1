// Cc24BitHSLImage: the 24-bit colour image with a plane of hue, saturation and lightness. What it shares with
// Cc24BitRGBImage is done by ColourImage, the plane's work by HslPlane; its thresholding stands in
// Cc24BitHSLImageThreshold.cpp.
#include "Cc24BitHSLImage.h"

#include <algorithm>

#include "core/ClassName.h"
#include "core/Messages.h"
#include "image/ColourImage.h"
#include "image/RegionExtract.h"
#include "image/kernel/ColourConvert.h"

char Cc24BitHSLImage::cFullFilePathOpen[KEST_NAME_SIZE] = KEST_NO_BMP_PATH;
char Cc24BitHSLImage::cFullFilePathSave[KEST_NAME_SIZE] = KEST_NO_BMP_PATH;

namespace {

// The second pattern is empty, which ends the list: only BMP files are offered.
constexpr char bmpFilter[] = "Bitmap Files (*.BMP)\0*.bmp\0All Files (*.*)\0\0";
constexpr kest::ColourClass hslImage = {
    {"Cc24BitHSLImage_Size", "Cc24BitHSLImage_Data"}, bmpFilter, KEST_CHANNEL_HUE, KEST_CHANNEL_LIGHTNESS};

}  // namespace

Cc24BitHSLImage::Cc24BitHSLImage()
    : iAccess(KEST_CHANNEL_HUE), pHSLData(nullptr), bThresholdActive(0), pThresholdBackup(nullptr), bClipping(false) {
    iImageType = KEST_IMAGE_HSL;
}

Cc24BitHSLImage::~Cc24BitHSLImage() = default;

KEST_COMPILED_ONCE kest::ColourImage Cc24BitHSLImage::Colour() {
    return {hslImage,          Parts(),           iAccess,
            bThresholdActive,  hThresholdBackup,  pThresholdBackup,
            cFullFilePathOpen, cFullFilePathSave, kest::HslPlane{pHSLData, hHSLData, bClipping}};
}

int Cc24BitHSLImage::Load(CcObjectStorage* pStorage) { return Colour().Load(pStorage); }

int Cc24BitHSLImage::Store(CcObjectStorage* pStorage) { return Colour().Store(pStorage); }

int Cc24BitHSLImage::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, "Cc24BitHSLImage");
}

int Cc24BitHSLImage::CopyToClipboard(HWND hWnd, unsigned short, RECT* pRect) {
    return Colour().CopyToClipboard(hWnd, pRect);
}

int Cc24BitHSLImage::Show(HDC hDC, RECT* pRect, unsigned short, unsigned short usMode, int iXOffset, int iYOffset,
                          int iZoom) {
    return Colour().Show(hDC, pRect, {usMode, iXOffset, iYOffset, iZoom});
}

int Cc24BitHSLImage::Show(HDC hDC, HWND hWnd, unsigned short, unsigned short usMode, int iXOffset, int iYOffset,
                          int iZoom) {
    return Colour().Show(hDC, hWnd, {usMode, iXOffset, iYOffset, iZoom});
}

int Cc24BitHSLImage::Show(HWND hWnd, unsigned short, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    return Colour().Show(hWnd, {usMode, iXOffset, iYOffset, iZoom});
}

int Cc24BitHSLImage::Print(HWND hWnd, unsigned short, unsigned short usMode, int iXOffset, int iYOffset, int iZoom) {
    return Colour().Print(hWnd, {usMode, iXOffset, iYOffset, iZoom});
}

int Cc24BitHSLImage::GetDisplayLUT(int, int, tagPoints*) { return KEST_FAILED; }

int Cc24BitHSLImage::SetDisplayLUT(int, int, tagPoints*) { return KEST_FAILED; }

int Cc24BitHSLImage::OpenBMPFile(const char* pszPath) { return Colour().Open(pszPath); }

int Cc24BitHSLImage::SaveBMPFile(const char* pszPath) { return Colour().Save(pszPath); }

int Cc24BitHSLImage::MakeBlankBMP(int iNewHeight, int iNewWidth, int iValue, const char* pszName) {
    return Colour().MakeBlank(iNewHeight, iNewWidth, iValue, pszName);
}

int Cc24BitHSLImage::BeginThresholding(HWND, unsigned short) { return Colour().Backup().Make(); }

float Cc24BitHSLImage::GetMinPixelValue() { return 0.0F; }

float Cc24BitHSLImage::GetMaxPixelValue() { return 255.0F; }

int Cc24BitHSLImage::SizeOf() { return kest::PlaneBytesPerPixel; }

int Cc24BitHSLImage::SetAutoUpdateDisplay(int) { return KEST_OK; }

int Cc24BitHSLImage::GetAutoUpdateDisplay() { return 1; }

float& Cc24BitHSLImage::operator()(float fX, float fY) {
    return kest::ReadChannel(Parts(), {hslImage, iAccess, pHSLData, hHSLData.Size()}, fX, fY);
}

float& Cc24BitHSLImage::operator()(int iX, int iY) {
    return kest::ReadChannel(Parts(), {hslImage, iAccess, pHSLData, hHSLData.Size()}, iX, iY);
}

void Cc24BitHSLImage::operator=(float fValue) {
    kest::WriteChannel(Parts(), {hslImage, iAccess, pHSLData, hHSLData.Size()}, fValue);
}

CcImage* Cc24BitHSLImage::GetRegion(CcRoiBase* pRoi, int iFillValue, int iAlign) {
    kest::RegionFrame frame;
    if (!lpBits || !kest::FrameRegion(pRoi, iAlign, szObjectName, iWidth, iHeight, frame)) return nullptr;
    return kest::MakeRegion<Cc24BitHSLImage>(frame, iFillValue, [&](Cc24BitHSLImage& region) {
        const auto copy = [&](const unsigned char* source, unsigned char* target) {
            return kest::CopyRegion(*pRoi, frame, {source, iWidth, iHeight, SizeOf()},
                                    {target, frame.width, frame.height, SizeOf()});
        };
        const bool havePlanes = Colour().plane->Fits(Parts().dib) && region.Colour().plane->Fits(region.Parts().dib);
        return copy(lpBits, region.lpBits) && (!havePlanes || copy(pHSLData, region.pHSLData));
    });
}

int Cc24BitHSLImage::SetAccess(int iChannel) { return Colour().SetAccess(iChannel); }

int Cc24BitHSLImage::GetAccess() { return iAccess; }

// Colours

int Cc24BitHSLImage::RGB2HSL(unsigned char ucRed, unsigned char ucGreen, unsigned char ucBlue, RGBQUAD* pHsl) {
    if (!pHsl) return KEST_FAILED;
    const kest::Hsl hsl = kest::RgbToHsl({ucRed, ucGreen, ucBlue});
    pHsl->rgbRed = hsl.hue;
    pHsl->rgbGreen = hsl.saturation;
    pHsl->rgbBlue = hsl.lightness;
    return KEST_OK;
}

int Cc24BitHSLImage::HSL2RGB(unsigned char ucHue, unsigned char ucSat, unsigned char ucLight, RGBQUAD* pRgb) {
    if (!pRgb || std::max({ucHue, ucSat, ucLight}) > kest::LargestHslValue) return KEST_FAILED;
    const kest::Rgb rgb = kest::HslToRgb({ucHue, ucSat, ucLight});
    pRgb->rgbRed = rgb.red;
    pRgb->rgbGreen = rgb.green;
    pRgb->rgbBlue = rgb.blue;
    return KEST_OK;
}

double Cc24BitHSLImage::HSL2RGB_Helper(double dM1, double dM2, double dHue) {
    return kest::HslComponent(dM1, dM2, dHue);
}

void Cc24BitHSLImage::SetClipping(bool bClip) { bClipping = bClip; }

// The plane

void* Cc24BitHSLImage::GetBitMapImageDataHSL() { return pHSLData; }

int Cc24BitHSLImage::ConvertRGBDibToHSL(unsigned char* pRgb, unsigned char* pHsl, int iRows, int iColumns) {
    if (!pRgb || !pHsl || iRows < 1 || iColumns < 1) return KEST_FAILED;
    kest::ConvertRgbToHsl(kest::PlaneBytes(pRgb, iRows, iColumns), kest::PlaneBytes(pHsl, iRows, iColumns));
    return KEST_OK;
}

int Cc24BitHSLImage::ConvertHSLDibToRGB(unsigned char* pRgb, unsigned char* pHsl, int iRows, int iColumns) {
    if (!pRgb || !pHsl || iRows < 1 || iColumns < 1) return KEST_FAILED;
    const bool isConverted = kest::ConvertHslToRgb(kest::PlaneBytes(pHsl, iRows, iColumns),
                                                   kest::PlaneBytes(pRgb, iRows, iColumns), bClipping);
    return isConverted ? KEST_OK : KEST_FAILED;
}

int Cc24BitHSLImage::DoConvert() {
    if (Colour().plane->TakeFrom(Parts().dib) == KEST_OK) return KEST_OK;
    kest::ShowMessage("Error in DoConvert.", "Error");
    return KEST_FAILED;
}

int Cc24BitHSLImage::UpdateRGB() {
    if (Colour().plane->PutInto(Parts().dib) == KEST_OK) return KEST_OK;
    kest::ShowMessage("Error in UpdateRGB.", "Error");
    return KEST_FAILED;
}

unsigned char* Cc24BitHSLImage::ReadDibBM24HSL(const char* pszPath, void** phDIB) {
    if (!pszPath || !phDIB) return nullptr;
    KestGlobalBlock dib;
    kest::DibLayout layout;
    unsigned char* header = Colour().plane->ReadWithDib(pszPath, dib, layout);
    *phDIB = dib.Detach();
    return header;
}

unsigned char* Cc24BitHSLImage::MakeBlankDibBM24HSL(int iNewHeight, int iNewWidth, int iValue, void** phDIB) {
    if (!phDIB) return nullptr;
    KestGlobalBlock dib;
    unsigned char* header = Colour().plane->MakeWithDib(iNewHeight, iNewWidth, iValue, dib);
    *phDIB = dib.Detach();
    return header;
}
