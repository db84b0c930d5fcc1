# Fails when the library uses what it must do without. Run by the build after the library is linked, with NM, LIST, the
# list of its object files, LIBRARY, the library, SOURCE, the project's folder, and PARTS, the library's folders in it.
#
#   the run-time library's `new`, throwing, aligned or nothrow: memory comes from an allocator that returns null
#   (core/kernel/HeapArray.h tells why). None of it is in the linked library either, as it would be behind anything that
#   makes a std::string (the run-time library's __cxa_throw stays, since its guards of local statics refer to it);
#   functions of the standard library that throw, as string_view::substr does;
#   dynamic_cast and typeid: a host may be built without run-time type information, and its objects then have
#   none (core/FunctionTable.h and the type codes tell classes apart).
file(STRINGS ${LIST} OBJECTS REGEX "[.]o(bj)?$")
execute_process(COMMAND ${NM} -u -A ${OBJECTS} OUTPUT_VARIABLE undefined RESULT_VARIABLE failed ERROR_VARIABLE problem)
if(failed)
  message(FATAL_ERROR "${NM}: ${problem}")
endif()
# Names with and without the platform's leading underscore.
set(refused "_Zn[wa]|_ZSt[0-9]+__throw|__dynamic_cast|__cxa_bad_typeid|__cxa_bad_cast|_ZNKSt9type_info")
string(REGEX MATCHALL "[^\n]* _?(${refused})[^\n]*" found "${undefined}")
if(found)
  list(JOIN found "\n" found)
  message(FATAL_ERROR "the library must not call this:\n${found}")
endif()

execute_process(COMMAND ${NM} ${LIBRARY} OUTPUT_VARIABLE symbols)
if(symbols MATCHES "_Zn[wa]" OR NOT symbols MATCHES "_ZN14KestHeapObjectnw")
  message(FATAL_ERROR "${LIBRARY} has the run-time library's `new`, or no symbols to tell")
endif()

# No call tells of typeid of a class.
foreach(part IN LISTS PARTS)
  file(GLOB_RECURSE sources ${SOURCE}/${part}/*.h ${SOURCE}/${part}/*.inl ${SOURCE}/${part}/*.cpp)
  foreach(source IN LISTS sources)
    file(STRINGS ${source} found REGEX "typeid *[(]")
    if(found)
      message(FATAL_ERROR "the library must not use typeid:\n${source}: ${found}")
    endif()
  endforeach()
endforeach()
