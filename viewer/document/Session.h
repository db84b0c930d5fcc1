// Session files (".kvs"): a document as an object stream.
//
// The stream holds a property bag that describes the document, and the picture with its ROIs as the library stores it.
// A wide picture's samples travel in the bag, as its record holds only the 8-bit picture shown. The calibration stays
// in its own file, whose path the bag names. Anything that does not fit together is refused.
#pragma once

#include <memory>
#include <string>

#include "document/Document.h"
#include "document/Question.h"

namespace kestview {

/// By its extension, or by what it begins with.
bool IsSessionFile(const std::string& path);
bool SaveSession(Document& document, const std::string& path, std::string& error);
/// Null, with the reason in plain words unless the library told it, when it cannot be opened. `warning` tells of a
/// calibration that was not found. A calibration that the session names is opened from its own folder or a drive of
/// this computer; from anywhere else only when `mayOpen` says so.
std::unique_ptr<Document> OpenSession(const std::string& path, std::string& error, std::string& warning,
                                      const Question& mayOpen = {});

}  // namespace kestview
