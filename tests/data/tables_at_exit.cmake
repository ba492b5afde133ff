# The tables are destroyed in the reverse order of their making, and the standard streams after them.
add_library(late_writer STATIC data/late_writer.cpp)
add_executable(tables_at_exit data/tables_at_exit.cpp)
foreach(target late_writer tables_at_exit)
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
endforeach()
target_link_libraries(tables_at_exit PRIVATE chempractice::core late_writer)
add_test(NAME tables_at_exit COMMAND tables_at_exit)
set_tests_properties(tables_at_exit PROPERTIES
                     PASS_REGULAR_EXPRESSION "^dissolvable\nion\naMasses\n$" TIMEOUT 60)
