#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/data/PlainCropReader.h"
#include "tests/data/YieldTable.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using testing::PlainTable;
using testing::plainTable;
using testing::tableOf;

/// List entries: whole numbers in a range, and sometimes an unusual one.
rc::Gen<std::string> anyList(int least, int most, std::size_t length) {
  const auto plain = rc::gen::map(rc::gen::inRange(least, most), [](int n) { return std::to_string(n); });
  const auto odd = rc::gen::element<std::string>("", " ", "x", "1.5", "2.5", "-0.4", "1e1", "1e400", "1e-400",
                                                 "7 bu.", ".", "+3", "999", "1000", "32768", "1=2");
  const auto entry = rc::gen::weightedOneOf<std::string>({{40, plain}, {1, odd}});
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(length, entry),
                      [](const std::vector<std::string>& entries) {
                        std::string list;
                        for (const auto& text : entries)
                          list += (&text == entries.data() ? "" : ",") + text;
                        return list;
                      });
}

RC_GTEST_PROP(MakeYieldArray, GivesTheSameTableAsTheSimpleReader, ()) {
  const auto rainfall = *anyList(0, 4, 1) + "," + *anyList(2, 7, *rc::gen::inRange<std::size_t>(1, 4));
  const auto irrigation = *anyList(0, 5, *rc::gen::inRange<std::size_t>(0, 4));
  const auto values = *anyList(-5, 300, *rc::gen::inRange<std::size_t>(0, 20));
  const auto expected = plainTable(rainfall, irrigation, values);
  RC_CLASSIFY(expected.has_value(), "a table");
  std::optional<PlainTable> table;
  try {
    table = tableOf(rainfall, irrigation, values);
  } catch (const RunTimeError&) {
  }
  RC_ASSERT(table == expected);
}

}  // namespace
}  // namespace verdalis
