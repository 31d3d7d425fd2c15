#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/Event.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "screens/fieldHints.h"

namespace verdalis {

/// Tells how the numbers of a page are read, where that is not what they look like, while they are typed. A
/// label shows the first hint.
class PageHints {
 public:
  /// Both must outlive this object.
  PageHints(Frame& page, Label& label);

  /// Follows a field. `what` is its name in a sentence; `isWhole` as for readingHint().
  void add(const TextBox& box, const std::string& what, bool isWhole = false);

  /// The hints of the fields on show.
  [[nodiscard]] const std::vector<FieldHint>& hints() const { return hints_; }

  /// Looks at the fields that have changed. Called after each action of the user on the page.
  void refresh();

  Event<> onHints;  ///< The hints are others than before

 private:
  struct Followed {
    const TextBox* box = nullptr;
    std::string what;
    bool isWhole = false;
    std::string text;  ///< To which the hint belongs
    std::optional<std::string> hint;
  };

  Frame& page_;
  Label& label_;
  std::vector<Followed> fields_;
  std::vector<FieldHint> hints_;
  Connection acts_;
};

}  // namespace verdalis
