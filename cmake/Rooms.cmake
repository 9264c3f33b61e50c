# Each room of the house is one static library named after its folder. A room lists the rooms it stands
# on; tests/architecture checks the includes against the same order.

add_library(veyrand_warnings INTERFACE)
target_compile_options(veyrand_warnings INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
# With -O3, GCC 12 takes "text" + std::string for a copy onto itself (its bug 105651).
target_compile_options(veyrand_warnings INTERFACE
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-restrict>)

# The sanitizers watch over memory. What proves data, looks or what is installed has no need of them:
# the other builds have proved it.
string(REGEX MATCH "-fsanitize=" VEYRAND_SANITIZED "${CMAKE_CXX_FLAGS}")

# A debugger can still follow what is optimised so, it compiles as fast as what is not, and the tests
# that play whole games take a third of the time.
option(VEYRAND_QUICK_ROOMS "Optimise the rooms of a debug build for debugging" OFF)
function(veyrand_quick target)
  if(VEYRAND_QUICK_ROOMS)
    target_compile_options(${target} PRIVATE -Og)
  endif()
endfunction()

# veyrand_room(NAME [LINK target...]): a static library of every source in the current folder.
function(veyrand_room name)
  cmake_parse_arguments(ROOM "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_library(veyrand_${name} STATIC ${sources})
  target_include_directories(veyrand_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(veyrand_${name} PUBLIC ${ROOM_LINK} PRIVATE veyrand_warnings)
  veyrand_quick(veyrand_${name})
  # The sanitized build is made for one run of the tests, and so is the one that counts what they
  # reach. Read together, a room's sources take half the time; the other builds read each alone, so
  # that none leans on what another includes.
  if(VEYRAND_SANITIZED OR CMAKE_CXX_FLAGS MATCHES "--coverage")
    set_target_properties(veyrand_${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
  endif()
  # The lock around what is made once has branches that only a second thread takes.
  if(CMAKE_CXX_FLAGS MATCHES "--coverage")
    target_compile_options(veyrand_${name} PRIVATE -fno-threadsafe-statics)
  endif()
endfunction()

# veyrand_program(NAME [LINK target...] SOURCES file...): a program that lands in build/<preset>/bin.
function(veyrand_program name)
  cmake_parse_arguments(PROGRAM "" "" "LINK;SOURCES" ${ARGN})
  add_executable(${name} ${PROGRAM_SOURCES})
  target_link_libraries(${name} PRIVATE ${PROGRAM_LINK} veyrand_warnings)
endfunction()

# A test file is mostly the framework's headers, a tool's those of its libraries: so the files of one
# folder are read together, five or so at a time. Which files share a reading follows from their names: a new one disturbs one reading, not
# all that come after it. The linter reads each file alone and sees what one borrows from another.
option(VEYRAND_UNITY "Read several files of a test or a tool at once" ON)
function(veyrand_read_together target)
  set(sources ${ARGN})
  list(FILTER sources INCLUDE REGEX "\\.cpp$")
  list(LENGTH sources count)
  math(EXPR readings "(${count} + 4) / 5")
  if(NOT VEYRAND_UNITY OR readings EQUAL count)
    return()
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  # Fixtures may hide in a file: gcc takes the files of a reading for headers and fears for others.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  foreach(source ${sources})
    get_filename_component(name ${source} NAME)
    string(MD5 digest ${name})
    string(SUBSTRING ${digest} 0 6 digest)
    math(EXPR reading "0x${digest} % ${readings}")
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${reading})
  endforeach()
endfunction()

# veyrand_test(NAME [LINK target...] [PROVES_DATA case...] [COST seconds]): one GoogleTest program of
# every source in the current folder. What costs many seconds is begun first, so that it is not waited
# for alone at the end. The cases are found when the tests run, so that building needs no program run.
# The cases that prove data rather than code (patterns of GoogleTest) are left out under the sanitizers.
function(veyrand_test name)
  cmake_parse_arguments(TEST "" "COST" "LINK;PROVES_DATA" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(${name} ${sources})
  veyrand_read_together(${name} ${sources})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${TEST_LINK} GTest::gmock GTest::gtest_main veyrand_warnings)
  # Under the sanitizers the rooms are optimised a little; optimising the cases too would triple the
  # time it takes to build them, for nothing.
  set(filter)
  if(VEYRAND_SANITIZED)
    target_compile_options(${name} PRIVATE -O0)
    list(JOIN TEST_PROVES_DATA : filter)
    list(TRANSFORM filter PREPEND --gtest_filter=-)
  endif()
  add_test(NAME ${name} COMMAND ${name} ${filter})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  if(TEST_COST)
    set_tests_properties(${name} PROPERTIES COST ${TEST_COST})
  endif()
endfunction()

# veyrand_headless_test(NAME [COST seconds]): the same, for tests that play whole games without a toolkit.
function(veyrand_headless_test name)
  veyrand_test(${name} LINK veyrand_headless veyrand_places ${ARGN})
  add_dependencies(${name} veyrand_data)
endfunction()

# veyrand_game_test(NAME [COST seconds]): the same, for tests that play whole games in a window.
function(veyrand_game_test name)
  veyrand_test(${name} LINK veyrand_app veyrand_places ${ARGN})
  add_dependencies(${name} veyrand_data)
endfunction()
