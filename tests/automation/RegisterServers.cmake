# Registers both servers in the Wine prefix. Output goes to a file: a pipe would wait for the processes that Wine leaves behind.

foreach(library "${TOOLKIT}" "${COMPONENT}")
  execute_process(COMMAND ${WINE} regsvr32 /s "${library}" OUTPUT_FILE "${LOG}" ERROR_FILE "${LOG}"
                  RESULT_VARIABLE failed)
  if(failed)
    message(FATAL_ERROR "${library} was not registered: ${failed}")
  endif()
endforeach()
