# Runs QUIZ, under EMULATOR if there is one, and compares its dialogue with the expected one.
set(here ${CMAKE_CURRENT_LIST_DIR})
execute_process(
  COMMAND ${EMULATOR} ${QUIZ}
  INPUT_FILE ${here}/example_quiz.in
  OUTPUT_VARIABLE dialogue
  RESULT_VARIABLE status
)
file(READ ${here}/example_quiz.expected expected)
if(NOT status EQUAL 0 OR NOT dialogue STREQUAL expected)
  message(FATAL_ERROR "status ${status}, expected:\n${expected}\ngot:\n${dialogue}")
endif()
