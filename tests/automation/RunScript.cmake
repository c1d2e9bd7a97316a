# Runs one script client (by its Windows path: cscript takes a leading slash for an option). A script that fails ends
# silently and successfully under Wine, so its own last line counts.

execute_process(COMMAND ${WINE} cscript //nologo "Z:${SCRIPT}" "Z:${SOURCES}" "Z:${MEMBERS}"
                OUTPUT_FILE "${LOG}" ERROR_FILE "${LOG}"
                RESULT_VARIABLE failed)
file(READ "${LOG}" output)
string(REPLACE "\r" "" output "${output}")
message(STATUS "\n${output}")
if(failed OR output MATCHES "FAILED" OR NOT output MATCHES "(^|\n)done\n$")
  message(FATAL_ERROR "${SCRIPT} did not come to its end, or a check in it failed")
endif()
