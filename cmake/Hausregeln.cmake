# What every target of the house is compiled with, and the two ways of declaring one.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_package(Threads REQUIRED)

add_library(zinfolio_hausregeln INTERFACE)
target_include_directories(zinfolio_hausregeln INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_definitions(zinfolio_hausregeln INTERFACE ZINFOLIO_VERSION="${PROJECT_VERSION}")
target_compile_options(zinfolio_hausregeln INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
  # GCC 12 sees overlaps in std::string's own concatenation that are not there (GCC bug 105329).
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  # Two machines must give the same bits: no fused multiply-add unless it is written.
  -ffp-contract=off)
if(ZINFOLIO_SANITIZER)
  target_compile_options(zinfolio_hausregeln INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(zinfolio_hausregeln INTERFACE -fsanitize=address,undefined)
endif()
if(ZINFOLIO_ABDECKUNG)
  target_compile_options(zinfolio_hausregeln INTERFACE --coverage)
  target_link_options(zinfolio_hausregeln INTERFACE --coverage)
endif()

# A room: a static library of all sources in its folder, or of those given by QUELLEN; OHNE names sources that belong
# elsewhere, LINKS the rooms below it.
function(zinfolio_raum name)
  cmake_parse_arguments(RAUM "" "" "QUELLEN;OHNE;LINKS" ${ARGN})
  if(NOT RAUM_QUELLEN)
    file(GLOB RAUM_QUELLEN CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
    list(REMOVE_ITEM RAUM_QUELLEN ${RAUM_OHNE} "")
  endif()
  add_library(${name} STATIC ${RAUM_QUELLEN})
  target_link_libraries(${name} PUBLIC zinfolio_hausregeln ${RAUM_LINKS})
endfunction()

# What tests are compiled with: no optimiser, which takes longer than they run. Under the sanitizers the rooms are checked
# for undefined behaviour, the tests themselves for their use of memory alone.
set(zinfolio_testoptionen -O0)
if(ZINFOLIO_SANITIZER)
  list(APPEND zinfolio_testoptionen -fno-sanitize=undefined)
endif()

# A GoogleTest program for one room, run by ctest under its own name: all sources in its folder but probes, or those
# given by QUELLEN; OHNE names sources that belong elsewhere.
function(zinfolio_test name)
  cmake_parse_arguments(TEST "" "" "QUELLEN;OHNE;LINKS" ${ARGN})
  if(NOT TEST_QUELLEN)
    file(GLOB TEST_QUELLEN CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
    list(FILTER TEST_QUELLEN EXCLUDE REGEX "_probe\\.cpp$")
    list(REMOVE_ITEM TEST_QUELLEN ${TEST_OHNE} "")
  endif()
  add_executable(${name} ${TEST_QUELLEN})
  target_link_libraries(${name} PRIVATE zinfolio_hausregeln ${TEST_LINKS} GTest::gmock GTest::gtest_main)
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  target_compile_options(${name} PRIVATE ${zinfolio_testoptionen})
  target_precompile_headers(${name} REUSE_FROM zinfolio_testkopf)
  add_test(NAME ${name} COMMAND ${name})
endfunction()
