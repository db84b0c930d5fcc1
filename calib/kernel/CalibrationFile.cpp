// The header of a calibration file.
#include "calib/kernel/CalibrationFile.h"

#include <algorithm>

#include "core/kernel/ByteReader.h"
#include "core/kernel/TextField.h"

namespace kest {
namespace {

template <std::size_t N>
void ReadText(ByteReader& reader, char (&text)[N]) {
    char field[N - 1];
    reader.ReadBytes(field, sizeof field);
    CopyField(text, field, sizeof field);
}

template <std::size_t N>
void WriteText(ByteWriter& writer, const char (&text)[N]) {
    char field[N - 1] = {};
    std::copy_n(text, FieldLength(text, sizeof field), field);
    writer.WriteBytes(field, sizeof field);
}

}  // namespace

void ReadVersion1(std::span<const std::uint8_t, headerBytesVersion1> bytes, CalibrationHeader& header) {
    ByteReader reader(bytes);
    reader.Read(header.type);
    reader.Read(header.version);
    ReadText(reader, header.name);
    ReadText(reader, header.units);
    for (auto& row : header.mapping.h)
        for (float& element : row) reader.Read(element);
    reader.Read(header.mapWidth);
    reader.Read(header.mapHeight);
}

void ReadPoints(std::span<const std::uint8_t, headerBytesVersion2 - headerBytesVersion1> bytes,
                CalibrationHeader& header) {
    ByteReader reader(bytes);
    for (auto* points : {header.imagePoints, header.worldPoints})
        for (int i = 0; i < 4; ++i) {
            reader.Read(points[i].x);
            reader.Read(points[i].y);
        }
}

void WriteVersion2(const CalibrationHeader& header, std::span<std::uint8_t, headerBytesVersion2> bytes) {
    ByteWriter writer(bytes);
    writer.Write(header.type);
    writer.Write(header.version);
    WriteText(writer, header.name);
    WriteText(writer, header.units);
    for (const auto& row : header.mapping.h)
        for (const float element : row) writer.Write(element);
    writer.Write(header.mapWidth);
    writer.Write(header.mapHeight);
    for (const auto* points : {header.imagePoints, header.worldPoints})
        for (int i = 0; i < 4; ++i) {
            writer.Write(points[i].x);
            writer.Write(points[i].y);
        }
}

Size64 AreaMapBytes(int width, int height) {
    if (width < 1 || height < 1) return 0;
    const Size64 pixels = Product(width, height);
    return pixels <= LargestBlockBytes / static_cast<Size64>(sizeof(float))
               ? pixels * static_cast<Size64>(sizeof(float))
               : 0;
}

}  // namespace kest
