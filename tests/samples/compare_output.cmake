# Runs COMMAND, its words separated by "|", and holds what it prints against the file EXPECTED.
# Status and output must be right, and nothing may stand on the error stream.
string(REPLACE "|" ";" command "${COMMAND}")
execute_process(COMMAND ${command}
  OUTPUT_VARIABLE printed ERROR_VARIABLE errors RESULT_VARIABLE status ENCODING UTF-8)
string(REPLACE "\r" "" printed "${printed}")
file(READ ${EXPECTED} expected)
if(NOT status EQUAL 0 OR NOT errors STREQUAL "" OR NOT printed STREQUAL expected)
  message(FATAL_ERROR "status ${status}\n${errors}\n--- printed\n${printed}\n--- expected\n${expected}")
endif()
