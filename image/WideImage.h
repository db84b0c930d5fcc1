// A wide grayscale image, as CcGrayImageInt16, CcGrayImageInt32 and CcGrayImageFloat have it: samples beside an 8-bit
// image that displays them. The members that its operations work on, by reference (see ImageParts.h), and these
// operations, which are compiled for the three sample types in WideImage.cpp.
#pragma once

#include <type_traits>

#include "core/kernel/Guard.h"
#include "image/RawFiles.h"
#include "image/WideLists.h"

namespace kest {

/// `iReScaleOnShow`: what is up to date.
enum Staleness : int { AllCurrent = 0, DisplayStale = 1, SamplesChanged = 2 };

/// While thresholding puts point lists back, which only show other levels: where the display range begins and ends is
/// not theirs to say.
class DisplayRangeKeeper : Guard {
public:
    explicit DisplayRangeKeeper(bool& keepsRange) : keeps(keepsRange) { keeps = true; }
    ~DisplayRangeKeeper() { keeps = false; }

private:
    bool& keeps;
};

/// What the three classes differ in, but for the sample type.
struct WideClass {
    RawKind raw;
    // Messages
    const char* noMemory;
    const char* notSaved;
    const char* notWritten;
    const char* notRead;
};

/// The samples, one for every pixel of the display image.
template <class Sample>
struct WideSamples {
    Sample*& first;
    KestGlobalBlock& block;

    /// Empty without a sample for every pixel.
    std::span<Sample> All(const ImageDib& dib) const {
        const Size64 count = dib.PixelCount();
        if (!first || block.Size() != count * static_cast<Size64>(sizeof(Sample))) return {};
        return {first, static_cast<std::size_t>(count)};
    }
    void Release() const {
        block.Release();
        first = nullptr;
    }
};

template <class Sample>
struct WideImage {
    const WideClass& kind;
    WideLists lists;
    WideSamples<Sample> samples;
    float& dataMax;
    float& dataMin;
    int& isAutomatic;  ///< the display range follows the samples
    int& staleness;
    bool& keepsDisplayRange;  ///< while thresholding puts point lists back

    const Dib8Image& Display() const { return lists.display; }
    const ImageDib& Dib() const { return lists.display.image.dib; }
    std::span<Sample> Samples() const { return samples.All(Dib()); }

    /// After the display image was opened: the samples of the raw file beside it, or the 8-bit values.
    int OpenSamples() const;
    int Save(const char* pathToSave) const;
    /// True when the image has this size, and samples.
    bool HasSize(int height, int width) const;
    /// After the display image was made.
    int MakeBlankSamples(int value, bool isRefill) const;

    /// Computes display bytes, or with mode 1 only the statistics, of any samples.
    int Normalise(const Sample* source, unsigned char* bytes, int rows, int columns, int mode) const;
    void UpdateStatistics() const;
    int SetAutomatic(bool on) const;
    /// Brings the display image up to date; -1 when there is nothing to show.
    int UpdateDisplay() const;
    int SetList(int lut, int channel, const tagPoints* points) const;
    int CopyBytes(const unsigned char* bytes, Sample* target, int rows, int columns) const;

private:
    bool MakeSamples(const char* message) const;
    RawHeader Header() const { return {kind.raw.code, Dib().height, Dib().width}; }
    void NormaliseOwn() const;
    void TakeStatistics(std::span<const Sample> all) const;
    void MapToDisplay(std::span<const Sample> all, unsigned char* bytes) const;
};

// The pixel operators; the value is -1.0 without samples.

template <class Sample>
float SampleAt(const ImageDib& dib, const WideSamples<Sample>& samples, int index) {
    const std::span<const Sample> all = samples.All(dib);
    return all.empty() ? -1.0F : static_cast<float>(all[static_cast<std::size_t>(index)]);
}

template <class Sample>
float& ReadSample(const ImageParts& image, const WideSamples<Sample>& samples, int x, int y) {
    return ReadPixel(image, x, y, [&](int index) { return SampleAt(image.dib, samples, index); });
}

template <class Sample>
float& ReadSample(const ImageParts& image, const WideSamples<Sample>& samples, float x, float y) {
    return ReadPosition(image, x, y, 0, [&](int column, int row) {
        return SampleAt(image.dib, samples, row * image.dib.width + column);
    });
}

template <class Sample>
void WriteSample(const ImageParts& image, const WideSamples<Sample>& samples, float value) {
    WritePixel(image, value, [&](int index) {
        const std::span<Sample> all = samples.All(image.dib);
        if (all.empty()) return;
        // Integers get the low bits of the truncated value.
        if constexpr (std::is_integral_v<Sample>)
            all[static_cast<std::size_t>(index)] = static_cast<Sample>(TruncateToInt(value));
        else
            all[static_cast<std::size_t>(index)] = value;
    });
}

}  // namespace kest
