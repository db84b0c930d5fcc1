# The second compiler: clang for 64-bit Windows, with the headers and run-time library of the first.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(kest_target x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-clang.cmake)
