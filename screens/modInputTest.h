#pragma once

#include <string>

#include "controls/inputs.h"
#include "controls/services.h"

namespace verdalis {

/// The range test of a text field that a person leaves: what rangeFault() finds is told, the text goes back
/// to what it was before it was edited, and the focus comes back to the field. A control that is not there
/// passes. It blocks nothing.
void testInput(TextBox* control, double limit, const std::string& label, MessageBoxService& messageBox);

/// Tells the message, takes the last edit of the field back where there is one, and gives the field the
/// focus.
void showInputError(const std::string& message, TextBox& control, MessageBoxService& messageBox);

/// Empties the text fields and combos with free text, of the whole window, whose text is exactly "0". A
/// run-time error of a change that follows is passed over.
void emptyZeroTexts(Frame& window);

/// Empties the text fields and combos with free text that stand on the frame itself, not on a frame in it. A
/// run-time error of a change that follows is passed over.
void emptyTexts(Frame& frame);

}  // namespace verdalis
