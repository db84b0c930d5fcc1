// BMP files and object streams of the library's classes.
#include <windows.h>

#include <KestApi.h>

#include "Buffers.h"

namespace bench {
namespace {

constexpr char bmpPath[] = "bench.bmp", streamPath[] = "bench.ost";

/// The files are deleted when the program ends.
struct Files {
    ~Files() {
        DeleteFileA(bmpPath);
        DeleteFileA(streamPath);
    }
} files;

HANDLE OpenFile(DWORD access, DWORD how) {
    return CreateFileA(bmpPath, access, 0, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// Reads or writes `bytes` bytes in steps of `step`.
template <class Transfer>
void TransferAll(HANDLE file, std::uint8_t* data, std::size_t bytes, std::size_t step, Transfer transfer) {
    DWORD done = 0;
    for (std::size_t i = 0; i < bytes; i += step)
        transfer(file, data + i, static_cast<DWORD>(std::min(step, bytes - i)), &done, nullptr);
    CloseHandle(file);
}

Run ReadInSteps(std::size_t bytes, std::size_t step) {
    return [=] {
        const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes);
        auto* data = static_cast<std::uint8_t*>(GlobalLock(block));
        TransferAll(OpenFile(GENERIC_READ, OPEN_EXISTING), data, bytes, step, ReadFile);
        GlobalUnlock(block);
        GlobalFree(block);
    };
}

Run WriteInSteps(Buffer<std::uint8_t> bytes, std::size_t step, DWORD how) {
    return [=] { TransferAll(OpenFile(GENERIC_WRITE, how), bytes->data(), bytes->size(), step, WriteFile); };
}

template <class Image>
void AddBmpWork(WorkList& list, const std::string& name, std::size_t bytesPerPixel) {
    const auto image = std::make_shared<Image>();
    image->MakeBlankBMP(high, wide, 128, "bench");
    const auto raw = RandomBytes(pixels * bytesPerPixel, 10);
    const std::size_t row = wide * bytesPerPixel;
    // Every reading run finds the image's file, whatever the run before has written.
    const auto reads = [image](Run run) -> Run {
        return [image, run, isWritten = false]() mutable {
            if (!isWritten) image->SaveBMPFile(bmpPath);
            isWritten = true;
            run();
        };
    };
    list.push_back({"BMP read, " + name,
                    "12 MP",
                    reads(ReadInSteps(raw->size(), row)),
                    reads([] {
                        Image opened;
                        opened.OpenBMPFile(bmpPath);
                    }),
                    {},
                    reads(ReadInSteps(raw->size(), raw->size()))});
    list.push_back({"BMP write, " + name,
                    "12 MP",
                    WriteInSteps(raw, row, CREATE_ALWAYS),
                    [image] { image->SaveBMPFile(bmpPath); },
                    {},
                    WriteInSteps(raw, raw->size(), OPEN_ALWAYS)});
}

/// An 8-bit picture of 8 megapixels with ROIs.
std::shared_ptr<CcGrayImage256> PictureWithRois(int rois) {
    const auto image = std::make_shared<CcGrayImage256>();
    if (rois <= 1000) image->MakeBlankBMP(2000, 4000, 128, "bench");
    for (int i = 0; i < rois; ++i) {
        auto* roi = new CcRoiRect;
        RECT rect = {i % 100, i % 90 + 10, i % 100 + 20, i % 90};
        roi->SetRoiImageCord(&rect);
        image->GetListROI()->InsertTail(roi);
    }
    return image;
}

std::size_t StreamLength(CcHLObject& object) {
    CcMemObjectStorage stream;
    stream.PutObject(&object);
    return static_cast<std::size_t>(stream.GetPos());
}

Run PutIntoFile(std::shared_ptr<CcGrayImage256> image) {
    return [=] {
        CcFileObjectStorage stream;
        stream.Open(streamPath, GENERIC_READ | GENERIC_WRITE);
        stream.PutObject(image.get());
    };
}

void AddStreamWork(WorkList& list) {
    const auto image = PictureWithRois(1000), rois = PictureWithRois(20000);
    const std::size_t bytes = StreamLength(*image), roiBytes = StreamLength(*rois->GetListROI());
    const Run copy = CopyOf(RandomBytes(bytes, 11), RandomBytes(bytes, 12));
    list.push_back({"image and 1000 ROIs, memory stream",
                    std::to_string(bytes / 1000000) + " MB",
                    {},
                    [=] {
                        CcMemObjectStorage stream;
                        stream.PutObject(image.get());
                    },
                    {},
                    copy});
    list.push_back({"image and 1000 ROIs, file stream",
                    std::to_string(bytes / 1000000) + " MB",
                    {},
                    PutIntoFile(image),
                    {},
                    WriteInSteps(RandomBytes(bytes, 13), bytes, OPEN_ALWAYS)});
    list.push_back({"20,000 ROIs, file stream",
                    std::to_string(roiBytes / 1000000) + " MB",
                    {},
                    [=] {
                        CcFileObjectStorage stream;
                        stream.Open(streamPath, GENERIC_READ | GENERIC_WRITE);
                        stream.PutObject(rois->GetListROI());
                    },
                    {},
                    WriteInSteps(RandomBytes(roiBytes, 14), roiBytes, OPEN_ALWAYS)});
}

}  // namespace

void AddFileWork(WorkList& list) {
    AddBmpWork<Cc24BitRGBImage>(list, "24-bit", 3);
    AddBmpWork<CcGrayImage256>(list, "8-bit", 1);
    AddStreamWork(list);
}

}  // namespace bench
