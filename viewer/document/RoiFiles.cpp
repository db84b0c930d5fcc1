// ROIs in files: one in the library's own format, or all of a document as an object stream.
#include "document/RoiFiles.h"

#include <cstdint>
#include <fstream>

#include "document/RoiKinds.h"
#include "platform/InputStream.h"
#include "platform/SavedFile.h"
#include "platform/Text.h"

namespace kestview {
namespace {

/// At least so many bytes stand in a file for the ROI: its name and its record.
long long LeastBytes(CcRoiBase& roi) {
    if (RecordOf(roi) != KEST_RECORD_OUTLINE) return KEST_NAME_SIZE;
    const auto points = static_cast<const PixelGroupTag*>(roi.GetRoiImageCord())->iNumOfPoints;
    return KEST_NAME_SIZE + static_cast<long long>(sizeof(POINT)) * points;
}

}  // namespace

bool SaveRoi(CcRoiBase& roi, const std::string& path, std::string& error) {
    const auto write = [&](const std::string& newPath) -> Written {
        const bool isWritten = roi.Save(newPath.c_str()) == 0;
        if (isWritten && RestoreRoi(newPath)) return true;
        // The library does not count a disk that is full as a failure, but says so.
        return isWritten && BytesOfFile(newPath) < LeastBytes(roi) ? Written::NotAsTold() : false;
    };
    return SaveWhole("The ROI", path, LeastBytes(roi), write, error);
}

std::unique_ptr<CcRoiBase> RestoreRoi(const std::string& path) {
    // The kind stands behind the version; Restore of that class checks the rest.
    std::int32_t header[2] = {};
    std::ifstream(path, std::ios::binary).read(reinterpret_cast<char*>(header), sizeof header);
    const RoiKind* kind = RoiKindOf(header[1]);
    if (!kind) return nullptr;
    std::unique_ptr<CcRoiBase> roi = kind->make();
    if (!roi || roi->Restore(path.c_str()) < 0 || !roi->GetCurrentBoundingRect()) return nullptr;
    roi->SetName(CutForStreams(roi->GetName()).c_str());
    return roi;
}

bool SaveAllRois(Document& document, const std::string& path, std::string& error) {
    const auto write = [&](const std::string& newPath) {
        CcFileObjectStorage stream;
        return stream.Open(newPath.c_str(), GENERIC_READ | GENERIC_WRITE) >= 0 &&
               stream.PutObject(document.Image().GetListROI()) >= 0;
    };
    long long bytes = 0;
    for (int i = 0; i < document.RoiCount(); ++i) bytes += LeastBytes(document.Roi(i));
    return SaveWhole("The ROIs", path, bytes, write, error);
}

int RestoreAllRois(Document& document, const std::string& path) {
    InputStream stream(path);
    CcList read;
    const bool isRead = stream.IsOpen() && stream.GetNextObject(&read) >= 0;
    // Whatever the file says: what was read goes with this list, also the first ROIs of a file that is cut off.
    read.SetDestructionType(1);
    if (!isRead || !HoldsOnlyRois(read)) return -1;
    CcList& rois = *document.Image().GetListROI();
    const int count = read.GetNumberOfObjects();
    if (rois.Reserve(count) < 0) return 0;
    document.BeforeRoiEdit();
    while (CcHLObject* roi = read.TakeOut(0)) rois.InsertTail(roi);
    document.RoisEdited();
    return count;
}

bool HoldsOnlyRois(CcList& list) {
    for (int i = 0; i < list.GetNumberOfObjects(); ++i)
        if (!dynamic_cast<CcRoiBase*>(list.GetAtIndex(i))) return false;
    return true;
}

}  // namespace kestview
