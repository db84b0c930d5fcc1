// The fuzzer's entry: the format that KEST_FUZZ_FORMAT names.
#include <cstdio>
#include <cstdlib>

#include "Formats.h"
#include "native/Messages.h"

namespace {

void (*play)(std::span<const std::uint8_t>) = nullptr;

}  // namespace

HWND fuzz::Window() {
    static const KestClientArea window = {400, 300};
    return &window;
}

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    const char* const name = std::getenv("KEST_FUZZ_FORMAT");
    const fuzz::Format* const format = fuzz::FormatCalled(name ? name : "");
    if (!format) {
        std::fprintf(stderr, "KEST_FUZZ_FORMAT names no format\n");
        std::exit(2);
    }
    play = format->play;
    kest::SetMessageReader(nullptr);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    play({bytes, count});
    return 0;
}
