// The colour images: streams, BMP files and blank images.
#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "core/Messages.h"
#include "core/kernel/TextField.h"
#include "image/ColourImage.h"
#include "image/DibFiles.h"

namespace kest {
namespace {

constexpr int bytesPerPixel = PlaneBytesPerPixel;

bool ReadFile(const ColourImage& image, const char* path, DibLayout& layout) {
    KestGlobalBlock& block = image.image.dib.block;
    return (image.plane ? image.plane->ReadWithDib(path, block, layout) : ReadDib24(path, block, layout)) != nullptr;
}

/// Fills a picture that has the size already; false when there is none.
bool Refill(const ColourImage& image, int height, int width, int value) {
    const ImageDib& dib = image.image.dib;
    if (image.plane && !image.plane->Fits(dib)) return false;
    if (!dib.Refill(height, width, value, bytesPerPixel)) return false;
    if (image.plane) image.plane->Fill(static_cast<std::uint8_t>(value), dib.PixelCount());
    return true;
}

bool MakeDib(const ColourImage& image, int height, int width, int value) {
    const ImageDib& dib = image.image.dib;
    const auto* header = image.plane ? image.plane->MakeWithDib(height, width, value, dib.block)
                                     : MakeBlankDib24(height, width, static_cast<std::uint8_t>(value), dib.block);
    return header && dib.Adopt(dib.Layout(), bytesPerPixel);
}

void ReleaseAll(const ColourImage& image) {
    image.image.dib.Release();
    if (image.plane) image.plane->Release();
}

}  // namespace

int ColourImage::Load(CcObjectStorage* storage) const {
    if (!storage) return KEST_FAILED;
    {
        CcPropertyBag bag;
        if (storage->GetNextObject(&bag) < 0 || !image.dib.TakeFrom(bag, kind.keys, bytesPerPixel)) return KEST_FAILED;
    }
    if (plane && image.dib.bits && !plane->Fit(image.dib)) {
        image.dib.Release();
        return KEST_FAILED;
    }
    return image.owner.CcImage::Load(storage);
}

int ColourImage::Store(CcObjectStorage* storage) const {
    if (!storage) return KEST_FAILED;
    {
        CcPropertyBag bag;
        if (!image.dib.PutInto(bag, kind.keys, bytesPerPixel) || storage->PutObject(&bag) < 0) return KEST_FAILED;
    }
    return image.owner.CcImage::Store(storage);
}

int ColourImage::Open(const char* pathToOpen) const {
    PathBuffer path;
    if (!ChoosePathToOpen(pathToOpen, lastOpened, path, kind.bmpFilter)) return KEST_FAILED;
    TakeDirectoryOfPath(path, lastOpened);
    ReleaseAll(*this);
    DibLayout layout;
    if (!ReadFile(*this, path, layout)) {
        ShowUnownedMessage("Could not open DIB file", "Error", MB_ICONEXCLAMATION);
        return KEST_FAILED;
    }
    if (!HasUsualColours(layout) || !image.dib.Adopt(layout, bytesPerPixel)) {
        // Before the message, in which the host may get itself another picture.
        ReleaseAll(*this);
        ShowMessage("This type of Object only handles 24Bit RBG Color BitMaps", "Error");
        return KEST_FAILED;
    }
    TakeTitleOfPath(path, image.name);
    return KEST_OK;
}

int ColourImage::Save(const char* pathToSave) const {
    if (!image.dib.bits) {
        ShowUnownedMessage("No Image to save", "Error");
        return KEST_FAILED;
    }
    PathBuffer path;
    if (!ChoosePathToSave(pathToSave, image.name, lastSaved, path, kind.bmpFilter)) return KEST_FAILED;
    if (WriteDib24(BytesOf(image.dib.block), path) < 0) return KEST_FAILED;
    if (!pathToSave) TakeDirectoryOfPath(path, lastSaved);
    return KEST_OK;
}

int ColourImage::MakeBlank(int height, int width, int value, const char* name) const {
    if (!Refill(*this, height, width, value)) {
        image.dib.Release();
        if (!MakeDib(*this, height, width, value)) {
            ShowUnownedMessage("Could not make Blank DIB", "Error", MB_ICONEXCLAMATION);
            return KEST_FAILED;
        }
    }
    if (name) CopyCut(image.name, name);
    return KEST_OK;
}

}  // namespace kest
