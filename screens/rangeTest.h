#pragma once

#include <optional>
#include <string>

namespace verdalis {

// The tests of what a person enters, on the text alone. Each returns the message that refuses the text, or
// nothing for one that passes.

/// The range test of a text field: a text that is no number, a negative number and one above `limit` are
/// refused, with a message that begins with `label`. An empty text, "-" and "." pass.
[[nodiscard]] std::optional<std::string> rangeFault(const std::string& text, double limit,
                                                    const std::string& label);

}  // namespace verdalis
