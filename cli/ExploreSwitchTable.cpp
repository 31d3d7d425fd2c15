#include "cli/ExploreSwitchTable.h"

#include <ostream>

#include "cli/TextTable.h"

namespace verdalis {

void writeSwitchTable(std::ostream& out, const SwitchAnswer& answer) {
  const SwitchTexts texts = switchTexts(answer);
  out << wrapped(texts.heading) << "\n\n";
  for (const SwitchTexts::Segment& segment : texts.segments) {
    out << wrapped(segment.range + (segment.isNow ? " (now): " : ": ") + segment.plan + "; net return " +
                       segment.profit + ".",
                   4)
        << '\n';
  }
  out << '\n'
      << wrapped(
             "Between two values the plan stays the best of all; where it changes is found exactly, not by "
             "trying values. Inches are gross: what is pumped. Net returns to land, management, and "
             "irrigation equipment.")
      << '\n';
}

}  // namespace verdalis
