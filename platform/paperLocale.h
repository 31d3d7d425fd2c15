#pragma once

#include <string>

namespace verdalis {

/// The locale that says on which paper this user writes, such as "de_DE.UTF-8"; empty if none is set.
[[nodiscard]] std::string paperLocale();

}  // namespace verdalis
