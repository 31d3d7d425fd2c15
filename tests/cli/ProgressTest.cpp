#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "cli/Progress.h"

namespace verdalis {
namespace {

/// A progress display on a text stream, with a clock controlled by the test.
class ProgressOnTerminal : public ::testing::Test {
 protected:
  std::string shown() {
    std::string text = terminal_.str();
    terminal_.str("");
    return text;
  }

  double now_ = 100;
  std::ostringstream terminal_;
  ProgramState state_;
  Progress progress_{&terminal_, state_, [this] { return now_; }};
};

TEST_F(ProgressOnTerminal, AShortRunShowsNothing) {
  progress_.showProgress("title");
  progress_.setProgress(4, "");
  for (int i = 0; i < 4; ++i) {
    now_ += 0.06;
    progress_.update();
    progress_.pumpEvents();
  }
  progress_.closeProgress();
  EXPECT_EQ(shown(), "");
}

TEST_F(ProgressOnTerminal, ALongRunShowsStepsPercentageAndTimeLeft) {
  progress_.showProgress("title");
  progress_.setProgress(4000, "");
  for (int i = 0; i < 999; ++i)
    progress_.update();
  EXPECT_EQ(shown(), "");
  now_ += 30;
  progress_.update();
  EXPECT_EQ(shown(), "\rEvaluating: 1,000 of 4,000 steps, 25 %, 1 min 30 s left\x1b[K");
  progress_.update();
  EXPECT_EQ(shown(), "") << "no second line at the same moment";
  now_ += 0.2;
  progress_.pumpEvents();
  EXPECT_EQ(shown(), "\rEvaluating: 1,001 of 4,000 steps, 25 %, 1 min 30 s left\x1b[K");
  progress_.closeProgress();
  EXPECT_EQ(shown(), "\r\x1b[K");
  progress_.closeProgress();
  EXPECT_EQ(shown(), "");
}

TEST_F(ProgressOnTerminal, FormatsTheTimeLeft) {
  for (const auto& [elapsed, text] :
       std::vector<std::pair<double, std::string>>{{0.4, "1 s left"},
                                                   {59.4, "59 s left"},
                                                   {59.6, "1 min 0 s left"},
                                                   {3599.6, "1 h 0 min left"},
                                                   {7380, "2 h 3 min left"},
                                                   {1e9, "more than 100 h left"}}) {
    progress_.showProgress("title");
    progress_.setProgress(2, "");
    now_ += elapsed;
    progress_.update();
    EXPECT_EQ(shown(), "\rEvaluating: 1 of 2 steps, 50 %, " + text + "\x1b[K");
    progress_.closeProgress();
    shown();
  }
}

TEST_F(ProgressOnTerminal, ATrendShowsTheNumberOfItsRun) {
  progress_.showProgress("title");
  progress_.setProgress(10, "Corn : $5");
  now_ += 1;
  progress_.pumpEvents();
  EXPECT_EQ(shown(), "\rEvaluating: Corn : $5, 0 of 10 steps, 0 %\x1b[K");
}

TEST_F(ProgressOnTerminal, ARunWithoutStepsShowsNothing) {
  progress_.showProgress("title");
  now_ += 1;
  progress_.pumpEvents();
  progress_.setProgress(0, "");
  progress_.pumpEvents();
  EXPECT_EQ(shown(), "");
}

TEST(Progress, IsErasedIfARunFails) {
  std::ostringstream terminal;
  ProgramState state;
  double now = 0;
  {
    Progress progress(&terminal, state, [&] { return now; });
    progress.showProgress("title");
    progress.setProgress(2, "");
    now = 1;
    progress.update();
  }
  const std::string text = terminal.str();
  EXPECT_EQ(text.substr(text.size() - 4), "\r\x1b[K");
}

TEST(Progress, ShowsNothingWithoutATerminal) {
  ProgramState state;
  double now = 0;
  Progress progress(nullptr, state, [&] { return now; });
  progress.showProgress("title");
  progress.setProgress(2, "");
  now = 10;
  progress.update();
  progress.pumpEvents();
  progress.closeProgress();
  EXPECT_FALSE(state.CancelRequested);
}

TEST(Progress, OnlyStandardErrorCanBeATerminal) {
  std::ostringstream err;
  EXPECT_EQ(asTerminal(err), nullptr);
  EXPECT_EQ(asTerminal(std::cout), nullptr);
}

}  // namespace
}  // namespace verdalis
