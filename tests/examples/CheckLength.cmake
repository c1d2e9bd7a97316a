# A sample client that takes 40 lines or more is none. Beside the folders of the languages, examples has sessions to
# retrieve from and a program that links the model itself.

file(GLOB files "${EXAMPLES}/*/*")
list(FILTER files EXCLUDE REGEX "/examples/(displays|native)/")
list(LENGTH files count)
if(count LESS 10)
  message(FATAL_ERROR "only ${count} sample clients were found in ${EXAMPLES}")
endif()
foreach(file ${files})
  file(READ "${file}" text)
  string(REGEX MATCHALL "\n" ends "${text}")
  list(LENGTH ends lines)
  if(lines GREATER 39)
    message(SEND_ERROR "${file} has ${lines} lines")
  endif()
endforeach()
