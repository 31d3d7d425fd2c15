#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "controls/Control.h"
#include "controls/services.h"
#include "data/writeFile.h"

namespace verdalis {

/// Replaces a file by these bytes.
/// \throws RunTimeError
using FileWriter = std::function<void(const std::filesystem::path&, std::string_view)>;

/// Asks for a file, starting in `folder`, writes the text that `write` appends, and offers to open the file.
/// If `write` or the file fails, shows a message; the file then contains the text up to the error, if it
/// could be written.
void exportForSpreadsheet(Desk& desk, Services& services, const std::filesystem::path& folder,
                          const std::function<void(std::string&)>& write,
                          const FileWriter& writer = &verdalis::writeFile);

}  // namespace verdalis
