#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "controls/Control.h"
#include "controls/services.h"
#include "data/writeFile.h"

namespace verdalis {

/// Puts bytes in the place of a file. \throws RunTimeError
using FileWriter = std::function<void(const std::filesystem::path&, std::string_view)>;

/// Asks for a file, fills it with what `write` appends to a text, tells the user, and opens the file if that
/// is wished. Where the file or the text fails, the user is told, and the text as far as it came is in the
/// file. `folder` is where the chooser begins.
void exportForSpreadsheet(Desk& desk, Services& services, const std::filesystem::path& folder,
                          const std::function<void(std::string&)>& write,
                          const FileWriter& writer = &verdalis::writeFile);

}  // namespace verdalis
