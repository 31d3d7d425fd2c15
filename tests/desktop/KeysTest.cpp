#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <map>
#include <set>

#include "desktop/Keys.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

/// Tests which controls the keyboard reaches, and with which keys.
class Keys : public RunningDesktop {
 protected:
  /// The keys assigned to a widget; empty if there are none.
  [[nodiscard]] static std::vector<QKeySequence> keysOf(QWidget* widget) {
    std::vector<QKeySequence> keys;
    if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
      if (!button->shortcut().isEmpty()) keys.push_back(button->shortcut());
    }
    for (const QLabel* label : widget->window()->findChildren<QLabel*>()) {
      if (label->buddy() == widget) keys.push_back(QKeySequence::mnemonic(label->text()));
    }
    for (const QShortcut* shortcut :
         widget->findChildren<QShortcut*>(QString(), Qt::FindDirectChildrenOnly)) {
      keys.push_back(shortcut->key());
    }
    if (keys.empty() && !widget->accessibleDescription().isEmpty())
      keys.emplace_back(widget->accessibleDescription());
    std::erase_if(keys, [](const QKeySequence& sequence) { return sequence.isEmpty(); });
    return keys;
  }

  /// The controls on a page that need a key: no repeated rows, no "?" buttons.
  [[nodiscard]] static std::vector<QWidget*> usableOn(QWidget* page) {
    std::vector<QWidget*> usable;
    for (QWidget* widget : page->findChildren<QWidget*>()) {
      const bool field = qobject_cast<QLineEdit*>(widget) != nullptr &&
                         qobject_cast<QComboBox*>(widget->parentWidget()) == nullptr;
      const bool kind = field || qobject_cast<QAbstractButton*>(widget) != nullptr ||
                        qobject_cast<QComboBox*>(widget) != nullptr ||
                        qobject_cast<QTableWidget*>(widget) != nullptr ||
                        qobject_cast<QPlainTextEdit*>(widget) != nullptr;
      const QString name = widget->objectName();
      if (!kind || name.isEmpty() || name.startsWith(QLatin1String("qt_")) ||
          name.startsWith(QLatin1String("cr(")) || name.contains(QLatin1String("rh(")) ||
          name.startsWith(QLatin1String("cmdRemoveWish(")) ||
          widget->property("role") == QLatin1String("help")) {
        continue;
      }
      usable.push_back(widget);
    }
    return usable;
  }

  /// Requires that each control has a key, and that controls visible together have different keys.
  void expectKeys(QWidget* page, const std::set<QString>& taken = {}) {
    std::map<QString, QWidget*> owners;
    for (QWidget* widget : usableOn(page)) {
      const std::vector<QKeySequence> keys = keysOf(widget);
      EXPECT_FALSE(keys.empty()) << widget->objectName().toStdString();
      for (const QKeySequence& key : keys) {
        const QString text = key.toString();
        EXPECT_EQ(taken.count(text), 0U) << text.toStdString() << " of a menu";
        const auto [place, isNew] = owners.emplace(text, widget);
        EXPECT_TRUE(isNew) << text.toStdString() << ": " << widget->objectName().toStdString() << " and "
                           << place->second->objectName().toStdString();
      }
    }
  }

  [[nodiscard]] std::set<QString> menuKeys() {
    std::set<QString> keys;
    for (const QAction* title : window()->findChild<QMenuBar*>()->actions()) {
      const QString key = QKeySequence::mnemonic(title->text()).toString();
      EXPECT_FALSE(key.isEmpty()) << title->text().toStdString();
      EXPECT_TRUE(keys.insert(key).second) << key.toStdString();
    }
    return keys;
  }

  void press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus == nullptr ? window() : focus, key, with);
    QTest::qWait(0);
  }
};

TEST_F(Keys, EveryControlOfEveryPaneHasAKey) {
  start();
  const std::set<QString> taken = menuKeys();
  frmMain& main = program().main();
  for (Frame* pane :
       {static_cast<Frame*>(&main.pneMain), static_cast<Frame*>(&main.pneInputCosts),
        static_cast<Frame*>(&main.pneIrrigCosts), &main.pneResults, &main.pneDetails,
        static_cast<Frame*>(&main.pneSummary), static_cast<Frame*>(&main.pneCompare),
        static_cast<Frame*>(&main.pneCustomCrop), static_cast<Frame*>(&main.trends.pneBatchSetup0),
        static_cast<Frame*>(&main.trends.pneBatchSetup1)}) {
    SCOPED_TRACE(pane->name());
    QWidget* page = desktop().binder().widget(*pane);
    ASSERT_NE(page, nullptr);
    EXPECT_FALSE(usableOn(page).empty());
    expectKeys(page, taken);
  }
}

TEST_F(Keys, EveryControlOfTheSmallWindowsHasAKey) {
  expectKeys(widget("frmWelcome"));
  start();
  program().windows.updating();
  program().windows.help();
  program().windows.options();
  program().windows.about();
  program().windows.notes();
  for (const char* name : {"frmUpdating", "frmHelp", "frmOptions", "frmAbout", "frmNotes"}) {
    SCOPED_TRACE(name);
    expectKeys(widget(name));
  }
}

TEST_F(Keys, EveryMenuEntryHasAKey) {
  start();
  for (const QAction* title : window()->findChild<QMenuBar*>()->actions()) {
    if (title->menu() == nullptr) continue;
    std::set<QString> seen;
    for (const QAction* entry : title->menu()->actions()) {
      if (entry->isSeparator()) continue;
      const QString key = QKeySequence::mnemonic(entry->text()).toString();
      EXPECT_FALSE(key.isEmpty()) << entry->text().toStdString();
      EXPECT_TRUE(seen.insert(key).second) << entry->text().toStdString();
    }
  }
}

TEST_F(Keys, AltAndTheLetterFocusesTheFieldOrPressesTheButton) {
  start();
  typeFarm();
  for (const char* name :
       {"txtArea", "txtMax", "txtAnnRain", "txtEff", "txtSoil", "txtArraySize", "txtSize"}) {
    const std::vector<QKeySequence> keys = keysOf(widget(name));
    ASSERT_FALSE(keys.empty()) << name;
    widget("Command8")->setFocus();
    const QKeyCombination combination = keys.front()[0];
    QTest::keyClick(window(), combination.key(), combination.keyboardModifiers());
    EXPECT_TRUE(widget(name)->hasFocus()) << name << ' ' << keys.front().toString().toStdString();
  }
  const QKeyCombination costs = keysOf(widget("Command8")).front()[0];
  QTest::keyClick(window(), costs.key(), costs.keyboardModifiers());
  EXPECT_TRUE(comes([&] { return pane() == std::string("pneIrrigCosts"); }));  // the button is animated first
}

TEST_F(Keys, TheSecondFieldOfALineShowsItsKeyInTheToolTip) {
  start();
  typeFarm();
  RunningDesktop::press("cr(1).cmdInputCosts");
  ASSERT_EQ(pane(), "pneInputCosts");
  QWidget* cost = widget("txtNitrogenCost");
  const std::vector<QKeySequence> keys = keysOf(cost);
  ASSERT_EQ(keys.size(), 1U);
  EXPECT_TRUE(cost->toolTip().contains(keys[0].toString())) << cost->toolTip().toStdString();
  widget("txtTillage")->setFocus();
  QTest::keyClick(window(), keys[0][0].key(), keys[0][0].keyboardModifiers());
  EXPECT_TRUE(cost->hasFocus());
}

TEST_F(Keys, AChangedCaptionKeepsItsLetter) {
  start();
  typeFarm();
  const QKeySequence before = widget<QPushButton>("cmdDefault")->shortcut();
  ASSERT_FALSE(before.isEmpty());
  RunningDesktop::press("cr(1).cmdInputCosts");
  EXPECT_TRUE(widget<QPushButton>("cmdDefault")
                  ->text()
                  .remove(QLatin1Char('&'))
                  .contains(QLatin1String("Load Default Corn Values")));
  EXPECT_EQ(widget<QPushButton>("cmdDefault")->shortcut(), before);
  type("txtTillage", "");
  QTest::keyClick(window(), before[0].key(), before[0].keyboardModifiers());
  EXPECT_TRUE(comes([&] { return widget<QLineEdit>("txtTillage")->text() == QStringLiteral("31.26"); }));
}

TEST_F(Keys, ArrowsMoveThroughTheCropRows) {
  start();
  tick("cr(1).chkCrop");
  tick("cr(3).chkCrop");
  widget("cr(1).txtPrice")->setFocus(Qt::TabFocusReason);
  QTest::qWait(0);
  press(Qt::Key_Down);
  EXPECT_TRUE(widget("cr(2).chkCrop")->hasFocus()) << "the price of a crop that is not ticked takes no focus";
  press(Qt::Key_Down);
  EXPECT_TRUE(widget("cr(3).chkCrop")->hasFocus());
  press(Qt::Key_Up);
  press(Qt::Key_Up);
  EXPECT_TRUE(widget("cr(1).chkCrop")->hasFocus());
  tick("cr(2).chkCrop");
  widget("cr(1).txtPrice")->setFocus(Qt::TabFocusReason);
  QTest::qWait(0);
  press(Qt::Key_Down);
  EXPECT_TRUE(widget("cr(2).txtPrice")->hasFocus());
  press(Qt::Key_PageUp);
  EXPECT_TRUE(widget("cr(0).chkCrop")->hasFocus());
  press(Qt::Key_Up);
  EXPECT_TRUE(widget("cr(0).chkCrop")->hasFocus()) << "the first row";
  press(Qt::Key_PageDown);
  EXPECT_TRUE(widget("cr(6).chkCrop")->hasFocus()) << "the last row";
}

TEST_F(Keys, TheFocusedControlIsAlwaysVisible) {
  start();
  window()->resize(window()->minimumSize());
  QTest::qWait(0);
  const auto inSight = [] { return !QApplication::focusWidget()->visibleRegion().isEmpty(); };
  widget("cr(0).chkCrop")->setFocus(Qt::TabFocusReason);
  QTest::qWait(0);
  for (int i = 0; i < 6; ++i) {
    press(Qt::Key_Down);
    EXPECT_TRUE(inSight()) << i;
  }
  EXPECT_TRUE(widget("cr(6).chkCrop")->hasFocus());
  const QKeyCombination acres = keysOf(widget("txtArea")).front()[0];
  QTest::keyClick(window(), acres.key(), acres.keyboardModifiers());
  ASSERT_TRUE(widget("txtArea")->hasFocus());
  EXPECT_TRUE(inSight());
}

TEST_F(Keys, ReturningToAPaneRestoresItsFocus) {
  start();
  typeFarm();
  widget("cr(5).cmdInputCosts")->setFocus(Qt::TabFocusReason);
  QTest::qWait(0);
  press(Qt::Key_Space);
  ASSERT_EQ(pane(), "pneInputCosts");
  EXPECT_EQ(window()->focusWidget(), widget("txtNitrogenApplied")) << "the first field, and no \"?\"";
  QTest::keyClick(window(), Qt::Key_Escape);
  ASSERT_TRUE(comes([&] { return pane() == "pneMain"; }));
  EXPECT_EQ(window()->focusWidget(), widget("cr(5).cmdInputCosts"));
  QTest::keyClick(window(), Qt::Key_F5);
  ASSERT_EQ(pane(), "pneResults");
  RunningDesktop::press("theResults.rh(1).cmdDetails");
  ASSERT_EQ(pane(), "pneDetails");
  EXPECT_EQ(window()->focusWidget()->objectName(), QStringLiteral("detailsPage")) << "the keys scroll";
  QTest::keyClick(window(), Qt::Key_Escape);
  ASSERT_EQ(pane(), "pneResults");
  EXPECT_EQ(window()->focusWidget(), widget("theResults.rh(1).cmdDetails"));
}

TEST_F(Keys, F1ReachesEveryHelpButtonThatOpensSomething) {
  start();
  std::set<QString> reached;
  for (const QWidget* widget : window()->findChildren<QWidget*>()) {
    if (widget->focusPolicy() == Qt::NoFocus) continue;
    if (const Control* help = desktop::helpOf(widget)) reached.insert(desktop::qText(help->path()));
  }
  for (const QPushButton* button : window()->findChildren<QPushButton*>()) {
    if (button->property("role") != QLatin1String("help")) continue;
    // The soil's button opens nothing; the buttons of two crop list columns and of the volume share a topic
    // with a field.
    if (button->objectName() == QLatin1String("cmdHelp(29)") ||
        button->objectName() == QLatin1String("cmdHelp(5)")) {
      continue;
    }
    EXPECT_EQ(reached.count(button->objectName()), 1U) << button->objectName().toStdString();
  }
}

TEST_F(Keys, EscapeCancelsARunBeforeItLeavesThePane) {
  start();
  typeFarm();
  program().windows.updating();
  auto& bar = control<ProgressBar>("frmUpdating.ProgressBar");
  desktop().binder().alsoWatch(bar, [&] {
    if (bar.value() == 3) QTest::keyClick(window(), Qt::Key_Escape);
  });
  QTest::keyClick(window(), Qt::Key_F5);
  EXPECT_EQ(pane(), "pneMain");
  EXPECT_FALSE(program().windows.updating().isOpen());
}

}  // namespace
}  // namespace verdalis::testing
