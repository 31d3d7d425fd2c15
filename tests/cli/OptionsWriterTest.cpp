#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "cli/OptionsWriter.h"
#include "tests/cli/TwoOptions.h"

namespace verdalis {
namespace {

using testing::twoOptions;
using testing::written;

TEST(TableWriter, WritesAReadableTable) {
  EXPECT_EQ(written(writeTable, twoOptions()),
            "Candidates: 370,656 (water splits: 286, crop combinations: 1,296)\n"
            "Irrigation efficiency: 85.0 %\n"
            "\n"
            "                   Irrigation, in.                          Dollars per acre\n"
            "    Acres  Crop         Net  Gross  Yield         Costs  Returns  Net return\n"
            "\n"
            "Option 1: net return -$30,875, -$24 /acre\n"
            "     62.5  Corn        11.9   14.0  176.3 bu./ac    505      811         306\n"
            "  1,250.0  Fallow       0.0    0.0    0.0            40        0         -40\n"
            "  1,312.5  Farm         0.6    0.7                   62       39         -24\n"
            "\n"
            "Option 2: net return $5,300, $530 /acre\n"
            "     10.0  Hay, \"wet\"   8.5   10.0    5.3 ton/ac    100      630         530\n"
            "     10.0  Farm         8.5   10.0                  100      630         530\n"
            "\n"
            "Costs include irrigation costs. Net returns to land, management, and irrigation equipment.\n");
}

TEST(TableWriter, SaysIfThereAreNoOptions) {
  EvaluationResult result;
  result.cropCombinations = 3;
  result.efficiency = 0.875;
  EXPECT_EQ(written(writeTable, result),
            "Candidates: 0 (water splits: 0, crop combinations: 3)\nIrrigation efficiency: 87.5 %\n\n"
            "No option was found.\n");
}

std::size_t characters(const std::string& line) {
  std::size_t count = 0;
  for (const char c : line)
    count += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1 : 0;
  return count;
}

TEST(TableWriter, FitsInto100ColumnsWhateverTheCropNames) {
  EvaluationResult result = twoOptions();
  result.options[0].fields[0].crop = std::string(300, 'm');
  for (int i = 0; i < 90; ++i)
    result.options[0].fields[1].crop += "\xC3\xA4";
  result.options[1].fields[0].crop = "tab\there\x1b[31m";
  const std::string table = written(writeTable, result);
  std::istringstream lines(table);
  for (std::string line; std::getline(lines, line);)
    EXPECT_LE(characters(line), 100U) << line;
  EXPECT_NE(table.find("mmm..."), std::string::npos);
  EXPECT_NE(table.find("\xC3\xA4..."), std::string::npos);
  EXPECT_NE(table.find("tab here [31m"), std::string::npos);
}

TEST(TableWriter, AFullFarmFitsInto100Columns) {
  EvaluationResult result = twoOptions();
  FieldResult& field = result.options[0].fields[0];
  field.acres = 123456.7;
  field.crop = "Grain Sorghum";
  field.yield = 12345.6;
  field.yieldUnit = "bushels";
  field.costs = field.acres * 1234;
  field.returns = field.acres * 9876;
  const std::string table = written(writeTable, result);
  EXPECT_NE(table.find(
                "  123,456.7  Grain Sorghum  11.9   14.0  12,345.6 bushels/ac  1,234    9,876       8,642\n"),
            std::string::npos)
      << table;
}

const std::string csvHead =
    "option,field,crop,acres,net_inches,gross_inches,yield,yield_unit,price,max_yield,soil,costs,return,"
    "profit,"
    "option_costs,option_return,option_profit\r\n";

TEST(CsvWriter, WritesOneRowPerField) {
  EXPECT_EQ(
      written(writeCsv, twoOptions()),
      csvHead +
          "1,1,Corn,62.5,11.9,14,176.34,bu.,4.6,205,Silt "
          "Loam,31562.5,50687.5,19125,81562.5,50687.5,-30875\r\n"
          "1,2,Fallow,1250,0,0,0,,0,0,Silt Loam,50000,0,-50000,81562.5,50687.5,-30875\r\n"
          "2,1,\"Hay, \"\"wet\"\"\",10,8.5,10,5.25,ton,120,8,Fine Sand,1000,6300,5300,1000,6300,5300\r\n");
  EXPECT_EQ(written(writeCsv, {}), csvHead);
}

TEST(CsvWriter, QuotesOnlyWhereNecessary) {
  for (const auto& [name, text] : std::vector<std::pair<std::string, std::string>>{{"Corn", "Corn"},
                                                                                   {"a b", "a b"},
                                                                                   {"a,b", "\"a,b\""},
                                                                                   {"a\"b", "\"a\"\"b\""},
                                                                                   {"a\nb", "\"a\nb\""},
                                                                                   {"a\rb", "\"a\rb\""},
                                                                                   {"", ""}}) {
    EvaluationResult result = twoOptions();
    result.options = {result.options[1]};
    result.options[0].fields[0].crop = name;
    EXPECT_EQ(written(writeCsv, result).find(csvHead + "1,1," + text + ",10,"), 0U) << name;
  }
}

TEST(JsonWriter, WritesOneReadableObject) {
  EvaluationResult result = twoOptions();
  result.options = {result.options[1]};
  EXPECT_EQ(written(writeJson, result), R"({
  "waterSplits": 286,
  "cropCombinations": 1296,
  "candidates": 370656,
  "efficiency": 0.85,
  "seconds": 0.25,
  "options": [
    {
      "profit": 5300,
      "costs": 1000,
      "return": 6300,
      "netVolume": 85,
      "fields": [
        {
          "acres": 10,
          "crop": "Hay, \"wet\"",
          "netDepth": 8.5,
          "grossDepth": 10,
          "yield": 5.25,
          "yieldUnit": "ton",
          "price": 120,
          "maxYield": 8,
          "soil": "Fine Sand",
          "costs": 1000,
          "return": 6300,
          "production": 900,
          "irrigation": 100,
          "hours": 12
        }
      ]
    }
  ]
}
)");
}

/// The writer writes in pieces.
TEST(JsonWriter, WritesTheSameTextAsADumpOfTheWholeObject) {
  EvaluationResult noFields = twoOptions();
  noFields.options[0].fields.clear();
  noFields.options[1].fields[0].crop = "two\nlines";
  for (const EvaluationResult& result : {twoOptions(), noFields, EvaluationResult{}}) {
    const std::string text = written(writeJson, result);
    EXPECT_EQ(nlohmann::ordered_json::parse(text).dump(2) + '\n', text);
  }
}

TEST(JsonWriter, AcceptsBytesThatAreNotText) {
  EvaluationResult result = twoOptions();
  result.options[0].fields[0].crop = "\xFF\xC3";
  const auto json = nlohmann::json::parse(written(writeJson, result));
  EXPECT_EQ(json["options"][0]["fields"][0]["crop"], "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(OptionsWriters, AreFoundByName) {
  EXPECT_EQ(optionsFormats(), (std::vector<std::string>{"table", "csv", "json"}));
  EXPECT_EQ(optionsWriter("table"), &writeTable);
  EXPECT_EQ(optionsWriter("csv"), &writeCsv);
  EXPECT_EQ(optionsWriter("json"), &writeJson);
  EXPECT_EQ(optionsWriter("xml"), nullptr);
}

}  // namespace
}  // namespace verdalis
