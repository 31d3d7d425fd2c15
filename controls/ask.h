#pragma once

#include <filesystem>
#include <optional>

#include "controls/Control.h"
#include "controls/services.h"

namespace verdalis {

// The one way in which the program asks a person something that must be answered before it goes on. While the
// box or the chooser is open, no window of the desk loses the activation.

/// Shows a message box and waits until it is answered. A notice is answered, too.
/// \returns the answer.
MessageAnswer ask(Desk& desk, MessageBoxService& messageBox, const Message& message);

/// Asks for a file to read.
/// \returns its path; nothing when the person cancels.
[[nodiscard]] std::optional<std::filesystem::path> askToOpen(Desk& desk, FileChooserService& fileChooser,
                                                             const FileQuestion& question);

/// Asks for a file to write.
/// \returns its path; nothing when the person cancels.
[[nodiscard]] std::optional<std::filesystem::path> askToSave(Desk& desk, FileChooserService& fileChooser,
                                                             const FileQuestion& question);

}  // namespace verdalis
