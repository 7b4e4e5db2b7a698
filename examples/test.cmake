# Runs an example on the sample street; it must write what the console program writes.
set(ENV{SOURCE_DATE_EPOCH} 1717198200)
file(REMOVE ${OUTPUT})
execute_process(COMMAND ${EMULATOR} ${PROGRAM} ${SOURCE}/samples/voorbeeld.nst ${SOURCE}/samples/straat.idx ${OUTPUT}
                RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "the example ended with ${status}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUTPUT}
                        ${SOURCE}/tests/golden/sample_idex_to_nen1878/verwacht/straat.sfn
                RESULT_VARIABLE differs)
if(differs)
  message(FATAL_ERROR "the example's drawing is not the console program's")
endif()
