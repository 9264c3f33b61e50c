# The build for the browser: the portable rooms, the browser's adapters, and the tests that need no
# toolkit. It asks for no library of the desktop. tools/web calls it with all it needs.

set(VEYRAND_ICU ${CMAKE_SOURCE_DIR}/.cache/icu CACHE PATH "What tools/icu-subset has left")
if(NOT EXISTS ${VEYRAND_ICU}/lib/libicu-regex.a)
  message(FATAL_ERROR "The patterns of ICU are not there: run tools/icu-subset first")
endif()
foreach(part uc i18n)
  add_library(ICU::${part} STATIC IMPORTED GLOBAL)
  set_target_properties(ICU::${part} PROPERTIES
    IMPORTED_LOCATION ${VEYRAND_ICU}/lib/libicu-regex.a
    INTERFACE_INCLUDE_DIRECTORIES ${VEYRAND_ICU}/include
    INTERFACE_COMPILE_DEFINITIONS U_STATIC_IMPLEMENTATION)
endforeach()

# Headers alone, but they lie among those of the machine, which are not the browser's.
find_path(NLOHMANN_JSON nlohmann/json.hpp PATHS /usr/include /usr/local/include
  NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
set(headers ${CMAKE_BINARY_DIR}/include)
file(MAKE_DIRECTORY ${headers})
file(CREATE_LINK ${NLOHMANN_JSON}/nlohmann ${headers}/nlohmann SYMBOLIC)
add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
set_target_properties(nlohmann_json::nlohmann_json PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${headers})

add_compile_options(-fwasm-exceptions)
add_link_options(-fwasm-exceptions)
# The linker's scripts look for their libraries where Debian's own node would look.
set_property(GLOBAL PROPERTY RULE_LAUNCH_LINK "${CMAKE_COMMAND} -E env NODE_PATH=/usr/share/nodejs")
include(Rooms)
# Nobody works on a room in this build: read together, as tools/portable reads them too, its sources
# take a third of the time.
set(CMAKE_UNITY_BUILD ON)
set(CMAKE_UNITY_BUILD_BATCH_SIZE 10)
foreach(room platform language engine progress play board present input install controller headless)
  add_subdirectory(src/${room})
endforeach()
add_subdirectory(src/web)
if(VEYRAND_TESTS)
  add_subdirectory(tests/web)
endif()
