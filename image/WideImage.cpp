// The wide grayscale images: files, blank images, statistics and display.
#include "image/WideImage.h"

#include <algorithm>

#include "core/Files.h"
#include "core/Messages.h"
#include "core/kernel/TextField.h"
#include "image/DibFiles.h"

namespace kest {
namespace {

int Tell(const char* message) {
    ShowUnownedMessage(message, "File I/O Error");
    return KEST_FAILED;
}

}  // namespace

// The samples

template <class Sample>
bool WideImage<Sample>::MakeSamples(const char* message) const {
    const Size64 count = Dib().PixelCount();
    samples.first = count <= LargestBlockBytes
                        ? static_cast<Sample*>(samples.block.Allocate(count * static_cast<Size64>(sizeof(Sample))))
                        : nullptr;
    if (samples.first) return true;
    samples.Release();
    ShowMessage(message, "Error");
    return false;
}

template <class Sample>
int WideImage<Sample>::CopyBytes(const unsigned char* bytes, Sample* target, int rows, int columns) const {
    if (!bytes || !target) return KEST_FAILED;
    if (rows > 0 && columns > 0) std::copy_n(bytes, Product(rows, columns), target);
    return KEST_OK;
}

// Files

template <class Sample>
int WideImage<Sample>::OpenSamples() const {
    if (!MakeSamples(kind.noMemory)) return KEST_FAILED;
    const std::span<Sample> all = Samples();
    const RawPath rawPath(Display().lastOpened, kind.raw.extension);
    switch (ReadRawFile(rawPath, Header(), all.data(), sizeof(Sample))) {
        case RawReading::Read:
            isAutomatic = 1;
            staleness = SamplesChanged;
            NormaliseOwn();
            return KEST_OK;
        case RawReading::Unfit: return CopyBytes(Dib().bits, all.data(), Dib().height, Dib().width);
        case RawReading::Unreadable: break;
    }
    // An image of 8-bit values would be saved over the samples that are there.
    samples.Release();
    return Tell(kind.notRead);
}

template <class Sample>
int WideImage<Sample>::Save(const char* pathToSave) const {
    PathBuffer& lastSaved = Display().lastSaved;
    PathBuffer path;
    if (Samples().empty() || !Dib().bits || !ChoosePathToSave(pathToSave, Display().image.name, lastSaved, path))
        return KEST_FAILED;
    // Taken anew: while the dialog was open the host may have got itself another picture.
    const std::span<const Sample> all = Samples();
    if (all.empty()) return KEST_FAILED;
    const RawPath rawPath(path, kind.raw.extension);
    KestWholeFile bmp(path), raw(rawPath);
    CopyCut(lastSaved, path);
    const bool hasRaw = raw.GetResult() != KestWholeFile::NotCreated;
    // Samples that are there and cannot be replaced must not get another picture's BMP file beside them.
    if (!hasRaw && IsPlainFile(rawPath)) return Tell(kind.notSaved);
    WriteDib(BytesOf(Dib().block), 8, bmp);
    bmp.Complete();
    // That the BMP file cannot be created is no failure; where the raw one cannot be, the BMP file is written all the
    // same.
    if (bmp.GetResult() == KestWholeFile::NotWritten) return TellDib8NotWritten();
    if (hasRaw) {
        WriteRaw(Header(), all.data(), sizeof(Sample), raw);
        if (raw.Complete() < 0) return Tell(kind.notWritten);
    }
    bmp.Replace();
    if (bmp.GetResult() == KestWholeFile::NotWritten) return TellDib8NotWritten();
    if (!hasRaw) return Tell(kind.notSaved);
    return raw.Replace() < 0 ? Tell(kind.notWritten) : KEST_OK;
}

// Blank images

template <class Sample>
bool WideImage<Sample>::HasSize(int height, int width) const {
    return !Samples().empty() && Dib().height == height && Dib().width == width;
}

template <class Sample>
int WideImage<Sample>::MakeBlankSamples(int value, bool isRefill) const {
    // The same message whatever the sample type.
    if (!isRefill && !MakeSamples("Unable to Allocate Memory for Floating Point Image")) return KEST_FAILED;
    const std::span<Sample> all = Samples();
    // Fresh samples are zero.
    if (isRefill || value != 0) std::fill(all.begin(), all.end(), static_cast<Sample>(value));
    if (isRefill) {
        MapToDisplay(all, Dib().bits);
        return KEST_OK;
    }
    dataMax = dataMin = static_cast<float>(value);
    if (value != 0) {
        staleness = SamplesChanged;
        NormaliseOwn();
    }
    return KEST_OK;
}

// Statistics and display range

template <class Sample>
int WideImage<Sample>::Normalise(const Sample* source, unsigned char* bytes, int rows, int columns, int mode) const {
    const Size64 count = Product(rows, columns);
    if (!source || (!bytes && mode != 1) || rows < 1 || columns < 1 || count > LargestBlockBytes) return KEST_FAILED;
    const std::span<const Sample> all(source, static_cast<std::size_t>(count));
    TakeStatistics(all);
    if (mode != 1) MapToDisplay(all, bytes);
    return KEST_OK;
}

template <class Sample>
void WideImage<Sample>::NormaliseOwn() const {
    const std::span<const Sample> all = Samples();
    TakeStatistics(all);
    MapToDisplay(Dib().bits ? all : std::span<const Sample>(), Dib().bits);
}

/// Chooses the display range, too: while it is automatic it is that of the samples.
template <class Sample>
void WideImage<Sample>::TakeStatistics(std::span<const Sample> all) const {
    if (staleness != SamplesChanged || all.empty()) return;
    const auto found = ScanSamples(all);
    dataMax = static_cast<float>(found.largest);
    dataMin = static_cast<float>(found.smallest);
    if (isAutomatic != 1) return;
    lists.range.max = dataMax;
    lists.range.min = dataMin;
}

template <class Sample>
void WideImage<Sample>::MapToDisplay(std::span<const Sample> all, unsigned char* bytes) const {
    const DisplayRange& range = lists.range;
    const auto mapping = DisplayMapping::Of(range.min, range.max);
    range.scale = mapping.scale;
    range.offset = mapping.offset;
    if constexpr (std::is_integral_v<Sample>) {
        const int shift = ShiftOfDisplayRange(range.min, range.max);
        if (isAutomatic == 0 && shift > 0) return ShiftSamples(all, shift, bytes);
    }
    MapSamples(all, mapping, bytes);
}

template <class Sample>
void WideImage<Sample>::UpdateStatistics() const {
    const std::span<const Sample> all = Samples();
    if (staleness != SamplesChanged || all.empty()) return;
    TakeStatistics(all);
    staleness = DisplayStale;
}

template <class Sample>
int WideImage<Sample>::SetAutomatic(bool on) const {
    isAutomatic = on;
    if (on) staleness = SamplesChanged;
    return KEST_OK;
}

template <class Sample>
int WideImage<Sample>::UpdateDisplay() const {
    if (Samples().empty() || !Dib().bits || !Display().MakeTables()) return KEST_FAILED;
    if (staleness >= DisplayStale) {
        NormaliseOwn();
        if (isAutomatic == 1) lists.SpreadAll();
    }
    // What the host changes while a message is shown counts from here on.
    staleness = AllCurrent;
    return KEST_OK;
}

template <class Sample>
int WideImage<Sample>::SetList(int lut, int channel, const tagPoints* points) const {
    const std::span<tagPoints> own = Display().tables.Points(lut, channel);
    if (own.empty()) return KEST_OK;
    if (!points || !Display().MakeTables()) return KEST_FAILED;
    std::copy_n(points, own.size(), own.begin());
    if (keepsDisplayRange) {
        lists.ShowLevels(channel);
    } else if (lists.TakeRange(own)) {
        NormaliseOwn();
        lists.SpreadAll();
    } else {
        return lists.Rebuild(lut, channel);
    }
    return KEST_OK;
}

template struct WideImage<unsigned short>;
template struct WideImage<int>;
template struct WideImage<float>;

}  // namespace kest
