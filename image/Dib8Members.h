// The members that the images of one byte a pixel in a 256-colour DIB have in common: streams, BMP files, blank images,
// pixel access and regions. A class brings what differs:
//
//   KestDib8Traits<Image>::className
//   ReleaseTables(), MakeTables()   its display tables, which live as long as a DIB; MakeTables completes them
//   TakeDefaultLook()               what a new image is shown with, also when its DIB was only refilled
#pragma once

#include <algorithm>

#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "core/ClassName.h"
#include "core/Messages.h"
#include "core/kernel/Numbers.h"
#include "core/kernel/TextField.h"
#include "image/BmpPaths.h"
#include "image/DibFiles.h"
#include "image/RegionExtract.h"
#include "image/kernel/Bilinear.h"
#include "image/kernel/DibLayout.h"

template <class Image>
struct KestDib8Traits;

template <class Image>
struct KestDib8Members {
    using Traits = KestDib8Traits<Image>;

    static int Load(Image& image, CcObjectStorage* storage) {
        if (!storage) return KEST_FAILED;
        image.ReleaseDib();
        image.ReleaseTables();
        CcPropertyBag bag;
        const int result = storage->GetNextObject(&bag);
        if (result < 0) return result;
        bag.GetString("IMAGE_NAME", image.szObjectName, sizeof image.szObjectName);
        if (!image.TakeDib(bag, "DIB_SIZE", "DIB_DATA", 1)) return KEST_FAILED;
        // Without colours of its own it is an image of another kind, which nothing can show.
        int colours, tableBytes;
        image.CountDibColors(&colours, &tableBytes);
        if (image.lpBits && colours == 0) {
            image.ReleaseDib();
            return KEST_FAILED;
        }
        StartTables(image);
        return image.CcImage::Load(storage);
    }

    static int Store(Image& image, CcObjectStorage* storage) {
        if (!storage) return KEST_FAILED;
        {
            CcPropertyBag bag;
            if (bag.PutString("IMAGE_NAME", image.szObjectName) < 0 ||
                !image.PutDib(bag, "DIB_SIZE", "DIB_DATA", 1) || storage->PutObject(&bag) < 0)
                return KEST_FAILED;
        }
        return image.CcImage::Store(storage);
    }

    static int Open(Image& image, const char* pathToOpen) {
        kest::PathBuffer path;
        if (!kest::ChoosePathToOpen(pathToOpen, Image::cFullFilePathOpen, path)) return KEST_FAILED;
        kest::RememberOpened(path, Image::cFullFilePathOpen, Image::cFullFilePathSave);
        image.ReleaseDib();
        image.ReleaseTables();
        if (!kest::ReadDib8(path, image.hDib)) {
            kest::ShowUnownedMessage("Could not open DIB file", "Error", MB_ICONEXCLAMATION);
            return KEST_FAILED;
        }
        image.AttachUnusableDib();
        image.CountDibColors(&image.iNumColors, &image.iColorTableBytes);
        if (image.iNumColors != kest::GrayColours || !image.AdoptDib(1)) {
            kest::ShowMessage("This type of Object only handles 256 Color BitMaps", "Error");
            return KEST_FAILED;
        }
        kest::TakeNameOfPath(path, image.szObjectName);
        StartTables(image);
        return KEST_OK;
    }

    static int Save(Image& image, const char* pathToSave) {
        if (!image.lpBitmapInfo) {
            kest::ShowUnownedMessage("No Image to save", "Error");
            return KEST_FAILED;
        }
        kest::PathBuffer path;
        if (!kest::ChoosePathToSave(pathToSave, image.szObjectName, Image::cFullFilePathSave, path)) return KEST_FAILED;
        KestWholeFile file(path);
        kest::WriteDib(kest::BytesOf(image.hDib), 8, file);
        file.Replace();
        // A file that cannot be created is no failure.
        if (file.GetResult() == KestWholeFile::NotWritten) return kest::TellDib8NotWritten();
        kest::CopyCut(Image::cFullFilePathSave, path);
        return KEST_OK;
    }

    static int MakeBlank(Image& image, int height, int width, int value, const char* name) {
        if (image.RefillDib(height, width, value, 1)) {
            image.TakeDefaultLook();
        } else {
            image.ReleaseDib();
            image.ReleaseTables();
            if (!kest::MakeBlankDib8(height, width, static_cast<unsigned char>(value), image.hDib) ||
                !image.AdoptDib(1)) {
                kest::ShowUnownedMessage("Could not make Blank DIB", "Error", MB_ICONEXCLAMATION);
                return KEST_FAILED;
            }
            StartTables(image);
        }
        if (name) kest::CopyCut(image.szObjectName, name);
        return KEST_OK;
    }

    /// Tables for which memory is short now are made when they are needed.
    static void StartTables(Image& image) {
        image.MakeTables();
        image.TakeDefaultLook();
    }

    static float& ReadPosition(Image& image, float x, float y) {
        if (image.AddressPosition(x, y, true))
            image.fPixelValue = image.iOperatorAccess == 0 ? InterpolatedByte(image, x, y) : image.OverlayTarget();
        return image.fPixelValue;
    }

    static float& ReadPixel(Image& image, int x, int y) {
        if (image.AddressPixel(x, y))
            image.fPixelValue = image.iOperatorAccess == 0 ? image.lpBits[image.iPixelIndex] : image.OverlayTarget();
        return image.fPixelValue;
    }

    static void WritePixel(Image& image, float value) {
        if (image.iOperatorAccess != 0)
            image.SetOverlayTarget(value);
        else if (image.IsPixelAddressed())
            image.lpBits[image.iPixelIndex] = kest::TruncateToByte(value);
    }

    static float InterpolatedByte(const Image& image, float x, float y) {
        return kest::Interpolate(x, y, kest::Surroundings(x, y), [&image](int column, int row) {
            const kest::Size64 index = kest::Product(row, image.iWidth) + column;
            if (index < image.llPixelBlockBytes) return image.lpBits[index];
            return image.lpBits[std::min(row, image.iHeight - 1) * image.iWidth + std::min(column, image.iWidth - 1)];
        });
    }

    static CcImage* CutRegion(const Image& image, CcRoiBase* roi, int fillValue, int align) {
        kest::RegionFrame frame;
        if (!image.lpBits ||
            !kest::FrameRegion(roi, align, image.szObjectName, image.iWidth, image.iHeight, frame))
            return nullptr;
        return kest::MakeRegion<Image>(frame, fillValue, [&](Image& region) {
            return kest::CopyRegion(*roi, frame, {image.lpBits, image.iWidth, image.iHeight, 1},
                                    {region.lpBits, frame.width, frame.height, 1});
        });
    }
};
