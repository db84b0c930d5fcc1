// ROIs in files: one in the library's own format, or all of a document as an object stream.
#include "document/RoiFiles.h"

#include <cstdint>
#include <fstream>

#include "document/RoiKinds.h"
#include "platform/Text.h"
#include "platform/WholeFile.h"

namespace kestview {

bool SaveRoi(CcRoiBase& roi, const std::string& path) {
    // Save does not tell of a full disk.
    return WriteWhole(path, [&](const std::string& newPath) {
        return roi.Save(newPath.c_str()) == 0 && RestoreRoi(newPath) != nullptr;
    });
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

bool SaveAllRois(Document& document, const std::string& path) {
    return WriteWhole(path, [&](const std::string& newPath) {
        CcFileObjectStorage stream;
        return stream.Open(newPath.c_str(), GENERIC_READ | GENERIC_WRITE) >= 0 &&
               stream.PutObject(document.Image().GetListROI()) >= 0;
    });
}

int RestoreAllRois(Document& document, const std::string& path) {
    if (!FileExists(path)) return -1;
    CcFileObjectStorage stream;
    CcList list;
    if (stream.Open(path.c_str(), GENERIC_READ) < 0 || stream.GetNextObject(&list) < 0) return -1;
    list.SetDestructionType(1);
    document.BeforeRoiEdit();
    int count = 0;
    while (list.GetNumberOfObjects() > 0) {
        CcHLObject* object = list.TakeOut(0);
        if (dynamic_cast<CcRoiBase*>(object) && document.Image().GetListROI()->InsertTail(object) == 0)
            ++count;
        else
            delete object;
    }
    document.RoisEdited();
    return count;
}

}  // namespace kestview
