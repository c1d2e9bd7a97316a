# Checks what can be told of a server library (FILE) without running it: the four entry points, undecorated; system
# libraries only; a file that the system may place anywhere; no trace of the build; a stack that need not be aligned.
# FOLDERS are those of the build; VERSION, where given, is what the file says about itself.

function(read_file result)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output RESULTS_VARIABLE failures)
  list(GET failures 0 failed)
  if(failed)
    message(FATAL_ERROR "${ARGN} failed: ${failed}")
  endif()
  set(${result} "${output}" PARENT_SCOPE)
endfunction()

# The table of relocations, at the end, is long and tells nothing.
read_file(dump "${OBJDUMP}" -p "${FILE}" COMMAND sed "/Base Relocations (interpreted/,$d")
if(NOT dump MATCHES "file format (pei-[a-z0-9-]+)")
  message(FATAL_ERROR "${OBJDUMP} cannot read ${FILE}")
endif()
set(format "${CMAKE_MATCH_1}")

string(REGEX MATCH "\\[Ordinal/Name Pointer\\] Table[^\n]*\n((\t\\[[^\n]*\n)+)" table "${dump}")
string(REGEX MATCHALL "[A-Za-z_@0-9.]+\n" exports "${CMAKE_MATCH_1}")
list(TRANSFORM exports STRIP)
set(wanted DllCanUnloadNow DllGetClassObject DllRegisterServer DllUnregisterServer)
if(NOT exports STREQUAL wanted)
  message(FATAL_ERROR "${FILE} exports ${exports}, not ${wanted}")
endif()

string(REGEX MATCHALL "DLL Name: [^\n]+" imports "${dump}")
list(TRANSFORM imports REPLACE "DLL Name: " "")
list(TRANSFORM imports TOLOWER)
if(NOT imports)
  message(FATAL_ERROR "no imports found in ${FILE}")
endif()
foreach(import ${imports})
  if(NOT import MATCHES "^(kernel32|user32|advapi32|ole32|oleaut32|msvcrt|shell32)\\.dll$")
    message(FATAL_ERROR "${FILE} needs ${import}")
  endif()
endforeach()

# Placed anywhere, with data that cannot be run; written without a time.
set(marks DYNAMIC_BASE NX_COMPAT "Time/Date\t\tThu Jan +1 00:00:00 1970" "Entry 5 0*[1-9a-f][0-9a-f]* [0-9a-f]+ Base Reloc")
if(format STREQUAL "pei-x86-64")
  list(APPEND marks HIGH_ENTROPY_VA)
endif()
foreach(mark ${marks})
  if(NOT dump MATCHES "${mark}")
    message(FATAL_ERROR "${FILE} has no ${mark}")
  endif()
endforeach()

read_file(narrow "${STRINGS}" -a "${FILE}")
read_file(wide "${STRINGS}" -a -el "${FILE}")
foreach(folder ${FOLDERS} /usr/ /home/ /root/ /tmp/)
  foreach(text narrow wide)
    string(FIND "${${text}}" "${folder}" found)
    if(NOT found EQUAL -1)
      message(FATAL_ERROR "${FILE} names the folder ${folder}")
    endif()
  endforeach()
endforeach()

foreach(name FileVersion ProductVersion)
  if(VERSION AND NOT wide MATCHES "(^|\n)${name}\n${VERSION}\n")
    message(FATAL_ERROR "${FILE} does not say ${name} ${VERSION}")
  endif()
endforeach()

# 32-bit callers enter with a stack that is aligned to 4 bytes only. No instruction that needs more touches the stack.
if(format STREQUAL "pei-i386")
  read_file(aligned "${OBJDUMP}" -d "${FILE}" COMMAND
            sed -nE "/mov(aps|apd|dqa|ntps|ntpd|ntdq) .*\\(%e[sb]p[,)]/p")
  if(aligned)
    message(FATAL_ERROR "${FILE} takes the stack for aligned:\n${aligned}")
  endif()
endif()
message(STATUS "${FILE} (${format}): exports ${exports}; imports ${imports}")
