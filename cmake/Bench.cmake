# The measuring programs, only with KEST_BENCH. The peer is measured beside the library where its packages are
# installed.
set(bench_sources bench/CalibrationWork.cpp bench/ColourWork.cpp bench/Peers.cpp bench/RegionWork.cpp
  bench/SampleWork.cpp bench/Table.cpp)

if(WIN32)
  add_executable(bench_windows ${bench_sources} bench/FileWork.cpp bench/WindowsMain.cpp)
  target_link_libraries(bench_windows PRIVATE KestApi kest_kernels kest_options)
  return()
endif()

find_package(benchmark REQUIRED)
add_executable(bench_kernels ${bench_sources} bench/NativeMain.cpp)
target_link_libraries(bench_kernels PRIVATE kest_kernels kest_options benchmark::benchmark)
find_path(opencv_headers opencv2/imgproc.hpp PATH_SUFFIXES opencv4)
find_library(opencv_core opencv_core)
find_library(opencv_imgproc opencv_imgproc)
if(opencv_headers AND opencv_core AND opencv_imgproc)
  target_include_directories(bench_kernels SYSTEM PRIVATE ${opencv_headers})
  target_compile_definitions(bench_kernels PRIVATE KEST_BENCH_OPENCV=1)
  target_link_libraries(bench_kernels PRIVATE ${opencv_imgproc} ${opencv_core})
endif()
