// The eight ROI classes as a table: what distinguishes them, and ROIs of each with known coordinates.
#pragma once

#include "support/ClassTests.h"

namespace test {

/// What distinguishes the classes in files and streams, written out by hand.
struct Kind {
    const char* className;
    int type;
    const char* namePattern;
    Bytes record;  ///< of a ROI with known coordinates
    bool isOutline;
};

inline const Kind kinds[] = {
    {"CcRoiRect", 0, "Rect.", Bytes().I32(3).I32(9).I32(7).I32(4), false},
    {"CcRoiLine", 1, "Line.", Bytes().I32(1).I32(2).I32(8).I32(5), false},
    {"CcRoiFreeHandLine", 2, "FreeLine.", Bytes(), true},
    {"CcRoiPolyLine", 3, "PolyLine.", Bytes(), true},
    {"CcRoiEllipse", 4, "Ellipse.", Bytes().I32(-3).I32(9).I32(7).I32(4), false},
    {"CcRoiFreeHand", 5, "Freehand.", Bytes(), true},
    {"CcRoiPolyFreeHand", 6, "PolyFree.", Bytes(), true},
    {"CcRoiPoint", 7, "P.", Bytes().F32(2.75F).F32(6.5F), false},
};

inline Bytes OutlinePoints() { return Bytes().I32(4).I32(5).I32(5).I32(5).I32(5).I32(6).I32(4).I32(6); }

/// Gives a ROI the record of its kind: an outline, a point, or a box, which is a line from corner to corner as well.
inline void SetRecord(const Kind& kind, CcRoiBase& roi, std::vector<POINT> pixels, RECT box, tagPoints point) {
    void* record = kind.type == 7 ? static_cast<void*>(&point) : &box;
    EXPECT_EQ(kind.isOutline ? SetOutline(roi, std::move(pixels)) : roi.SetRoiImageCord(record), 0);
}

inline std::unique_ptr<CcRoiBase> Make(const Kind& kind, bool filled = true) {
    CcMemObjectStorage stream;
    CcHLObject* made = nullptr;
    EXPECT_EQ(stream.CreateObject(kind.className, &made), 0);
    std::unique_ptr<CcRoiBase> roi(dynamic_cast<CcRoiBase*>(made));
    if (!filled) return roi;
    RECT box = {};
    std::copy(kind.record.begin(), kind.record.end(), reinterpret_cast<std::uint8_t*>(&box));
    SetRecord(kind, *roi, {{4, 5}, {5, 5}, {5, 6}, {4, 6}}, box, {2.75F, 6.5F});
    return roi;
}

/// What a ROI holds, as its file has it.
inline Bytes RecordBytes(const Kind& kind, CcRoiBase& roi) {
    Bytes bytes;
    if (kind.isOutline) {
        const PixelGroupTag& outline = OutlineOf(roi);
        for (int i = 0; i < outline.iNumOfPoints; ++i) bytes.I32(outline.stPOINTS[i].x).I32(outline.stPOINTS[i].y);
    } else {
        const auto* record = static_cast<std::uint8_t*>(roi.GetRoiImageCord());
        bytes.assign(record, record + kind.record.size());
    }
    return bytes;
}

}  // namespace test
