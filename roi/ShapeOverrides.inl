// The overrides of a shape class, and its conversions between window and image. The including file names the class as
// ROI_CLASS.
#include "roi/RoiOverrides.inl"

int ROI_CLASS::SetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset, unsigned short usDisplayMode, CcImage* pImage,
                                int iShowZoom) {
    return Members::TakeWindowCorners(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
}

Members::Traits::WindowRecord* ROI_CLASS::GetRoiWindowCord(HWND hWnd, int iXOffset, int iYOffset,
                                                           unsigned short usDisplayMode, CcImage* pImage,
                                                           int iShowZoom) {
    Members::MakeWindowCorners(*this, hWnd, {iXOffset, iYOffset, usDisplayMode, pImage, iShowZoom});
    return &Members::Traits::WindowRecordOf(*this);
}
