# What every target of the project shares: language level, warnings, sanitizers, the layout of the build tree
# (which mirrors an installed prefix, so that the program runs in place), and the helpers that declare targets.

# Clones of the same sources share what the compiler cache has, wherever they lie. It takes what is compiled with a
# precompiled header only when told that the macros and times in that header may be trusted.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE_PROGRAM})
endif()

set(VMR_BIN_DIR bin)
set(VMR_LIBEXEC_DIR libexec/vmr)
set(VMR_TRANSLATOR_DIR lib/vmr/translators)
set(VMR_DATA_DIR share/vmr)
set(VMR_DOC_DIR share/doc/${VMR_PACKAGE_NAME})

# What the authors of format modules install: headers, libraries, the description for CMake.
set(VMR_SDK_INCLUDE_DIR include/vmr)
set(VMR_SDK_LIBRARY_DIR lib/vmr/sdk)
set(VMR_SDK_CMAKE_DIR lib/cmake/vmr)
set(VMR_SDK_DOC_DIR share/doc/${VMR_PACKAGE_NAME}-dev)

# What says nothing else belongs to the program; the other component is "development".
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME runtime)

find_package(Threads REQUIRED)

add_library(vmr_options INTERFACE)
target_compile_features(vmr_options INTERFACE cxx_std_20)
target_compile_options(vmr_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                             -Woverloaded-virtual -Wno-unknown-pragmas)
target_link_libraries(vmr_options INTERFACE Threads::Threads)
if(VMR_WERROR)
  target_compile_options(vmr_options INTERFACE -Werror)
endif()
if(VMR_SANITIZE)
  target_compile_options(vmr_options INTERFACE -fsanitize=${VMR_SANITIZE} -fno-omit-frame-pointer
                                               -fno-sanitize-recover=all)
  target_link_options(vmr_options INTERFACE -fsanitize=${VMR_SANITIZE})
endif()

# vmr_library(name SOURCES a.cpp ... LIBRARIES x y): a static library of one folder. Without sources it carries
# headers only. Its headers are reached as "folder/header.h" from the folder's parent.
function(vmr_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;PRIVATE_LIBRARIES" ${ARGN})
  if(ARG_SOURCES)
    add_library(${name} STATIC ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_EXTENSIONS OFF)
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/..>)
    target_link_libraries(${name} PUBLIC ${ARG_LIBRARIES}
                          PRIVATE $<BUILD_INTERFACE:vmr_options> ${ARG_PRIVATE_LIBRARIES})
    target_compile_features(${name} PUBLIC cxx_std_20)
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/..>)
    target_link_libraries(${name} INTERFACE ${ARG_LIBRARIES})
    target_compile_features(${name} INTERFACE cxx_std_20)
  endif()
endfunction()

# vmr_cached_headers(name): lets the compiler cache take what the target compiles with a precompiled header.
function(vmr_cached_headers name)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${name} PRIVATE -fpch-preprocess)
    # Under a precompiled header the compiler's wrong warnings about strings (GCC bug 105651) come through.
    target_compile_options(${name} PRIVATE -Wno-restrict -Wno-array-bounds)
  endif()
endfunction()

# vmr_test_headers(name LIBRARIES...): compiles the tests of a target with the headers that take longest, precompiled
# once for all tests that link the library and once for the others. Those of the toolkit alone have other macros.
function(vmr_test_headers name)
  if("base_wxt" IN_LIST ARGN)
    return()
  endif()
  if("vmrgr" IN_LIST ARGN)
    set(kind vmr_headers_of_window_tests)
    set(headers <wx/wx.h> <wx/xrc/xmlres.h>)
    set(libraries vmrgr)
  else()
    set(kind vmr_headers_of_tests)
    set(headers)
    set(libraries)
  endif()
  if(NOT TARGET ${kind})
    file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/tests/${kind}.cpp CONTENT "// Only carries the precompiled headers.\n")
    add_library(${kind} OBJECT EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/tests/${kind}.cpp)
    target_link_libraries(${kind} PRIVATE vmr_options ${libraries} GTest::gtest_main GTest::gmock)
    target_precompile_headers(${kind} PRIVATE ${headers} <gmock/gmock.h> <gtest/gtest.h> <filesystem> <fstream>
                                              <map> <sstream> <thread>)
    set_target_properties(${kind} PROPERTIES CXX_EXTENSIONS OFF)
    vmr_cached_headers(${kind})
  endif()
  vmr_cached_headers(${name})
  target_precompile_headers(${name} REUSE_FROM ${kind})
endfunction()

# vmr_test(name SOURCES ... LIBRARIES ... [LABELS ...] [TOGETHER]): one GoogleTest program, each of its tests known to
# ctest, or with TOGETHER all of them as one, in one process and with nothing beside it.
function(vmr_test name)
  cmake_parse_arguments(ARG "TOGETHER" "" "SOURCES;LIBRARIES;LABELS" ${ARGN})
  find_package(GTest REQUIRED)
  include(GoogleTest)
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE vmr_options ${ARG_LIBRARIES} GTest::gtest_main GTest::gmock)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests CXX_EXTENSIONS OFF)
  vmr_test_headers(${name} ${ARG_LIBRARIES})
  if(ARG_TOGETHER)
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}" TIMEOUT 500 RUN_SERIAL TRUE)
    return()
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS "${ARG_LABELS}" TIMEOUT 120)
endfunction()

# vmr_compressed(file result): the rule that compresses a file as documents of packages are, the same with each build.
find_program(GZIP_EXECUTABLE gzip REQUIRED)
function(vmr_compressed file result)
  add_custom_command(
    OUTPUT ${result}
    COMMAND ${GZIP_EXECUTABLE} -9nc ${file} > ${result}
    DEPENDS ${file}
    VERBATIM)
endfunction()
