// Colour planes: conversion and painting.
#include "Buffers.h"
#include "Peers.h"
#include "image/kernel/ColourConvert.h"
#include "image/kernel/ColourThreshold.h"
#include "image/kernel/Luminance.h"

namespace bench {
namespace {

using Plane = Buffer<std::uint8_t>;

constexpr float lowBand = 80.0F, highBand = 150.0F;
constexpr kest::Rgb paint = {255, 10, 20};
constexpr kest::ByteBand box[] = {{40, 200}, {30, 190}, {60, 220}};
constexpr int channel = 1;

/// One pixel after another, painted where `isInside` holds, else as it is in the source.
template <class IsInside>
Run PaintPlainly(Plane source, Plane target, IsInside isInside) {
    return [=] {
        const kest::PixelBytes bytes = paint;
        for (std::size_t i = 0; i < source->size(); i += 3) {
            const std::uint8_t* pixel = &(*source)[i];
            std::memcpy(&(*target)[i], isInside(pixel) ? bytes.bytes : pixel, 3);
        }
    };
}

}  // namespace

void AddColourWork(WorkList& list) {
    const Plane rgb = RandomBytes(3 * pixels, 1), hsl = RandomBytes(3 * pixels, 2), target = RandomBytes(3 * pixels, 3);
    for (auto& byte : *hsl) byte = static_cast<std::uint8_t>(byte % 241);
    const Run copy = CopyOf(rgb, target);

    const auto convertPlainly = [](Plane from, Plane to, auto convert) {
        return [=] {
            for (std::size_t i = 0; i < from->size(); i += 3) {
                const kest::PixelBytes bytes = convert(&(*from)[i]);
                std::memcpy(&(*to)[i], bytes.bytes, 3);
            }
        };
    };
    list.push_back({"RGB to HSL, random colours", "12 MP",
                    convertPlainly(rgb, target, [](const std::uint8_t* p) { return kest::RgbToHsl(kest::RgbAt(p)); }),
                    [=] { kest::ConvertRgbToHsl(*rgb, *target); }, PeerToHsl(*rgb, *target), copy});
    list.push_back({"HSL to RGB, random values", "12 MP",
                    convertPlainly(hsl, target, [](const std::uint8_t* p) { return kest::HslToRgb(kest::HslAt(p)); }),
                    [=] { kest::ConvertHslToRgb(*hsl, *target, false); }, PeerToRgb(*hsl, *target),
                    CopyOf(hsl, target)});

    list.push_back({"luminance band, picture restored", "12 MP",
                    PaintPlainly(rgb, target,
                                 [](const std::uint8_t* pixel) {
                                     const auto luminance = static_cast<float>(kest::Luminance(pixel));
                                     return luminance >= lowBand && luminance <= highBand;
                                 }),
                    [=] { kest::PaintLuminance(*rgb, *target, lowBand, highBand, paint); },
                    PeerPaintLuminance(*rgb, *target, lowBand, highBand), copy});
    list.push_back({"one-channel band, picture restored", "12 MP",
                    PaintPlainly(rgb, target,
                                 [](const std::uint8_t* pixel) {
                                     return pixel[channel] >= lowBand && pixel[channel] <= highBand;
                                 }),
                    [=] {
                        kest::ChannelPainter painter(channel);
                        painter.AddBand(kest::ToByteBand(lowBand, highBand), paint);
                        painter.Paint(*rgb, *target);
                    },
                    PeerPaintChannel(*rgb, *target, channel, lowBand, highBand), copy});
    list.push_back(
        {"RGB box, picture restored", "12 MP",
         PaintPlainly(rgb, target,
                      [](const std::uint8_t* pixel) {
                          return box[0].Has(pixel[0]) && box[1].Has(pixel[1]) && box[2].Has(pixel[2]);
                      }),
         [=] { kest::PaintBox(*rgb, *target, box, paint); },
         PeerPaintBox(*rgb, *target, {box[0].low, box[1].low, box[2].low}, {box[0].high, box[1].high, box[2].high}),
         copy});
}

}  // namespace bench
