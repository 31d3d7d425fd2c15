# Compiler flags for all targets, and functions that create a layer and its tests.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Paths relative to the source tree allow several build folders to share the cache.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
  set(whole_paths OFF)
else()
  set(whole_paths ON)
endif()

# Flags for our own code. Contracting a multiplication and an addition into one rounding would change
# the last bit of a profit, and with it the order of the options.
add_library(verdalis_flags INTERFACE)
target_compile_features(verdalis_flags INTERFACE cxx_std_20)
target_compile_options(verdalis_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -ffp-contract=off -fno-fast-math)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12
   AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # At -O3, GCC 12 wrongly warns that "text" + string is an overlapping copy.
  target_compile_options(verdalis_flags INTERFACE -Wno-restrict)
  if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    # With the sanitizers it wrongly warns of the standard library's <regex>.
    target_compile_options(verdalis_flags INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
if(whole_paths)
  # Failed assertions name a source within the tree, not on the machine that built the program.
  target_compile_options(verdalis_flags INTERFACE -fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)
endif()
target_include_directories(verdalis_flags INTERFACE ${CMAKE_SOURCE_DIR})
set(CMAKE_CXX_EXTENSIONS OFF)

# Installed programs find their libraries as any other does.
set(CMAKE_SKIP_INSTALL_RPATH ON)

# verdalis_use_source()
# Tells the programs of this folder where the crops, the help and the examples are before they are installed.
function(verdalis_use_source)
  if(WIN32)
    set(drive Z:) # where Wine shows the files of this machine
  endif()
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/verdalis-source.txt CONTENT "${drive}${CMAKE_SOURCE_DIR}\n" @ONLY)
endfunction()

# verdalis_layer(NAME [SYSTEM] [FOLDER folder] [LINKS layer...] [LIBS target...])
# Creates the static library verdalis_NAME from all sources in the folder NAME or the given one, with SYSTEM also from
# those in its folder posix or windows.
function(verdalis_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "SYSTEM" "FOLDER" "LINKS;LIBS")
  if(NOT arg_FOLDER)
    set(arg_FOLDER ${name})
  endif()
  set(files ${CMAKE_SOURCE_DIR}/${arg_FOLDER}/*.cpp ${CMAKE_SOURCE_DIR}/${arg_FOLDER}/*.h)
  if(arg_SYSTEM AND WIN32)
    list(APPEND files ${CMAKE_SOURCE_DIR}/${name}/windows/*.cpp ${CMAKE_SOURCE_DIR}/${name}/windows/*.h)
  elseif(arg_SYSTEM)
    list(APPEND files ${CMAKE_SOURCE_DIR}/${name}/posix/*.cpp ${CMAKE_SOURCE_DIR}/${name}/posix/*.h)
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${files})
  add_library(verdalis_${name} STATIC ${sources})
  set_target_properties(verdalis_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(verdalis_${name} PUBLIC verdalis_flags ${arg_LIBS})
  foreach(link IN LISTS arg_LINKS)
    target_link_libraries(verdalis_${name} PUBLIC verdalis_${link})
  endforeach()
endfunction()

# verdalis_remove_system_tests(VARIABLE)
# Removes from a list of tests those that need RapidCheck, which Debian builds for its own machines only, and those that
# use calls of POSIX or programs of Debian, directly or by one of their headers. Also those named ...PosixTest, or listed
# here, because they are about what Debian has: the usual folders of a program, open files with names, PDF, a shell, and
# the words of its errors.
function(verdalis_remove_system_tests variable)
  set(kept "")
  set(foreign "#include [<\"](rapidcheck|unistd|fcntl|csignal|sys/|platform/posix/|tests/xlsx/WorkbookFile)")
  list(FILTER ${variable} EXCLUDE REGEX
    "PosixTest|/(SharedFolders|OpenOutput|ReportPdf|FullReport|Readme)Test")
  foreach(source IN LISTS ${variable})
    set(files ${source})
    set(next ${source})
    while(next)
      set(headers "")
      foreach(file IN LISTS next)
        file(STRINGS ${file} lines REGEX "^#include \"tests/")
        list(TRANSFORM lines REPLACE "^#include \"(.*)\".*" "${CMAKE_SOURCE_DIR}/\\1")
        list(APPEND headers ${lines})
      endforeach()
      list(REMOVE_ITEM headers ${files})
      list(REMOVE_DUPLICATES headers)
      list(APPEND files ${headers})
      set(next ${headers})
    endwhile()
    set(found "")
    foreach(file IN LISTS files)
      file(STRINGS ${file} lines REGEX "${foreign}" LIMIT_COUNT 1)
      list(APPEND found ${lines})
    endforeach()
    if(NOT found)
      list(APPEND kept ${source})
    endif()
  endforeach()
  set(${variable} ${kept} PARENT_SCOPE)
endfunction()

# verdalis_tests(NAME [LINKS layer...] [LIBS target...])
# Creates the test program test_NAME from all sources in tests/NAME/, and those in its folder posix or windows. It links
# only the given layers. Each test is a CTest entry, so that failures are readable and CTest can use every core.
function(verdalis_tests name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;LIBS")
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${name}/*.cpp)
  if(WIN32)
    verdalis_remove_system_tests(sources)
  endif()
  if(NOT sources)
    return()
  endif()
  if(WIN32)
    set(drive Z:) # where Wine shows the files of this machine
    file(GLOB helpers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${name}/windows/*.cpp)
  else()
    file(GLOB helpers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${name}/posix/*.cpp)
  endif()
  add_executable(test_${name} ${sources} ${helpers})
  verdalis_use_source()
  target_link_libraries(test_${name} PRIVATE verdalis_flags GTest::gmock_main ${VERDALIS_PROPERTIES} ${arg_LIBS})
  target_compile_definitions(test_${name} PRIVATE
    VERDALIS_SOURCE_DIR="${drive}${CMAKE_SOURCE_DIR}" VERDALIS_BINARY_DIR="${drive}${CMAKE_BINARY_DIR}")
  foreach(link IN LISTS arg_LINKS)
    target_link_libraries(test_${name} PRIVATE verdalis_${link})
  endforeach()
  if(WIN32)
    add_test(NAME ${name} COMMAND test_${name})
    return()
  endif()
  gtest_discover_tests(test_${name} TEST_PREFIX "${name}." PROPERTIES TIMEOUT 300 DISCOVERY_TIMEOUT 60)
endfunction()
