# "Kest_GRes.dll", the dialog templates of graphs: resources only, no code and no start-up function.
enable_language(RC)
add_library(Kest_GRes SHARED graph/resources/Kest_GRes.rc)
set_target_properties(Kest_GRes PROPERTIES PREFIX "" LINKER_LANGUAGE C)
set_source_files_properties(graph/resources/Kest_GRes.rc PROPERTIES OBJECT_DEPENDS
  ${PROJECT_SOURCE_DIR}/graph/resources/DialogIds.h)
if(MSVC)
  target_link_options(Kest_GRes PRIVATE /NOENTRY)
else()
  target_link_options(Kest_GRes PRIVATE -nostdlib -Wl,--entry=0)
endif()
# A program that uses the library finds its dialogs beside it.
add_dependencies(KestApi Kest_GRes)
