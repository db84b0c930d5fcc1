// The eight kinds of ROIs that the program draws, in the order of the toolbar.
#pragma once

#include <memory>

#include "KestApi.h"

namespace kestview {

struct RoiKind {
    int type;           ///< one of KestRoiType
    const char* label;  ///< as the results table calls it
    std::unique_ptr<CcRoiBase> (*make)();
};

constexpr int roiKindCount = 8;
extern const RoiKind roiKinds[roiKindCount];

/// Null for a type of no kind.
const RoiKind* RoiKindOf(int type);
const char* KindLabel(CcRoiBase& roi);
/// What GetRoiImageCord points at.
KestRoiRecord RecordOf(CcRoiBase& roi);

}  // namespace kestview
