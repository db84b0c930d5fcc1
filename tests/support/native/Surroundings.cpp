// What tests need of the system that they run on: the sanitizer tells of memory, and a window is a size.
#include "support/Surroundings.h"

#include <cstddef>

extern "C" [[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();

HWND test::AnyWindow() {
    static constexpr KestClientArea window = {1280, 1024};
    return &window;
}

long long test::PrivateBytes() {
    return __sanitizer_get_current_allocated_bytes ? static_cast<long long>(__sanitizer_get_current_allocated_bytes())
                                                   : 0;
}
