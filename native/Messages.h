// Who is told what a message box would say.
#pragma once

namespace kest {

/// Takes text and caption. At first they go to the error output; null: nowhere.
using MessageReader = void (*)(const char* text, const char* caption);
void SetMessageReader(MessageReader reader);

}  // namespace kest
