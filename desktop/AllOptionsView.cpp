#include "desktop/AllOptionsView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/TableView.h"

namespace verdalis::desktop {
namespace {

/// What the table lists: a check box or a list each.
QHBoxLayout* choices(AllOptions& options, Binder& binder) {
  auto* line = new QHBoxLayout;
  line->setSpacing(8);
  line->addWidget(fixedLabel(QObject::tr("All options"), "heading"));
  line->addStretch();
  auto* mixes = binder.bind(options.chkMixes, new QCheckBox);
  mixes->setToolTip(QObject::tr(
      "The best plan of each mix of acres and crops, also of mixes that are not among the options"));
  line->addWidget(mixes);
  line->addSpacing(12);
  auto* fold = binder.bind(options.chkFold, new QCheckBox);
  fold->setToolTip(
      QObject::tr("Plans with the same fields in another order stand as one line, the first of them"));
  line->addWidget(fold);
  line->addSpacing(12);
  line->addWidget(binder.bind(options.lblWith, fixedLabel({})));
  auto* with = binder.bind(options.cboWith, new QComboBox, QObject::tr("Only options with this crop"));
  with->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  line->addWidget(with);
  line->addSpacing(12);
  line->addWidget(binder.bind(options.chkWithin, new QCheckBox));
  auto* percent = binder.bind(options.txtWithin, numberField(4), QObject::tr("Percent behind the best"));
  percent->setToolTip(
      QObject::tr("Options that are no more than this behind the best are marked at the left"));
  line->addWidget(percent);
  auto* unit = fixedLabel(QStringLiteral("%"));
  line->addWidget(unit);
  binder.alsoWatch(options.txtWithin, [&options, unit] { unit->setVisible(options.txtWithin.visible()); });
  return line;
}

}  // namespace

QWidget* allOptionsView(AllOptions& options, Binder& binder) {
  const Card view = card();
  view.body->setSpacing(4);
  view.body->addLayout(choices(options, binder));
  auto* table = binder.bind(options.tblOptions, new TableView, QObject::tr("All options"));
  table->setProperty(firstFocus, true);
  view.body->addWidget(table, 1);
  auto* last = new QHBoxLayout;
  last->addWidget(
      binder.bind(options.lblOptionsNote, fixedLabel({}, "muted"), QObject::tr("What the options tell")));
  last->addStretch();
  auto* copies = binder.bind(options.cmdCopyOptions, new QPushButton);
  copies->setToolTip(QObject::tr("Copy the lines on show, with their headings, for a spreadsheet"));
  last->addWidget(copies);
  view.body->addLayout(last);
  return binder.bind(options, static_cast<QWidget*>(view.frame));
}

}  // namespace verdalis::desktop
