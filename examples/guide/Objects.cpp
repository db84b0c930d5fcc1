// Lists, copies, property bags, object streams and their result codes.
#include <cstdio>
#include <cstring>
#include <memory>

#include "Guide.h"

namespace guide {

void KeepingObjects() {
    CcGrayImage256 image;
    image.MakeBlankBMP(8, 8, 0, "lists");
    CcList* rois = image.GetListROI();
    rois->InsertTail(new CcRoiRect);
    rois->InsertTail(new CcRoiEllipse);

    // [walk]
    for (CcHLObject* object = rois->GetHead(); object; object = rois->GetNext()) {
        auto* roi = static_cast<CcRoiBase*>(object);  // GetType() == KEST_TYPE_ROI
        std::printf("  %s\n", roi->GetName());
    }
    // [/walk]

    // [own-list]
    CcList results;
    results.SetDestructionType(1);  // 1: the list deletes its members; 0, as at first, they stay the caller's
    auto* area = new CcNumber;
    area->SetName("area");
    area->SetValue(12.5F);
    results.InsertTail(area);
    auto* found = static_cast<CcNumber*>(results.GetViaName("area"));
    // [/own-list]
    Expect(found == area && found->GetValue() == 12.5F, "a list finds a member by name");

    // [take-out]
    // Out of the list without deleting it; the caller owns it from now on.
    std::unique_ptr<CcHLObject> taken(rois->TakeOut(0));
    // [/take-out]
    Expect(taken && rois->GetNumberOfObjects() == 1, "a member can be taken out");

    // [copies]
    CcGrayImage256 shared = image;  // the same blocks: what one writes, the other shows
    // [/copies]
    image(0, 0);
    image = 77.0F;
    Expect(shared(0, 0) == 77.0F, "a copy shares its source's pixels");
}

namespace {

bool SaveSession(const char* path, CcImage& image, const char* calibrationFile, int& result) {
    // [save]
    DeleteFileA(path);  // an existing file is neither cut nor emptied
    CcFileObjectStorage stream;
    result = stream.Open(path, GENERIC_READ | GENERIC_WRITE);
    if (result < 0) return false;
    CcPropertyBag settings;
    settings.PutString("CalibrationFile", calibrationFile);
    settings.PutInt("Version", 1);
    result = stream.PutObject(&settings);
    if (result == KEST_OK) result = stream.PutObject(&image);  // with its ROIs
    stream.Close();
    // [/save]
    return result == KEST_OK;
}

std::unique_ptr<CcImage> LoadSession(const char* path, char (&calibrationFile)[KEST_NAME_SIZE]) {
    // [load]
    if (GetFileAttributesA(path) == INVALID_FILE_ATTRIBUTES) return nullptr;  // Open would make an empty file
    CcFileObjectStorage stream;
    if (stream.Open(path, GENERIC_READ) < 0) return nullptr;
    CcPropertyBag settings;
    if (stream.GetNextObject(&settings) < 0) return nullptr;  // into an object that exists
    settings.GetString("CalibrationFile", calibrationFile, sizeof calibrationFile);
    CcHLObject* object = nullptr;
    if (stream.GetNextObject(&object) < 0) return nullptr;  // a new one, of the class that was stored
    if (object->GetType() == KEST_TYPE_IMAGE) return std::unique_ptr<CcImage>(static_cast<CcImage*>(object));
    delete object;
    // [/load]
    return nullptr;
}

// [result-text]
const char* TextOf(int result) {
    switch (result) {
        case KEST_OPEN_FAILED: return "The file cannot be opened.";
        case KEST_READ_FAILED:
        case KEST_NOT_FOUND: return "The file ends too early.";
        case KEST_WRITE_FAILED: return "The file cannot be written. Is the disk full?";
        case KEST_BAD_TAG:
        case KEST_MISMATCH: return "The file holds something else.";
        case KEST_NO_MEMORY: return "There is not enough memory.";
        default: return result < 0 ? "The operation failed." : "";
    }
}
// [/result-text]

}  // namespace

void Streams() {
    const char path[] = "guide.ost";
    CcGrayImage256 image;
    example::MakeSamplePicture(image);
    auto* roi = new CcRoiRect;
    RECT record = {1, 9, 8, 2};
    roi->SetRoiImageCord(&record);
    image.GetListROI()->InsertTail(roi);

    int result = 0;
    Expect(SaveSession(path, image, "bench.cal", result), "a session is saved");
    char calibrationFile[KEST_NAME_SIZE] = {};
    const std::unique_ptr<CcImage> loaded = LoadSession(path, calibrationFile);
    Expect(loaded && std::strcmp(calibrationFile, "bench.cal") == 0, "a session is loaded");
    if (!loaded) return;
    Expect(dynamic_cast<CcGrayImage256*>(loaded.get()) != nullptr, "the image comes back as what it was");
    Expect(loaded->GetListROI()->GetNumberOfObjects() == 1 && (*loaded)(33, 44) == image(33, 44),
           "with its ROIs and pixels");

    CcFileObjectStorage stream;
    stream.Open(path, GENERIC_READ);
    result = stream.GetNextObject(&image);
    Expect(result == KEST_MISMATCH && *TextOf(result), "a record of another class is refused with its own code");
    Expect(stream.Reset() == KEST_AT_START, "rewinding a file returns -14");
    stream.Close();
    Expect(SaveSession("no folder\\x.ost", image, "", result) == false && result == KEST_OPEN_FAILED,
           "a file that cannot be made has its own code");
    DeleteFileA(path);
    Expect(!LoadSession(path, calibrationFile) && GetFileAttributesA(path) == INVALID_FILE_ATTRIBUTES,
           "loading a session that is not there makes no file");

    // [memory]
    CcMemObjectStorage memory;
    memory.PutObject(&image);
    unsigned char* block = nullptr;
    long length = 0;
    memory.GetStorageBufferRef(&block, &length);  // for the clipboard, a pipe, a database
    CcMemObjectStorage reader(block, length, 1);  // 1: the block stays the caller's
    CcHLObject* copy = nullptr;
    reader.GetNextObject(&copy);
    // [/memory]
    Expect(copy && std::strcmp(copy->GetName(), "sample") == 0, "an image through memory is a deep copy");
    delete copy;
}

}  // namespace guide
