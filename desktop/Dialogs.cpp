#include "desktop/Dialogs.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/Keys.h"
#include "desktop/LandSplitPicture.h"
#include "desktop/Theme.h"

namespace verdalis::desktop {
namespace {

struct Shell {
  QWidget* widget;
  QVBoxLayout* body;
};

Shell shell(QWidget* parent, int width) {
  auto* widget = new QWidget(parent, Qt::Dialog);
  widget->setFixedWidth(scaled(width));
  auto* body = new QVBoxLayout(widget);
  body->setContentsMargins(24, 20, 24, 18);
  body->setSpacing(12);
  return {widget, body};
}

/// The program's emblem: a divided farm, in the colours of the scheme.
class Emblem : public QLabel {
 public:
  explicit Emblem(std::vector<double> percentages) : percentages_(std::move(percentages)) { draw(); }

 protected:
  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) draw();
  }

 private:
  void draw() { setPixmap(landSplitPicture(percentages_, schemeOf(palette())).pixmap(landSplitPictureSize)); }

  std::vector<double> percentages_;
};

}  // namespace

QWidget* optionsWindow(frmOptions& window, Binder& binder, QWidget* parent) {
  const Shell made = shell(parent, 560);
  made.body->addWidget(sizedLabel(fixedLabel(QString::fromLatin1(frmOptions::heading), "heading")));
  auto* line = new QHBoxLayout;
  auto* label = fixedLabel({}, "title");
  auto* field = binder.bind(window.txtFineFactor, numberField(6), plain(window.Label2.caption()));
  label->setBuddy(field);
  line->addWidget(binder.bind(window.Label2, label));
  line->addWidget(field);
  auto* help = new QPushButton;
  setRole(help, "help");
  line->addWidget(binder.bind(window.cmdHelp, help, QObject::tr("Help: Irrigation Iteration Factor")));
  line->addStretch();
  made.body->addLayout(line);
  made.body->addWidget(wrapped(binder, window.Label1));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* cancel = binder.bind(window.cmdCancel, new QPushButton);
  cancel->setShortcut(QKeySequence(Qt::Key_Escape));
  buttons->addWidget(cancel);
  auto* apply = new QPushButton;
  setRole(apply, "main");
  buttons->addWidget(binder.bind(window.cmdApply, apply));
  made.body->addLayout(buttons);
  addShortcut(binder, made.widget, QKeySequence(Qt::Key_F1), window.cmdHelp);
  assignKeys(made.widget);
  fitHeight(made.widget, made.widget->width());
  binder.bindWindow(window, made.widget);
  return made.widget;
}

QWidget* notesWindow(frmNotes& window, Binder& binder, QWidget* parent) {
  const Shell made = shell(parent, 560);
  made.widget->setWindowModality(Qt::WindowModal);  // the texts belong to the farm that is on screen
  const auto add = [&](Label& label, QWidget* field) {
    auto* group = new QVBoxLayout;
    group->setSpacing(4);
    auto* text = fixedLabel({}, "title");
    text->setBuddy(field);
    group->addWidget(binder.bind(label, text));
    group->addWidget(field);
    made.body->addLayout(group);
  };
  auto* name = binder.bind(window.txtFarmName, new QLineEdit, plain(window.lblFarmName.caption()));
  add(window.lblFarmName, name);
  auto* notes = binder.bind(window.txtNotes, new QPlainTextEdit, plain(window.lblNotes.caption()));
  notes->setTabChangesFocus(true);
  constexpr int lines = 9;
  notes->setMinimumHeight(notes->fontMetrics().lineSpacing() * lines + scaled(16));
  add(window.lblNotes, notes);
  add(window.lblLetterhead,
      binder.bind(window.txtLetterhead, new QLineEdit, plain(window.lblLetterhead.caption())));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* cancel = binder.bind(window.cmdCancel, new QPushButton);
  cancel->setShortcut(QKeySequence(Qt::Key_Escape));
  buttons->addWidget(cancel);
  auto* apply = new QPushButton;
  setRole(apply, "main");
  buttons->addWidget(binder.bind(window.cmdApply, apply));
  made.body->addLayout(buttons);
  // In the notes, Return begins a new line.
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    QObject::connect(new QShortcut(QKeySequence(key), made.widget), &QShortcut::activated, made.widget,
                     [cancel, apply] { (cancel->hasFocus() ? cancel : apply)->click(); });
  }
  assignKeys(made.widget);
  fitHeight(made.widget, made.widget->width());
  binder.bindWindow(window, made.widget);
  binder.alsoWatch(window, [&window, name] {
    if (!window.isOpen()) return;
    name->setFocus(Qt::TabFocusReason);
    name->selectAll();
  });
  return made.widget;
}

QWidget* aboutWindow(frmAbout& window, Binder& binder, QWidget* parent) {
  const Shell made = shell(parent, 460);
  auto* pictures = new QHBoxLayout;
  pictures->addWidget(binder.bind(window.imgBanner, new Emblem({50, 25, 25})));
  pictures->addWidget(sizedLabel(fixedLabel(QStringLiteral("Verdalis"), "heading")));
  pictures->addStretch();
  pictures->addWidget(binder.bind(window.imgLogo, new Emblem({100})));
  made.body->addLayout(pictures);
  made.body->addWidget(binder.bind(window.lblVersion, fixedLabel({}, "title")));
  made.body->addWidget(wrapped(binder, window.lblDisclaimer, "muted"));
  made.body->addWidget(binder.bind(window.lblMoreInfo, fixedLabel({}, "title")));
  made.body->addWidget(wrapped(binder, window.lblContact));
  binder.bindWindow(window, made.widget);
  // The Close button, for the keyboard.
  auto* close = new QPushButton(QObject::tr("Close"));
  close->setShortcut(QKeySequence(Qt::Key_Escape));
  close->setAutoDefault(false);
  QObject::connect(close, &QPushButton::clicked, made.widget, [&window] { window.closeByUser(); });
  auto* line = new QHBoxLayout;
  line->addStretch();
  line->addWidget(close);
  made.body->addLayout(line);
  fitHeight(made.widget, made.widget->width());
  return made.widget;
}

QWidget* efficiencyWindow(frmHelpEff& window, Binder& binder, QWidget* parent) {
  const Shell made = shell(parent, 460);
  auto* table = new QGridLayout;
  table->setVerticalSpacing(6);
  int row = 0;
  for (const SystemEfficiency& system : frmHelpEff::efficiencies) {
    table->addWidget(fixedLabel(plain(system.system)), row, 0);
    auto* figure = fixedLabel(plain(system.efficiency), "figure");
    figure->setAlignment(Qt::AlignRight);
    table->addWidget(figure, row++, 1);
  }
  made.body->addLayout(table);
  auto* line = new QHBoxLayout;
  line->addStretch();
  auto* close = binder.bind(window.Command2, new QPushButton);
  close->setShortcut(QKeySequence(Qt::Key_Escape));
  line->addWidget(close);
  made.body->addLayout(line);
  binder.bindWindow(window, made.widget);
  return made.widget;
}

}  // namespace verdalis::desktop
