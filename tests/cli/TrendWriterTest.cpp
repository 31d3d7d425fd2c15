#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "cli/OptionsWriter.h"
#include "cli/TrendCommandText.h"
#include "cli/TrendCommandWriter.h"

// The output formats of a trend.

namespace verdalis {
namespace {

using Ordered = nlohmann::ordered_json;

OptionResult optionOf(double profit, const std::vector<std::string>& crops) {
  OptionResult option;
  option.profit = profit;
  for (const std::string& crop : crops) {
    FieldResult field;
    field.acres = 62.5;
    field.crop = crop;
    field.yieldUnit = "bu.";
    field.soil = "Silt Loam";
    field.returns = profit;
    option.fields.push_back(field);
  }
  return option;
}

TrendResult variableTrend() {
  TrendResult trend;
  trend.variables = {{"Crop Price", "Hay, \"wet\"\nor dry"}};
  trend.prefix = "$";
  TrendStep first{2.5, {}};
  first.result.efficiency = 0.85;
  first.result.options = {optionOf(30.25, {"Corn", "Hay, \"wet\"\nor dry"}), optionOf(-0.0, {})};
  trend.steps = {first, {-0.0, {}}};
  trend.steps.back().result.efficiency = 0.85;
  return trend;
}

TrendResult fixedTrend() {
  TrendResult trend;
  trend.fixed = true;
  trend.variables = {{"Crop Price", "Corn"}, {"Irrigation Costs", ""}};
  const TrendedOption better{optionOf(20, {"Corn", "Corn"}),
                             {{"Crop Price - Corn", 3, "$", "/ bu."}, {"Irrigation Costs", 0.5, "$", ""}}};
  const TrendedOption worse{optionOf(10, {"Corn"}), {}};
  trend.grid = {{{2, 0.5}, worse}, {{3, 0.5}, better}};
  trend.options = {better, worse};
  return trend;
}

std::string written(const TrendResult& trend, std::string_view format) {
  std::ostringstream out;
  writeTrend(out, trend, format);
  return out.str();
}

/// JSON is written in pieces; the text must equal a dump of the whole object.
void expectAsDumped(const std::string& text) {
  EXPECT_EQ(Ordered::parse(text).dump(2) + '\n', text);
}

TEST(TrendWriter, WritesJsonLikeADumpOfTheWholeObject) {
  expectAsDumped(written(variableTrend(), "json"));
  expectAsDumped(written(fixedTrend(), "json"));
  TrendResult none = variableTrend();
  none.steps.clear();
  expectAsDumped(written(none, "json"));
  none.fixed = true;
  none.variables.clear();
  expectAsDumped(written(none, "json"));
}

/// Options of a step or a combination are written as by `evaluate`.
TEST(TrendWriter, WritesOptionsLikeAnEvaluation) {
  std::ostringstream json;
  writeJson(json, variableTrend().steps.at(0).result);
  const Ordered options = Ordered::parse(json.str())["options"];
  EXPECT_EQ(Ordered::parse(written(variableTrend(), "json"))["steps"][0]["options"], options);

  Ordered ofGrid = Ordered::parse(written(fixedTrend(), "json"))["grid"][1]["option"];
  EXPECT_EQ(ofGrid["trend"].size(), 2U);
  ofGrid.erase("trend");
  EvaluationResult better;
  better.options = {fixedTrend().options[0].option};
  std::ostringstream other;
  writeJson(other, better);
  EXPECT_EQ(ofGrid, Ordered::parse(other.str())["options"][0]);
}

TEST(TrendWriter, WritesTheJsonOfAStep) {
  TrendResult trend = variableTrend();
  trend.steps = {{2.5, {}}, {3, {}}};
  trend.steps[1].result.options = {optionOf(1.5, {})};
  EXPECT_EQ(written(trend, "json"), R"({
  "kind": "variable",
  "variable": "Crop Price",
  "crop": "Hay, \"wet\"\nor dry",
  "steps": [
    {
      "value": 2.5,
      "options": []
    },
    {
      "value": 3,
      "options": [
        {
          "profit": 1.5,
          "costs": 0,
          "return": 0,
          "netVolume": 0,
          "fields": []
        }
      ]
    }
  ]
}
)");
}

TEST(TrendWriter, WritesJsonForBytesThatAreNotText) {
  TrendResult trend = fixedTrend();
  trend.variables[0].crop = "\xFF";
  trend.options[0].trend[0].variable = "Crop Price - \xC3";
  trend.options[0].option.fields[0].crop = "\xC3";
  const Ordered json = Ordered::parse(written(trend, "json"));
  EXPECT_EQ(json["variables"][0]["crop"], "\xEF\xBF\xBD");
  EXPECT_EQ(json["options"][0]["trend"][0]["variable"], "Crop Price - \xEF\xBF\xBD");
  EXPECT_EQ(json["options"][0]["fields"][0]["crop"], "\xEF\xBF\xBD");
}

TEST(TrendWriter, NumbersTheOptionsOfEachStepInCsv) {
  TrendResult trend = variableTrend();
  trend.steps[0].result.options[1] = optionOf(5, {"Corn"});
  trend.steps[1].result.options = {optionOf(7, {"Corn"})};
  const std::string csv = written(trend, "csv");
  const std::string corn = "Corn,62.5,0,0,0,bu.,0,0,Silt Loam,0,";
  const std::string hay = "\"Hay, \"\"wet\"\"\nor dry\",62.5,0,0,0,bu.,0,0,Silt Loam,0,";
  EXPECT_EQ(csv.substr(csv.find("\r\n") + 2), "1,2.5,,1,1," + corn + "30.25,30.25,0,0,30.25\r\n" +
                                                  "1,2.5,,1,2," + hay + "30.25,30.25,0,0,30.25\r\n" +
                                                  "1,2.5,,2,1," + corn + "5,5,0,0,5\r\n" + "2,-0,,1,1," +
                                                  corn + "7,7,0,0,7\r\n");
}

std::vector<std::string> piecesOf(TextPieces& text) {
  std::vector<std::string> pieces;
  text.forEach([&](const std::string& piece) { pieces.push_back(piece); });
  return pieces;
}

TEST(TextPieces, AreTheWrittenText) {
  constexpr std::size_t size = TextPieces::pieceSize;
  TextPieces pieces;
  std::ostream out(&pieces);
  out << std::string(size - 1, 'a') << 'b' << 'c' << std::string(2 * size, 'd') << 12.5 << std::flush;
  EXPECT_TRUE(out.good());
  std::string joined;
  EXPECT_EQ(piecesOf(pieces).size(), 4U);
  for (const std::string& piece : piecesOf(pieces)) {
    EXPECT_LE(piece.size(), size);
    joined += piece;
  }
  const std::string expected = std::string(size - 1, 'a') + "bc" + std::string(2 * size, 'd') + "12.5";
  EXPECT_TRUE(joined == expected);
  TextPieces none;
  EXPECT_TRUE(piecesOf(none).empty());
}

TEST(TextPieces, AVeryLongTextIsPartlyInAFile) {
  TextPieces pieces;
  std::ostream out(&pieces);
  std::string expected;
  while (expected.size() < (TextPieces::mostInMemory + 5) * TextPieces::pieceSize) {
    const std::string line = std::to_string(expected.size()) + std::string(1000, 'x') + '\n';
    out << line;
    expected += line;
  }
  for (int times = 0; times < 2; ++times) {
    std::string joined;
    for (const std::string& piece : piecesOf(pieces))
      joined += piece;
    EXPECT_TRUE(joined == expected);
  }
}

}  // namespace
}  // namespace verdalis
