# Builds the benchmark without sanitizers and compares its main figures with their limits.
# Given: SOURCE (ours), WORK (where to build)

execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK} -G Ninja
  -DCMAKE_BUILD_TYPE=Release -DVYTRIGGER_TESTS=OFF -DVYTRIGGER_BENCH=ON COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK} --target panel_bench COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK}/bench/panel_bench check COMMAND_ERROR_IS_FATAL ANY)
