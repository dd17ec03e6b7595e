# cmake -DPROGRAM=... -DARGUMENT=... -DOUTPUT=... [-DGZIP=ON] -P RunToFile.cmake
# Runs a program with one argument and keeps what it prints in OUTPUT, compressed with
# gzip -9n (no name, no time: the same bytes on every build) when GZIP is on.
execute_process(COMMAND ${PROGRAM} ${ARGUMENT} OUTPUT_FILE ${OUTPUT}.tmp RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    file(REMOVE ${OUTPUT}.tmp)
    message(FATAL_ERROR "${PROGRAM} ${ARGUMENT} failed: ${result}")
endif()
if(GZIP)
    execute_process(COMMAND gzip -9nf ${OUTPUT}.tmp RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "gzip failed on ${OUTPUT}.tmp")
    endif()
    file(RENAME ${OUTPUT}.tmp.gz ${OUTPUT})
else()
    file(RENAME ${OUTPUT}.tmp ${OUTPUT})
endif()
