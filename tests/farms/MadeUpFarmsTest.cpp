#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>

#include "tests/farms/Draw.h"
#include "tests/farms/MadeUpFarms.h"
#include "text/numbers.h"

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;

const std::string& textOf(const std::vector<MadeUpFile>& files, const std::string& path) {
  const auto found =
      std::find_if(files.begin(), files.end(), [&](const MadeUpFile& file) { return file.path == path; });
  if (found == files.end()) throw std::runtime_error("no " + path);
  return found->text;
}

std::uint64_t fingerprint(const std::vector<MadeUpFile>& files) {
  std::uint64_t number = 0xcbf29ce484222325;
  for (const MadeUpFile& file : files) {
    for (const char c : file.path + '\0' + file.text + '\0')
      number = (number ^ static_cast<unsigned char>(c)) * 0x100000001b3;
  }
  return number;
}

// All builds must be asked about the same farms, so what is drawn is fixed here.

TEST(Draw, GivesTheSameEverywhere) {
  Draw draw(1);
  std::vector<std::size_t> drawn;
  for (int i = 0; i < 6; ++i)
    drawn.push_back(draw.below(1000));
  EXPECT_THAT(drawn, ElementsAre(528, 462, 930, 246, 384, 409));
  EXPECT_EQ(draw.digits(12), "858463770390");
  std::vector<std::string> numbers;
  for (int i = 0; i < 6; ++i)
    numbers.push_back(draw.number(10, 20));
  EXPECT_THAT(numbers, ElementsAre("13", "13.87749700357864419048", "14.96", "19.02182747518771889399",
                                   "10.2", "12.5993735077520"));
}

TEST(Draw, StaysWithinItsLimits) {
  Draw draw(7);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = draw.number(3, 12);
    ASSERT_TRUE(isNumeric(text)) << text;
    EXPECT_GE(toDouble(text), 3);
    EXPECT_LT(toDouble(text), 12);
    EXPECT_LT(draw.below(5), 5U);
    EXPECT_EQ(draw.digits(20).size(), 20U);
  }
}

TEST(MadeUpFarms, AreTheSameEverywhere) {
  const std::vector<MadeUpFile> files = makeFarms(60, 39, 1);
  EXPECT_EQ(files.front().path, "home-01/crops/Corn.txt");
  EXPECT_EQ(fingerprint(files), 0xca24c50cdcb6d9fcU);
}

TEST(MadeUpFarms, AreAsManyAsAskedFor) {
  const std::vector<MadeUpFile> files = makeFarms(60, 39, 2);
  std::ptrdiff_t rows = 0;
  for (const char* const table : {"home-01.csv", "home-02.csv", "home-03.csv"}) {
    const std::string& text = textOf(files, table);
    rows += std::count(text.begin(), text.end(), '\n') - 1;
  }
  EXPECT_EQ(rows, 60);
  const std::string& runs = textOf(files, "runs.txt");
  EXPECT_EQ(std::count(runs.begin(), runs.end(), '\n'), 3 + 39);
  std::set<std::string> paths;
  for (const MadeUpFile& file : files)
    EXPECT_TRUE(paths.insert(file.path).second) << file.path;
}

TEST(MadeUpFarms, DependOnTheSeed) {
  EXPECT_EQ(fingerprint(makeFarms(30, 13, 5)), fingerprint(makeFarms(30, 13, 5)));
  EXPECT_NE(fingerprint(makeFarms(30, 13, 5)), fingerprint(makeFarms(30, 13, 6)));
  EXPECT_EQ(textOf(makeFarms(0, 5, 1), "runs.txt"), "") << "no farms, no questions";
}

}  // namespace
}  // namespace verdalis::testing
