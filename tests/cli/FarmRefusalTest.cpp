#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>

#include "tests/cli/FarmFiles.h"

// Farm files that no command accepts, with the messages.

namespace verdalis::testing {
namespace {

const std::vector<Args> commands{{"evaluate"},
                                 {"farm"},
                                 {"trend", "--variable", "5", "--values", "14"},
                                 {"explore", "water"},
                                 {"explore", "seasons"}};

/// Runs all commands with a file that must be refused, and returns their message.
std::string refusal(const FarmHome& home, const Args& options) {
  std::string message;
  for (const Args& command : commands) {
    const CliResult result = home.run(command, options);
    EXPECT_EQ(result.exitCode, 2) << command[0] << result.err;
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(message.empty() || message == result.err) << result.err;
    message = result.err;
  }
  const CliResult rows = runBatch(joined({"--home", home.path()}, options), "name\nx\n");
  EXPECT_EQ(rows.exitCode, 2) << rows.err;
  EXPECT_EQ(rows.out, "");
  EXPECT_EQ(rows.err, message);
  return message;
}

const Args corn{"--split", "0", "--crop", "Corn"};

TEST(FarmRefusal, AFileThatCannotBeReadIsRefused) {
  const FarmHome home;
  const std::string missing = (home.folder() / "none.verdalis").string();
  EXPECT_EQ(refusal(home, {"--farm", missing}),
            "verdalis-cli: --farm: The file " + missing + " cannot be read: No such file or directory.\n");
  EXPECT_EQ(refusal(home, {"--farm", home.path()}),
            "verdalis-cli: --farm: The file " + home.path() + " cannot be read: It is a folder.\n");
  EXPECT_TRUE(has(refusal(home, {"--farm", ""}), "cannot be read"));
}

TEST(FarmRefusal, AFileThatIsTooLargeIsRefusedUnread) {
  const FarmHome home;
  const std::filesystem::path file = home.folder().write("large.verdalis", "{");
  std::filesystem::resize_file(file, (std::uintmax_t{64} << 20U) + 1);
  EXPECT_EQ(refusal(home, {"--farm", file.string()}),
            "verdalis-cli: --farm: The file " + file.string() + " cannot be read: It has more than 64 MB.\n");
}

TEST(FarmRefusal, ADamagedFileIsRefusedWithLineAndReason) {
  const FarmHome home;
  const std::string intact = bytesOf(home.write(corn));
  const auto withText = [&](const std::string& before, const std::string& after) {
    std::string text = intact;
    const std::size_t place = text.find(before);
    EXPECT_NE(place, std::string::npos) << before;
    text.replace(place, before.size(), after);
    const std::string file = home.folder().write("damaged.verdalis", text).string();
    const std::string message = refusal(home, {"--farm", file});
    const std::string head = "verdalis-cli: --farm: The file " + file + ": ";
    EXPECT_EQ(message.substr(0, head.size()), head);
    return message.substr(std::min(head.size(), message.size()));
  };
  const auto lineOf = [&](const std::string& part) {
    return std::to_string(1 + std::count(intact.begin(),
                                         intact.begin() + static_cast<std::ptrdiff_t>(intact.find(part)),
                                         '\n'));
  };
  const std::string damaged = "The farm file is damaged at line ";
  EXPECT_EQ(withText("\"split\": 0", "\"split\": 99"),
            damaged + lineOf("\"split\"") + ": \"split\" must be null or a whole number from 0 to 5.\n");
  EXPECT_EQ(withText("\"factor\": 10", "\"factor\": 1e9"),
            damaged + lineOf("\"factor\"") + ": \"factor\" must be a whole number from 1 to 100.\n");
  EXPECT_EQ(withText("\"noSplit\": false", "\"noSplit\": 0"),
            damaged + lineOf("\"noSplit\"") + ": \"noSplit\" must be true or false.\n");
  EXPECT_TRUE(has(withText("\"notes\":", "\"notes\""), damaged + lineOf("\"notes\"") + ": Unexpected"));
  EXPECT_EQ(withText(intact.substr(intact.size() / 2), "").substr(0, damaged.size()), damaged);
  EXPECT_EQ(withText("verdalis-farm", "other-farm"), "This is not a farm file.\n");
  EXPECT_EQ(withText(intact, ""), "This is not a farm file: it is empty.\n");
  const std::string newer = withText("\"version\": 1", "\"version\": 2");
  EXPECT_TRUE(has(newer, "This farm file has version 2 of the format")) << newer;
  EXPECT_TRUE(has(newer, "reads up to version 1")) << newer;
}

TEST(FarmRefusal, SavedInputsAreNoFarmFile) {
  const FarmHome home;
  const std::string file = (home.folder() / "inputs.txt").string();
  EXPECT_TRUE(has(refusal(home, {"--farm", file}), "The file " + file + ": This is not a farm file"));
}

TEST(FarmRefusal, AFarmFileTakesThePlaceOfSavedInputs) {
  const FarmHome home;
  const std::string file = home.write(corn);
  EXPECT_EQ(refusal(home, {"--farm", file, "--inputs", (home.folder() / "inputs.txt").string()}),
            "verdalis-cli: --farm: A farm file takes the place of saved inputs, so --inputs cannot be given "
            "too.\n");
}

TEST(FarmRefusal, AFarmFileIsGivenOnce) {
  const FarmHome home;
  const std::string file = home.write(corn);
  EXPECT_EQ(home.run({"evaluate"}, {"--farm", file, "--farm", file}).exitCode, 2);
  EXPECT_EQ(home.run({"evaluate"}, {"--farm"}).exitCode, 2);
}

TEST(FarmRefusal, OptionsBesideTheFileAreCheckedAsAlways) {
  const FarmHome home;
  const std::string file = home.write(corn);
  EXPECT_TRUE(has(refusal(home, {"--farm", file, "--price", "Corn=99"}), "less than or equal to 10"));
  EXPECT_TRUE(has(refusal(home, {"--farm", file, "--split", "6"}), "There is no such land split"));
  EXPECT_TRUE(has(refusal(home, {"--farm", file, "--keep", "x"}), "valid number"));
  EXPECT_TRUE(has(refusal(home, {"--farm", file, "--factor", "0"}), "between 1 and 100"));
  EXPECT_TRUE(has(refusal(home, {"--farm", file, "--crop", "Rice"}), "There is no crop \"Rice\""));
  EXPECT_TRUE(has(refusal(home, {"--farm", file, "--wish", "x"}), "This wish cannot be read"));
}

}  // namespace
}  // namespace verdalis::testing
