#pragma once

#include <QString>
#include <string>

class QAbstractButton;
class QAction;
class QMenu;
class QWidget;

class QKeySequence;

namespace verdalis {
class Button;
class Control;
}  // namespace verdalis

namespace verdalis::desktop {

class Binder;

/// Gives every control on a page a unique key. A button, check box or labelled field gets Alt with a letter
/// that is underlined in its text. Controls without a free letter get Alt+Shift with a letter that their tool
/// tip shows. Repeated rows get no key, because Tab and the arrow keys reach them; "?" buttons get none
/// either, because F1 opens their help.
/// \param taken letters used by the menu bar.
void assignKeys(QWidget* page, const QString& taken = {});

/// Gives each menu entry a letter.
void assignKeys(QMenu* menu);

/// Adds a key that presses a button while its page is visible. Bind the button first.
void addShortcut(Binder& binder, QWidget* view, const QKeySequence& keys, Button& button);

/// Shows a caption on a button, with the letter assigned to the button underlined.
void showCaption(QAbstractButton* button, const std::string& caption);

/// The same for a menu entry.
void showCaption(QAction* entry, const std::string& caption);

/// Makes F1 on a widget, or inside it, open the help of this "?" button.
void setHelp(QWidget* widget, const Control* button);

/// The "?" button that F1 presses if the widget has the focus; nullptr if there is none.
[[nodiscard]] const Control* helpOf(const QWidget* widget);

}  // namespace verdalis::desktop
