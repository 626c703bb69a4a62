# Installs BUILD_DIR afresh into PREFIX, so that nothing is found there which an earlier one left.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE "${PREFIX}")
unset(ENV{DESTDIR})
execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --config "${CONFIG}" --prefix "${PREFIX}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
