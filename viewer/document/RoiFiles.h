// ROIs in files: one in the library's own format (".roi"), or all of a document as an object stream (".rois").
#pragma once

#include <memory>
#include <string>

#include "document/Document.h"

namespace kestview {

bool SaveRoi(CcRoiBase& roi, const std::string& path);
/// A ROI of the kind that the file says; null when it is none.
std::unique_ptr<CcRoiBase> RestoreRoi(const std::string& path);

bool SaveAllRois(Document& document, const std::string& path);
/// Adds the file's ROIs to the document, as one step of its history. -1 when it is no such file, else their number.
int RestoreAllRois(Document& document, const std::string& path);

}  // namespace kestview
