# Each room of the house is one static library named after its folder. A room lists the rooms it stands
# on; tests/architecture checks the includes against the same order.

add_library(veyrand_warnings INTERFACE)
target_compile_options(veyrand_warnings INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)

# veyrand_room(NAME [LINK target...]): a static library of every source in the current folder.
function(veyrand_room name)
  cmake_parse_arguments(ROOM "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_library(veyrand_${name} STATIC ${sources})
  target_include_directories(veyrand_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(veyrand_${name} PUBLIC ${ROOM_LINK} PRIVATE veyrand_warnings)
  # The sanitized build is made for one run of the tests. Read together, a room's sources take half
  # the time; the other builds read each alone, so that none leans on what another includes.
  if(CMAKE_CXX_FLAGS MATCHES "-fsanitize=address")
    set_target_properties(veyrand_${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 4)
  endif()
endfunction()

# veyrand_program(NAME [LINK target...] SOURCES file...): a program that lands in build/<preset>/bin.
function(veyrand_program name)
  cmake_parse_arguments(PROGRAM "" "" "LINK;SOURCES" ${ARGN})
  add_executable(${name} ${PROGRAM_SOURCES})
  target_link_libraries(${name} PRIVATE ${PROGRAM_LINK} veyrand_warnings)
endfunction()

# veyrand_test(NAME [LINK target...]): one GoogleTest program of every source in the current folder.
# The cases are found when the tests run, so that building needs no program run.
function(veyrand_test name)
  cmake_parse_arguments(TEST "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${TEST_LINK} GTest::gmock GTest::gtest_main veyrand_warnings)
  # Under the sanitizers the rooms are optimised a little; optimising the cases too would triple the
  # time it takes to build them, for nothing.
  if(CMAKE_CXX_FLAGS MATCHES "-fsanitize=address")
    target_compile_options(${name} PRIVATE -O0)
  endif()
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# veyrand_game_test(NAME): the same, for tests that play whole games.
function(veyrand_game_test name)
  veyrand_test(${name} LINK veyrand_app)
  target_compile_definitions(${name} PRIVATE VEYRAND_DATA_DIR="${VEYRAND_DATA_DIR}")
  add_dependencies(${name} veyrand_data)
endfunction()
