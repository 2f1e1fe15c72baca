# Stage an install, take the example program out of the README, build and run it.
file(REMOVE_RECURSE ${STAGE} ${CONSUMER})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${STAGE}
                RESULT_VARIABLE result OUTPUT_QUIET)
if(result)
  message(FATAL_ERROR "install failed")
endif()
if(NOT EXISTS ${STAGE}/include/vorlin/vorlin.h)
  message(FATAL_ERROR "the umbrella header was not installed")
endif()

file(READ ${README} readme)
string(REGEX MATCH "<!-- example:application -->[^`]*```cpp\n(.*)\n```" found "${readme}")
if(NOT found)
  message(FATAL_ERROR "no application example in the README")
endif()
string(REGEX REPLACE "\n```.*" "" example "${CMAKE_MATCH_1}")
file(WRITE ${CONSUMER}/main.cpp "${example}\n")
configure_file(${PROJECT_FILE} ${CONSUMER}/CMakeLists.txt COPYONLY)

execute_process(COMMAND ${CMAKE_COMMAND} -S ${CONSUMER} -B ${CONSUMER}/build -G ${GENERATOR}
                        -DCMAKE_PREFIX_PATH=${STAGE} "-DCMAKE_CXX_FLAGS=${CONSUMER_FLAGS}"
                RESULT_VARIABLE result)
if(result)
  message(FATAL_ERROR "configuring the consumer failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${CONSUMER}/build RESULT_VARIABLE result)
if(result)
  message(FATAL_ERROR "building the consumer failed")
endif()
execute_process(COMMAND ${CONSUMER}/build/consumer --quit-after 200 RESULT_VARIABLE result
                OUTPUT_VARIABLE output ERROR_VARIABLE errors WORKING_DIRECTORY ${CONSUMER}/build)
if(result)
  message(FATAL_ERROR "the consumer exited with ${result}: ${errors}")
endif()
message(STATUS "consumer ran: ${output}")
