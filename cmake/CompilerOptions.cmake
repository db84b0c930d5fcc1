# Language, warnings and floating-point rules of every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

add_library(kest_options INTERFACE)
if(MSVC)
  target_compile_options(kest_options INTERFACE /W4 /WX /fp:strict)
else()
  target_compile_options(kest_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wformat=2 -Werror
    $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast>
    # Pixels are indexed by int, as the interface counts them; clang would have each index cast.
    -Wno-sign-conversion
    # Every build computes the same bits: no fused multiply-add, no fast-math.
    -ffp-contract=off)
  if(WIN32)
    # Programs and the DLL need nothing but the system's own DLLs.
    target_link_options(kest_options INTERFACE -static)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8 AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
      # This compiler does not align 32-byte variables on this system's stack, but moves them as if it did.
      target_compile_options(kest_options INTERFACE -Wa,-muse-unaligned-vector-move)
    endif()
  endif()
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # SSE registers round each step to its type; callers built by other compilers align the stack to four bytes.
    target_compile_options(kest_options INTERFACE -msse2 -mfpmath=sse -mstackrealign)
  endif()
endif()

# The library itself neither throws nor catches.
add_library(kest_library_options INTERFACE)
target_link_libraries(kest_library_options INTERFACE kest_options)
if(NOT MSVC)
  # The kernels' records (IntPoint) stand for the platform's of the same layout (POINT).
  # The library asks for no run-time type information, but its classes have it (no -fno-rtti): a host's dynamic_cast of
  # an object that the library made ends the host's process without it.
  # Nobody reads errno after a square root, which is then one instruction with the same result.
  target_compile_options(kest_library_options INTERFACE -fno-exceptions -fno-strict-aliasing -fno-math-errno)
endif()

if(KEST_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# A build that ends with an illegal instruction at the first undefined behaviour: for Windows, where the sanitizers have
# no run-time library. (vptr needs one; the checks that are put in lead the warning astray.)
if(KEST_TRAP)
  add_compile_options(-fsanitize=undefined -fno-sanitize=vptr -fsanitize-undefined-trap-on-error
    -Wno-maybe-uninitialized)
endif()

# Counts lines and branches as they run (script/coverage).
if(KEST_COVERAGE)
  add_compile_options(--coverage -O0 -fprofile-update=atomic)
  add_link_options(--coverage)
endif()
