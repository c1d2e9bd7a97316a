# Has WRITER make its pages in FOLDER and compares each with the one in docs/ of SOURCES.

file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
execute_process(COMMAND "${WRITER}" "${SOURCES}" "${FOLDER}" RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "${WRITER} failed: ${failed}")
endif()

file(GLOB pages RELATIVE "${FOLDER}" "${FOLDER}/*")
if(NOT pages)
  message(FATAL_ERROR "${WRITER} wrote nothing")
endif()
foreach(page ${pages})
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files "${FOLDER}/${page}" "${SOURCES}/docs/${page}"
                  RESULT_VARIABLE differs)
  if(differs)
    execute_process(COMMAND diff "${SOURCES}/docs/${page}" "${FOLDER}/${page}")
    message(SEND_ERROR "docs/${page} is not what the program makes now: ./run reference writes it anew")
  endif()
endforeach()
