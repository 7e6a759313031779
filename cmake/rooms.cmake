# Rooms: one static library a folder of src/, each reaching only what it links.
#
# A room's headers are included as "room/header.h". Only the folders of the rooms that a target links are on its
# include path (through a link made in the build folder), so an include against the direction of dependencies does
# not compile.

add_library(zelvor_options INTERFACE)
target_compile_options(zelvor_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Werror)
target_compile_definitions(zelvor_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER ZELVOR_VERSION="${PROJECT_VERSION}")

# zelvor_room(NAME [FOLDER folder] SOURCES file... [LINKS target...])
# FOLDER is relative to src/ and defaults to NAME.
function(zelvor_room name)
  cmake_parse_arguments(ROOM "" "FOLDER" "SOURCES;LINKS" ${ARGN})
  if(NOT ROOM_FOLDER)
    set(ROOM_FOLDER ${name})
  endif()
  set(include_dir ${CMAKE_BINARY_DIR}/rooms/${name})
  file(MAKE_DIRECTORY ${include_dir})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${ROOM_FOLDER} ${include_dir}/${name} SYMBOLIC)
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC ${include_dir})
  target_link_libraries(${name} PUBLIC ${ROOM_LINKS} PRIVATE zelvor_options)
endfunction()

# zelvor_program(NAME SOURCES file... LINKS target...)
function(zelvor_program name)
  cmake_parse_arguments(PROGRAM "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${PROGRAM_SOURCES})
  target_link_libraries(${name} PRIVATE ${PROGRAM_LINKS} zelvor_options)
  # The stack trace of a crash names functions.
  set_target_properties(${name} PROPERTIES ENABLE_EXPORTS ON)
endfunction()

# zelvor_test(NAME SOURCES file... LINKS target... [MAIN target] [TIMEOUT seconds])
# One GoogleTest program, one CTest test. MAIN names the library that holds main() and defaults to GoogleTest's own.
function(zelvor_test name)
  cmake_parse_arguments(TEST "" "MAIN;TIMEOUT" "SOURCES;LINKS" ${ARGN})
  if(NOT TEST_MAIN)
    set(TEST_MAIN GTest::gtest_main)
  endif()
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 120)
  endif()
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_LINKS} ${TEST_MAIN} GTest::gtest zelvor_options)
  target_compile_definitions(${name} PRIVATE TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${TEST_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0")
endfunction()
