#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "data/readFile.h"
#include "tests/data/Failure.h"
#include "tests/data/Unreadable.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/TemporaryFolder.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using testing::expectUnreadable;
using testing::failureOf;
using testing::hasPosixFiles;
using testing::TemporaryFolder;

TEST(ReadFile, ReturnsUtf8Unchanged) {
  const TemporaryFolder folder;
  const std::string bytes("Ma\xC3\xAFs, \xE2\x82\xAC 5\r\n\0x\t\n", 18);
  EXPECT_EQ(readFile(folder.write("a.txt", bytes)), bytes);
}

TEST(ReadFile, DropsAByteOrderMark) {
  const TemporaryFolder folder;
  EXPECT_EQ(readFile(folder.write("a.txt",
                                  "\xEF\xBB\xBF"
                                  "CROP=Corn")),
            "CROP=Corn");
  EXPECT_EQ(readFile(folder.write("a.txt", "\xEF\xBB\xBF")), "");
}

TEST(ReadFile, ReadsOtherBytesAsWindows1252) {
  const TemporaryFolder folder;
  EXPECT_EQ(readFile(folder.write("a.txt", "Ma\xEFs \x80")), "Ma\xC3\xAFs \xE2\x82\xAC");
}

TEST(ReadFile, ReturnsAnEmptyTextForAnEmptyFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(readFile(folder.write("a.txt", "")), "");
}

TEST(ReadFile, FailsWithThePathIfNotARegularFile) {
  const TemporaryFolder folder;
  expectUnreadable(folder / "missing.txt");
  expectUnreadable(folder.path());
  expectUnreadable(folder.write("a.txt", "x") / "below a file.txt");
  expectUnreadable(folder / std::string(300, 'n'));
  expectUnreadable("");
  if (!hasPosixFiles) return;
  std::filesystem::create_symlink("nowhere", folder / "broken");
  expectUnreadable(folder / "broken");
  std::filesystem::create_symlink("circle", folder / "circle");
  expectUnreadable(folder / "circle");
  expectUnreadable("/dev/zero");
  expectUnreadable("/dev/null");
}

TEST(ReadFile, FailsForAFileAboveTheLimit) {
  const TemporaryFolder folder;
  const auto file = folder.write("large.txt", "");
  std::filesystem::resize_file(file, maxFileSize + 1);  // a sparse file takes no disk space
  expectUnreadable(file);
}

TEST(ReadFile, ReadsAFileOfManyMegabytes) {
  const TemporaryFolder folder;
  std::string bytes;
  bytes.resize(20'000'000, 'x');
  EXPECT_TRUE(readFile(folder.write("a.txt", bytes)) == bytes);
}

std::vector<std::string> linesOf(std::string_view text) {
  LineReader reader(text);
  std::vector<std::string> lines;
  while (!reader.atEnd())
    lines.emplace_back(reader.next());
  return lines;
}

using Lines = std::vector<std::string>;

TEST(LineReader, AcceptsAllThreeLineEnds) {
  EXPECT_EQ(linesOf("a\r\nb\r\n"), (Lines{"a", "b"}));
  EXPECT_EQ(linesOf("a\nb\n"), (Lines{"a", "b"}));
  EXPECT_EQ(linesOf("a\rb\r"), (Lines{"a", "b"}));
  EXPECT_EQ(linesOf("a\rb\nc\r\nd"), (Lines{"a", "b", "c", "d"}));
}

TEST(LineReader, KeepsEmptyLines) {
  EXPECT_EQ(linesOf("\r\n\r\n"), (Lines{"", ""}));
  EXPECT_EQ(linesOf("\n\na"), (Lines{"", "", "a"}));
  EXPECT_EQ(linesOf("\r\r"), (Lines{"", ""}));
  EXPECT_EQ(linesOf("a\n\rb"), (Lines{"a", "", "b"}));
  EXPECT_EQ(linesOf("a\r\r\nb"), (Lines{"a", "", "b"}));
}

TEST(LineReader, AcceptsALastLineWithoutAnEnd) {
  EXPECT_EQ(linesOf("a"), (Lines{"a"}));
  EXPECT_EQ(linesOf("a\r\n "), (Lines{"a", " "}));
  EXPECT_EQ(linesOf(""), Lines{});
}

TEST(LineReader, KeepsBlanksAndZeroBytes) {
  EXPECT_EQ(linesOf(std::string_view(" a\0b \t\r\n", 8)), (Lines{std::string(" a\0b \t", 6)}));
}

TEST(LineReader, FailsAtTheEndOfTheText) {
  LineReader reader("a\r\n");
  EXPECT_EQ(reader.next(), "a");
  EXPECT_TRUE(reader.atEnd());
  static_cast<void>(failureOf(ErrorNumber::invalidCall, [&] { static_cast<void>(reader.next()); }));
  LineReader empty("");
  static_cast<void>(failureOf(ErrorNumber::invalidCall, [&] { static_cast<void>(empty.next()); }));
}

}  // namespace
}  // namespace verdalis
