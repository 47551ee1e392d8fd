# Configures the library without tools, tests and benchmarks: nothing but a compiler may be looked for. What a
# find_package, find_library or find_program looked for stays in the cache, found or not.
set(work ${BUILD}/library_alone)
file(REMOVE_RECURSE ${work})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${work} -G ${GENERATOR} -D ORVANE_TESTS=OFF
                COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS ${work}/CMakeCache.txt looked_for REGEX "^[A-Za-z0-9_]+:(PATH|FILEPATH)=")
list(FILTER looked_for EXCLUDE REGEX "^CMAKE_")
if(looked_for)
  message(FATAL_ERROR "the library alone looks for: ${looked_for}")
endif()
