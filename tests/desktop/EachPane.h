#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <vector>

#include "tests/desktop/RunningDesktop.h"
#include "tests/support/SavedOptions.h"

namespace verdalis::testing {

/// Shows every pane of the main window, one after the other.
class EachPane : public RunningDesktop {
 protected:
  /// Shows each pane in typical use and calls `look` with its name.
  void forEachPane(QSize size, const std::function<void(const std::string&)>& look) {
    const auto shown = [&](const std::string& name) {
      while (program().main().notices.visible())
        program().main().notices.dismiss();
      settle(window());
      ASSERT_EQ(pane(), name);
      look(name);
    };
    start();
    window()->resize(size);
    typeFarm();
    tick("Option1(4)");
    tick("cr(2).chkCrop");
    shown("pneMain");
    const auto questions = program().main().questions.all();
    const MainMenus& menus = program().main().menus;
    const std::vector<const MenuEntry*> entries{&menus.mnuMixes,   &menus.mnuWater,  &menus.mnuSwitch,
                                                &menus.mnuSeasons, &menus.mnuInputs, &menus.mnuMap};
    for (std::size_t i = 0; i < entries.size(); ++i) {
      desktop().binder().action(*entries[i])->trigger();
      ASSERT_TRUE(QTest::qWaitFor([&] { return !questions.at(i)->isRunning(); }, 60000));
      shown(questions.at(i)->name());
    }
    desktop().binder().action(menus.mnuLive)->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return program().main().pneLive.chtLive.chart().has_value(); }, 60000));
    shown("pneLive");
    program().main().showMainPane();
    press("cr(1).cmdInputCosts");
    shown("pneInputCosts");
    press("Command6");
    tick("cr(0).chkCrop");
    press("cr(0).cmdInputCosts");
    shown("pneInputCosts");
    press("Command6");
    press("Command8");
    shown("pneIrrigCosts");
    press("Command9");
    press("Command1");
    shown("pneResults");
    press("theResults.rh(0).cmdDetails");
    shown("pneDetails");
    press("theDetails.Command3");
    expectBox();
    press("theResults.cmdSaveResult");
    saved_ = {};
    for (int i = 0; i < 8; ++i) {
      saved_.add(
          savedEarning(100 * i, savedInputs(), i == 3 ? "An option with a name that is rather long" : ""));
    }
    program().main().savedForCompare = [this]() -> const SharedList<SavedOption>& { return saved_; };
    program().main().pneSummary.showSummary();
    shown("pneSummary");
    press("cmdCompare");
    shown("pneCompare");
    choose(program().main().menus.mnuCustomCrop);
    control<ComboBox>("cboCustomGrid(5)").pick(0);
    shown("pneCustomCrop");
    press("cmdCustomGrid(5)");
    typeFarm();
    program().main().TrendNoticeShown = true;
    choose(program().main().menus.mnuEnableBatch);
    choose(program().main().menus.mnuFallBatch);
    type("txtBatchList", "4,5,6");
    shown("pneBatchSetup(0)");
    press("cmdBatchIt");
    shown("pneBatchSetup(1)");
    press("theBatchResults.theResults.cmdBatchThis");
    type("txtBatchList", "4,5,6");
    shown("pneBatchSetup(0)");
    control<ComboBox>("cboCrops").pick(0);
    press("cmdBatchIt");
    shown("pneBatchSetup(1)");
  }

  /// Waits until the layout has come to rest: a busy machine takes several turns for it.
  static void settle(const QWidget* shownWindow) {
    constexpr int turn = 20;  // ms
    const auto places = [&] {
      std::vector<QRect> result;
      for (const QWidget* child : shownWindow->findChildren<QWidget*>())
        result.push_back(child->geometry());
      return result;
    };
    QTest::qWait(turn);
    EXPECT_TRUE(comes([&] {
      const std::vector<QRect> before = places();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
      QTest::qWait(turn);
      return places() == before;
    }));
  }

  /// Requires that every text has enough room.
  void expectRoom(const std::string& pane) { expectRoomIn(window(), pane); }

  static void expectRoomIn(const QWidget* shownWindow, const std::string& pane) {
    for (QWidget* child : shownWindow->findChildren<QWidget*>()) {
      if (!child->isVisible() || child->objectName().startsWith(QLatin1String("qt_"))) continue;
      const std::string name =
          pane + ": " + child->objectName().toStdString() + " (" + child->metaObject()->className() + ")";
      if (const auto* label = qobject_cast<QLabel*>(child)) {
        if (label->text().isEmpty()) continue;
        if (label->wordWrap()) {
          EXPECT_GE(label->height(), label->heightForWidth(label->width()))
              << name << ' ' << label->text().toStdString();
        } else {
          EXPECT_GE(label->width(), label->sizeHint().width()) << name << ' ' << label->text().toStdString();
          EXPECT_GE(label->height(), label->sizeHint().height())
              << name << ' ' << label->text().toStdString();
        }
      } else if (const auto* button = qobject_cast<QAbstractButton*>(child)) {
        if (button->text().isEmpty()) continue;
        EXPECT_GE(button->width(), button->sizeHint().width()) << name << ' ' << button->text().toStdString();
        EXPECT_GE(button->height(), button->sizeHint().height()) << name;
      } else if (const auto* field = qobject_cast<QLineEdit*>(child)) {
        if (qobject_cast<QComboBox*>(field->parentWidget()) != nullptr) continue;
        const int shown = field->fontMetrics().horizontalAdvance(field->text());
        EXPECT_GE(field->width(), shown + 8) << name << ' ' << field->text().toStdString();
        EXPECT_GE(field->height(), field->sizeHint().height()) << name;
      } else if (const auto* list = qobject_cast<QComboBox*>(child)) {
        const int shown = list->fontMetrics().horizontalAdvance(list->currentText());
        EXPECT_GE(list->width(), shown + 30) << name << ' ' << list->currentText().toStdString();
      }
    }
  }

  /// Requires that no page scrolls sideways.
  void expectNoSidewaysScrolling(const std::string& pane) {
    for (QScrollArea* area : window()->findChildren<QScrollArea*>()) {
      if (!area->isVisible()) continue;
      EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << pane;
    }
    EXPECT_EQ(window()->size(), window()->minimumSize()) << pane;
  }

 private:
  SharedList<SavedOption> saved_;
};

}  // namespace verdalis::testing
