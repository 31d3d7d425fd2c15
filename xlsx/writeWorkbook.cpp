#include "xlsx/writeWorkbook.h"

#include <xlsxwriter.h>

#include "text/RunTimeError.h"

namespace verdalis {

std::string writeWorkbook(const Handout& /*handout*/) {
  throw RunTimeError(ErrorNumber::fileNotFound,
                     std::string("No workbook can be made by libxlsxwriter ") + lxw_version() + ".");
}

}  // namespace verdalis
