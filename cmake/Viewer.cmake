# KestView, the program over the public headers alone.
file(GLOB_RECURSE viewer_sources CONFIGURE_DEPENDS viewer/*.cpp)
enable_language(RC)
add_executable(KestView WIN32 ${viewer_sources} viewer/KestView.rc)
target_include_directories(KestView PRIVATE ${PROJECT_SOURCE_DIR}/viewer)
target_compile_definitions(KestView PRIVATE _WIN32_WINNT=0x0A00)
target_link_libraries(KestView PRIVATE KestApi kest_options comctl32 comdlg32 gdi32 ole32 shell32 user32 uuid windowscodecs)
set_source_files_properties(viewer/KestView.rc PROPERTIES
  OBJECT_DEPENDS "${PROJECT_SOURCE_DIR}/viewer/Resource.h;${PROJECT_SOURCE_DIR}/viewer/res/KestView.manifest;${PROJECT_SOURCE_DIR}/viewer/res/KestView.ico")
