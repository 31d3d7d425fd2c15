#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "controls/Control.h"
#include "questions/QuestionPane.h"
#include "tests/explore/SmallFarm.h"
#include "tests/support/FakeServices.h"

namespace verdalis::testing {

/// A question page about the farm of two crops, on a window of its own.
template <class Pane>
class QuestionTest : public ::testing::Test {
 protected:
  QuestionTest() { farm.factor = 4; }  // for speed

  Farm farm = twoCropFarm();
  std::string incomplete;  ///< Why the farm is not complete; empty if it is
  FakeServices fakes;
  FakeBackground& slow = fakes.background;

  template <class... More>
  Pane& open(More... more) {
    pane_ = std::make_unique<Pane>(
        window_, fakes.services,
        [this] {
          if (!incomplete.empty()) throw std::invalid_argument(incomplete);
          return farm.Copy();
        },
        std::move(more)...);
    pane_->open();
    return *pane_;
  }
  [[nodiscard]] Pane& pane() { return *pane_; }
  void close() { pane_.reset(); }

  [[nodiscard]] std::string fault() const { return pane_->lblFault.caption(); }
  [[nodiscard]] const Chart& drawn() const { return *pane_->chart.chart(); }
  [[nodiscard]] bool isAnswered() const { return pane_->chart.chart().has_value(); }
  [[nodiscard]] std::string cell(std::size_t record, std::size_t column) const {
    return pane_->table.cell(record, column).text;
  }
  [[nodiscard]] std::string amount(const std::string& what) const {
    for (const auto& figure : pane_->figures) {
      if (figure->what.caption() == what) return figure->amount.caption();
    }
    return "none";
  }

  ProgramState state;
  RunHooks hooks;

 private:
  Desk desk_;
  Window window_{desk_, "frmMain", Frame::Scope::transparent};
  std::unique_ptr<Pane> pane_;
};

}  // namespace verdalis::testing
