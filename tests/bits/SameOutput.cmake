# Fails unless the programs ONE and OTHER print the same, and something.
execute_process(COMMAND "${ONE}" OUTPUT_VARIABLE FIRST COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${OTHER}" OUTPUT_VARIABLE SECOND COMMAND_ERROR_IS_FATAL ANY)
message("${FIRST}${SECOND}")
if(FIRST STREQUAL "" OR NOT FIRST STREQUAL SECOND)
    message(FATAL_ERROR "The two programs do not print the same")
endif()
