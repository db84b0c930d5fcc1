# KestView, the program over the public headers alone. Its documents (files, conversion, measuring) are a library, so
# that tests reach them without the windows; the windows are another, so that tests reach the menus without the program.
enable_language(RC)
file(GLOB document_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/viewer/document/*.cpp)
set(platform_sources)
foreach(part Busy Drawing Program SavedFile Settings Text)
  list(APPEND platform_sources ${PROJECT_SOURCE_DIR}/viewer/platform/${part}.cpp)
endforeach()
add_library(kestview_documents STATIC ${document_sources}
  ${platform_sources})
# Of the library's own headers it may include only core/GdiGuards.h (script/lint).
target_include_directories(kestview_documents PUBLIC ${PROJECT_SOURCE_DIR}/viewer ${PROJECT_SOURCE_DIR})
target_compile_definitions(kestview_documents PUBLIC _WIN32_WINNT=0x0A00)
target_link_libraries(kestview_documents PUBLIC KestApi kest_options gdi32 ole32 user32 uuid windowscodecs)

# What nearly every file reads first is read once.
target_precompile_headers(kestview_documents PRIVATE
  <windows.h> <KestApi.h> <algorithm> <functional> <map> <memory> <optional> <string> <vector>)

file(GLOB_RECURSE window_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/viewer/*.cpp)
list(REMOVE_ITEM window_sources ${document_sources} ${platform_sources} ${PROJECT_SOURCE_DIR}/viewer/KestView.cpp)
add_library(kestview_windows STATIC ${window_sources})
target_link_libraries(kestview_windows PUBLIC kestview_documents comctl32 comdlg32 shell32)
target_precompile_headers(kestview_windows REUSE_FROM kestview_documents)
add_executable(KestView WIN32 viewer/KestView.cpp viewer/KestView.rc)
target_link_libraries(KestView PRIVATE kestview_windows)
set(kest_resources ${PROJECT_SOURCE_DIR}/viewer/res)
set_source_files_properties(viewer/KestView.rc PROPERTIES OBJECT_DEPENDS
  "${kest_resources}/Resource.h;${kest_resources}/KestView.manifest;${kest_resources}/KestView.ico")

# The sample tool, where the program looks for its tools.
add_custom_command(TARGET KestView POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/bin/tools
  COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:HistogramTool> ${CMAKE_BINARY_DIR}/bin/tools/)
add_dependencies(KestView HistogramTool)
if(TARGET Kest_GRes)
  add_dependencies(KestView Kest_GRes)
endif()
