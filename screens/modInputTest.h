#pragma once

#include <string>

#include "controls/inputs.h"
#include "controls/services.h"

namespace verdalis {

/// Tests a text field when the user leaves it. If the text is not a number, negative or above `limit`, it
/// shows a message that begins with `label`, restores the text from before the edit, and moves the focus back
/// to the field. An empty text, "-", "." and a `control` of nullptr pass. A failed test does not stop the
/// action for which the user left the field.
void testInput(TextBox* control, double limit, const std::string& label, MessageBoxService& messageBox);

/// Shows a message, undoes the last edit of the field if there is one, and moves the focus to the field.
void showInputError(const std::string& message, TextBox& control, MessageBoxService& messageBox);

/// Empties all text fields and free-text combo boxes of a window whose text is exactly "0". A run-time error
/// raised by such a change is ignored.
void emptyZeroTexts(Frame& window);

/// Empties all text fields and free-text combo boxes directly on a frame, not those on its inner frames. A
/// run-time error raised by such a change is ignored.
void emptyTexts(Frame& frame);

}  // namespace verdalis
