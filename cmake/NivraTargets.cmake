# What every target of the project has in common: warnings, sanitizers, and the rule that a library has an include root of
# its own with the headers that others need, so that #include <model/netdata.h> resolves only where nivra_model is linked.
# The other headers lie beside their sources, in the rooms of the library: #include "search/searchtable.h".

add_library(nivra_options INTERFACE)
target_compile_definitions(nivra_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
                                                   QT_DEPRECATED_WARNINGS)
target_compile_options(nivra_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
                                               -Wnon-virtual-dtor -Woverloaded-virtual
                                               -fno-omit-frame-pointer)
if(NIVRA_WERROR)
  target_compile_options(nivra_options INTERFACE -Werror)
endif()
if(NIVRA_SANITIZE)
  target_compile_options(nivra_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined)
  target_link_options(nivra_options INTERFACE -fsanitize=address,undefined)
endif()

# nivra_library(<folder> SOURCES <files> LINK <targets the public headers need> PRIVATE <targets only the sources need>)
function(nivra_library folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PRIVATE" ${ARGN})
  add_library(nivra_${folder} STATIC ${ARG_SOURCES})
  target_include_directories(nivra_${folder} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}/include"
                                             PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(nivra_${folder} PUBLIC ${ARG_LINK} PRIVATE nivra_options ${ARG_PRIVATE})
endfunction()

# nivra_test(<folder> SOURCES <files> LINK <targets> INSIDE <targets>): one executable a folder, every tst_*.cpp of which
# registers its classes. Of the libraries that it looks inside it sees all headers.
# Each class is an entry of CTest, <folder>.<class>, and writes its own report beside the executable's build files.
function(nivra_test folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK;INSIDE" ${ARGN})
  add_executable(tst_${folder} ${ARG_SOURCES})
  target_link_libraries(tst_${folder} PRIVATE nivra_testsupport ${ARG_LINK} nivra_options)
  foreach(library IN LISTS ARG_INSIDE)
    get_target_property(inside ${library} SOURCE_DIR)
    target_include_directories(tst_${folder} PRIVATE "${inside}")
  endforeach()
  target_compile_definitions(tst_${folder} PRIVATE NIVRA_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data/${folder}"
                                                   NIVRA_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  set(entries "${CMAKE_CURRENT_BINARY_DIR}/entries.cmake")
  add_custom_command(TARGET tst_${folder} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:tst_${folder}> -DFOLDER=${folder} -DENTRIES=${entries}
            -DREPORTS=${CMAKE_CURRENT_BINARY_DIR} -P ${CMAKE_SOURCE_DIR}/cmake/TestEntries.cmake
    BYPRODUCTS "${entries}" VERBATIM)
  if(NOT EXISTS "${entries}") # until the executable is built
    file(WRITE "${entries}" "add_test(${folder}.NOT_BUILT tst_${folder}.NOT_BUILT)\n")
  endif()
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${entries}")
endfunction()
