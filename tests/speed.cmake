# Builds the benchmark without sanitizers and compares its main figures with their limits.
# Given: SOURCE (ours), WORK (where to build)

function(build)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
endfunction()

build(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK} -G Ninja -DCMAKE_BUILD_TYPE=Release -DVYTRIGGER_TESTS=OFF -DVYTRIGGER_BENCH=ON)
build(${CMAKE_COMMAND} --build ${WORK} --target panel_bench)
execute_process(COMMAND ${WORK}/bench/panel_bench check COMMAND_ERROR_IS_FATAL ANY)
