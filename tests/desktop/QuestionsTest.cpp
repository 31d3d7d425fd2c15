// The pages of the menu Explore in the window, and work in the background.

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <atomic>
#include <thread>

#include "desktop/ChartView.h"
#include "desktop/QtBackground.h"
#include "desktop/TableView.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

class QuestionsInWindow : public RunningDesktop {
 protected:
  QuestionPanes& pages() { return program().main().questions; }

  /// Whether a page comes to an answer.
  static bool answers(const QuestionPane& page) {
    return comes([&] { return !page.isRunning() && page.chart.chart().has_value(); });
  }
};

TEST_F(QuestionsInWindow, OpenFromTheMenuAndAnswer) {
  start();
  typeFarm();
  MainMenus& menus = program().main().menus;
  for (MenuEntry* entry :
       {&menus.mnuMixes, &menus.mnuWater, &menus.mnuSwitch, &menus.mnuSeasons, &menus.mnuInputs}) {
    choose(*entry);
    auto& page = dynamic_cast<QuestionPane&>(program().main().panes.top());
    EXPECT_TRUE(answers(page)) << page.lblFault.caption();
    EXPECT_GT(widget<desktop::TableView>(page.name() + ".table")->model()->rowCount(), 0);
    EXPECT_TRUE(widget(page.name() + ".chart")->isVisible());
  }
  press("pneInputs.cmdBack");
  EXPECT_EQ(pane(), "pneMain");
}

TEST_F(QuestionsInWindow, TypingAsksAgain) {
  start();
  typeFarm();
  choose(program().main().menus.mnuWater);
  ASSERT_TRUE(answers(pages().water));
  type("pneWater.txtPoints", "7");
  EXPECT_TRUE(comes([&] { return !pages().water.isRunning() && pages().water.table.records() == 7; }));
  type("pneWater.txtPoints", "x");
  EXPECT_EQ(widget<QLabel>("pneWater.lblFault")->text(),
            QStringLiteral("Points: Please enter a valid number."));
}

TEST_F(QuestionsInWindow, ALongQuestionShowsProgressAndCanBeCancelled) {
  start();
  typeFarm();
  choose(program().main().menus.mnuMap);
  pages().map.cancel();
  type("pneMap.txtXPoints", "300");
  type("pneMap.txtYPoints", "300");
  ASSERT_TRUE(comes([&] { return widget("pneMap.prgQuestion")->isVisible(); }));
  press("pneMap.cmdCancel");
  EXPECT_FALSE(pages().map.isRunning());
  EXPECT_FALSE(widget("pneMap.prgQuestion")->isVisible());
  EXPECT_FALSE(pages().map.chart.chart().has_value());
}

TEST_F(QuestionsInWindow, TheProgramEndsDuringAQuestion) {
  start();
  typeFarm();
  choose(program().main().menus.mnuMap);
  type("pneMap.txtXPoints", "300");
  type("pneMap.txtYPoints", "300");
  EXPECT_TRUE(pages().map.isRunning());
  restart();
}

TEST_F(QuestionsInWindow, AnAnswerWaitsForTheEndOfAnAction) {
  start();
  typeFarm();
  choose(program().main().menus.mnuWater);
  ASSERT_TRUE(answers(pages().water));
  pages().water.setOutdated(true);
  int waited = 0;
  const Connection pressed = pages().water.cmdCopy.onClick.connectScoped([&] {
    pages().water.ask();
    QTest::qWait(300);  // as a message box would
    waited = pages().water.isRunning() ? 1 : 2;
  });
  press("pneWater.cmdCopy");
  EXPECT_EQ(waited, 1);
  EXPECT_TRUE(answers(pages().water));
}

TEST(Background, WorksOnAnotherThreadAndTellsOnThisOne) {
  desktop::QtBackground background;
  const auto here = std::this_thread::get_id();
  std::atomic<bool> elsewhere = false;
  bool told = false;
  background.run([&] { elsewhere = std::this_thread::get_id() != here; },
                 [&] { told = std::this_thread::get_id() == here; });
  EXPECT_FALSE(told);
  EXPECT_TRUE(QTest::qWaitFor([&] { return told; }, 3000));
  EXPECT_TRUE(elsewhere);
}

TEST(Background, EndsAfterItsWorkWithoutTelling) {
  bool told = false;
  std::atomic<bool> worked = false;
  {
    desktop::QtBackground background;
    background.run(
        [&] {
          std::this_thread::sleep_for(std::chrono::milliseconds(50));
          worked = true;
        },
        [&] { told = true; });
  }
  EXPECT_TRUE(worked);
  QTest::qWait(20);
  EXPECT_FALSE(told);
}

}  // namespace
}  // namespace verdalis::testing
