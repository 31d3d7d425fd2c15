# Generates the yield tables of the stock crops as C++ from the crop files in crops/.
#
# When included, it defines verdalis_stock_grids(TARGET), which adds the generated source to a target of the current
# folder. The source is generated again if a crop file changes. When run with -P, it writes the source:
#   cmake -DCROPS=folder -DOUTPUT=file -P StockGrids.cmake

if(NOT CMAKE_SCRIPT_MODE_FILE)
  set(VERDALIS_STOCK_GRIDS_SCRIPT ${CMAKE_CURRENT_LIST_FILE})

  function(verdalis_stock_grids target)
    file(GLOB crops CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/crops/*.txt)
    set(output ${CMAKE_BINARY_DIR}/generated/StockGrids.cpp)
    add_custom_command(OUTPUT ${output}
      COMMAND ${CMAKE_COMMAND} -DCROPS=${CMAKE_SOURCE_DIR}/crops -DOUTPUT=${output}
              -P ${VERDALIS_STOCK_GRIDS_SCRIPT}
      DEPENDS ${crops} ${VERDALIS_STOCK_GRIDS_SCRIPT}
      COMMENT "Generating the yield tables from the crop files"
      VERBATIM)
    target_sources(${target} PRIVATE ${output})
  endfunction()
  return()
endif()

# line_of(FILE KEY VARIABLE): the text after "KEY=", from the only line in the file that starts with it.
function(line_of file key variable)
  file(STRINGS ${file} lines REGEX "^${key}=")
  list(LENGTH lines count)
  if(NOT count EQUAL 1)
    message(FATAL_ERROR "${file} has ${count} lines that begin with ${key}=")
  endif()
  string(REGEX REPLACE "^${key}=" "" text "${lines}")
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

file(GLOB crops ${CROPS}/*.txt)
list(SORT crops)
list(LENGTH crops count)
set(rows "")
foreach(file IN LISTS crops)
  line_of("${file}" CROP name)
  line_of("${file}" ANNUAL_RAIN rain)
  line_of("${file}" EFF_IRRIG irrigation)
  line_of("${file}" YIELD_VALUES values)
  string(REGEX REPLACE ",.*" "" first "${rain}")
  string(REGEX REPLACE ".*," "" last "${rain}")
  string(REGEX REPLACE ".*," "" most "${irrigation}")
  string(APPEND rows "    {\"${name}\", \"${first}\", \"${last}\", \"${most}\",\n     \"${values}\"},\n")
endforeach()

file(WRITE ${OUTPUT} "// Generated from the crop files by cmake/StockGrids.cmake. Edit the crop files instead.
#include \"data/StockGrids.h\"

#include <array>

namespace verdalis {
namespace {

constexpr std::array<StockGrid, ${count}> grids{{
${rows}}};

}  // namespace

std::span<const StockGrid> stockGrids() {
  return grids;
}

}  // namespace verdalis
")
