# Native: the tests of all kernels, and those of the classes that need no window. Windows: one program a folder, with
# the tests of its kernels and classes.
set(gtest_source /usr/src/googletest CACHE PATH "GoogleTest's source")
set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
add_subdirectory(${gtest_source} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
# Optimising it takes longer than its part of a test run.
target_compile_options(gtest PRIVATE -O0 -g0)

set_source_files_properties(tests/support/TestData.cpp PROPERTIES
  SKIP_PRECOMPILE_HEADERS ON COMPILE_DEFINITIONS KEST_TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data")

if(NOT WIN32)
  file(GLOB kernel_tests CONFIGURE_DEPENDS tests/*/kernel/*_test.cpp)
  add_executable(test_kernels ${kernel_tests})
  target_link_libraries(test_kernels PRIVATE kest_kernels gtest_main)
  target_precompile_headers(test_kernels PRIVATE tests/support/KernelTests.h)
  target_link_libraries(test_kernels PRIVATE kest_options)
  target_compile_options(test_kernels PRIVATE -O1)
  target_include_directories(test_kernels PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  add_test(NAME native.kernels COMMAND test_kernels)

  file(GLOB sources CONFIGURE_DEPENDS tests/support/native/*.cpp)
  add_library(kest_test_support STATIC ${sources} tests/support/TestData.cpp)
  target_link_libraries(kest_test_support PUBLIC KestApi gtest kest_options)
  target_include_directories(kest_test_support PUBLIC ${PROJECT_SOURCE_DIR}/tests)
  # The library knows its classes by where their tables are; without -fPIC a program would have some of its own.
  target_compile_options(kest_test_support PUBLIC -O1 -fPIC)
  target_precompile_headers(kest_test_support PRIVATE tests/support/ClassTests.h)
  # Those that see nothing in windows.
  set(core_tests CcList CcPropertyBag ObjectStorage Values)
  set(image_tests BmpCollection)
  set(roi_tests CcRoiHistory RoiFiles RoiQueries)
  set(calib_tests CcCalibration)
  set(measure_tests KestMeasure)
  set(library_tests Files)
  foreach(part core image roi calib measure library)
    list(TRANSFORM ${part}_tests REPLACE "(.+)" "tests/${part}/\\1_test.cpp")
    # The standard library's random numbers are wider here.
    set_source_files_properties(${${part}_tests} PROPERTIES COMPILE_OPTIONS -Wno-conversion)
    add_executable(test_${part} ${${part}_tests})
    target_link_libraries(test_${part} PRIVATE kest_test_support)
    target_precompile_headers(test_${part} REUSE_FROM kest_test_support)
    add_test(NAME native.${part} COMMAND test_${part})
  endforeach()
  # The programmer's guide shows the programs as they are.
  add_test(NAME native.guide COMMAND ${PROJECT_SOURCE_DIR}/script/docs --check)
  return()
endif()

math(EXPR bits "${CMAKE_SIZEOF_VOID_P} * 8")
file(GLOB support_sources CONFIGURE_DEPENDS tests/support/*.cpp)
add_library(kest_test_support STATIC ${support_sources})
target_link_libraries(kest_test_support PUBLIC KestApi kest_kernels gtest kest_options winspool)
target_include_directories(kest_test_support PUBLIC ${PROJECT_SOURCE_DIR}/tests)
target_compile_options(kest_test_support PUBLIC -O1)
set_source_files_properties(tests/support/Printer.cpp PROPERTIES
  SKIP_PRECOMPILE_HEADERS ON COMPILE_DEFINITIONS KEST_PRINTED_PAGE="${CMAKE_BINARY_DIR}/printed-page.bmp")

# What every test file reads first is read once.
target_precompile_headers(kest_test_support PRIVATE tests/support/ClassTests.h)

foreach(part IN LISTS KEST_PARTS)
  file(GLOB sources CONFIGURE_DEPENDS tests/${part}/*_test.cpp tests/${part}/kernel/*_test.cpp)
  if(sources)
    add_executable(test_${part} ${sources})
    target_link_libraries(test_${part} PRIVATE kest_test_support)
    target_precompile_headers(test_${part} REUSE_FROM kest_test_support)
    add_test(NAME win${bits}.${part} COMMAND test_${part} WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
    set_tests_properties(win${bits}.${part} PROPERTIES TIMEOUT 400 RUN_SERIAL ON)
  endif()
endforeach()

# Every operation of the library while the platform fails under it.
file(GLOB sources CONFIGURE_DEPENDS tests/faults/*.cpp)
add_executable(test_faults ${sources})
target_link_libraries(test_faults PRIVATE kest_test_support)
target_precompile_headers(test_faults REUSE_FROM kest_test_support)
add_dependencies(test_faults HistogramTool)
add_test(NAME win${bits}.faults COMMAND test_faults WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set_tests_properties(win${bits}.faults PROPERTIES TIMEOUT 400 RUN_SERIAL ON)

# A host unlike the library, as the file tells.
set_source_files_properties(tests/core/OtherHosts_test.cpp PROPERTIES
  SKIP_PRECOMPILE_HEADERS ON COMPILE_OPTIONS "-fno-rtti" COMPILE_DEFINITIONS "UNICODE;_UNICODE")

# KestView: its documents and menus, and the running program driven by mouse and keyboard.
file(GLOB sources CONFIGURE_DEPENDS tests/viewer/*.cpp)
add_executable(test_viewer ${sources})
target_link_libraries(test_viewer PRIVATE kest_test_support kestview_windows kest_example)
add_dependencies(test_viewer KestView)
add_test(NAME win${bits}.viewer COMMAND test_viewer WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set_tests_properties(win${bits}.viewer PROPERTIES TIMEOUT 500 RUN_SERIAL ON)

# Tool libraries, good and hostile ones, beside the test program that loads them.
foreach(source RecordingTool.cpp EndlessText.c NoEntry.cpp)
  cmake_path(GET source STEM library)
  add_library(${library} SHARED tests/tools/libraries/${source})
  target_include_directories(${library} PRIVATE include)
  target_link_libraries(${library} PRIVATE kest_options)
  set_target_properties(${library} PROPERTIES PREFIX "" IMPORT_PREFIX "lib" C_STANDARD 99 C_EXTENSIONS OFF)
endforeach()
add_dependencies(test_tools RecordingTool EndlessText NoEntry HistogramTool)

# The programs of the programmer's guide, which check what it tells.
add_test(NAME win${bits}.guide COMMAND Guide WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set_tests_properties(win${bits}.guide PROPERTIES TIMEOUT 120 RUN_SERIAL ON)

# What takes the pictures of KestView's guide (script/guide-pictures).
add_executable(GuidePictures docs/GuidePictures.cpp tests/viewer/Driver.cpp)
target_link_libraries(GuidePictures PRIVATE kest_test_support kest_example)
target_include_directories(GuidePictures PRIVATE viewer)
add_dependencies(GuidePictures KestView)
