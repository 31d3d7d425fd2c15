#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "results/OptionRows.h"
#include "results/optionsSection.h"
#include "tests/results/HandoutCells.h"
#include "tests/results/Options.h"

namespace verdalis {
namespace {

using namespace testing;

constexpr double efficiency = 0.85;

TEST(OptionsSection, HasARowForEachOptionWithAllDigits) {
  rc::check([] {
    std::vector<Option> options;
    for (int count = *rc::gen::inRange(1, 6); count > 0; --count) {
      auto option = optionOf({});
      for (int fields = *rc::gen::inRange(1, 5); fields > 0; --fields)
        option->Add(plainField(*rc::gen::inRange(1, 900) / 7.0, *rc::gen::inRange(0, 900) / 13.0, 3, 8.5));
      options.push_back(option);
    }
    const HandoutSection section = optionsSection(ListedOptions::inOrder(options, efficiency));
    const OptionRows facts(options, efficiency);
    const HandoutTable& table = section.tables.at(0);
    RC_ASSERT(table.rows.size() == options.size());
    const std::size_t back = 2 + facts.fields();
    RC_ASSERT(table.columns.size() == back + 3);
    for (std::size_t i = 0; i < options.size(); ++i) {
      RC_ASSERT(number(table, i, 0) == static_cast<double>(i + 1));
      RC_ASSERT(text(table, i, 1) == cropsWithAcres(*options[i]));
      for (std::size_t field = 0; field < facts[i].fields; ++field)
        RC_ASSERT(number(table, i, 2 + field) == facts[i].gross[field]);
      RC_ASSERT(number(table, i, back) == *facts[i].profit / facts[i].acres);
      RC_ASSERT(number(table, i, back + 1) == *facts[i].profit);
      RC_ASSERT(number(table, i, back + 2) == *facts.behind(i));
      RC_ASSERT(options[i]->TotalCost == 0);  // nothing is stored
    }
  });
}

}  // namespace
}  // namespace verdalis
