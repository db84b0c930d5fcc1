// The calibration that a session names by its file.
//
// A session can come from anybody, so what it names is opened unasked only beside the session and on the drives of this
// computer: merely asking for a file elsewhere tells another computer who asks.
#pragma once

#include <string>

#include "document/Document.h"
#include "document/Question.h"

namespace kestview {

/// Opens the calibration `named` by a session. False when it is not there, does not fit, or is elsewhere and not
/// wanted.
bool OpenCalibrationOf(const std::string& sessionPath, const std::string& named, const Question& mayOpen,
                       Document& document);

}  // namespace kestview
