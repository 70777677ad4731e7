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

# corvex_library(NAME [SOURCES ...] [LIBS ...]): one static library per folder; headers are listed to be checked alone.
function(corvex_library name)
  cmake_parse_arguments(A "" "" "SOURCES;LIBS" ${ARGN})
  add_library(${name} STATIC ${A_SOURCES})
  target_link_libraries(${name} PUBLIC corvex_options ${A_LIBS})
endfunction()

# corvex_fuzz_fast(TARGET): of a library whose compares tell a fuzzer little, as its format is numbers without magic words, they
# are not traced: that is a third of a run.
function(corvex_fuzz_fast target)
  if(CORVEX_FUZZ)
    target_compile_options(${target} PRIVATE -fno-sanitize-coverage=trace-cmp)
  endif()
endfunction()

# corvex_test(NAME [THREADS] SOURCES ... LIBS ...): one test program per folder; THREADS for one in which threads start.
# Natively each case is a ctest of its own; sanitizers and Wine run the program whole, where a process is dear.
function(corvex_test name)
  cmake_parse_arguments(A "THREADS" "" "SOURCES;LIBS" ${ARGN})
  # Where one thread does everything there is no race to find.
  if(CORVEX_SANITIZE STREQUAL "thread" AND NOT A_THREADS)
    return()
  endif()
  if(NOT A_THREADS)
    set_property(GLOBAL APPEND PROPERTY CORVEX_TESTS_WITHOUT_THREADS $<TARGET_FILE:${name}>)
  endif()
  add_executable(${name} ${A_SOURCES})
  target_link_libraries(${name} PRIVATE corvex_options ${A_LIBS} GTest::gtest_main)
  target_compile_definitions(${name} PRIVATE CORVEX_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  if(WIN32 OR CORVEX_SANITIZE)
    add_test(NAME ${CORVEX_BUILD_NAME}.${name} COMMAND ${name} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    set_tests_properties(${CORVEX_BUILD_NAME}.${name} PROPERTIES TIMEOUT 300
      FAIL_REGULAR_EXPRESSION "Unhandled (page fault|exception|illegal)")
  else()
    include(GoogleTest)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
      PROPERTIES TIMEOUT 120)
  endif()
endfunction()

# corvex_parser_units(SOURCE ...): units that spend their build in the argument parser's templates, and run once in a program's
# life. Sanitizers make them three times as dear when they are optimised; what is shipped or measured stays optimised.
function(corvex_parser_units)
  if(CORVEX_SANITIZE)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -O0)
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
