#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

class QApplication;

namespace verdalis::desktop {

enum class Scheme { light, dark };

/// Whether a palette is light or dark.
[[nodiscard]] Scheme schemeOf(const QPalette& palette);

/// The program's colours for a scheme.
[[nodiscard]] QPalette palette(Scheme scheme);

/// Sets the program's style, colours and style sheet. Can be called again when the scheme changes.
void applyTheme(QApplication& application, Scheme scheme);

/// Colours in addition to the palette, readable on its window colour.
struct Accents {
  QColor brand;      ///< Headings, the main button
  QColor brandText;  ///< Text on the brand colour
  QColor card;       ///< Background of a group
  QColor line;       ///< Borders
  QColor muted;      ///< Hints and units
  QColor warning;    ///< A field that failed its test
  QColor activeRow;  ///< Background of a ticked crop
  QColor field;      ///< Land in a land split picture
  QColor water;
  QColor changed;      ///< Background of a field that has changed since the last run
  QColor caution;      ///< Background of a notice
  QColor cautionLine;  ///< Border of a notice
  QColor cautionText;  ///< Text of a hint
  QColor scroll;       ///< Handle of a scroll bar
};
[[nodiscard]] Accents accents(Scheme scheme);

/// A text colour of the program (0xRRGGBB, meant for a light background) for a scheme: lighter on a dark one.
[[nodiscard]] QColor textColor(QRgb color, Scheme scheme);

}  // namespace verdalis::desktop
