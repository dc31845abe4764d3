# cmake -P script: install, configure a consumer with find_package, build and run it.
file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "command failed (${result}): ${ARGN}\n${out}\n${err}")
    endif()
endfunction()

run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${prefix}")

foreach(header OrvWidgets orv_events.h orv_message_dialog.h dtg.h orvwidgets_export.h)
    if(NOT EXISTS "${prefix}/include/OrvWidgets/${header}")
        message(FATAL_ERROR "installed package lacks include/OrvWidgets/${header}")
    endif()
endforeach()
file(GLOB_RECURSE private_headers "${prefix}/include/*_p.h")
if(private_headers)
    message(FATAL_ERROR "private headers installed: ${private_headers}")
endif()

run(${CMAKE_COMMAND} -S "${CONSUMER_DIR}" -B "${WORK_DIR}/build" -G Ninja
    "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}"
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
    "-DCMAKE_EXE_LINKER_FLAGS=${LINKER_FLAGS}"
    "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}")
run(${CMAKE_COMMAND} --build "${WORK_DIR}/build")
run("${WORK_DIR}/build/orv-consumer")
message(STATUS "package consumer built and ran")
