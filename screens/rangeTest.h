#pragma once

#include <optional>
#include <string>

namespace verdalis {

// Range tests of user input. Each returns the message for a refused text, or nothing if the text is accepted.

/// The range test of a text field: refuses a text that is not a number, a negative number, and a number above
/// `limit`. The message begins with `label`. An empty text, "-" and "." are accepted.
[[nodiscard]] std::optional<std::string> rangeFault(const std::string& text, double limit,
                                                    const std::string& label);

}  // namespace verdalis
