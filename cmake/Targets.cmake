# The kernels and the library over them: the DLL on Windows; on other systems the same classes without what draws.
# A source file belongs to the target of the folder it lies in.
set(KEST_PARTS core image roi calib measure graph tools library)

set(kernel_sources)
set(class_sources)
foreach(part IN LISTS KEST_PARTS)
  file(GLOB found CONFIGURE_DEPENDS ${part}/kernel/*.cpp)
  list(APPEND kernel_sources ${found})
  file(GLOB found CONFIGURE_DEPENDS ${part}/*.cpp)
  list(APPEND class_sources ${found})
endforeach()

add_library(kest_kernels STATIC ${kernel_sources})
target_include_directories(kest_kernels PUBLIC ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
target_link_libraries(kest_kernels PRIVATE kest_library_options)

if(NOT WIN32)
  # What calls Windows stays out; native/ stands in for what the other classes ask of it.
  set(windows_only tools/CDLLLST tools/CLOADDLL
    core/FileDialogs core/Files core/KestWholeFile core/Messages core/Module core/Platform
    graph/CcGraphDialogs graph/CcGraphDrawing graph/CcGraphMapping graph/CcGraphMouse graph/GraphDrawing
    graph/GridMarkingsDialog graph/LineStyleDialog graph/MinMaxDialog graph/ResourceLibrary graph/SettingsDialog
    graph/TitleDialog
    image/DibDraw image/ImageClipboard image/LookDrawing image/OverlayDrawing image/PrintImage image/ShowImage
    roi/FarDrawing roi/KestDragDc roi/OutlineDrawing roi/ShapeDrawing)
  list(TRANSFORM windows_only REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/\\1.cpp")
  list(REMOVE_ITEM class_sources ${windows_only})
  file(GLOB native_sources CONFIGURE_DEPENDS native/*.cpp)
  # Shared as the DLL is, so that it knows its own classes from those of a host.
  add_library(KestApi SHARED ${class_sources} ${native_sources})
  target_include_directories(KestApi PUBLIC ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
  target_link_libraries(KestApi PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,kest_kernels> kest_library_options)
  # A text that is too long for its field is cut on purpose.
  target_compile_options(KestApi PRIVATE -O1 $<$<CXX_COMPILER_ID:GNU>:-Wno-format-truncation>)
  set_target_properties(kest_kernels PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_precompile_headers(KestApi PRIVATE <algorithm> <cmath> <memory> <span> <string> <vector>)
else()
  add_library(KestApi SHARED ${class_sources})
  target_include_directories(KestApi PUBLIC ${PROJECT_SOURCE_DIR}/include PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_definitions(KestApi PRIVATE KEST_BUILD $<$<BOOL:${KEST_WITH_MFC}>:KEST_WITH_MFC>)
  target_link_libraries(KestApi PRIVATE kest_kernels kest_library_options comctl32 comdlg32 gdi32 user32)
  set_target_properties(KestApi PROPERTIES PREFIX "" IMPORT_PREFIX "lib")
  # (A build that counts lines is not optimised and keeps what the others leave out.)
  if(NOT MSVC AND NOT KEST_COVERAGE)
    file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/library-objects.txt
      CONTENT "$<JOIN:$<TARGET_OBJECTS:KestApi>;$<TARGET_OBJECTS:kest_kernels>,\n>\n")
    add_custom_command(TARGET KestApi POST_BUILD COMMAND ${CMAKE_COMMAND} -DNM=${CMAKE_NM}
      -DLIST=${CMAKE_BINARY_DIR}/library-objects.txt -DLIBRARY=$<TARGET_FILE:KestApi>
      -DSOURCE=${PROJECT_SOURCE_DIR} "-DPARTS=${KEST_PARTS}"
      -P ${PROJECT_SOURCE_DIR}/cmake/CheckLibrary.cmake VERBATIM)
  endif()
  # What nearly every file reads first is read once.
  target_precompile_headers(KestApi PRIVATE <windows.h> <algorithm> <cmath> <memory> <span> <string> <vector>)
endif()
