# Tests of the build itself: what is installed, and what is looked for when only the library is built.
foreach(name installs_and_links library_alone)
  add_test(NAME package.${name}
           COMMAND ${CMAKE_COMMAND} -D SOURCE=${PROJECT_SOURCE_DIR} -D BUILD=${PROJECT_BINARY_DIR}
                   -D GENERATOR=${CMAKE_GENERATOR} -P ${CMAKE_CURRENT_LIST_DIR}/${name}.cmake)
endforeach()
