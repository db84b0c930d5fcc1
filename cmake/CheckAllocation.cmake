# Fails when one of the object files named in LIST calls the run-time library's `new`: memory comes from an allocator that returns null
# (core/kernel/HeapArray.h tells why). Run by the build after the library is linked, with NM and LIST.
file(STRINGS ${LIST} OBJECTS REGEX "[.]o(bj)?$")
execute_process(COMMAND ${NM} -u -A ${OBJECTS} OUTPUT_VARIABLE undefined RESULT_VARIABLE failed ERROR_VARIABLE problem)
if(failed)
  message(FATAL_ERROR "${NM}: ${problem}")
endif()
# operator new and new[], throwing, aligned and nothrow, with and without the platform's leading underscore.
string(REGEX MATCHALL "[^\n]* _?_Zn[wa][^\n]*" found "${undefined}")
if(found)
  list(JOIN found "\n" found)
  message(FATAL_ERROR "the library must not call the run-time library's new:\n${found}")
endif()
