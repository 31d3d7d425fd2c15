#include "handout/limitRows.h"

#include <string>

#include "text/numbers.h"

namespace verdalis {

void limitRows(HandoutSection& section, std::optional<std::size_t> most, std::string_view what) {
  if (!most) return;
  const auto count = [](std::size_t number) { return formatNumber(static_cast<double>(number), "###,##0"); };
  for (HandoutTable& table : section.tables) {
    if (table.rows.size() <= *most) continue;
    section.paragraphs.push_back("The first " + count(*most) + " of " + count(table.rows.size()) + " " +
                                 std::string(what) + ".");
    table.rows.resize(*most);
  }
}

}  // namespace verdalis
