// ROIs in files: one in the library's own format (".roi"), or all of a document as an object stream (".rois").
#pragma once

#include <memory>
#include <string>

#include "document/Document.h"

namespace kestview {

bool SaveRoi(CcRoiBase& roi, const std::string& path, std::string& error);
/// A ROI of the kind that the file says; null when it is none.
std::unique_ptr<CcRoiBase> RestoreRoi(const std::string& path);

bool SaveAllRois(Document& document, const std::string& path, std::string& error);
/// Adds the file's ROIs to the document, as one step of its history. Their number; -1, with none of them added, when it
/// is no such file, not whole or without memory to read it; 0 when the list of ROIs cannot grow, which the library
/// tells.
int RestoreAllRois(Document& document, const std::string& path);
/// A list that was read from a file can hold anything.
bool HoldsOnlyRois(CcList& list);

}  // namespace kestview
