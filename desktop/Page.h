#pragma once

#include <QSize>
#include <QString>
#include <functional>
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

/// The building blocks that all panes are laid out with.

/// A caption of the program as plain text: a doubled ampersand is one.
[[nodiscard]] QString plain(std::string_view caption);

/// A label with a fixed text, in one of the style sheet's roles ("heading", "title", "column", "muted",
/// "figure").
[[nodiscard]] QLabel* fixedLabel(const QString& text, const char* role = nullptr);

/// A label of the program whose text wraps.
[[nodiscard]] QLabel* wrapped(Binder& binder, Label& label, const char* role = nullptr);

/// A group of a pane: a ground with a heading.
struct Card {
  QFrame* frame;
  QVBoxLayout* body;
};
[[nodiscard]] Card card(const QString& heading = {}, QWidget* besideHeading = nullptr);

/// A page that scrolls when the window is too small for it, with its contents centred. `width` is the most
/// that they take, in pixels at the usual font size.
struct Page {
  QScrollArea* area;
  QVBoxLayout* body;
};
[[nodiscard]] Page page(int width);

/// A length that was chosen for the usual font size, in pixels, at the size that the desktop has set.
[[nodiscard]] int scaled(int pixels);

/// Makes all columns of a grid take part in its spacing, also those that stand empty in it: so grids with the
/// same columns stand in line. `widths` are their least widths, in pixels at the usual font size; `row` is
/// one that nothing else uses.
void holdColumns(QGridLayout* grid, int row, std::span<const int> widths);

/// The most that a page's contents are wide in a window that leaves more: pixels at the usual font size.
inline constexpr int pageWidth = 1180;

/// A page, as wide as page() says, whose buttons stay in sight below it.
struct PageWithButtons {
  QWidget* widget;
  QScrollArea* area;
  QVBoxLayout* body;
  QHBoxLayout* buttons;
};
[[nodiscard]] PageWithButtons pageWithButtons(int width = pageWidth);

/// The bar of buttons below a page, which stays in sight.
[[nodiscard]] QHBoxLayout* footerOf(QVBoxLayout* layout);

/// The page of a pane that holds one composite control.
[[nodiscard]] QWidget* inPane(QWidget* control);

/// A label in a multiple of the usual font size; that of a page's heading without another one.
QLabel* sizedLabel(QLabel* label, double factor = 1.4);

/// A label for a figure: right-aligned.
[[nodiscard]] QLabel* figureLabel(const char* role = nullptr);

/// Gives a widget a role of the style sheet.
void setRole(QWidget* widget, const char* role);

/// A field for a number: right-aligned, as wide as `characters` digits.
[[nodiscard]] QLineEdit* numberField(int characters = 10);

/// Holds a window of wrapped texts at the height that they need at its width, whatever the size of the
/// screen.
void fitHeight(QWidget* window, int width);

/// The size of such a field.
[[nodiscard]] QSize numberFieldSize(int characters = 10);

/// F1 on a widget, or on what stands inside it, opens what the "?" button of this index opens. One that
/// opens nothing is passed over.
void setHelp(QWidget* widget, const HelpButtons& buttons, int index);

/// The "?" button of an index on a pane, bound and named for what it explains.
[[nodiscard]] QPushButton* helpButton(Binder& binder, const HelpButtons& buttons, int index,
                                      const QString& what);

}  // namespace verdalis::desktop
