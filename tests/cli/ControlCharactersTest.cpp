#include <gtest/gtest.h>

#include "tests/cli/CliRun.h"

// Names of crops come from files of others. Control characters in them could change what a terminal shows.

namespace verdalis::testing {
namespace {

using Args = std::vector<std::string>;

bool hasControl(const std::string& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
    if ((byte < 0x20 && byte != '\n') || byte == 0x7F) return true;
    if (byte == 0xC2 && next >= 0x80 && next < 0xA0) return true;
  }
  return false;
}

class ControlCharacters : public ::testing::Test {
 protected:
  ControlCharacters() {
    home_.crop("bad.txt", name_, "b\xC2\x9D.,b\x1Bs", "0.5,0.5,0.9,0.9");
    home_.folder().write("farms.csv", "name,crops\nA," + name_ + "x\n");
  }

  [[nodiscard]] CliResult run(const Args& command, const Args& more = {}) const {
    Args args = home_.arguments({"--split", "0", "--crop", name_, "--crop", "Plain", "--price", name_ + "=2",
                                 "--max-yield", name_ + "=100"});
    args.erase(args.begin());
    args.insert(args.begin(), command.begin(), command.end());
    args.insert(args.end(), more.begin(), more.end());
    return runCli(args);
  }

  const std::string name_ =
      "Bad\x1B]0;title\x07\xC2\x9B"
      "31m\x7F";
  const std::string shown_ = "Bad ]0;title  31m ";
  SmallHome home_;
};

TEST_F(ControlCharacters, AreInNoTable) {
  for (const Args& command : std::vector<Args>{
           {"evaluate"},
           {"evaluate", "--explain", "1.1"},
           {"trend", "--variable", "0", "--trend-crop", name_, "--values", "2,3"},
           {"trend", "--option", "1", "--variable", "0", "--trend-crop", name_, "--values", "2,3"},
           {"explore", "water"},
           {"explore", "switch", "--input", "price " + name_, "--from", "0", "--to", "3"},
           {"explore", "seasons", "--season", "a\xC2\x85:11:1", "--season", "b\x1B:12:1"},
           {"explore", "map", "--x", "price " + name_ + "=1:2:2", "--y", "water=5:10:2"},
           {"explore", "inputs"}}) {
    const CliResult result = run(command);
    EXPECT_EQ(result.exitCode, 0) << command.back() << result.err;
    EXPECT_NE(result.out, "") << command.back();
    EXPECT_FALSE(hasControl(result.out)) << command.back() << result.out;
    EXPECT_FALSE(hasControl(result.err)) << command.back();
  }
  EXPECT_NE(run({"evaluate"}).out.find(shown_), std::string::npos);
}

TEST_F(ControlCharacters, AreInNoMessage) {
  for (const Args& fault : std::vector<Args>{{"--price", name_ + "x=1"},
                                             {"--crop", name_ + "?"},
                                             {"--set", "txtAnnRain=" + name_},
                                             {"--wish", name_ + " at least 4000 acres"},
                                             {"--output", "nowhere/" + name_},
                                             {"--farm", name_},
                                             {name_}}) {
    const CliResult result = run({"evaluate"}, fault);
    EXPECT_NE(result.exitCode, 0) << fault.back();
    EXPECT_FALSE(hasControl(result.out)) << fault.back();
    EXPECT_FALSE(hasControl(result.err)) << result.err;
    EXPECT_NE(result.err, "");
  }
  const CliResult rows = run({"batch", (home_.folder() / "farms.csv").string()});
  EXPECT_EQ(rows.exitCode, 1);
  EXPECT_FALSE(hasControl(rows.err)) << rows.err;
}

}  // namespace
}  // namespace verdalis::testing
