#include "cli/workbook.h"

#include <iostream>

#include "cli/Messages.h"
#include "cli/OptionsWriter.h"
#include "platform/terminal.h"

namespace verdalis {

const std::vector<std::string>& formatsWithWorkbook() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> list = optionsFormats();
    list.emplace_back(workbookFormat);
    return list;
  }();
  return names;
}

bool isTerminal(const std::ostream& out) {
  return &out == &std::cout && verdalis::isTerminal(StandardStream::out);
}

void requirePlaceFor(std::string_view format, const std::optional<std::string>& output,
                     const std::ostream& out) {
  if (format != workbookFormat || output || !isTerminal(out)) return;
  throw Refusal("--format xlsx: A workbook is not for a terminal. Name a file with --output FILE.");
}

}  // namespace verdalis
