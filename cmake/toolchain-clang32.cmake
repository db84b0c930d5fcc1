# The second compiler: clang for 32-bit Windows, with the headers and run-time library of the first.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(kest_target i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-clang.cmake)
