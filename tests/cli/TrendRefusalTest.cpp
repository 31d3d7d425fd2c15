#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <filesystem>
#include <string>

#include "tests/cli/CliRun.h"
#include "tests/cli/PlainField.h"
#include "tests/cli/TrendRefusalFixture.h"

// A trend that cannot run reports the reason and writes nothing.

namespace verdalis::testing {
namespace {

using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

Args range(const std::string& from, const std::string& to, const std::string& steps) {
  return {"--from", from, "--to", to, "--steps", steps};
}

TEST_F(TrendRefusalTest, RejectsAFileThatCannotBeRead) {
  const auto cannot = [](const std::string& path) {
    return "--values-file: Please select a file! The file " + path + " cannot be read.";
  };
  expectFileRefused(file("none.txt"), cannot(file("none.txt")));
  expectFileRefused(home.path(), cannot(home.path()));
  expectFileRefused("", cannot(""));
  expectFileRefused("/dev/zero", cannot("/dev/zero"));
  expectRefused(
      irrigationCosts + Args{"--values", "1", "--option", "1", "--variable2", "3", "--values-file2", "none"},
      "--values-file2: Please select a file! The file none cannot be read.");
}

TEST_F(TrendRefusalTest, RejectsAFileWithoutValues) {
  const std::string empty = home.folder().write("empty.txt", "").string();
  expectFileRefused(empty, "--values-file: Please select a file! The file " + empty + " is empty.");
  expectFileRefused(home.folder().write("lines.txt", "\r\n\n").string(),
                    "--values-file: Please select a file!");
}

TEST_F(TrendRefusalTest, RejectsAFileWithAnEntryThatIsNotANumber) {
  const auto entry = [](const std::string& place, const std::string& path, const std::string& what) {
    return "--values-file: Entry " + place + " of the file " + path + what +
           " Every entry must be a number, with commas only between the numbers, such as 2, 2.5, 3. The end "
           "of a line does not separate them.";
  };
  const std::string word = home.folder().write("word.txt", "70, x,80").string();
  expectFileRefused(word, entry("2", word, ", \"x\", is not a number."));
  const std::string hole = home.folder().write("hole.txt", "70,,80").string();
  expectFileRefused(hole, entry("2", hole, " is empty."));
  const std::string large = home.folder().write("large.txt", "70,80,1e999").string();
  expectFileRefused(large, entry("3", large, ", \"1e999\", is not a number."));
}

TEST_F(TrendRefusalTest, RejectsAFileThatIsNotText) {
  std::string bytes;
  for (int i = 0; i < 5000; ++i)
    bytes += static_cast<char>(i * 7 % 256 == ',' ? 0 : i * 7 % 256);
  const std::string binary = home.folder().write("binary", bytes).string();
  expectFileRefused(binary, AllOf(StartsWith("--values-file: Entry 1 of the file " + binary + ", \""),
                                  HasSubstr("is not a number.")));
  const CliResult result = trend(irrigationCosts + Args{"--values-file", binary});
  EXPECT_LT(result.err.size(), 1000U);  // a message, not the contents of the file
  for (std::size_t i = 0; i + 1 < result.err.size(); ++i)
    EXPECT_FALSE(std::iscntrl(static_cast<unsigned char>(result.err[i]))) << i;
}

TEST_F(TrendRefusalTest, RejectsAFileWithAMillionValues) {
  std::string million;
  for (int i = 0; i < 1'000'000; ++i)
    million += i == 0 ? "12" : ",12";
  const std::string path = home.folder().write("million.txt", million).string();
  const Args values{"--values-file", path};
  expectRefused(irrigationCosts + values,
                "1,000,000 values with 100 options each are more than the 150,000 options that a variable "
                "trend can keep. Use fewer values, or keep fewer options.");
  EXPECT_THAT(trend(irrigationCosts + values).err,
              HasSubstr("1,000,000 values with 100 options each are more than the 1,000,000 options"));
  expectRefused(irrigationCosts + values + Args{"--option", "1"},
                "The values make 1,000,000 combinations, and a fixed trend can have at most 32,767. Use "
                "fewer values.");
  expectRefused(irrigationCosts + values + Args{"--option", "1", "--variable2", "4", "--values-file2", path},
                "The values make 1,000,000,000,000 combinations, and a fixed trend can have at most 32,767. "
                "Use fewer values.");
  static_cast<void>(home.folder().write("million.txt", million + ",12"));
  expectFileRefused(path,
                    "--values-file: The file " + path + " has more than 1,000,000 values. Use fewer values.");
}

TEST_F(TrendRefusalTest, RejectsAFileThatIsTooLarge) {
  const std::string path = home.folder().write("large.txt", "1,2").string();
  std::filesystem::resize_file(path, (std::uintmax_t{32} << 20U) + 1);  // a sparse file takes no disk space
  expectFileRefused(path, "--values-file: The file " + path +
                              " has more than 32 MB, which is too much for a list of trend values. Select "
                              "a file with fewer values.");
}

TEST_F(TrendRefusalTest, RejectsAListWithoutNumbers) {
  for (const std::string list : {"x", ",,", "nan", "inf", "1e999", "0x10"}) {
    expectRefused(irrigationCosts + Args{"--values", list},
                  "--values: The list \"" + list +
                      "\" has no number in it. Enter numbers with commas between them, such as 2, 2.5, 3.");
  }
}

TEST_F(TrendRefusalTest, RejectsNumbersThatAreTooLarge) {
  const std::string tooLarge = " is too large to calculate with. Check the numbers that were entered.";
  for (const Args& kind : {Args{}, Args{"--option", "1"}}) {
    for (const std::string value : {"1e308", "-1e308"}) {
      const Args values = Args{"--values", value} + kind;
      expectRunTimeError(ofPlain("0") + values, "The return of a field" + tooLarge);
      expectRunTimeError(ofPlain("1") + values, "The production cost of a field" + tooLarge);
      expectRunTimeError(ofPlain("2") + values, "The return of a field" + tooLarge);
    }
  }
  expectRunTimeError({"--variable", "3", "--values", "1e308"}, "The net water volume" + tooLarge);
  expectRefused(irrigationCosts + range("-1e308", "1e308", "3"),
                "The values of the trend: The distance of the trend values" + tooLarge);
}

TEST_F(TrendRefusalTest, AcceptsANegativeZeroAndIgnoresEmptyEntries) {
  const CliResult zero = trend(ofPlain("0") + Args{"--values", "-0", "--format", "csv"});
  EXPECT_EQ(zero.exitCode, 0) << zero.err;
  EXPECT_THAT(zero.out, HasSubstr("\r\n1,-0,,1,1,Plain,100,8.5,10,50,bu.,"));
  const CliResult hole = trend(ofPlain("0") + Args{"--values", "1,,2", "--format", "csv"});
  EXPECT_EQ(hole.exitCode, 0) << hole.err;
  EXPECT_THAT(hole.out, AllOf(HasSubstr("\r\n1,1,,"), HasSubstr("\r\n2,2,,")));
}

TEST_F(TrendRefusalTest, RejectsAnInvalidRange) {
  const std::string order = "--from: Please select a maximum value greater than the minimum value!";
  expectRefused(irrigationCosts + range("2", "1", "3"), order);
  expectRefused(irrigationCosts + range("2", "2", "3"), order);
  expectRefused(irrigationCosts + range("-5", "0", "3"), order);
  for (const std::string steps : {"0", "1", "1.5", "-3"}) {
    expectRefused(irrigationCosts + range("1", "2", steps),
                  "--from: The number of steps \"" + steps +
                      "\" makes fewer than two values. Enter a whole number of 2 or more, such as 5.");
  }
  for (const std::string steps : {"1000001", "99999999999999999999", "1e300"}) {
    expectRefused(irrigationCosts + range("1", "2", steps), "--from: The number of steps \"" + steps +
                                                                "\" makes more than 1,000,000 values. Use "
                                                                "fewer values.");
  }
  for (const std::string steps : {"", "x", "3 steps", "1e999", "1,000"}) {
    expectRefused(irrigationCosts + range("1", "2", steps),
                  "--steps \"" + steps + "\": Please enter a valid number");
  }
}

TEST_F(TrendRefusalTest, RejectsRainfallOutsideTheYieldTables) {
  const std::string below =
      "Values for Annual Rainfall cannot be below 11 inches.  Please modify the values.";
  const std::string above = "Values for Annual Rainfall cannot exceed 21 inches.  Please modify the values.";
  const std::string list = home.folder().write("rain.txt", "11,21,21.01").string();
  for (const Args& kind : {Args{}, Args{"--option", "1"}}) {
    expectRefused(rain + Args{"--values", "10.99"} + kind, "--values: " + below);
    expectRefused(rain + Args{"--values", "-0"} + kind, "--values: " + below);
    expectRefused(rain + Args{"--values", "21.01"} + kind, "--values: " + above);
    expectRefused(rain + Args{"--values", "1e308"} + kind, "--values: " + above);
    expectRefused(rain + range("10", "21", "3") + kind, "--from: " + below);
    expectRefused(rain + range("11", "22", "3") + kind, "--from: " + above);
    expectRefused(rain + Args{"--values-file", list} + kind, "--values-file: " + above);
  }
}

TEST_F(TrendRefusalTest, RejectsAnUnknownOption) {
  const Args one = irrigationCosts + Args{"--values", "1,2"};
  for (const std::string option : {"0", "-1", "", "1.0", "1x", " 1"}) {
    expectRefused(one + Args{"--option", option}, "--option \"" + option + "\": Options are counted from 1.");
  }
  expectRefused(one + Args{"--option", "2"}, "--option 2: The evaluation found 1 option.");
  expectRefused(one + Args{"--option", "18446744073709551615"},
                "--option 18446744073709551615: The evaluation found 1 option.");
}

TEST_F(TrendRefusalTest, RejectsAnUnknownVariable) {
  const std::string names =
      "0 is \"Crop Price\", 1 is \"General Production Costs\", 2 is \"Maximum Yield\", 3 is \"Irrigation "
      "System Efficiency\", 4 is \"Irrigation Costs\", 5 is \"Annual Rainfall\".";
  for (const std::string variable : {"6", "-1", "x", "", "1.0", "10"}) {
    expectRefused({"--variable", variable, "--values", "1"},
                  "--variable \"" + variable + "\": There is no such variable: " + names);
  }
  expectRefused({"--values", "1"}, "A trend needs a variable (--variable N): " + names);
  const Args second = irrigationCosts + Args{"--values", "1", "--option", "1", "--values2", "1"};
  expectRefused(second + Args{"--variable2", "6"}, "--variable2 \"6\": There is no such variable: " + names);
  expectRefused(second, "A trend needs a variable (--variable2 N): " + names);
}

TEST_F(TrendRefusalTest, RejectsAnUnknownCrop) {
  for (const std::string variable : {"0", "1", "2"}) {
    const Args values{"--variable", variable, "--values", "1"};
    expectRefused(values, "This variable belongs to a crop (--trend-crop NAME).");
    expectRefused(values + Args{"--trend-crop", "Kale"},
                  AllOf(StartsWith("--trend-crop: There is no crop \"Kale\". The crops are "),
                        HasSubstr("\"Plain\""), EndsWith("\".")));
    expectRefused(
        irrigationCosts + Args{"--values", "1", "--option", "1", "--variable2", variable, "--values2", "1"},
        "This variable belongs to a crop (--trend-crop2 NAME).");
  }
}

TEST_F(TrendRefusalTest, RejectsTooManyCombinations) {
  const std::string message = " combinations, and a fixed trend can have at most 32,767. Use fewer values.";
  expectRefused(irrigationCosts + range("1", "2", "32768") + Args{"--option", "1"},
                "The values make 32,768" + message);
  expectRefused(
      irrigationCosts + range("1", "2", "182") +
          Args{"--option", "1", "--variable2", "3", "--from2", "50", "--to2", "90", "--steps2", "181"},
      "The values make 32,942" + message);
}

/// The trend runs, and standard error says that the crop name is not used.
TEST_F(TrendRefusalTest, ReportsAnUnusedCropName) {
  const auto told = [this](const Args& more) {
    const CliResult result = trend(more + Args{"--values", "1,2"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.out, "");
    return result.err;
  };
  EXPECT_EQ(told(ofPlain("0")), "");
  EXPECT_EQ(
      told(irrigationCosts + Args{"--trend-crop", "Plain"}),
      "verdalis-cli: --trend-crop: \"Irrigation Costs\" belongs to no crop, so the name has no effect.\n");
  EXPECT_EQ(told({"--variable", "1", "--trend-crop", "Fallow"}),
            "verdalis-cli: --trend-crop: \"Fallow\" is not ticked, so its values have no effect.\n");
  EXPECT_EQ(
      told(ofPlain("0") +
           Args{"--option", "1", "--variable2", "1", "--trend-crop2", "Fallow", "--values2", "3"}),
      "verdalis-cli: --trend-crop2: \"Fallow\" has no field in this option, so its values have no effect.\n");
}

}  // namespace
}  // namespace verdalis::testing
