// The pixels under a ROI.
#include "measure/kernel/PixelRuns.h"

#include <algorithm>
#include <cmath>

#include "core/kernel/CheckedSize.h"

namespace kest {
namespace {

/// Up to here the sums over 16-bit values and thousandfold luminances, and their products with the count, fit 64 bits.
constexpr std::size_t exactCount = 4096;

/// Adds at most exactCount values, `valueAt(i)` whole numbers from 0 to 255,000, divided by `divisor`.
template <class ValueAt>
void AddExact(PixelStatistics& statistics, std::size_t count, std::uint32_t divisor, ValueAt valueAt) {
    std::uint64_t sum = 0, sumOfSquares = 0;
    std::uint32_t lowest = UINT32_MAX, highest = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t value = valueAt(i);
        sum += value;
        sumOfSquares += std::uint64_t{value} * value;
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
    const double n = static_cast<double>(count), scale = divisor;
    PixelStatistics run;
    run.count = static_cast<std::int64_t>(count);
    run.mean = static_cast<double>(sum) / n / scale;
    run.squares = static_cast<double>(count * sumOfSquares - sum * sum) / n / (scale * scale);
    run.minimum = lowest / scale;
    run.maximum = highest / scale;
    statistics.Merge(run);
}

/// The same for values of any size, about their own mean; `isCounted` says which are counted.
template <class Value, class IsCounted>
void AddAboutMean(PixelStatistics& statistics, std::span<const Value> values, IsCounted isCounted) {
    PixelStatistics run;
    double sum = 0;
    for (const Value value : values) {
        if (!isCounted(value)) {
            ++run.notFinite;
            continue;
        }
        const double number = value;
        run.minimum = run.count == 0 ? number : std::min(run.minimum, number);
        run.maximum = run.count == 0 ? number : std::max(run.maximum, number);
        sum += number;
        ++run.count;
    }
    if (run.count > 0) run.mean = sum / static_cast<double>(run.count);
    for (const Value value : values)
        if (isCounted(value)) run.squares += (value - run.mean) * (value - run.mean);
    statistics.Merge(run);
}

/// Calls add(first, count) for pieces of at most exactCount.
template <class Add>
void InPieces(std::size_t count, Add add) {
    for (std::size_t first = 0; first < count; first += exactCount) add(first, std::min(exactCount, count - first));
}

}  // namespace

std::span<KestSpan> DistinctRuns(std::span<KestSpan> runs, int width) {
    std::size_t kept = 0;
    bool isAscending = true;
    for (const KestSpan& run : runs) {
        const KestSpan clipped = {std::max(run.iFirst, 0), std::min(run.iLast, width - 1)};
        if (clipped.iFirst > clipped.iLast) continue;
        isAscending = isAscending && (kept == 0 || runs[kept - 1].iLast < clipped.iFirst);
        runs[kept++] = clipped;
    }
    runs = runs.first(kept);
    if (isAscending) return runs;

    std::sort(runs.begin(), runs.end(), [](const KestSpan& a, const KestSpan& b) { return a.iFirst < b.iFirst; });
    std::size_t joined = 0;
    for (const KestSpan& run : runs) {
        if (joined > 0 && run.iFirst <= Size64{runs[joined - 1].iLast} + 1)
            runs[joined - 1].iLast = std::max(runs[joined - 1].iLast, run.iLast);
        else
            runs[joined++] = run;
    }
    return runs.first(joined);
}

double PixelStatistics::StandardDeviation() const {
    return count > 0 ? std::sqrt(squares / static_cast<double>(count)) : 0.0;
}

void PixelStatistics::Merge(const PixelStatistics& other) {
    notFinite += other.notFinite;
    if (other.count == 0) return;
    if (count == 0) {
        const std::int64_t left = notFinite;
        *this = other;
        notFinite = left;
        return;
    }
    const double ours = static_cast<double>(count), theirs = static_cast<double>(other.count);
    const double difference = other.mean - mean;
    mean += difference * (theirs / (ours + theirs));
    squares += other.squares + difference * difference * (ours * theirs / (ours + theirs));
    minimum = std::min(minimum, other.minimum);
    maximum = std::max(maximum, other.maximum);
    count += other.count;
}

void AddBytes(PixelStatistics& statistics, std::span<const std::uint8_t> values) {
    InPieces(values.size(), [&](std::size_t first, std::size_t count) {
        AddExact(statistics, count, 1, [piece = values.data() + first](std::size_t i) { return piece[i]; });
    });
}

void AddUnsigned16(PixelStatistics& statistics, std::span<const std::uint16_t> values) {
    InPieces(values.size(), [&](std::size_t first, std::size_t count) {
        AddExact(statistics, count, 1, [piece = values.data() + first](std::size_t i) { return piece[i]; });
    });
}

void AddSigned32(PixelStatistics& statistics, std::span<const std::int32_t> values) {
    AddAboutMean(statistics, values, [](std::int32_t) { return true; });
}

void AddFloats(PixelStatistics& statistics, std::span<const float> values) {
    AddAboutMean(statistics, values, [](float value) { return std::isfinite(value); });
}

void AddColours(PixelStatistics& statistics, std::span<const std::uint8_t> bgr) {
    InPieces(bgr.size() / 3, [&](std::size_t first, std::size_t count) {
        AddExact(statistics, count, 1000, [pixel = bgr.data() + 3 * first](std::size_t i) {
            return 114U * pixel[3 * i] + 587U * pixel[3 * i + 1] + 299U * pixel[3 * i + 2];
        });
    });
}

double SumOf(std::span<const float> values) {
    double sum = 0;
    for (const float value : values) sum += value;
    return sum;
}

}  // namespace kest
