# Installs the library to a prefix of its own, and configures, builds and runs the project of this folder with it.
set(work ${BUILD}/package_test)
set(prefix ${work}/prefix)
file(REMOVE_RECURSE ${work})

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix}
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB pkg_config ${prefix}/lib*/pkgconfig ${prefix}/lib*/*/pkgconfig)
set(ENV{PKG_CONFIG_PATH} ${pkg_config})
unset(ENV{DESTDIR})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${work}/build -G ${GENERATOR}
                        -D CMAKE_BUILD_TYPE=Release -D CMAKE_PREFIX_PATH=${prefix}
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${work}/build --parallel 2 COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_CTEST_COMMAND} --output-on-failure WORKING_DIRECTORY ${work}/build
                COMMAND_ERROR_IS_FATAL ANY)
