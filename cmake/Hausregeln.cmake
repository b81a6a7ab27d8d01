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
add_library(zinfolio_sanitizer INTERFACE)
target_compile_options(zinfolio_sanitizer INTERFACE
  -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
target_link_options(zinfolio_sanitizer INTERFACE -fsanitize=address,undefined)
if(ZINFOLIO_SANITIZER)
  target_link_libraries(zinfolio_hausregeln INTERFACE zinfolio_sanitizer)
endif()
if(ZINFOLIO_ABDECKUNG)
  target_compile_options(zinfolio_hausregeln INTERFACE --coverage)
  target_link_options(zinfolio_hausregeln INTERFACE --coverage)
endif()

# The names of the targets given, each room replaced by its counterpart under the sanitizers.
function(zinfolio_gepruefte ergebnis)
  set(namen ${ARGN})
  list(TRANSFORM namen REPLACE "^(zinfolio_.+)$" "\\1_geprueft")
  set(${ergebnis} ${namen} PARENT_SCOPE)
endfunction()

# A room: a static library of all sources in its folder, or of those given by QUELLEN; OHNE names sources that belong
# elsewhere, LINKS the rooms below it, PRIVAT libraries that only its sources see. Where ZINFOLIO_GEPRUEFT is on, a second
# library NAME_geprueft has the same sources under the sanitizers, with assertions.
function(zinfolio_raum name)
  cmake_parse_arguments(RAUM "" "" "QUELLEN;OHNE;LINKS;PRIVAT" ${ARGN})
  if(NOT RAUM_QUELLEN)
    file(GLOB RAUM_QUELLEN CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
    list(REMOVE_ITEM RAUM_QUELLEN ${RAUM_OHNE} "")
  endif()
  add_library(${name} STATIC ${RAUM_QUELLEN})
  target_link_libraries(${name} PUBLIC zinfolio_hausregeln ${RAUM_LINKS} PRIVATE ${RAUM_PRIVAT})
  if(ZINFOLIO_GEPRUEFT)
    zinfolio_gepruefte(links ${RAUM_LINKS})
    add_library(${name}_geprueft STATIC ${RAUM_QUELLEN})
    target_link_libraries(${name}_geprueft PUBLIC zinfolio_hausregeln zinfolio_sanitizer ${links} PRIVATE ${RAUM_PRIVAT})
    target_compile_options(${name}_geprueft PRIVATE -O1 -g1 -UNDEBUG)
  endif()
endfunction()

# What tests are compiled with: no optimiser, which takes longer than they run.
set(zinfolio_testoptionen -O0)

# A program of a room's tests from QUELLEN, linked with the rooms LINKS and the libraries MIT. Where ZINFOLIO_GEPRUEFT is on, a
# second program NAME_geprueft holds the same objects, linked with the rooms under the sanitizers.
function(zinfolio_testprogramm name)
  cmake_parse_arguments(PROGRAMM "" "" "QUELLEN;LINKS;MIT" ${ARGN})
  add_library(${name}_teile OBJECT ${PROGRAMM_QUELLEN})
  target_link_libraries(${name}_teile PRIVATE zinfolio_hausregeln ${PROGRAMM_LINKS} ${PROGRAMM_MIT})
  target_include_directories(${name}_teile PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  target_compile_options(${name}_teile PRIVATE ${zinfolio_testoptionen})
  add_executable(${name} $<TARGET_OBJECTS:${name}_teile>)
  target_link_libraries(${name} PRIVATE ${PROGRAMM_LINKS} ${PROGRAMM_MIT})
  if(ZINFOLIO_GEPRUEFT)
    zinfolio_gepruefte(links ${PROGRAMM_LINKS})
    add_executable(${name}_geprueft $<TARGET_OBJECTS:${name}_teile>)
    target_link_libraries(${name}_geprueft PRIVATE ${links} ${PROGRAMM_MIT})
  endif()
endfunction()

# A test that calls a program: PROGRAMM in the command stands for it. Where ZINFOLIO_GEPRUEFT is on, a second test
# NAME_geprueft calls the one under the sanitizers, unless OHNE_SANITIZER says that it cannot.
function(zinfolio_probelauf name programm)
  cmake_parse_arguments(LAUF "OHNE_SANITIZER" "" "" ${ARGN})
  string(REPLACE "PROGRAMM" "$<TARGET_FILE:${programm}>" befehl "${LAUF_UNPARSED_ARGUMENTS}")
  add_test(NAME ${name} COMMAND ${befehl})
  if(ZINFOLIO_GEPRUEFT AND NOT LAUF_OHNE_SANITIZER)
    string(REPLACE "PROGRAMM" "$<TARGET_FILE:${programm}_geprueft>" befehl "${LAUF_UNPARSED_ARGUMENTS}")
    add_test(NAME ${name}_geprueft COMMAND ${befehl})
  endif()
endfunction()

# A GoogleTest program for one room, run by ctest under its own name: all sources in its folder but probes, or those
# given by QUELLEN; OHNE names sources that belong elsewhere, MIT libraries that are no rooms.
function(zinfolio_test name)
  cmake_parse_arguments(TEST "" "" "QUELLEN;OHNE;LINKS;MIT" ${ARGN})
  if(NOT TEST_QUELLEN)
    file(GLOB TEST_QUELLEN CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
    list(FILTER TEST_QUELLEN EXCLUDE REGEX "_probe\\.cpp$")
    list(REMOVE_ITEM TEST_QUELLEN ${TEST_OHNE} "")
  endif()
  zinfolio_testprogramm(${name} QUELLEN ${TEST_QUELLEN} LINKS ${TEST_LINKS} MIT ${TEST_MIT} GTest::gmock GTest::gtest_main)
  target_precompile_headers(${name}_teile REUSE_FROM zinfolio_testkopf)
  zinfolio_probelauf(${name} ${name} PROGRAMM)
endfunction()
