// Calibration: the area of every pixel, and points to world.
#include "Buffers.h"
#include "Peers.h"
#include "calib/kernel/Perspective.h"

namespace bench {

void AddCalibrationWork(WorkList& list) {
    const kest::Perspective mapping = {{{0.011F, 0.0004F, -3.0F}, {-0.0003F, 0.012F, 5.0F}, {1.3e-5F, -0.9e-5F, 1.0F}}};
    const auto map = MakeBuffer<float>(pixels);
    list.push_back({"area map of a calibration", "12 MP",
                    [=] {
                        for (int x = 0; x < wide; ++x)
                            for (int y = 0; y < high; ++y)
                                (*map)[static_cast<std::size_t>(y) * wide + x] = kest::PixelArea(mapping, x, y);
                    },
                    [=] { kest::FillAreaMap(mapping, wide, high, *map); }, PeerAreaMap(mapping.h, wide, high),
                    CopyOf(MakeBuffer<float>(pixels), MakeBuffer<float>(pixels))});

    constexpr std::size_t count = 10'000'000;
    const auto image = MakeBuffer<tagPoints>(count), world = MakeBuffer<tagPoints>(count);
    std::mt19937 random(5);
    for (auto& point : *image)
        point = {static_cast<float>(random() % 400000) / 100, static_cast<float>(random() % 300000) / 100};
    list.push_back({"points to world", "10 million",
                    [=] {
                        for (std::size_t i = 0; i < count; ++i) (*world)[i] = kest::ImageToWorld(mapping, (*image)[i]);
                    },
                    [=] { kest::ImageToWorld(mapping, *image, *world); }, PeerToWorld(mapping.h, *image, *world),
                    CopyOf(image, world)});
}

}  // namespace bench
