#pragma once

#include <QColor>
#include <QDBusVariant>
#include <QObject>
#include <QPalette>
#include <QString>

class QApplication;

namespace verdalis::desktop {

enum class Scheme { light, dark };

/// The scheme of the desktop: what its settings portal says where that can be asked, else that of the palette
/// which the platform has set.
[[nodiscard]] Scheme desktopScheme(const QPalette& platformPalette);

/// The scheme of a palette.
[[nodiscard]] Scheme schemeOf(const QPalette& palette);

/// The program's colours in a scheme.
[[nodiscard]] QPalette palette(Scheme scheme);

/// Gives the program its style, its colours and its style sheet. May be called again when the scheme changes.
void applyTheme(QApplication& application, Scheme scheme);

/// Changes the program's colours when the desktop's settings portal tells another scheme. Without a portal
/// nothing happens.
class SchemeWatcher : public QObject {
  Q_OBJECT

 public:
  /// `platform` is the scheme of the palette that the platform had set, for a desktop without a preference.
  /// The application must outlive this.
  SchemeWatcher(QApplication& application, Scheme platform);

 public slots:
  /// What the portal tells of a setting.
  void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);

 private:
  QApplication& application_;
  Scheme platform_;
};

/// Colours beside those of the palette, chosen to be read on its window colour.
struct Accents {
  QColor brand;      ///< Headings, the main button
  QColor brandText;  ///< On the brand colour
  QColor card;       ///< Ground of a group
  QColor line;       ///< Borders
  QColor muted;      ///< Notes and units
  QColor warning;    ///< A field that has failed its test
  QColor activeRow;  ///< Behind a ticked crop
  QColor field;      ///< Land of a land split picture
  QColor water;
};
[[nodiscard]] Accents accents(Scheme scheme);

}  // namespace verdalis::desktop
