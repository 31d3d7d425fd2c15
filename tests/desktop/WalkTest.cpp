#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "controls/Grid.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

class Walk : public RunningDesktop {
 protected:
  /// Visits every control of the existing windows, including frames.
  void forEach(const Frame& frame, const std::function<void(Control&)>& visit) {
    for (Control* control : frame.controls()) {
      visit(*control);
      if (const auto* inner = dynamic_cast<Frame*>(control)) forEach(*inner, visit);
    }
  }

  void forEachControl(const std::function<void(Control&)>& visit) {
    program().windows.updating();
    program().windows.help();
    program().windows.notes();
    for (const Window* window : program().desk.windows())
      forEach(*window, visit);
  }

  [[nodiscard]] QString accessibleName(Control& control) {
    if (QAction* action = desktop().binder().action(control)) return action->text();
    QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(desktop().binder().widget(control));
    return shown == nullptr ? QString() : shown->text(QAccessible::Name);
  }
};

TEST_F(Walk, EveryControlHasAWidgetWithItsName) {
  start();
  int seen = 0;
  forEachControl([&](Control& control) {
    ++seen;
    const QObject* shown = desktop().binder().action(control);
    if (shown == nullptr) shown = desktop().binder().widget(control);
    ASSERT_NE(shown, nullptr) << control.path();
    EXPECT_EQ(shown->objectName().toStdString(), control.path());
  });
  EXPECT_GT(seen, 250);
}

TEST_F(Walk, EveryInputControlHasAnAccessibleName) {
  start();
  forEachControl([&](Control& control) {
    switch (control.kind()) {
      case ControlKind::Label:
      case ControlKind::Frame:
      case ControlKind::Image:
        return;
      default:
        EXPECT_FALSE(accessibleName(control).isEmpty()) << control.path();
    }
  });
}

TEST_F(Walk, WidgetsFollowTheEnabledAndVisibleStates) {
  start();
  forEachControl([&](Control& control) {
    QWidget* shown = desktop().binder().widget(control);
    if (shown == nullptr || control.kind() == ControlKind::Frame || shown->inherits("QMenu")) return;
    const bool enabled = control.enabled();
    const bool visible = control.visible();
    control.setEnabled(!enabled);
    control.setVisible(false);
    EXPECT_TRUE(shown->isHidden()) << control.path();
    control.setVisible(true);
    EXPECT_FALSE(shown->isHidden()) << control.path();
    EXPECT_EQ(shown->testAttribute(Qt::WA_ForceDisabled), enabled) << control.path();
    control.setEnabled(enabled);
    control.setVisible(visible);
  });
}

TEST_F(Walk, TextsAreSynchronizedBothWays) {
  start();
  forEachControl([&](Control& control) {
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
      if (auto* lines = qobject_cast<QPlainTextEdit*>(desktop().binder().widget(control))) {
        box->setText("7.5\n8");
        EXPECT_EQ(lines->toPlainText(), QStringLiteral("7.5\n8")) << control.path();
        lines->clear();
        EXPECT_EQ(box->text(), "") << control.path();
        return;
      }
      auto* field = qobject_cast<QLineEdit*>(desktop().binder().widget(control));
      box->setText("7.5");
      EXPECT_EQ(field->text(), QStringLiteral("7.5")) << control.path();
      field->clear();
      emit field->textEdited(QString());
      EXPECT_EQ(box->text(), "") << control.path();
    }
    if (auto* label = dynamic_cast<Label*>(&control)) {
      label->setCaption("A && B");
      EXPECT_EQ(qobject_cast<QLabel*>(desktop().binder().widget(control))->text(), QStringLiteral("A & B"))
          << control.path();
    }
    if (auto* check = dynamic_cast<CheckBox*>(&control)) {
      auto* box = qobject_cast<QCheckBox*>(desktop().binder().widget(control));
      check->setChecked(true);
      EXPECT_TRUE(box->isChecked()) << control.path();
      check->setChecked(false);
      EXPECT_FALSE(box->isChecked()) << control.path();
    }
  });
}

TEST_F(Walk, TheTabOrderFollowsTheReadingOrder) {
  start();
  std::vector<std::string> order;
  const QWidget* first = widget("txtArea");
  for (QWidget* next = first->nextInFocusChain(); next != first; next = next->nextInFocusChain()) {
    if (next->isVisibleTo(window()) && (next->focusPolicy() & Qt::TabFocus) != 0 &&
        next->window() == window() && !next->objectName().isEmpty() &&
        !next->objectName().startsWith(QLatin1String("qt_"))) {
      order.push_back(next->objectName().toStdString());
    }
  }
  const auto place = [&](const char* name) {
    return std::find(order.begin(), order.end(), name) - order.begin();
  };
  const std::vector<const char*> reading{"txtMax",        "txtAnnRain",    "txtEff",        "txtSoil",
                                         "Option1(0)",    "Option1(5)",    "chkNoSplit",    "Check1",
                                         "cr(0).chkCrop", "cr(1).chkCrop", "cr(6).chkCrop", "Command8",
                                         "Command7",      "txtArraySize",  "Command1"};
  for (std::size_t i = 0; i + 1 < reading.size(); ++i) {
    EXPECT_LT(place(reading[i]), place(reading[i + 1])) << reading[i] << " before " << reading[i + 1];
  }
  EXPECT_NE(place("Command1"), static_cast<long>(order.size()));
}

TEST_F(Walk, TheTabOrderOfAFormFollowsItsLines) {
  start();
  typeFarm();
  QTest::mouseClick(widget("cr(1).cmdInputCosts"), Qt::LeftButton);
  ASSERT_EQ(pane(), "pneInputCosts");
  window()->activateWindow();
  widget("txtNitrogenApplied")->setFocus(Qt::TabFocusReason);
  for (const char* next : {"txtNitrogenCost", "chkNOptimal", "cmdHelp(22)", "txtPApplied", "txtPCost",
                           "chkPOptimal", "cmdHelp(23)", "txtSeedRate", "txtSeedCost", "chkSeedOptimal",
                           "cmdHelp(24)", "txtHerbicide", "txtInsecticide"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::qWait(0);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QString::fromUtf8(next));
  }
}

}  // namespace
}  // namespace verdalis::testing
