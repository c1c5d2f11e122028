# Runs one demo scenario with the reference host's drawing check and compares its pictures with their golden
# pictures (tests/golden/SCENARIO/*.png) by piccompare's tolerance. Fails on a step error, on anything drawn
# outside its window, on text cut at its control unless ALLOW_CUT is set, and on a picture that differs.
# Variables: FLASHSIM, PICCOMPARE, SOURCE (the project), SCENARIO (name), OUT (a scratch directory), ZH (run it
# with the Chinese client directory), ALLOW_CUT.
set(scenario "${SOURCE}/tools/flashsim/demo/${SCENARIO}.scn")
set(pictures "${OUT}/pictures")
file(REMOVE_RECURSE "${OUT}")
file(MAKE_DIRECTORY "${pictures}")

set(client_args "")
if(ZH)
    execute_process(COMMAND "${CMAKE_COMMAND}" -DSOURCE=${SOURCE} -DOUT=${OUT}/client-zh
                            -P "${SOURCE}/scripts/assemble-zh-client.cmake"
                    RESULT_VARIABLE rc)
    if(NOT rc EQUAL 0)
        message(FATAL_ERROR "cannot assemble the Chinese client directory")
    endif()
    set(client_args --res "${OUT}/client-zh")
endif()

execute_process(COMMAND "${FLASHSIM}" run "${scenario}" --check-drawing --out "${pictures}" ${client_args}
                OUTPUT_VARIABLE transcript RESULT_VARIABLE rc)
string(REGEX MATCHALL "! (error|drawn outside|no such)[^\n]*" faults "${transcript}")
if(NOT ALLOW_CUT)
    string(REGEX MATCHALL "! cut at[^\n]*" cuts "${transcript}")
    list(APPEND faults ${cuts})
endif()
if(NOT rc EQUAL 0 OR faults)
    list(JOIN faults "\n" listed)
    message(FATAL_ERROR "${SCENARIO}: flashsim exited with ${rc}\n${listed}")
endif()

file(GLOB goldens "${SOURCE}/tests/golden/${SCENARIO}/*.png")
set(differing "")
foreach(golden IN LISTS goldens)
    get_filename_component(name "${golden}" NAME)
    execute_process(COMMAND "${PICCOMPARE}" "${golden}" "${pictures}/${name}" --diff "${OUT}/diff-${name}"
                    OUTPUT_VARIABLE summary ERROR_VARIABLE summary RESULT_VARIABLE rc)
    message(STATUS "${summary}")
    if(NOT rc EQUAL 0)
        list(APPEND differing "${name}")
    endif()
endforeach()
if(differing)
    message(FATAL_ERROR "${SCENARIO}: pictures differ from their goldens: ${differing} (marked in ${OUT}/diff-*.png;"
                        " after an intended change run scripts/regen-goldens)")
endif()
