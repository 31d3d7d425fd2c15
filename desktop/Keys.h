#pragma once

#include <QString>
#include <string>

class QAbstractButton;
class QMenu;
class QWidget;

class QKeySequence;

namespace verdalis {
class Button;
class Control;
}  // namespace verdalis

namespace verdalis::desktop {

class Binder;

/// Gives everything that a person can use on a page a key that nothing else on it has: a button, a switch or
/// a labelled field the letter that is underlined in its text, pressed with Alt; whatever is left over a
/// letter pressed with Alt and Shift, which its tool tip tells. The repeated rows go by Tab and the arrows,
/// and F1 stands for the "?" buttons; they get none. `taken` are the letters of the menu bar.
void assignKeys(QWidget* page, const QString& taken = {});

/// Gives each entry of a menu a letter.
void assignKeys(QMenu* menu);

/// A key that presses a button while its page is on show. The button is bound before.
void addShortcut(Binder& binder, QWidget* view, const QKeySequence& keys, Button& button);

/// Shows a caption of the program on a button, with the letter that the button has been given.
void showCaption(QAbstractButton* button, const std::string& caption);

/// F1 on a widget, or on what stands inside it, opens what this "?" button opens.
void setHelp(QWidget* widget, const Control* button);

/// The "?" button that F1 presses when the focus is on a widget; nullptr without one.
[[nodiscard]] const Control* helpOf(const QWidget* widget);

}  // namespace verdalis::desktop
