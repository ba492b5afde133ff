# A machine without a GoogleTest of its own kind (a cross build, another standard library mode)
# names the sources of one instead, on Debian /usr/src/googletest.
set(CHEMPRACTICE_GTEST_SOURCE "" CACHE PATH "Folder of GoogleTest's sources, to build it here")
if(CHEMPRACTICE_GTEST_SOURCE)
  add_subdirectory(${CHEMPRACTICE_GTEST_SOURCE} ${CMAKE_CURRENT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  # Our warnings are for our own sources.
  set_target_properties(gtest gtest_main gmock gmock_main
                        PROPERTIES COMPILE_OPTIONS "" COMPILE_WARNING_AS_ERROR OFF)
else()
  find_package(GTest REQUIRED)
endif()
include(GoogleTest)
