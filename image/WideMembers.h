// The members that the three wide grayscale classes have in common: samples beside an 8-bit display image, their raw
// files, statistics and display range, point lists over sample values, and pixel access. What differs stands in
// WideTraits.h.
#pragma once

#include <algorithm>
#include <cmath>
#include <span>

#include "core/Messages.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/TextField.h"
#include "image/BmpPaths.h"
#include "image/DibFiles.h"
#include "image/RawFiles.h"
#include "image/WideTraits.h"
#include "image/kernel/Bilinear.h"
#include "image/kernel/WideSamples.h"
#include "image/kernel/WideSamplesLut.h"

template <class Image>
struct KestWideMembers {
    using Traits = KestWideTraits<Image>;
    using Sample = typename Traits::Sample;

    /// `iReScaleOnShow`: what is up to date.
    enum Staleness : int { AllCurrent = 0, DisplayStale = 1, SamplesChanged = 2 };

    // The samples

    /// Empty without samples for every pixel of the display image.
    static std::span<Sample> Samples(const Image& image) {
        const kest::Size64 count = kest::Product(image.iHeight, image.iWidth);
        const auto bytesPerSample = static_cast<kest::Size64>(sizeof(Sample));
        if (!image.pSamples || image.hSamples.Size() != count * bytesPerSample) return {};
        return {image.pSamples, static_cast<std::size_t>(count)};
    }

    static void ReleaseSamples(Image& image) {
        image.hSamples.Release();
        image.pSamples = nullptr;
    }

    /// Zeros for every pixel in place of the old samples; false after the message.
    static bool MakeSamples(Image& image, const char* message) {
        const kest::Size64 count = kest::Product(image.iHeight, image.iWidth);
        image.pSamples = count <= kest::LargestBlockBytes
                             ? static_cast<Sample*>(image.hSamples.Allocate(count * sizeof(Sample)))
                             : nullptr;
        if (image.pSamples) return true;
        ReleaseSamples(image);
        kest::ShowMessage(message, "Error");
        return false;
    }

    static int Copy8Bit(const unsigned char* bytes, Sample* samples, int rows, int columns) {
        if (!bytes || !samples) return KEST_FAILED;
        if (rows > 0 && columns > 0) std::copy_n(bytes, kest::Product(rows, columns), samples);
        return KEST_OK;
    }

    // Where images come from and go to

    static int Load(Image& image, CcObjectStorage* storage) {
        if (storage) ReleaseSamples(image);
        return image.CcGrayImage256::Load(storage);
    }

    static int Open(Image& image, const char* path) {
        if (image.CcGrayImage256::OpenBMPFile(path) < 0 || !MakeSamples(image, Traits::noMemory)) return KEST_FAILED;
        const std::span<Sample> samples = Samples(image);
        const kest::RawPath rawPath(Image::cFullFilePathOpen, Traits::rawExtension);
        switch (kest::ReadRawFile(rawPath, RawHeaderOf(image), samples.data(), sizeof(Sample))) {
            case kest::RawReading::Read:
                image.bAutoUpdateDisplay = 1;
                image.iReScaleOnShow = SamplesChanged;
                Normalise(image);
                return KEST_OK;
            case kest::RawReading::Unfit:
                return Copy8Bit(image.lpBits, samples.data(), image.iHeight, image.iWidth);
            case kest::RawReading::Unreadable:
                break;
        }
        // An image of 8-bit values would be saved over the samples that are there.
        ReleaseSamples(image);
        return Tell(Traits::notRead);
    }

    static int Save(Image& image, const char* pathToSave) {
        kest::PathBuffer path;
        if (Samples(image).empty() || !image.lpBits ||
            !kest::ChoosePathToSave(pathToSave, image.szObjectName, Image::cFullFilePathSave, path))
            return KEST_FAILED;
        // Taken anew: while the dialog was open the host may have got itself another picture.
        const std::span<const Sample> samples = Samples(image);
        if (samples.empty()) return KEST_FAILED;
        KestWholeFile bmp(path), raw(kest::RawPath(path, Traits::rawExtension));
        kest::CopyCut(Image::cFullFilePathSave, path);
        if (raw.GetResult() == KestWholeFile::NotCreated) return Tell(Traits::notSaved);
        kest::WriteDib(kest::BytesOf(image.hDib), 8, bmp);
        bmp.Complete();
        // That the BMP file cannot be created is no failure.
        if (bmp.GetResult() == KestWholeFile::NotWritten) return kest::TellDib8NotWritten();
        kest::WriteRaw(RawHeaderOf(image), samples.data(), sizeof(Sample), raw);
        if (raw.Complete() < 0) return Tell(Traits::notWritten);
        bmp.Replace();
        if (bmp.GetResult() == KestWholeFile::NotWritten) return kest::TellDib8NotWritten();
        return raw.Replace() < 0 ? Tell(Traits::notWritten) : KEST_OK;
    }

    static int MakeBlank(Image& image, int height, int width, int value, const char* name) {
        const bool isRefill = !Samples(image).empty() && image.iHeight == height && image.iWidth == width;
        if (image.CcGrayImage256::MakeBlankBMP(height, width, 0, name) < 0) return KEST_FAILED;
        if (!isRefill && !MakeSamples(image, "Unable to Allocate Memory for Floating Point Image")) return KEST_FAILED;
        const std::span<Sample> samples = Samples(image);
        // Fresh samples are zero.
        if (isRefill || value != 0) std::fill(samples.begin(), samples.end(), static_cast<Sample>(value));
        if (isRefill) {
            MapSamples(image, samples, image.lpBits);
            return KEST_OK;
        }
        image.fDataMax = image.fDataMin = static_cast<float>(value);
        if (value != 0) {
            image.iReScaleOnShow = SamplesChanged;
            Normalise(image);
        }
        return KEST_OK;
    }

    // Statistics and display range

    /// Computes display bytes, or with mode 1 only the statistics, of any samples.
    static int Normalise(Image& image, const Sample* samples, unsigned char* bytes, int rows, int columns, int mode) {
        const kest::Size64 count = kest::Product(rows, columns);
        if (!samples || (!bytes && mode != 1) || rows < 1 || columns < 1 || count > kest::LargestBlockBytes)
            return KEST_FAILED;
        const std::span<const Sample> all(samples, static_cast<std::size_t>(count));
        TakeStatistics(image, all);
        if (mode != 1) MapSamples(image, all, bytes);
        return KEST_OK;
    }

    static void UpdateStatistics(Image& image) {
        const std::span<const Sample> samples = Samples(image);
        if (image.iReScaleOnShow != SamplesChanged || samples.empty()) return;
        TakeStatistics(image, samples);
        image.iReScaleOnShow = DisplayStale;
    }

    static int SetAutoUpdate(Image& image, int on) {
        image.bAutoUpdateDisplay = on == 1;
        if (on == 1) image.iReScaleOnShow = SamplesChanged;
        return KEST_OK;
    }

    /// Brings the display image up to date and calls `showDisplay`. A target that is missing is not reported.
    template <class ShowDisplay>
    static int Show(Image& image, bool hasTarget, ShowDisplay showDisplay) {
        if (Samples(image).empty() || !image.lpBits || !image.MakeTables()) return KEST_FAILED;
        if (image.iReScaleOnShow >= DisplayStale) {
            Normalise(image);
            if (image.bAutoUpdateDisplay == 1) SpreadAllLists(image);
        }
        // What the host changes while a message is shown counts from here on.
        image.iReScaleOnShow = AllCurrent;
        return hasTarget ? showDisplay() : KEST_OK;
    }

    // Point lists

    static int SetList(Image& image, int lut, int channel, const tagPoints* points) {
        int count = 0;
        tagPoints* own = image.PointsOf(lut, channel, &count);
        if (!own) return KEST_OK;
        if (!points || !image.MakeTables()) return KEST_FAILED;
        std::copy_n(points, count, own);
        if (image.bKeepsDisplayRange) return ShowLevels(image, lut, channel, own);
        const bool isMaxNew = TakeBound(image.fDisplayMax, own[count - 1].x);
        const bool isMinNew = TakeBound(image.fDisplayMin, own[0].x);
        if (!isMaxNew && !isMinNew) return RebuildTable(image, lut, channel);
        Normalise(image);
        SpreadAllLists(image);
        return KEST_OK;
    }

    static int SpreadList(Image& image, int list) {
        if (list < 0 || list >= static_cast<int>(std::size(lists))) return KEST_FAILED;
        int count = 0;
        tagPoints* points = image.PointsOf(lists[list].lut, lists[list].channel, &count);
        kest::SpreadPoints({points, static_cast<std::size_t>(count)}, image.fDisplayMin, image.fDisplayMax);
        // Callers have no use for the result; it always reads as a failure.
        return KEST_FAILED;
    }

    static int RebuildTable(Image& image, int lut, int channel) {
        int count = 0;
        const tagPoints* points = image.PointsOf(lut, channel, &count);
        if (!points || !image.MakeTables()) return KEST_FAILED;
        tagPoints levels[256];
        kest::PickLevels({points, static_cast<std::size_t>(count)},
                         {image.fDisplayMin, image.fDisplayMax, image.fScale, image.fOffset}, levels);
        image.FillTable(lut, channel, levels);
        return KEST_OK;
    }

    /// Runs an operation of the 8-bit image that colours levels. The lists that it puts back only show other levels:
    /// where the display range begins and ends is not theirs to say.
    template <class Operation>
    static int Threshold(Image& image, Operation operation) {
        image.bKeepsDisplayRange = true;
        const int result = operation();
        image.bKeepsDisplayRange = false;
        return result;
    }

    // Pixels

    static float& ReadPixel(Image& image, int x, int y) {
        if (image.AddressPixel(x, y))
            image.fPixelValue = image.iOperatorAccess == 0 ? SampleOf(image, x, y) : image.OverlayTarget();
        return image.fPixelValue;
    }

    static float& ReadPosition(Image& image, float x, float y) {
        if (image.AddressPosition(x, y, false))
            image.fPixelValue =
                image.iOperatorAccess == 0
                    ? kest::Interpolate(x, y, kest::Surroundings(x, y),
                                        [&](int column, int row) { return SampleOf(image, column, row); })
                    : image.OverlayTarget();
        return image.fPixelValue;
    }

    static void WritePixel(Image& image, float value) {
        image.iReScaleOnShow = SamplesChanged;
        if (image.iOperatorAccess != 0) {
            image.SetOverlayTarget(value);
        } else if (image.IsPixelAddressed()) {
            const std::span<Sample> samples = Samples(image);
            if (!samples.empty()) samples[static_cast<std::size_t>(image.iPixelIndex)] = Traits::Truncate(value);
        }
    }

private:
    struct ListName {
        int lut, channel;
    };
    static constexpr ListName lists[] = {{101, 1}, {101, 2}, {101, 3}, {102, 0}, {103, 0}, {104, 0}};

    static int Tell(const char* message) {
        kest::ShowUnownedMessage(message, "File I/O Error");
        return KEST_FAILED;
    }

    static kest::RawHeader RawHeaderOf(const Image& image) { return {Traits::typeCode, image.iHeight, image.iWidth}; }

    /// Of the image's own samples.
    static void Normalise(Image& image) {
        const std::span<const Sample> samples = Samples(image);
        TakeStatistics(image, samples);
        MapSamples(image, image.lpBits ? samples : std::span<const Sample>(), image.lpBits);
    }

    static void TakeStatistics(Image& image, std::span<const Sample> samples) {
        if (image.iReScaleOnShow != SamplesChanged || samples.empty()) return;
        const auto range = kest::ScanSamples(samples);
        image.fDataMax = static_cast<float>(range.largest);
        image.fDataMin = static_cast<float>(range.smallest);
        if (image.bAutoUpdateDisplay != 1) return;
        image.fDisplayMax = image.fDataMax;
        image.fDisplayMin = image.fDataMin;
    }

    static void MapSamples(Image& image, std::span<const Sample> samples, unsigned char* bytes) {
        const auto mapping = kest::DisplayMapping::Of(image.fDisplayMin, image.fDisplayMax);
        image.fScale = mapping.scale;
        image.fOffset = mapping.offset;
        if constexpr (Traits::isInteger) {
            const int shift = kest::ShiftOfDisplayRange(image.fDisplayMin, image.fDisplayMax);
            if (image.bAutoUpdateDisplay == 0 && shift > 0) return kest::ShiftSamples(samples, shift, bytes);
        }
        kest::MapSamples(samples, mapping, bytes);
    }

    /// Takes a bound that is moved by more than a tenth of a sample unit; false when it stays.
    static bool TakeBound(float& bound, float moved) {
        if (!(std::abs(double{moved} - bound) > 0.1)) return false;
        bound = moved;
        return true;
    }

    /// Takes a colour list of thresholding into use. Its points are the levels, whatever samples they stood for before.
    static int ShowLevels(Image& image, int lut, int channel, const tagPoints* levels) {
        // The three colour lists come first.
        SpreadList(image, channel - 1);
        image.FillTable(lut, channel, levels);
        return KEST_OK;
    }

    static void SpreadAllLists(Image& image) {
        for (int list = 0; list < static_cast<int>(std::size(lists)); ++list)
            SpreadList(image, list);
        for (const ListName& list : lists)
            RebuildTable(image, list.lut, list.channel);
    }

    /// -1.0 without samples.
    static float SampleOf(const Image& image, int x, int y) {
        const std::span<const Sample> samples = Samples(image);
        if (samples.empty()) return -1.0F;
        return static_cast<float>(samples[static_cast<std::size_t>(kest::Product(y, image.iWidth) + x)]);
    }
};
