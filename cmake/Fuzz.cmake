# The fuzzer natively (the second compiler's, with KEST_FUZZ), and on Windows the program that plays files behind guard
# pages.
if(WIN32)
  add_executable(fuzz_guarded fuzz/Formats.cpp fuzz/Calls.cpp fuzz/Guarded.cpp)
  target_include_directories(fuzz_guarded PRIVATE tests)
  target_link_libraries(fuzz_guarded PRIVATE KestApi kest_options)
else()
  add_executable(fuzz_native fuzz/Formats.cpp fuzz/Calls.cpp fuzz/Native.cpp)
  target_link_libraries(fuzz_native PRIVATE KestApi kest_options)
  target_link_options(fuzz_native PRIVATE -fsanitize=fuzzer)
endif()
