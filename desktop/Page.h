#pragma once

#include <QSize>
#include <QString>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

#include "controls/HelpButtons.h"
#include "desktop/Binder.h"
#include "screens/FieldTable.h"

class QFrame;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QScrollArea;
class QVBoxLayout;
class QWidget;

namespace verdalis::desktop {

/// Building blocks shared by all panes.

/// A caption as plain text: a doubled ampersand becomes one.
[[nodiscard]] QString plain(std::string_view caption);

/// A label with a fixed text and an optional role in the style sheet ("heading", "title", "column", "muted",
/// "figure").
[[nodiscard]] QLabel* fixedLabel(const QString& text, const char* role = nullptr);

/// A label bound to the program, with word wrap.
[[nodiscard]] QLabel* wrapped(Binder& binder, Label& label, const char* role = nullptr);

/// A group on a pane: a box with a heading.
struct Card {
  QFrame* frame;
  QVBoxLayout* body;
};
[[nodiscard]] Card card(const QString& heading = {}, QWidget* besideHeading = nullptr);

/// A page with centred contents that scrolls if the window is too small.
/// \param width maximum width of the contents, in pixels at the default font size.
struct Page {
  QScrollArea* area;
  QVBoxLayout* body;
};
[[nodiscard]] Page page(int width);

/// Converts a length in pixels at the default font size to the font size of the desktop.
[[nodiscard]] int scaled(int pixels);

/// Gives all columns of a grid a minimum width, so that empty columns count for the spacing too. Grids with
/// the same columns then line up.
/// \param row a row that nothing else uses.
/// \param widths minimum widths, in pixels at the default font size.
void holdColumns(QGridLayout* grid, int row, std::span<const int> widths);

/// Default maximum width of a page's contents, in pixels at the default font size.
inline constexpr int pageWidth = 1180;

/// A page like page(), with buttons below it that stay visible.
struct PageWithButtons {
  QWidget* widget;
  QScrollArea* area;
  QVBoxLayout* body;
  QHBoxLayout* buttons;
};
[[nodiscard]] PageWithButtons pageWithButtons(int width = pageWidth);

/// A row for buttons below a page; stays visible while the page scrolls.
/// \param width maximum width of the row, in pixels at the default font size; nothing for the whole window.
[[nodiscard]] QHBoxLayout* footerOf(QVBoxLayout* layout, std::optional<int> width = {});

/// Adds contents in the middle of a line, with a maximum width as above.
void addCentred(QHBoxLayout* line, QWidget* content, std::optional<int> width);

/// A page for a pane with a single composite control.
[[nodiscard]] QWidget* inPane(QWidget* control);

/// Scales the font of a label. The default factor is for page headings.
QLabel* sizedLabel(QLabel* label, double factor = 1.4);

/// A right-aligned label for a number.
[[nodiscard]] QLabel* figureLabel(const char* role = nullptr);

/// Sets the style sheet role of a widget.
void setRole(QWidget* widget, const char* role);

/// A right-aligned field for a number, `characters` digits wide.
[[nodiscard]] QLineEdit* numberField(int characters = 10);

/// Property of a widget, of type bool: it gets the focus when its page is opened.
inline constexpr const char* firstFocus = "firstFocus";

/// Fixes the height of a window with wrapped texts to what they need at this width, whatever the screen size.
void fitHeight(QWidget* window, int width);

/// The size of a numberField().
[[nodiscard]] QSize numberFieldSize(int characters = 10);

/// Makes F1 on a widget, or inside it, open the help of the "?" button at this index. A button without help
/// is ignored.
void setHelp(QWidget* widget, const HelpButtons& buttons, int index);

/// The "?" button at an index on a pane, bound and named after what it explains.
[[nodiscard]] QPushButton* helpButton(Binder& binder, const HelpButtons& buttons, int index,
                                      const QString& what);

}  // namespace verdalis::desktop
