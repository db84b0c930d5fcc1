// Wide samples to display bytes.
#include "Buffers.h"
#include "Peers.h"
#include "image/kernel/WideSamplesPlain.h"

namespace bench {
namespace {

template <class Sample>
Run MapPlainly(Buffer<Sample> samples, Buffer<std::uint8_t> bytes, bool scans) {
    return [=] {
        kest::SampleRange<Sample> range = {(*samples)[0], (*samples)[0]};
        if (scans)
            for (const Sample sample : *samples) kest::TakeIntoRange(range, sample);
        else
            range = {1000, 60000};
        const auto mapping =
            kest::DisplayMapping::Of(static_cast<float>(range.smallest), static_cast<float>(range.largest));
        for (std::size_t i = 0; i < samples->size(); ++i) (*bytes)[i] = kest::MapSample((*samples)[i], mapping);
    };
}

template <class Sample>
Run MapOurs(Buffer<Sample> samples, Buffer<std::uint8_t> bytes, bool scans) {
    return [=] {
        const std::span<const Sample> all = *samples;
        const auto range = scans ? kest::ScanSamples(all) : kest::SampleRange<Sample>{1000, 60000};
        const auto mapping =
            kest::DisplayMapping::Of(static_cast<float>(range.smallest), static_cast<float>(range.largest));
        kest::MapSamples(all, mapping, bytes->data());
    };
}

template <class Sample>
void AddWork(WorkList& list, const char* name, bool scans, Buffer<Sample> samples, Run peer) {
    const auto bytes = MakeBuffer<std::uint8_t>(pixels);
    // The limit reads and writes as many bytes in all: samples and display bytes, and the samples again for a scan.
    const std::size_t half = ((scans ? 2 : 1) * sizeof(Sample) + 1) * pixels / 2;
    list.push_back({name, "12 MP", MapPlainly(samples, bytes, scans), MapOurs(samples, bytes, scans), std::move(peer),
                    CopyOf(RandomBytes(half, 9), MakeBuffer<std::uint8_t>(half))});
}

}  // namespace

void AddSampleWork(WorkList& list) {
    std::mt19937 random(4);
    const auto words = MakeBuffer<std::uint16_t>(pixels);
    const auto integers = MakeBuffer<std::int32_t>(pixels);
    const auto reals = MakeBuffer<float>(pixels);
    for (auto& sample : *words) sample = static_cast<std::uint16_t>(random());
    for (auto& sample : *integers) sample = static_cast<std::int32_t>(random()) / 1000;
    for (auto& sample : *reals) sample = static_cast<float>(random()) / 1e5F - 2e4F;
    AddWork(list, "16-bit samples to display bytes", false, words, PeerMapWords(*words));
    AddWork(list, "32-bit samples, scan and map", true, integers, PeerScanAndMap(*integers));
    AddWork(list, "float samples, scan and map", true, reals, PeerScanAndMap(*reals));
}

}  // namespace bench
