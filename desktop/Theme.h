#pragma once

#include <QColor>
#include <QDBusVariant>
#include <QObject>
#include <QPalette>
#include <QString>

class QApplication;

namespace verdalis::desktop {

enum class Scheme { light, dark };

/// The colour scheme of the desktop: from its settings portal if available, else from the palette set by the
/// platform.
[[nodiscard]] Scheme desktopScheme(const QPalette& platformPalette);

/// Whether a palette is light or dark.
[[nodiscard]] Scheme schemeOf(const QPalette& palette);

/// The program's colours for a scheme.
[[nodiscard]] QPalette palette(Scheme scheme);

/// Sets the program's style, colours and style sheet. Can be called again when the scheme changes.
void applyTheme(QApplication& application, Scheme scheme);

/// Changes the program's colours when the desktop's settings portal reports another scheme. Does nothing
/// without a portal.
class SchemeWatcher : public QObject {
  Q_OBJECT

 public:
  /// \param application must outlive this object.
  /// \param platform scheme of the palette set by the platform, for a desktop without a preference.
  SchemeWatcher(QApplication& application, Scheme platform);

 public slots:
  /// Called when the portal reports a changed setting.
  void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);

 private:
  QApplication& application_;
  Scheme platform_;
};

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
