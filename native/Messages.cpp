// What message boxes would say, told to a reader.
#include "native/Messages.h"

#include <cstdio>

#include "core/Messages.h"

namespace kest {
namespace {

MessageReader messageReader = [](const char* text, const char* caption) {
    std::fprintf(stderr, "[%s] %s\n", caption, text);
};

}  // namespace

void SetMessageReader(MessageReader reader) { messageReader = reader; }

void ShowMessage(const char* text, const char* caption, UINT) {
    if (messageReader) messageReader(text, caption);
}

void ShowUnownedMessage(const char* text, const char* caption, UINT flags) { ShowMessage(text, caption, flags); }

void Beep() {}

}  // namespace kest
