#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "results/SummaryPane.h"
#include "tests/results/Options.h"
#include "tests/support/FakeServices.h"

namespace verdalis::testing {

/// The summary pane alone in a window, with saved options to fill it from.
class SummaryPaneTest : public ::testing::Test {
 protected:
  SummaryPaneTest() {
    window.open();
    pane.onShowPane.connect([this] { ++shows; });
    pane.onBack.connect([this] { ++backs; });
  }

  [[nodiscard]] std::vector<std::string> column(int number) const {
    std::vector<std::string> cells;
    cells.reserve(static_cast<std::size_t>(pane.fgsummary.rows()));
    for (int row = 0; row < pane.fgsummary.rows(); ++row)
      cells.push_back(pane.fgsummary.cell(row, number));
    return cells;
  }

  ScopedEfficiency efficiency{0.85};
  FakeServices fake;
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  SummaryPane::SavedOptions saved;
  std::string annualRain = "16";
  std::vector<std::pair<std::filesystem::path, std::string>> written;
  int shows = 0;
  int backs = 0;
  SummaryPane pane{window,
                   fake.services,
                   saved,
                   {[this] { return annualRain; },
                    [this](const std::filesystem::path& path, std::string_view bytes) {
                      written.emplace_back(path, std::string(bytes));
                    }}};
};

/// An option of fields of 10 acres.
inline Option fieldsOf(int count) {
  auto option = std::make_shared<FieldCollection>();
  for (int i = 0; i < count; ++i)
    option->Add(plainField(10, 100, 50));
  return option;
}

}  // namespace verdalis::testing
