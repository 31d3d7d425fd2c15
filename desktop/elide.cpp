#include "desktop/elide.h"

#include <QCheckBox>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionButton>

#include "desktop/Binder.h"

namespace verdalis::desktop {
namespace {

QString wholeTip(const QString& shown, const QString& whole) {
  return shown == whole ? QString() : QStringLiteral("<p>%1</p>").arg(whole.toHtmlEscaped());
}

}  // namespace

void elideName(QCheckBox* box) {
  QStyleOptionButton option;
  option.initFrom(box);
  const int room = box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box).width();
  const QString whole = box->accessibleName();
  const QString shown = box->fontMetrics().elidedText(whole, Qt::ElideRight, room);
  box->setText(widgetCaption(programText(shown)));
  box->setToolTip(wholeTip(shown, whole));
}

void elideTo(int width, QLabel* label, const QString& whole) {
  const QString shown = label->fontMetrics().elidedText(whole, Qt::ElideRight, width);
  label->setText(shown);
  label->setToolTip(wholeTip(shown, whole));
  label->setAccessibleName(whole);
}

}  // namespace verdalis::desktop
