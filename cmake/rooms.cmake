# Rooms: one static library a folder of src/, each reaching only what it links.
#
# A room's headers are included as "room/header.h". Only the folders of the rooms that a target links are on its
# include path (through a link made in the build folder), so an include against the direction of dependencies does
# not compile.

add_library(zelvor_options INTERFACE)
target_compile_options(zelvor_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Werror)
# In a large piece GCC looks for memory to free after half a GB (in KB) instead of 128 MB: once or never. Clang's tools
# refuse the option; they read the files one by one.
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(zelvor_options INTERFACE --param=ggc-min-heapsize=524288)
endif()
target_compile_definitions(zelvor_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER ZELVOR_VERSION="${PROJECT_VERSION}")

# Headers that most files read, parsed once a build folder; what a file needs it includes all the same.
if(ZELVOR_PCH)
  file(WRITE ${CMAKE_BINARY_DIR}/precompiled.cpp "")
  foreach(kind room test)
    add_library(precompiled_${kind} OBJECT EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/precompiled.cpp)
    target_link_libraries(precompiled_${kind} PRIVATE Qt6::Core zelvor_options)
    target_precompile_headers(precompiled_${kind} PRIVATE
      <algorithm> <array> <functional> <map> <memory> <optional> <span> <string> <vector>
      <QByteArray> <QDateTime> <QFile> <QHash> <QObject> <QString> <QStringList> <QTimer>)
  endforeach()
  if(ZELVOR_TESTS)
    target_link_libraries(precompiled_test PRIVATE GTest::gtest)
    target_precompile_headers(precompiled_test PRIVATE <gtest/gtest.h>)
  endif()
endif()
function(use_precompiled target kind)
  if(ZELVOR_PCH)
    target_precompile_headers(${target} REUSE_FROM precompiled_${kind})
  endif()
endfunction()

# Adds what Qt's meta-object compiler makes of the headers beside SOURCES and among them. CMake's own AUTOMOC keeps that out
# of a unity build's pieces, and it takes each header in once more. Which headers hold Q_OBJECT is read when CMake
# configures, and it does so again when one of them changes.
function(add_meta_objects target)
  foreach(source ${ARGN})
    cmake_path(REPLACE_EXTENSION source LAST_ONLY h OUTPUT_VARIABLE header)
    cmake_path(ABSOLUTE_PATH header NORMALIZE)
    if(NOT EXISTS ${header})
      continue()
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
    file(STRINGS ${header} meta_object REGEX Q_OBJECT LIMIT_COUNT 1)
    if(meta_object)
      list(APPEND headers ${header})
    endif()
  endforeach()
  # No TARGET, whose include path would have moc read all of Qt for each header; it needs none of it.
  qt_wrap_cpp(made ${headers})
  target_sources(${target} PRIVATE ${made})
  # What two targets make waits for no more than both link: this one links nothing, and so no room waits for another.
  add_custom_target(${target}_meta_objects DEPENDS ${made})
endfunction()

# zelvor_room(NAME [FOLDER folder] [NO_QT] SOURCES file... [LINKS target...])
# FOLDER is relative to src/ and defaults to NAME.
function(zelvor_room name)
  cmake_parse_arguments(ROOM "NO_QT" "FOLDER" "SOURCES;LINKS" ${ARGN})
  if(NOT ROOM_FOLDER)
    set(ROOM_FOLDER ${name})
  endif()
  set(include_dir ${CMAKE_BINARY_DIR}/rooms/${name})
  file(MAKE_DIRECTORY ${include_dir})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${ROOM_FOLDER} ${include_dir}/${name} SYMBOLIC)
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC ${include_dir})
  target_link_libraries(${name} PUBLIC ${ROOM_LINKS} PRIVATE zelvor_options)
  if(NOT ROOM_NO_QT)
    add_meta_objects(${name} ${ROOM_SOURCES})
    use_precompiled(${name} room)
  endif()
endfunction()

# zelvor_program(NAME [PRECOMPILED] SOURCES file... LINKS target...)
# PRECOMPILED: it reads Qt's headers and is no fuzz target.
function(zelvor_program name)
  cmake_parse_arguments(PROGRAM "PRECOMPILED" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${PROGRAM_SOURCES})
  add_meta_objects(${name} ${PROGRAM_SOURCES})
  target_link_libraries(${name} PRIVATE ${PROGRAM_LINKS} zelvor_options)
  if(PROGRAM_PRECOMPILED)
    use_precompiled(${name} room)
  endif()
  # The stack trace of a crash names functions.
  set_target_properties(${name} PROPERTIES ENABLE_EXPORTS ON)
endfunction()

# zelvor_test(NAME SOURCES file... LINKS target... [MAIN target] [TIMEOUT seconds])
# One GoogleTest program, one CTest test. MAIN names the library that holds main() where Qt is used, and defaults to
# GoogleTest's own.
function(zelvor_test name)
  cmake_parse_arguments(TEST "" "MAIN;TIMEOUT" "SOURCES;LINKS" ${ARGN})
  set(with_qt ${TEST_MAIN})
  if(NOT with_qt)
    set(TEST_MAIN GTest::gtest_main)
  endif()
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 120)
  endif()
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_LINKS} ${TEST_MAIN} GTest::gtest zelvor_options)
  if(with_qt)
    add_meta_objects(${name} ${TEST_SOURCES})
    use_precompiled(${name} test)
  endif()
  target_compile_definitions(${name} PRIVATE TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${TEST_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0;TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/tsan.supp")
endfunction()

# zelvor_fuzz(NAME MAX_LEN bytes ROOM room [SEEDS glob...])
# The fuzz target of NAME.cpp, led by the branches that its inputs take in the room, by the words of NAME.dict where there
# is one, and by the files of SEEDS (relative to the project). A test runs it for ZELVOR_FUZZ_SECONDS, with a seed of
# its own each time.
function(zelvor_fuzz name)
  if(NOT ZELVOR_FUZZ)
    return()
  endif()
  cmake_parse_arguments(FUZZ "" "MAX_LEN;ROOM" "SEEDS" ${ARGN})
  target_compile_options(${FUZZ_ROOM} PRIVATE -fsanitize=fuzzer-no-link)
  target_link_options(${FUZZ_ROOM} INTERFACE -fsanitize=fuzzer-no-link)
  set_target_properties(${FUZZ_ROOM} PROPERTIES DISABLE_PRECOMPILE_HEADERS ON)
  zelvor_program(${name} SOURCES ${name}.cpp LINKS ${FUZZ_ROOM} test_support)
  target_compile_options(${name} PRIVATE -fsanitize=fuzzer)
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  set(options -max_total_time=${ZELVOR_FUZZ_SECONDS} -timeout=10 -max_len=${FUZZ_MAX_LEN})
  if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${name}.dict)
    list(APPEND options -dict=${CMAKE_CURRENT_SOURCE_DIR}/${name}.dict)
  endif()
  if(FUZZ_SEEDS)
    list(TRANSFORM FUZZ_SEEDS PREPEND ${PROJECT_SOURCE_DIR}/)
    file(GLOB seeds CONFIGURE_DEPENDS ${FUZZ_SEEDS})
    list(JOIN seeds "," seeds)
    list(APPEND options -seed_inputs=${seeds})
  endif()
  add_test(NAME ${name} COMMAND ${name} ${options})
endfunction()
