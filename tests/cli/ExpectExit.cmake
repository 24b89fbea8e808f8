# Runs the program CLI with the arguments ARGS (separated by spaces, possibly none) and fails
# unless it exits with the status EXPECTED and, when TEXT is given, what it prints matches TEXT.
separate_arguments(ARGS UNIX_COMMAND "${ARGS}")
execute_process(COMMAND ${CLI} ${ARGS} RESULT_VARIABLE status OUTPUT_VARIABLE out
                ERROR_VARIABLE err)
if(NOT status EQUAL EXPECTED)
    message(FATAL_ERROR "${CLI} ${ARGS}: exit status ${status}, expected ${EXPECTED}\n${out}${err}")
endif()
if(DEFINED TEXT AND NOT "${out}${err}" MATCHES "${TEXT}")
    message(FATAL_ERROR "${CLI} ${ARGS}: output does not match ${TEXT}\n${out}${err}")
endif()
