#include <gtest/gtest.h>

#include <set>

#include "engine/evaluateScenario.h"
#include "screens/readScenario.h"
#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

/// Keeps work until the test lets it go on.
class WaitingBackground : public BackgroundService {
 public:
  void run(const std::function<void()>& work, const std::function<void()>& done) override {
    works_.emplace_back(work, done);
  }

  [[nodiscard]] std::size_t waiting() const { return works_.size(); }

  void goOn() {
    for (const auto& [work, done] : std::exchange(works_, {})) {
      work();
      done();
    }
  }

 private:
  std::vector<std::pair<std::function<void()>, std::function<void()>>> works_;
};

class AllOptionsOfARun : public ::testing::Test {
 protected:
  AllOptionsOfARun() {
    running.program = std::make_unique<Program>(services, running.home());
    running.program->welcome.Command1.click();
  }

  [[nodiscard]] frmMain& main() { return running.program->main(); }
  [[nodiscard]] AllOptions& all() { return main().theResults.all; }

  void evaluate() {
    running.typeFarm();
    running.press("Command1");
    ASSERT_EQ(main().panes.top().name(), "pneResults");
  }

  [[nodiscard]] std::vector<std::string> column(std::size_t number) {
    std::vector<std::string> texts;
    for (std::size_t place = 0; place < all().tblOptions.places(); ++place)
      texts.push_back(all().tblOptions.cell(all().tblOptions.record(place), number).text);
    return texts;
  }

  WaitingBackground background;
  RunningProgram running;
  Services services{running.fakes.messageBox, running.fakes.fileChooser, running.fakes.clipboard,
                    running.fakes.help,       running.fakes.openFile,    running.fakes.clock,
                    running.fakes.eventPump,  running.fakes.printer,     background};
};

TEST_F(AllOptionsOfARun, EveryOptionHasALine) {
  evaluate();
  const std::size_t options = all().tblOptions.records();
  EXPECT_GT(options, 5U);
  EXPECT_EQ(main().theResults.lblOf.caption(), "of " + std::to_string(options));
  EXPECT_TRUE(all().lblOptionsNote.caption().ends_with(" 44 plans compared."));
}

TEST_F(AllOptionsOfARun, TheUndividedFarmCountsAmongThePlans) {
  running.typeFarm();
  running.control<CheckBox>("chkNoSplit").click();
  running.press("Command1");
  EXPECT_TRUE(all().lblOptionsNote.caption().ends_with(" 46 plans compared."));
}

TEST_F(AllOptionsOfARun, ARowShowsItsOption) {
  evaluate();
  all().tblOptions.choose(3);
  const std::string number = column(0)[3];
  EXPECT_EQ(main().theResults.lblCounter.caption(), "Option " + number);
  EXPECT_EQ("$" + column(4)[3].substr(1) + " /acre", main().theResults.lblTotalProfit.caption());
}

TEST_F(AllOptionsOfARun, OneLinePerMixIsASearchOfItsOwn) {
  evaluate();
  all().chkMixes.click();
  EXPECT_EQ(background.waiting(), 1U);
  EXPECT_EQ(all().lblOptionsNote.caption(), "Looking for the best plan of each mix of crops ...");
  background.goOn();
  Farm farm = readFarm(main().pneMain.scenarioInputs(), main().cropFiles.cropCollection,
                       *main().tempIrrigationCosts, 10);
  farm.mixes = true;
  ProgramState state;
  RunHooks hooks;
  std::vector<std::string> expected;
  for (const auto& plan :
       evaluateScenario(scenarioOf(farm), state, hooks)->returnCollection(false, farm.efficiency / 100)) {
    if (plan->Count() > 0) {
      expected.push_back("$" + formatNumber(plan->getProfit(farm.efficiency / 100), "###,##0"));
    }
  }
  EXPECT_EQ(expected.size(), 3U);
  EXPECT_EQ(column(5), expected);
  const std::vector<std::string> mixes = column(1);
  EXPECT_EQ(std::set<std::string>(mixes.begin(), mixes.end()).size(), mixes.size());
  EXPECT_EQ(column(0)[0], "1");
  all().tblOptions.choose(1);
  EXPECT_EQ(main().theResults.lblCounter.caption(), "Option " + column(0)[1]);
  all().chkMixes.click();
  EXPECT_EQ("of " + std::to_string(all().tblOptions.records()), main().theResults.lblOf.caption());
}

TEST_F(AllOptionsOfARun, AMixThatTheRunDidNotKeepHasNoRankAndLeadsNowhere) {
  running.typeFarm();
  running.control<TextBox>("txtArraySize").type("2");
  running.press("Command1");
  all().chkMixes.click();
  background.goOn();
  ASSERT_EQ(all().tblOptions.records(), 2U);
  EXPECT_EQ(column(0)[1], "-");
  EXPECT_TRUE(
      all().lblOptionsNote.caption().ends_with("A line without a rank is not among the options kept."));
  all().tblOptions.choose(1);
  EXPECT_EQ(main().theResults.lblCounter.caption(), "Option 1");
  EXPECT_EQ(all().tblOptions.current(), 1U);
}

TEST_F(AllOptionsOfARun, TheSearchIsForTheInputsOfTheRun) {
  evaluate();
  const std::string best = column(5)[0];
  running.press("theResults.Command1");
  running.control<TextBox>("txtMax").type("6");
  main().showPane(main().pneResults);
  all().chkMixes.click();
  background.goOn();
  EXPECT_EQ(column(5)[0], best);
}

TEST_F(AllOptionsOfARun, LeavingThePageEndsTheSearch) {
  evaluate();
  const std::size_t options = all().tblOptions.records();
  all().chkMixes.click();
  running.press("theResults.Command1");
  EXPECT_FALSE(all().chkMixes.checked());
  background.goOn();
  EXPECT_EQ(all().tblOptions.records(), options);
}

TEST_F(AllOptionsOfARun, ANewRunEndsTheSearch) {
  evaluate();
  all().chkMixes.click();
  main().showPane(main().pneMain);
  running.control<TextBox>("txtMax").type("6");
  running.press("Command1");
  const std::vector<std::string> money = column(5);
  background.goOn();
  EXPECT_EQ(column(5), money);
  EXPECT_FALSE(all().chkMixes.checked());
}

TEST_F(AllOptionsOfARun, AProgramThatEndsDuringTheSearchIsLeftAlone) {
  evaluate();
  all().chkMixes.click();
  running.program.reset();
  background.goOn();
}

}  // namespace
}  // namespace verdalis::testing
