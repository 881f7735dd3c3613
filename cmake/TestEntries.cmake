# Asks a test executable for its classes and writes an entry of CTest for each.
execute_process(COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${PROGRAM}" -classes
                OUTPUT_VARIABLE classes RESULT_VARIABLE status OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT status EQUAL 0 OR classes STREQUAL "")
  message(FATAL_ERROR "${PROGRAM} does not tell its classes")
endif()
string(REPLACE "\n" ";" classes "${classes}")
set(text "")
foreach(class IN LISTS classes)
  string(APPEND text
    "add_test(${FOLDER}.${class} \"${PROGRAM}\" ${class} -o \"${REPORTS}/${class}.xml,junitxml\" -o -,txt)\n"
    "set_tests_properties(${FOLDER}.${class} PROPERTIES ENVIRONMENT \"QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8\" TIMEOUT 300)\n")
endforeach()
file(WRITE "${ENTRIES}" "${text}")
