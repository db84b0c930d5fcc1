// The overrides of a freehand class and its class-wide members. The including file names the class as ROI_CLASS.
#include "roi/RoiOverrides.inl"

POINT ROI_CLASS::stDrawSegStartPoint[KEST_MAX_SEGMENTS];
POINT ROI_CLASS::stDrawSegStopPoint[KEST_MAX_SEGMENTS];
POINT ROI_CLASS::stDrawSegStartPointImg[KEST_MAX_SEGMENTS];
POINT ROI_CLASS::stDrawSegStopPointImg[KEST_MAX_SEGMENTS];
PixelGroupTag ROI_CLASS::stWindowFreeHand = {};
int ROI_CLASS::iSizeOfWindowFreeHand = 0;
Members::Traits::PerimeterRecord* ROI_CLASS::stXCommonPerimPoints = nullptr;
Members::Traits::PerimeterRecord* ROI_CLASS::stYCommonPerimPoints = nullptr;
HGLOBAL ROI_CLASS::hstXCommonPerimPoints = nullptr;
HGLOBAL ROI_CLASS::hstYCommonPerimPoints = nullptr;
int ROI_CLASS::iSizeOfCommonPerimPointsArr = 0;
int ROI_CLASS::iNumOfFreeHandROIs = 0;

int ROI_CLASS::PrintPerimiterPointsToFile(const char* pszFileName) { return Members::PrintPixels(*this, pszFileName); }
