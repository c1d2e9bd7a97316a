# Runs a sample client on four sessions and compares all that it prints with the texts in expected: every client prints
# the same. The files are named from the root of the sources, so that no message depends on where that is.

set(expected "${CMAKE_CURRENT_LIST_DIR}/expected")
foreach(session rich warnings not-a-tst no-such-file)
  execute_process(COMMAND ${WINE} ${CLIENT} "examples\\displays\\${session}.txt" WORKING_DIRECTORY "${SOURCES}"
                  OUTPUT_FILE "${LOG}" ERROR_FILE "${LOG}")
  file(READ "${LOG}" output)
  file(READ "${expected}/${session}.txt" wanted)
  string(REPLACE "\r" "" output "${output}")
  if(NOT output STREQUAL wanted)
    message(SEND_ERROR "${session}: it prints\n${output}\ninstead of\n${wanted}")
  endif()
endforeach()
