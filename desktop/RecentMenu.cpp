#include "desktop/RecentMenu.h"

#include <QAction>
#include <QFontMetrics>
#include <QMenu>

#include "desktop/Page.h"

namespace verdalis::desktop {
namespace {

constexpr int mostWidth = 460;  // of a path, in pixels at the default font size

}  // namespace

QMenu* addRecentMenu(QMenu* file, MainMenus& menus, Binder& binder) {
  QMenu* recent = file->addMenu(widgetCaption(menus.mnuOpenRecent.caption()));
  recent->setToolTipsVisible(true);
  binder.bind(menus.mnuOpenRecent, recent);
  for (std::size_t i = 0; i < menus.mnuRecent.size(); ++i) {
    MenuEntry& entry = *menus.mnuRecent[i];
    QAction* action = binder.bind(entry, recent->addAction(QString()));
    binder.alsoWatch(entry, [recent, action, &entry, number = QString::number(i + 1)] {
      const QString path = qText(shownCaption(entry.caption()));
      QString shown = recent->fontMetrics().elidedText(path, Qt::ElideMiddle, scaled(mostWidth));
      action->setText(QLatin1Char('&') + number + QLatin1Char(' ') +
                      shown.replace(QLatin1Char('&'), QLatin1String("&&")));
      action->setToolTip(path);
    });
  }
  return recent;
}

}  // namespace verdalis::desktop
