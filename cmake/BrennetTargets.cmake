# Settings that all targets of the project share, and the functions that declare targets and tests.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
# Symbols are hidden by default: the library has one export.
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

if(WIN32)
  set(BRENNET_PLATFORM_SUFFIX win)
else()
  set(BRENNET_PLATFORM_SUFFIX posix)
endif()

if(BRENNET_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# The linker compares the types of all sources, which the compiler never sees together.
set(BRENNET_ODR_FLAGS -flto=auto -Werror=odr -Werror=lto-type-mismatch)
if(BRENNET_ODR)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    message(FATAL_ERROR "BRENNET_ODR takes GCC")
  endif()
  add_compile_options(${BRENNET_ODR_FLAGS})
  add_link_options(${BRENNET_ODR_FLAGS})
endif()

# Compiler settings for our own code; third-party headers are included as system headers.
function(brennet_target_defaults target)
  target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}")
  if(WIN32)
    target_compile_definitions(${target} PRIVATE UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
  endif()
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /utf-8)
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
    # GCC 12 sees overlapping copies in std::string where there are none (GCC bug 105651).
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      target_compile_options(${target} PRIVATE -Wno-restrict)
    endif()
    if(BRENNET_WERROR)
      target_compile_options(${target} PRIVATE -Werror)
    endif()
  endif()
endfunction()

# For code that ships: the lines of functions, for debuggers, in the name of no folder of this machine.
# tools/sdk.sh puts them into files of their own.
function(brennet_keep_symbols target)
  if(MINGW)
    target_compile_options(${target} PRIVATE -g1 "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=."
      "-ffile-prefix-map=${BRENNET_QT_DIR}=qt")
  endif()
endfunction()

# brennet_add_layer(markup SOURCES a.cpp b.cpp DEPENDS brennet_platform)
# One static library per folder, named brennet_<folder>, with the alias Brennet::<folder>.
function(brennet_add_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "SOURCES;DEPENDS")
  add_library(brennet_${name} STATIC ${layer_SOURCES})
  add_library(Brennet::${name} ALIAS brennet_${name})
  brennet_target_defaults(brennet_${name})
  brennet_keep_symbols(brennet_${name})
  target_link_libraries(brennet_${name} PUBLIC ${layer_DEPENDS})
endfunction()

# For sources that use std::regex: with sanitizers, GCC 12 sees uninitialised memory in it where there
# is none (GCC bug 105562).
function(brennet_allow_regex)
  if(BRENNET_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -Wno-maybe-uninitialized)
  endif()
endfunction()

# Makes a shared library one that exports GetBrennetPtr alone.
function(brennet_set_one_export library)
  if(WIN32)
    set_target_properties(${library} PROPERTIES PREFIX "")
    if(MINGW)
      # Address-space layout randomisation and data-execution prevention. The compiler's runtime is
      # shared with Qt and stays in the process (platform/Runtime.h): a copy in the library would
      # keep a TLS index, handles and memory of each time that the library was loaded.
      target_link_options(${library} PRIVATE
        "LINKER:--dynamicbase,--nxcompat,--exclude-all-symbols")
    endif()
    return()
  endif()
  # Hides what the standard library's templates would export beside our own symbol.
  set(map "${PROJECT_SOURCE_DIR}/host/brennet.map")
  target_link_options(${library} PRIVATE "LINKER:--version-script=${map}" "LINKER:--no-undefined")
  set_target_properties(${library} PROPERTIES LINK_DEPENDS "${map}")
endfunction()

# Notes which suites of a test program compare files of the project with what they make: those of
# the sources that include Golden.h. "make update" runs them.
function(brennet_note_golden program)
  set(filter)
  foreach(source IN LISTS ARGN)
    get_filename_component(source "${source}" ABSOLUTE)
    file(STRINGS "${source}" includes REGEX "\"tests/support/Golden\\.h\"")
    if(NOT includes)
      continue()
    endif()
    file(STRINGS "${source}" heads REGEX "^TEST(_F|_P)?\\(")
    foreach(head IN LISTS heads)
      string(REGEX REPLACE "^TEST[_FP]*\\(([A-Za-z0-9_]+),.*" "\\1" suite "${head}")
      list(APPEND filter "${suite}.*" "*/${suite}.*")
    endforeach()
  endforeach()
  if(filter)
    list(REMOVE_DUPLICATES filter)
    list(JOIN filter ":" filter)
    set_property(GLOBAL APPEND PROPERTY BRENNET_GOLDEN_PROGRAMS ${program})
    set_property(GLOBAL APPEND_STRING PROPERTY BRENNET_GOLDEN_SUITES "${program} ${filter}\n")
  endif()
endfunction()

# brennet_add_test(markup SOURCES a_test.cpp DEPENDS Brennet::markup)
# One GoogleTest program per folder, each of its cases a CTest test. Each program for another system
# is one test: starting the emulator takes longer than most programs run. With OWN_MAIN after the
# name, the sources define main, which calls leaveTheCallersWorld().
function(brennet_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "OWN_MAIN" "" "SOURCES;DEPENDS")
  set(main Brennet::test_main)
  if(test_OWN_MAIN)
    set(main Brennet::test_world GTest::gtest)
  endif()
  add_executable(${name}_tests ${test_SOURCES})
  brennet_target_defaults(${name}_tests)
  target_link_libraries(${name}_tests PRIVATE ${test_DEPENDS} GTest::gmock ${main})
  brennet_note_golden(${name}_tests ${test_SOURCES})
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${name} COMMAND ${name}_tests --gtest_brief=1)
  else()
    gtest_discover_tests(${name}_tests TEST_PREFIX "${name}." NO_PRETTY_VALUES
      DISCOVERY_TIMEOUT 60)
  endif()
endfunction()

# brennet_add_script_test(name [VARIABLE=VALUE]... COMMAND ARGUMENT... [WORKING_DIRECTORY folder])
# A test that is a command, such as a script or a program without GoogleTest. It runs in the world
# of the tests, in which nothing is of the caller's; the variables are added to that.
function(brennet_add_script_test name)
  set(fonts)
  if(NOT CMAKE_CROSSCOMPILING)
    set(fonts "FONTCONFIG_FILE=${PROJECT_BINARY_DIR}/tests/ui/fonts/dejavu.conf")
  endif()
  add_test(NAME "${name}"
    COMMAND "${PROJECT_SOURCE_DIR}/tests/support/world.sh" ${fonts} ${ARGN})
endfunction()

# The fonts that windows are tested with, see tests/ui/fonts/. The first is the default.
set(BRENNET_FONT_SETS dejavu wqy noto)

# brennet_add_font_tests(ui "PagesLook.*:Fit*")
# Makes CTest run those tests of a program again with each other font set, as ui_wqy.PagesLook.* and
# so on. Programs for another system have only one font set.
function(brennet_add_font_tests name filter)
  if(CMAKE_CROSSCOMPILING)
    return()
  endif()
  set(others ${BRENNET_FONT_SETS})
  list(POP_FRONT others)
  foreach(set IN LISTS others)
    gtest_discover_tests(${name}_tests TEST_PREFIX "${name}_${set}." TEST_FILTER "${filter}"
      TEST_LIST ${name}_${set}_tests NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60
      PROPERTIES ENVIRONMENT "BRENNET_TEST_FONTS=${set}")
  endforeach()
endfunction()
