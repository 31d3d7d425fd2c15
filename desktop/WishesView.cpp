#include "desktop/WishesView.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace verdalis::desktop {
namespace {

constexpr int wishesInALine = 2;
constexpr int listWidth = 150;
constexpr int amountWidth = 130;

}  // namespace

QWidget* wishesButton(WishesCard& wishes, Binder& binder) {
  auto* place = new QWidget;
  auto* line = new QHBoxLayout(place);
  line->setContentsMargins(0, 0, 0, 0);
  auto* button = binder.bind(wishes.cmdWishes, new QPushButton);
  button->setToolTip(QObject::tr("What every plan must meet"));
  line->addWidget(button);
  return binder.bind(wishes, place);
}

QWidget* wishesView(WishesCard& wishes, Binder& binder) {
  const Card box = card(QObject::tr("Every plan must meet"));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(4);
  int place = 0;
  for (const auto& line : wishes.lines) {
    const int row = place / wishesInALine;
    const int column = place % wishesInALine * 2;
    auto* text = binder.bind(line->lblWish, fixedLabel({}));
    auto* remove =
        binder.bind(line->cmdRemoveWish, new QPushButton, QObject::tr("Remove wish %1").arg(++place));
    setRole(remove, "link");
    binder.alsoWatch(line->lblWish, [&line = *line, remove] {
      remove->setAccessibleName(QObject::tr("Remove %1").arg(qText(line.lblWish.caption())));
    });
    grid->addWidget(text, row, column);
    grid->addWidget(remove, row, column + 1, Qt::AlignLeft);
    grid->setColumnStretch(column + 1, 1);
  }
  box.body->addLayout(grid);
  auto* another = new QHBoxLayout;
  another->setSpacing(8);
  const auto addList = [&](ComboBox& control, const QString& name, int width) {
    auto* list = new QComboBox;
    list->setFixedWidth(scaled(width));
    another->addWidget(binder.bind(control, list, name));
  };
  addList(wishes.cboWishOf, QObject::tr("Wish for"), listWidth);
  addList(wishes.cboWishHow, QObject::tr("How"), amountWidth);
  addList(wishes.cboWishWhat, QObject::tr("How much, or which crop"), listWidth);
  another->addWidget(binder.bind(wishes.lblWishUnit, fixedLabel({}, "muted")));
  another->addWidget(binder.bind(wishes.cmdAddWish, new QPushButton));
  another->addStretch();
  box.body->addLayout(another);
  box.body->addWidget(wrapped(binder, wishes.lblWishFault, "caution"));
  binder.bind(wishes.wishesBox, box.frame);
  return box.frame;
}

}  // namespace verdalis::desktop
