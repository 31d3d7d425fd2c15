#include "cli/Messages.h"

#include <algorithm>

#include "text/quote.h"

namespace verdalis {

void Messages::tell(std::string_view text) {
  std::string lines = "verdalis-cli: ";
  for (;;) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines += printable(std::string(text.substr(0, end))) + '\n';
    if (end == text.size()) break;
    text.remove_prefix(end + 1);
  }
  err_ << lines << std::flush;
}

}  // namespace verdalis
