# Writes the script TARGET: the text of TEMPLATE with every kind of call of the members in LIST. VBScript under Wine has no
# way to call a name that it learns while it runs.

file(STRINGS "${LIST}" classes)
file(READ "${TEMPLATE}" template)
set(forms "result = object.#" "object.#" "Set result = object.#" "result = object.#(a)" "result = object.#((a))"
          "result = object.#(a, b)" "result = object.#((a), (b))" "result = object.#(a, b, c)"
          "result = object.#(a, b, c, a, b, c, a, b)" "object.# = a" "Set object.# = a" "object.#(a) = b")
set(calls "")
foreach(class ${classes})
  string(REPLACE " " ";" members "${class}")
  list(POP_FRONT members name)
  string(APPEND calls "Set object = CreateObject(\"QorlTST.${name}\")\nErr.Clear\n")
  foreach(member ${members})
    foreach(form ${forms})
      string(REPLACE "#" "${member}" call "${form}")
      string(APPEND calls "NextArguments\n${call}\nNote\n")
    endforeach()
  endforeach()
endforeach()
string(REPLACE "CALLS\nWScript" "${calls}WScript" script "${template}")
file(WRITE "${TARGET}" "${script}")
