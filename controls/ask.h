#pragma once

#include <filesystem>
#include <optional>

#include "controls/Control.h"
#include "controls/services.h"

namespace verdalis {

// Modal questions to the user: all message boxes and file choosers are opened here. While one is open, no
// window of the desk is deactivated.

/// Shows a message box and waits until the user closes it.
/// \returns the answer; `ok` for a box that only informs.
MessageAnswer ask(Desk& desk, MessageBoxService& messageBox, const Message& message);

/// Asks for a file to read.
/// \returns its path; nothing if the user cancels.
[[nodiscard]] std::optional<std::filesystem::path> askToOpen(Desk& desk, FileChooserService& fileChooser,
                                                             const FileQuestion& question);

/// Asks for a file to write.
/// \returns its path; nothing if the user cancels.
[[nodiscard]] std::optional<std::filesystem::path> askToSave(Desk& desk, FileChooserService& fileChooser,
                                                             const FileQuestion& question);

}  // namespace verdalis
