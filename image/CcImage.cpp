// CcImage: what all images share, and the interface whose base versions only complain.
#include "CcImage.h"

#include <atomic>

#include "CcCalibration.h"
#include "CcObjectStorage.h"
#include "core/Messages.h"
#include "core/Platform.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/Numbers.h"
#include "core/kernel/ViewTransform.h"

PRINTDLGA CcImage::stPrintSetup;
int CcImage::iPrinterSetupFlag = 0;

namespace {

void ComplainOfVirtualCall() {
    kest::Beep();
    kest::ShowMessage("This is a Virtual Function", "Error", MB_ICONHAND);
}

template <class Result>
Result Complain(Result result) {
    ComplainOfVirtualCall();
    return result;
}

bool MakeView(HWND window, int xOffset, int yOffset, unsigned short mode, int zoom, int imageWidth, int imageHeight,
              kest::View& view) {
    view = {0, 0, imageWidth, imageHeight, xOffset, yOffset, mode, zoom};
    return kest::GetClientSize(window, view.clientWidth, view.clientHeight);
}

}  // namespace

CcImage::CcImage()
    : lpOverlayInfo(nullptr),
      lpOverlayBits(nullptr),
      lpOverlayColors(nullptr),
      lpBitmapInfo(nullptr),
      lpBits(nullptr),
      lpColors(nullptr),
      iHeight(0),
      iWidth(0),
      iImageType(KEST_IMAGE_NONE),
      iOperatorAccess(0),
      iReScaleOnShow(0),
      fPixelValue(0.0F),
      iPixelIndex(-1),
      iInstance(0),
      stDocInfo{},
      pCalibration(nullptr),
      llPixelBlockBytes(0) {
    SetType(KEST_TYPE_IMAGE);
    cListROI.SetDestructionType(1);
    // Hosts use the members as ROIs without asking.
    cListROI.stLoaded.iType = KEST_TYPE_ROI;
    hPalette.Adopt(kest::DefaultPalette());
    if (std::atomic_ref<int>(iPrinterSetupFlag).exchange(1) == 0) {
        stPrintSetup = {};
        stPrintSetup.lStructSize = sizeof stPrintSetup;
    }
}

CcImage::~CcImage() { cListROI.SetDestructionType(1); }

int CcImage::Load(CcObjectStorage* pStorage) {
    if (!pStorage) return KEST_FAILED;
    const int result = pStorage->GetNextObject(&cListROI);
    // Whatever type the record bears, the ROIs that were loaded are the image's.
    cListROI.SetDestructionType(1);
    return result < 0 ? KEST_FAILED : KEST_OK;
}

int CcImage::Store(CcObjectStorage* pStorage) {
    return pStorage && pStorage->PutObject(&cListROI) >= 0 ? KEST_OK : KEST_FAILED;
}

// The interface: thresholding reports success, everything else failure.
int CcImage::CopyToClipboard(HWND, unsigned short, RECT*) { return Complain(KEST_FAILED); }
void* CcImage::GetBitMapImageData() { return lpBits; }
int CcImage::Show(HDC, RECT*, unsigned short, unsigned short, int, int, int) { return Complain(KEST_FAILED); }
int CcImage::Show(HDC, HWND, unsigned short, unsigned short, int, int, int) { return Complain(KEST_FAILED); }
int CcImage::Show(HWND, unsigned short, unsigned short, int, int, int) { return Complain(KEST_FAILED); }
int CcImage::Print(HWND, unsigned short, unsigned short, int, int, int) { return Complain(KEST_FAILED); }
int CcImage::GetDisplayLUT(int, int, tagPoints*) { return Complain(KEST_FAILED); }
int CcImage::SetDisplayLUT(int, int, tagPoints*) { return Complain(KEST_FAILED); }
int CcImage::OpenBMPFile(const char*) { return Complain(KEST_FAILED); }
int CcImage::SaveBMPFile(const char*) { return Complain(KEST_FAILED); }
int CcImage::MakeBlankBMP(int, int, int, const char*) { return Complain(KEST_FAILED); }
int CcImage::BeginThresholding(HWND, unsigned short) { return Complain(KEST_OK); }
int CcImage::ThresholdImage(HWND, float, float, int, int, int) { return Complain(KEST_OK); }
int CcImage::ThresholdImageMulti(HWND, ThresholdTag*, int) { return Complain(KEST_OK); }
int CcImage::EndThresholding() { return Complain(KEST_OK); }
float CcImage::GetMinPixelValue() { return Complain(-1.0F); }
float CcImage::GetMaxPixelValue() { return Complain(-1.0F); }
int CcImage::SizeOf() { return Complain(KEST_FAILED); }
int CcImage::SetAutoUpdateDisplay(int) { return Complain(KEST_FAILED); }
int CcImage::GetAutoUpdateDisplay() { return Complain(KEST_FAILED); }

float& CcImage::operator()(float, float) {
    fPixelValue = -1.0F;
    ComplainOfVirtualCall();
    return fPixelValue;
}

float& CcImage::operator()(int, int) {
    fPixelValue = -1.0F;
    ComplainOfVirtualCall();
    return fPixelValue;
}

void CcImage::operator=(float) { ComplainOfVirtualCall(); }

CcImage* CcImage::GetRegion(CcRoiBase*, int, int) { return nullptr; }

int CcImage::GetImageType() { return iImageType; }

int CcImage::GetHeightWidth(int* piHeight, int* piWidth) {
    if (piHeight) *piHeight = iHeight;
    if (piWidth) *piWidth = iWidth;
    return KEST_OK;
}

CcList* CcImage::GetListROI() { return &cListROI; }

int CcImage::ReScaleImageOnShow() {
    iReScaleOnShow = 2;
    return KEST_OK;
}

int CcImage::GetInstance() { return iInstance; }

int CcImage::SetInstance(int iNewInstance) {
    iInstance = iNewInstance;
    return KEST_OK;
}

int CcImage::SetOperatorOverloadAccess(int iMode) {
    if (iMode != 0 && !(iMode == 1 && lpOverlayInfo)) return KEST_FAILED;
    iOperatorAccess = iMode;
    return KEST_OK;
}

int CcImage::ConvertPointToImageCoords(HWND hWnd, int iXOffset, int iYOffset, unsigned short usMode, POINT* pptWindow,
                                       POINT* pptImage, int iZoom) {
    kest::View view;
    if (!pptWindow || !pptImage || iZoom < 1 ||
        !MakeView(hWnd, iXOffset, iYOffset, usMode, iZoom, iWidth, iHeight, view))
        return KEST_FAILED;
    const kest::IntPoint pixel = kest::PixelAtWindowPoint(view, {pptWindow->x, pptWindow->y});
    *pptImage = {pixel.x, pixel.y};
    return KEST_OK;
}

int CcImage::ConvertPointToImageCoords(HWND hWnd, int iXOffset, int iYOffset, unsigned short usMode, POINT* pptWindow,
                                       tagPoints* pptImage, int iZoom) {
    kest::View view;
    if (!pptWindow || !pptImage || iZoom < 1 ||
        !MakeView(hWnd, iXOffset, iYOffset, usMode, iZoom, iWidth, iHeight, view))
        return KEST_FAILED;
    const kest::RealPoint position = kest::PositionAtWindowPoint(view, {pptWindow->x, pptWindow->y});
    *pptImage = {static_cast<float>(position.x), static_cast<float>(position.y)};
    return KEST_OK;
}

int CcImage::SetCalibrationObject(CcCalibration* pNewCalibration) {
    if (!pNewCalibration || pNewCalibration->GetType() != KEST_TYPE_CALIBRATION) return KEST_FAILED;
    int width, height;
    pNewCalibration->GetSizeOfImage(&width, &height);
    if (width != iWidth || height != iHeight) return KEST_FAILED;
    ClearCalibrationObject();
    pCalibration = pNewCalibration;
    pCalibration->IncReferenceCount();
    return KEST_OK;
}

CcCalibration* CcImage::GetCalibrationObject() { return pCalibration; }

int CcImage::ClearCalibrationObject() {
    if (pCalibration) pCalibration->DecReferenceCount();
    pCalibration = nullptr;
    return KEST_OK;
}

int CcImage::ConvertImagePointToWorldCoords(tagPoints* pptImage, tagPoints* pptWorld) {
    if (!pptImage || !pptWorld) return KEST_FAILED;
    if (pCalibration) return pCalibration->ConvertPoint(pptImage, pptWorld) < 0 ? KEST_FAILED : KEST_OK;
    *pptWorld = *pptImage;
    return KEST_OK;
}
