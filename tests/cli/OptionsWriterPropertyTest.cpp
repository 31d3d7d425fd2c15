#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/OptionsWriter.h"
#include "tests/cli/TwoOptions.h"
#include "text/quote.h"

namespace verdalis {
namespace {

using testing::twoOptions;
using testing::written;

/// The records of an RFC 4180 text, read by a separate parser.
std::vector<std::vector<std::string>> records(const std::string& text) {
  std::vector<std::vector<std::string>> result(1, {std::string()});
  bool inside = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    std::string& field = result.back().back();
    if (inside && c == '"' && text.substr(i, 2) == "\"\"") {
      field += '"';
      ++i;
    } else if (c == '"') {
      inside = !inside;
    } else if (!inside && c == ',') {
      result.back().emplace_back();
    } else if (!inside && text.substr(i, 2) == "\r\n") {
      result.emplace_back(1, std::string());
      ++i;
    } else {
      field += c;
    }
  }
  result.pop_back();
  return result;
}

/// A text as a spreadsheet shall take it: with an apostrophe if it would be a formula otherwise.
std::string asCsvText(const std::string& text) {
  const bool isMarked = beginsLikeFormula(text) || text.starts_with('\t') || text.starts_with('\r');
  return isMarked ? "'" + text : text;
}

TEST(CsvWriter, QuotedNamesReadBack) {
  EXPECT_TRUE(rc::check([](const std::string& name, const std::string& unit) {
    EvaluationResult result = twoOptions();
    result.options[0].fields[1].crop = name;
    result.options[0].fields[1].yieldUnit = unit;
    const auto rows = records(written(writeCsv, result));
    RC_ASSERT(rows.size() == 4U);
    for (const auto& row : rows)
      RC_ASSERT(row.size() == 17U);
    RC_ASSERT(rows[2][2] == asCsvText(name));
    RC_ASSERT(rows[2][7] == asCsvText(unit));
  }));
}

bool sameBits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

/// A random finite 64-bit float from any bit pattern.
double anyFloat() {
  const std::uint64_t bits = *rc::gen::arbitrary<std::uint64_t>();
  double value = 0;
  std::memcpy(&value, &bits, sizeof value);
  return std::isfinite(value) ? value
                              : *rc::gen::elementOf(std::vector<double>{0.0, -0.0, 0.1, 1e15, 123456789.0});
}

TEST(NumbersReadBack, ToTheSameBits) {
  EXPECT_TRUE(rc::check([] {
    const double value = anyFloat();
    EvaluationResult result = twoOptions();
    result.efficiency = value;
    result.options = {result.options[0]};
    result.options[0].profit = value;
    result.options[0].fields[0].acres = value;
    result.options[0].fields[0].maxYield = value;

    const auto rows = records(written(writeCsv, result));
    for (const std::size_t column : {3U, 9U, 16U})
      RC_ASSERT(sameBits(std::strtod(rows[1][column].c_str(), nullptr), value));

    const auto json = nlohmann::json::parse(written(writeJson, result));
    const auto option = json["options"][0];
    RC_ASSERT(sameBits(json["efficiency"].get<double>(), value));
    RC_ASSERT(sameBits(option["profit"].get<double>(), value));
    RC_ASSERT(sameBits(option["fields"][0]["acres"].get<double>(), value));
  }));
}

}  // namespace
}  // namespace verdalis
