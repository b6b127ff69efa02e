# Helpers that keep the CMakeLists of the folders to a list of files and a list of links.

include(GNUInstallDirs)

# Warnings (all errors) and sanitizers, linked privately by every target of this project.
add_library(norvane_options INTERFACE)
target_compile_options(norvane_options INTERFACE
  $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow
    -Wnon-virtual-dtor -Woverloaded-virtual -Werror>
  $<$<CXX_COMPILER_ID:MSVC>:/W4 /WX /permissive- /utf-8>)
target_compile_definitions(norvane_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS)
if(NORVANE_SANITIZE)
  target_compile_options(norvane_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -g1)
  target_link_options(norvane_options INTERFACE -fsanitize=address,undefined)
endif()
if(NORVANE_FUZZ)
  target_compile_options(norvane_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(norvane_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# norvane_library(<name> [MOC] SOURCES <files> [LINKS <libraries that callers see too>])
# MOC: a class in it has Q_OBJECT. Without it the linker misses that class's virtual table.
# Headers are included by their folder ("store/engine/Database.h"); what may be called is what is linked.
function(norvane_library name)
  cmake_parse_arguments(ARG "MOC" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ${ARG_MOC})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE norvane_options)
endfunction()

# norvane_program(<name> SOURCES <files> [LINKS <libraries>])
function(norvane_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} norvane_options)
endfunction()

# norvane_test(<name> [OWN_MAIN] [TOGETHER] SOURCES <files> LINKS <the library under test> [NEEDS <programs it runs>])
# OWN_MAIN: its sources have a main(). Every test case runs as a process of its own, without a screen, so that all can
# run side by side. TOGETHER: in one process, for cases that share a server or take less time than a process's start.
function(norvane_test name)
  cmake_parse_arguments(ARG "OWN_MAIN;TOGETHER" "" "SOURCES;LINKS;NEEDS" ${ARGN})
  norvane_program(${name} SOURCES ${ARG_SOURCES} LINKS ${ARG_LINKS} GTest::gtest)
  if(NOT ARG_OWN_MAIN)
    target_link_libraries(${name} PRIVATE GTest::gtest_main)
  endif()
  if(ARG_NEEDS)
    add_dependencies(${name} ${ARG_NEEDS})
  endif()
  set(properties TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  if(ARG_TOGETHER)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES ${properties})
  else()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES PROPERTIES ${properties})
  endif()
endfunction()
include(GoogleTest)
