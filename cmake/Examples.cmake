# Small complete programs over the public headers.
add_library(kest_example STATIC examples/Example.cpp)
target_link_libraries(kest_example PUBLIC KestApi kest_options)
target_include_directories(kest_example PUBLIC ${PROJECT_SOURCE_DIR}/examples)
foreach(program MainJob DrawRegions)
  add_executable(${program} examples/${program}.cpp)
  target_link_libraries(${program} PRIVATE kest_example)
endforeach()
