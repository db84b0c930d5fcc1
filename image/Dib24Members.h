// The members that the images of three bytes a pixel have in common: streams, BMP files, blank images, the copy that
// thresholding keeps, pixel access, regions, and drawing without a palette. A class brings what differs:
//
//   className, sizeKey, dataKey   what names it in streams
//   bmpFilter                     what its file dialogs offer
//   ReadFile, MakeBlankDib        make a DIB in hDib, or tell why not
//   Refill                        fills the DIB if it has this size, else false
//   ReleasePlane, FitPlane        what it keeps beside the DIB; FitPlane sees to its size
//   ReadValue, WriteValue         a pixel's value in the access channel
//   CopyPlaneRegion               cuts the region out of what it keeps beside the DIB; false when memory is short
//
// all of them members of its KestDib24Traits, in the file of the class.
#pragma once

#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "core/ClassName.h"
#include "core/Messages.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/TextField.h"
#include "image/BmpPaths.h"
#include "image/DibFiles.h"
#include "image/ImageClipboard.h"
#include "image/PixelBackup.h"
#include "image/PrintImage.h"
#include "image/RegionExtract.h"
#include "image/kernel/Bilinear.h"
#include "image/kernel/Colours.h"

template <class Image>
struct KestDib24Members {
    using Traits = KestDib24Traits<Image>;
    static constexpr int bytesPerPixel = kest::PlaneBytesPerPixel;

    /// A plane of the image's size; empty without an image.
    static std::span<std::uint8_t> PlaneOf(const Image& image, unsigned char* bytes) {
        if (!image.lpBits) return {};
        return {bytes, static_cast<std::size_t>(kest::Product(image.iWidth, image.iHeight) * bytesPerPixel)};
    }
    static std::span<std::uint8_t> Pixels(Image& image) { return PlaneOf(image, image.lpBits); }

    static kest::PixelBackup Backup(Image& image) {
        return {image.bThresholdActive, image.hThresholdBackup, image.pThresholdBackup, Pixels(image)};
    }

    static void Redraw(HWND window) {
        if (window) InvalidateRect(window, nullptr, TRUE);
    }

    // Streams

    static int Load(Image& image, CcObjectStorage* storage) {
        if (!storage) return KEST_FAILED;
        {
            CcPropertyBag bag;
            if (storage->GetNextObject(&bag) < 0) return KEST_FAILED;
            if (!image.TakeDib(bag, Traits::sizeKey, Traits::dataKey, bytesPerPixel)) return KEST_FAILED;
        }
        if (image.lpBits && !Traits::FitPlane(image)) {
            image.ReleaseDib();
            return KEST_FAILED;
        }
        return image.CcImage::Load(storage);
    }

    static int Store(Image& image, CcObjectStorage* storage) {
        if (!storage) return KEST_FAILED;
        {
            CcPropertyBag bag;
            if (!image.PutDib(bag, Traits::sizeKey, Traits::dataKey, bytesPerPixel) || storage->PutObject(&bag) < 0)
                return KEST_FAILED;
        }
        return image.CcImage::Store(storage);
    }

    // Files and blank images

    static int Open(Image& image, const char* pathToOpen) {
        kest::PathBuffer path;
        if (!kest::ChoosePathToOpen(pathToOpen, Image::cFullFilePathOpen, path, Traits::bmpFilter)) return KEST_FAILED;
        kest::TakeDirectoryOfPath(path, Image::cFullFilePathOpen);
        image.ReleaseDib();
        Traits::ReleasePlane(image);
        if (!Traits::ReadFile(image, path)) {
            kest::ShowUnownedMessage("Could not open DIB file", "Error", MB_ICONEXCLAMATION);
            return KEST_FAILED;
        }
        image.AttachUnusableDib();
        int colours, tableBytes;
        image.CountDibColors(&colours, &tableBytes);
        if (colours != 0 || !image.AdoptDib(bytesPerPixel)) {
            kest::ShowMessage("This type of Object only handles 24Bit RBG Color BitMaps", "Error");
            image.ReleaseDib();
            Traits::ReleasePlane(image);
            return KEST_FAILED;
        }
        kest::TakeTitleOfPath(path, image.szObjectName);
        return KEST_OK;
    }

    static int Save(Image& image, const char* pathToSave) {
        if (!image.lpBits) {
            kest::ShowUnownedMessage("No Image to save", "Error");
            return KEST_FAILED;
        }
        kest::PathBuffer path;
        if (!kest::ChoosePathToSave(pathToSave, image.szObjectName, Image::cFullFilePathSave, path, Traits::bmpFilter))
            return KEST_FAILED;
        if (kest::WriteDib24(kest::BytesOf(image.hDib), path) < 0) return KEST_FAILED;
        if (!pathToSave) kest::TakeDirectoryOfPath(path, Image::cFullFilePathSave);
        return KEST_OK;
    }

    static int MakeBlank(Image& image, int height, int width, int value, const char* name) {
        if (!Traits::Refill(image, height, width, value)) {
            image.ReleaseDib();
            if (!Traits::MakeBlankDib(image, height, width, value) || !image.AdoptDib(bytesPerPixel)) {
                kest::ShowUnownedMessage("Could not make Blank DIB", "Error", MB_ICONEXCLAMATION);
                return KEST_FAILED;
            }
        }
        if (name) kest::CopyCut(image.szObjectName, name);
        return KEST_OK;
    }

    // Drawing

    static kest::ImageLook Look(const Image& image) {
        kest::ImageLook look;
        look.bits = image.lpBits;
        look.width = image.iWidth;
        look.height = image.iHeight;
        look.bitCount = 24;
        return look;
    }

    static int CopyToClipboard(Image& image, HWND window, const RECT* rect) {
        return kest::CopyToClipboard(
            window, [&] { return Look(image); }, [&] { return image.OverlayPicture(); }, rect);
    }

    static int Print(Image& image, HWND window, const kest::ShowArguments& arguments) {
        if (!image.lpBits) return KEST_FAILED;
        const kest::PrinterDc printer(Image::stPrintSetup);
        if (!printer) return KEST_FAILED;
        image.GetOverlay();
        return kest::PrintImage(
            printer, image.stDocInfo, image.szObjectName, [&] { return Look(image); },
            [&] { return image.OverlayPicture(); }, window, arguments);
    }

    // Pixels

    static float& ReadPosition(Image& image, float x, float y) {
        if (image.AddressPosition(x, y, false))
            image.fPixelValue = image.iOperatorAccess == 0 ? Interpolated(image, x, y) : image.OverlayTarget();
        return image.fPixelValue;
    }

    static float& ReadPixel(Image& image, int x, int y) {
        if (image.AddressPixel(x, y))
            image.fPixelValue =
                image.iOperatorAccess == 0 ? Traits::ReadValue(image, image.iPixelIndex) : image.OverlayTarget();
        return image.fPixelValue;
    }

    static void WritePixel(Image& image, float value) {
        if (image.iOperatorAccess != 0)
            image.SetOverlayTarget(value);
        else if (image.IsPixelAddressed())
            Traits::WriteValue(image, image.iPixelIndex, value);
    }

    static float Interpolated(const Image& image, float x, float y) {
        return kest::Interpolate(x, y, kest::Surroundings(x, y), [&image](int column, int row) {
            return Traits::ReadValue(image, row * image.iWidth + column);
        });
    }

    static CcImage* CutRegion(const Image& image, CcRoiBase* roi, int fillValue, int align) {
        kest::RegionFrame frame;
        if (!image.lpBits || !kest::FrameRegion(roi, align, image.szObjectName, image.iWidth, image.iHeight, frame))
            return nullptr;
        return kest::MakeRegion<Image>(frame, fillValue, [&](Image& region) {
            return CopyRegion(image, *roi, frame, image.lpBits, region.lpBits) &&
                   Traits::CopyPlaneRegion(image, *roi, frame, region);
        });
    }

    /// Of a plane of the image to the same plane of the region.
    static bool CopyRegion(const Image& image, CcRoiBase& roi, const kest::RegionFrame& frame,
                           const std::uint8_t* source, std::uint8_t* target) {
        return kest::CopyRegion(roi, frame, {source, image.iWidth, image.iHeight, bytesPerPixel},
                                {target, frame.width, frame.height, bytesPerPixel});
    }
};
