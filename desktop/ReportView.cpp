#include "desktop/ReportView.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/Keys.h"
#include "desktop/Page.h"
#include "desktop/PageView.h"

namespace verdalis::desktop {

QWidget* reportWindow(frmReport& window, Binder& binder, QWidget* parent) {
  auto* widget = new QWidget(parent, Qt::Dialog);
  widget->setWindowModality(Qt::WindowModal);  // the report is about the farm that is on screen
  auto* body = new QVBoxLayout(widget);
  body->setContentsMargins(24, 20, 24, 18);
  body->setSpacing(12);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(24);
  auto* choices = new QVBoxLayout;
  choices->setSpacing(6);
  choices->addWidget(fixedLabel(QObject::tr("Parts of the report"), "title"));
  for (const auto& box : window.chkPart)
    choices->addWidget(binder.bind(*box, new QCheckBox));
  choices->addSpacing(12);
  choices->addWidget(fixedLabel(QObject::tr("Paper"), "title"));
  choices->addWidget(binder.bind(window.optLetter, new QRadioButton));
  choices->addWidget(binder.bind(window.optA4, new QRadioButton));
  choices->addStretch();
  middle->addLayout(choices);
  auto* preview = new QVBoxLayout;
  preview->setSpacing(8);
  preview->addWidget(binder.bind(window.pages, new PageView, QObject::tr("Preview")), 1);
  auto* turning = new QHBoxLayout;
  turning->addStretch();
  turning->addWidget(binder.bind(window.cmdPrevious, new QPushButton));
  turning->addWidget(binder.bind(window.lblPage, fixedLabel({}, "muted")));
  turning->addWidget(binder.bind(window.cmdNext, new QPushButton));
  turning->addStretch();
  preview->addLayout(turning);
  middle->addLayout(preview, 1);
  body->addLayout(middle, 1);
  body->addWidget(wrapped(binder, window.lblSaved, "muted"));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* close = binder.bind(window.cmdClose, new QPushButton);
  close->setShortcut(QKeySequence(Qt::Key_Escape));
  buttons->addWidget(close);
  buttons->addWidget(binder.bind(window.cmdPrint, new QPushButton));
  auto* save = new QPushButton;
  setRole(save, "main");
  buttons->addWidget(binder.bind(window.cmdSavePdf, save));
  body->addLayout(buttons);
  assignKeys(widget);
  widget->resize(scaled(900), scaled(820));
  binder.bindWindow(window, widget);
  return widget;
}

}  // namespace verdalis::desktop
