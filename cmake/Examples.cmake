# Small complete programs over the public headers.
add_library(kest_example STATIC examples/Example.cpp examples/SamplePlate.cpp)
target_link_libraries(kest_example PUBLIC KestApi kest_options)
target_include_directories(kest_example PUBLIC ${PROJECT_SOURCE_DIR}/examples)
foreach(program MainJob DrawRegions GraphPage MakeSamplePlate PicturePage)
  add_executable(${program} examples/${program}.cpp)
  target_link_libraries(${program} PRIVATE kest_example)
endforeach()

# The programs that the programmer's guide shows.
file(GLOB guide_sources CONFIGURE_DEPENDS examples/guide/*.cpp)
list(FILTER guide_sources EXCLUDE REGEX FirstProgram)
add_executable(Guide ${guide_sources})
add_executable(FirstProgram examples/guide/FirstProgram.cpp)
foreach(program Guide FirstProgram)
  target_link_libraries(${program} PRIVATE kest_example)
endforeach()
add_dependencies(Guide HistogramTool)

# A sample tool library; a host loads it with CLOADDLL.
add_library(HistogramTool SHARED
  examples/HistogramTool/Histogram.cpp examples/HistogramTool/HistogramTool.cpp
  examples/HistogramTool/HistogramTool.rc examples/HistogramTool/HistogramWindow.cpp)
target_link_libraries(HistogramTool PRIVATE KestApi kest_options gdi32 user32)
set_target_properties(HistogramTool PROPERTIES PREFIX "" IMPORT_PREFIX "lib")
