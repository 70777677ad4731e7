# Compiler settings shared by every target: warnings are errors on every compiler that builds the project.
add_library(corvex_options INTERFACE)
target_compile_features(corvex_options INTERFACE cxx_std_20)
target_include_directories(corvex_options INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/generated)
target_compile_options(corvex_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror -fno-strict-aliasing)
# Fused multiply-add and the x87 unit would change the last digit of a value between targets.
target_compile_options(corvex_options INTERFACE -ffp-contract=off)
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86")
  target_compile_options(corvex_options INTERFACE -msse2 -mfpmath=sse)
endif()
if(WIN32)
  # windows.h reads every processor intrinsic there is, which nothing here uses and which takes twice as long as the rest
  # of it. The mark of the compiler's header for them, set beforehand, keeps that header shut.
  target_compile_definitions(corvex_options INTERFACE _X86INTRIN_H_INCLUDED)
  # The same sources give the same bytes.
  target_link_options(corvex_options INTERFACE -Wl,--no-insert-timestamp)
endif()
find_package(Threads REQUIRED)
target_link_libraries(corvex_options INTERFACE Threads::Threads)

set(CORVEX_SANITIZE "" CACHE STRING "Sanitizers, e.g. address,undefined or thread")
if(CORVEX_SANITIZE)
  target_compile_options(corvex_options INTERFACE
    -fsanitize=${CORVEX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(corvex_options INTERFACE -fsanitize=${CORVEX_SANITIZE})
endif()
option(CORVEX_FUZZ "Build the fuzz targets (clang)" OFF)
if(CORVEX_FUZZ)
  target_compile_options(corvex_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Tests of several builds run in one ctest,
# which tells them apart by name alone: properties set for one would hold for all.
get_filename_component(CORVEX_BUILD_NAME ${PROJECT_BINARY_DIR} NAME)

# corvex_headers(NAME [HEADER ...]): these, and those of the standard library that cost most, compiled once for all targets that
# use them: those that CORVEX_HEADERS names for libraries, CORVEX_TEST_HEADERS for tests.
function(corvex_headers name)
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "// Only its headers are wanted.\n")
  add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PRIVATE corvex_options)
  target_precompile_headers(${name} PRIVATE ${ARGN} <algorithm> <array> <atomic> <chrono> <condition_variable> <filesystem> <functional>
    <map> <memory> <mutex> <optional> <string> <thread> <vector>)
  # By what is in them, not by the time at which a clone was made.
  target_compile_options(${name} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
endfunction()

# What is compiled by itself, to show that it includes what it needs, goes without.
function(corvex_use_headers target headers)
  if(CMAKE_UNITY_BUILD AND headers)
    target_precompile_headers(${target} REUSE_FROM ${headers})
  endif()
endfunction()

# corvex_library(NAME [SOURCES ...] [LIBS ...]): one static library per folder; headers are listed to be checked alone.
function(corvex_library name)
  cmake_parse_arguments(A "" "" "SOURCES;LIBS" ${ARGN})
  add_library(${name} STATIC ${A_SOURCES})
  if(CORVEX_ON_DEMAND)
    set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
  endif()
  target_link_libraries(${name} PUBLIC corvex_options ${A_LIBS})
  corvex_use_headers(${name} "${CORVEX_HEADERS}")
endfunction()

# corvex_fuzz_fast(TARGET): of a library whose compares tell a fuzzer little, as its format is numbers without magic words, they
# are not traced: that is a third of a run.
function(corvex_fuzz_fast target)
  if(CORVEX_FUZZ)
    target_compile_options(${target} PRIVATE -fno-sanitize-coverage=trace-cmp)
  endif()
endfunction()

# corvex_test(NAME [THREADS] [CLIPBOARD] [PLAIN] SOURCES ... LIBS ...): one test program per folder. THREADS for one in which
# threads start; with CLIPBOARD its cases with "Clipboard" in their names wait for those of other programs, as there is one for
# all; PLAIN for one that no sanitizer can run, as it brings an operator new of its own or is killed.
# With memory checked each case is a ctest of its own; for races and under Wine the program runs whole, where a process is dear.
# A build with CORVEX_ON_DEMAND makes only the plain ones by itself, the others when they are asked for by name.
function(corvex_test name)
  cmake_parse_arguments(A "THREADS;CLIPBOARD;PLAIN" "" "SOURCES;LIBS" ${ARGN})
  # Where one thread does everything there is no race to find.
  if((CORVEX_SANITIZE AND A_PLAIN) OR (CORVEX_SANITIZE STREQUAL "thread" AND NOT A_THREADS))
    return()
  endif()
  add_executable(${name} ${A_SOURCES})
  if(CORVEX_SANITIZE AND NOT A_THREADS)
    target_sources(${name} PRIVATE $<TARGET_OBJECTS:corvex_no_threads>)
  endif()
  target_link_libraries(${name} PRIVATE corvex_options ${A_LIBS} GTest::gtest_main)
  target_compile_definitions(${name} PRIVATE CORVEX_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  corvex_use_headers(${name} "${CORVEX_TEST_HEADERS}")
  # Where windows, pages and their objects go in any order, a touch of one that has gone stops the program.
  if("corvex_control_test" IN_LIST A_LIBS)
    target_link_libraries(${name} PRIVATE corvex_guarded_heap)
  endif()
  if(WIN32 OR CORVEX_SANITIZE STREQUAL "thread")
    corvex_whole_test(${name} ${A_CLIPBOARD})
  elseif(A_PLAIN OR NOT CORVEX_ON_DEMAND)
    include(GoogleTest)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
      PROPERTIES TIMEOUT 300)
  else()
    set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
  endif()
endfunction()

function(corvex_whole_test name clipboard)
  set(whole ${CORVEX_BUILD_NAME}.${name})
  set(others)
  if(clipboard)
    set(others --gtest_filter=-*Clipboard*)
    add_test(NAME ${whole}.clipboard COMMAND ${name} --gtest_filter=*Clipboard* WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    set_tests_properties(${whole}.clipboard PROPERTIES RESOURCE_LOCK clipboard TIMEOUT 300
      FAIL_REGULAR_EXPRESSION "Unhandled (page fault|exception|illegal)")
  endif()
  add_test(NAME ${whole} COMMAND ${name} ${others} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
  # The long ones begin first, so that nobody waits for the last of them at the end.
  set_tests_properties(${whole} PROPERTIES TIMEOUT 300 COST 10 FAIL_REGULAR_EXPRESSION "Unhandled (page fault|exception|illegal)")
endfunction()

# corvex_parser_units(SOURCE ...): units that spend their build in the argument parser's templates, and run once in a program's
# life. Optimised they are three times as dear; only what is shipped is.
function(corvex_parser_units)
  if(NOT WIN32)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -O0 SKIP_PRECOMPILE_HEADERS ON)
  endif()
endfunction()

# corvex_json_units(TARGET SOURCE ...): units of a target that read the JSON library's header, which costs more than all of them:
# they are one batch, also where everything else is compiled by itself.
function(corvex_json_units target)
  set_source_files_properties(${ARGN} PROPERTIES UNITY_GROUP json)
  if(NOT CMAKE_UNITY_BUILD)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  endif()
endfunction()

# corvex_resources(NAME SCRIPT DEPENDS ...): a resource script as objects to link, $<TARGET_OBJECTS:NAME>.
# Apart from the programs' own sources, as the compiler's options mean nothing to windres, which tells Ninja of no dependency either.
function(corvex_resources name script)
  cmake_parse_arguments(A "" "" "DEPENDS" ${ARGN})
  add_library(${name} OBJECT ${script})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/generated)
  file(GLOB common ${PROJECT_SOURCE_DIR}/cmake/*.rc ${PROJECT_SOURCE_DIR}/cmake/*.manifest)
  set_source_files_properties(${script} PROPERTIES OBJECT_DEPENDS "${A_DEPENDS};${common}")
endfunction()
