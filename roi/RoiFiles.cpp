// ROI files.
#include "roi/RoiFiles.h"

#include <cstring>

#include "core/Files.h"
#include "core/Messages.h"
#include "core/kernel/ByteReader.h"
#include "core/kernel/TextField.h"

namespace kest {
namespace {

constexpr int headerBytes = 272;
constexpr float formatVersion = 1.0F;

}  // namespace

int WriteRoiFile(const char* path, int roiType, int count, const char* name, const void* record,
                 long long recordBytes) {
    std::uint8_t header[headerBytes] = {};
    ByteWriter writer(header);
    writer.Write(formatVersion);
    writer.Write(roiType);
    writer.Write(count);
    writer.WriteBytes(name, FieldLength(name, KEST_NAME_SIZE - 1));

    constexpr unsigned long notShared = 0;
    KestWholeFile file(path, notShared);
    file.Write(header, headerBytes);
    file.Write(record, recordBytes);
    file.Replace();
    TellLostRoi(file);
    return file.GetResult() == KestWholeFile::NotCreated ? KEST_FAILED : KEST_OK;
}

void TellLostRoi(const KestWholeFile& file) {
    if (file.GetResult() == KestWholeFile::NotWritten) ShowMessage("Problem writing ROI to file", "File I/O Error");
}

bool ReadRoiFile(const char* path, int roiType, int bytesPerCount, RoiFile& roi) {
    if (!path) return false;
    const FileHandle file(OpenForReading(path));
    if (!file.IsOpen()) return false;
    std::uint8_t header[headerBytes];
    if (!ReadExactly(file, header, headerBytes)) return false;
    ByteReader reader(header);
    float version;
    int storedType;
    char storedName[KEST_NAME_SIZE];
    reader.Read(version);
    reader.Read(storedType);
    reader.Read(roi.count);
    reader.ReadBytes(storedName, sizeof storedName);
    if (version != formatVersion || storedType != roiType || roi.count < 0) return false;
    CopyField(roi.name, storedName, sizeof storedName);

    const Size64 recordBytes = Product(roi.count, bytesPerCount);
    if (recordBytes == 0) return true;
    return recordBytes <= BytesLeft(file) && roi.record.Reserve(recordBytes) &&
           ReadExactly(file, roi.record.Get(), recordBytes);
}

}  // namespace kest
