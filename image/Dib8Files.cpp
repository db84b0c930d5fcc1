// The 8-bit images: streams, BMP files and blank images.
#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "core/Messages.h"
#include "core/kernel/TextField.h"
#include "image/Dib8Image.h"
#include "image/DibFiles.h"

namespace kest {
namespace {

constexpr DibKeys keys = {"DIB_SIZE", "DIB_DATA"};
constexpr char nameKey[] = "IMAGE_NAME";

void CountColours(const Dib8Image& image, const DibLayout& layout) {
    image.colourCount = Saturate(layout.colourCount);
    image.colourTableBytes = Saturate(layout.ColourTableSize());
}

/// The display tables of a new DIB. Those for which memory is short now are made when they are needed.
void StartTables(const Dib8Image& image, const DibLayout& layout) {
    if (image.image.dib.bits) CountColours(image, layout);
    image.MakeTables(layout);
    if (image.isBinary) image.TakeWorkingLook();
}

void ReleaseAll(const Dib8Image& image) {
    image.image.dib.Release();
    image.tables.Release();
}

}  // namespace

int Dib8Image::Load(CcObjectStorage* storage) const {
    if (!storage) return KEST_FAILED;
    ReleaseAll(*this);
    CcPropertyBag bag;
    const int result = storage->GetNextObject(&bag);
    if (result < 0) return result;
    bag.GetString(nameKey, image.name, sizeof image.name);
    if (!image.dib.TakeFrom(bag, keys, 1)) return KEST_FAILED;
    const DibLayout layout = image.dib.Layout();
    // Without colours of its own it is an image of another kind, which nothing can show.
    if (image.dib.bits && layout.colourCount == 0) {
        image.dib.Release();
        return KEST_FAILED;
    }
    StartTables(*this, layout);
    return image.owner.CcImage::Load(storage);
}

int Dib8Image::Store(CcObjectStorage* storage) const {
    if (!storage) return KEST_FAILED;
    {
        CcPropertyBag bag;
        if (bag.PutString(nameKey, image.name) < 0 || !image.dib.PutInto(bag, keys, 1) || storage->PutObject(&bag) < 0)
            return KEST_FAILED;
    }
    return image.owner.CcImage::Store(storage);
}

int Dib8Image::Open(const char* pathToOpen) const {
    PathBuffer path;
    if (!ChoosePathToOpen(pathToOpen, lastOpened, path)) return KEST_FAILED;
    RememberOpened(path, lastOpened, lastSaved);
    ReleaseAll(*this);
    DibLayout layout;
    if (!ReadDib8(path, image.dib.block, layout)) {
        ShowUnownedMessage("Could not open DIB file", "Error", MB_ICONEXCLAMATION);
        return KEST_FAILED;
    }
    if (!HasUsualColours(layout) || !image.dib.Adopt(layout, 1)) {
        image.dib.AttachUnusable();
        CountColours(*this, layout);
        ShowMessage("This type of Object only handles 256 Color BitMaps", "Error");
        return KEST_FAILED;
    }
    TakeNameOfPath(path, image.name);
    StartTables(*this, layout);
    return KEST_OK;
}

int Dib8Image::Save(const char* pathToSave) const {
    if (!image.dib.header) {
        ShowUnownedMessage("No Image to save", "Error");
        return KEST_FAILED;
    }
    PathBuffer path;
    if (!ChoosePathToSave(pathToSave, image.name, lastSaved, path)) return KEST_FAILED;
    KestWholeFile file(path);
    WriteDib(BytesOf(image.dib.block), 8, file);
    file.Replace();
    // A file that cannot be created is no failure.
    if (file.GetResult() == KestWholeFile::NotWritten) return TellDib8NotWritten();
    CopyCut(lastSaved, path);
    return KEST_OK;
}

int Dib8Image::MakeBlank(int height, int width, int value, const char* name) const {
    if (image.dib.Refill(height, width, value, 1)) {
        if (isBinary) TakeWorkingLook();
    } else {
        ReleaseAll(*this);
        const bool isMade = MakeBlankDib8(height, width, static_cast<unsigned char>(value), image.dib.block) != nullptr;
        const DibLayout layout = image.dib.Layout();
        if (!isMade || !image.dib.Adopt(layout, 1)) {
            ShowUnownedMessage("Could not make Blank DIB", "Error", MB_ICONEXCLAMATION);
            return KEST_FAILED;
        }
        StartTables(*this, layout);
    }
    if (name) CopyCut(image.name, name);
    return KEST_OK;
}

bool Dib8Image::MakeTables(const DibLayout& layout) const {
    if (!image.dib.bits) return true;
    const bool isNew = !tables.Table(ColourLut)->pTable;
    if (!tables.Make(BytesOf(image.dib.block), layout)) return false;
    // The grayscale image's curves stay, but count from the next SetDisplayLUT on.
    if (isBinary && isNew)
        for (int channel = 1; channel <= 3; ++channel)
            tables.Fill(ColourLut, channel, tables.Points(ColourLut, channel));
    return true;
}

}  // namespace kest
