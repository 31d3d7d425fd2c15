#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "document/farmText.h"
#include "tests/document/fullDocument.h"
#include "text/RunTimeError.h"
#include "text/version.h"

namespace verdalis {
namespace {

using testing::documentWithEverything;
using ::testing::HasSubstr;

std::string replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return text;
}

/// A file in tests/document/files. The key "program" has the number of this version.
std::string keptFile(const std::string& name, const std::string& program) {
  std::ifstream in(std::filesystem::path(VERDALIS_SOURCE_DIR) / "tests/document/files" / name,
                   std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  return replaced(text, "\"program\": \"" + program + "\"", "\"program\": \"" + versionNumber() + "\"");
}

TEST(FarmFile, ReadingAnEmptyDocumentAndWritingItGivesTheSameBytes) {
  const std::string text = writeFarm(FarmDocument());
  EXPECT_EQ(readFarm(text), FarmDocument());
  EXPECT_EQ(writeFarm(readFarm(text)), text);
}

TEST(FarmFile, TheKeptFileOfVersion1IsReadAndWrittenAsTheSameBytes) {
  const std::string text = keptFile("version-1.verdalis", "1.16");
  EXPECT_EQ(readFarm(text), documentWithEverything());
  EXPECT_EQ(writeFarm(readFarm(text)), text);
}

TEST(FarmFile, IsReadableText) {
  FarmDocument document;
  document.name = "Hill";
  document.inputs.farm.txtArea = "125";
  document.inputs.wishes = {{{Wish::Kind::cropsAtLeast, "", 0, 2.5}, {}}};
  const std::string text = writeFarm(document);
  EXPECT_THAT(text, HasSubstr("{\n  \"format\": \"verdalis-farm\",\n  \"version\": 1,\n  \"program\": \"" +
                              versionNumber() + "\",\n  \"name\": \"Hill\",\n"));
  EXPECT_THAT(text, HasSubstr("  \"farm\": {\n    \"txtArea\": \"125\",\n"));
  EXPECT_THAT(text, HasSubstr("  \"wishes\": [\n    {\n      \"kind\": \"cropsAtLeast\",\n"
                              "      \"amount\": 2.5\n    }\n  ],\n  \"seasons\": [],\n"));
  EXPECT_TRUE(text.ends_with("  \"customCrops\": []\n}\n"));
}

TEST(FarmFile, BytesThatAreNotUtf8AreReplaced) {
  FarmDocument document;
  document.notes = "a\xE9z";
  EXPECT_EQ(readFarm(writeFarm(document)).notes, "a\xEF\xBF\xBDz");
}

TEST(FarmFile, AByteOrderMarkIsAccepted) {
  const std::string text = writeFarm(documentWithEverything());
  EXPECT_EQ(readFarm("\xEF\xBB\xBF" + text), documentWithEverything());
}

TEST(FarmFile, LineEndsOfAnotherSystemAreAccepted) {
  const std::string text = writeFarm(documentWithEverything());
  EXPECT_EQ(readFarm(replaced(text, "\n", "\r\n")), documentWithEverything());
}

TEST(FarmFile, TheLayoutOfTheTextHasNoMeaning) {
  const std::string text = writeFarm(documentWithEverything());
  EXPECT_EQ(readFarm(replaced(replaced(text, "\n", ""), "  ", "")), documentWithEverything());
  EXPECT_EQ(readFarm(replaced(text, "\n", "\n\t \n")), documentWithEverything());
}

TEST(FarmFile, TheOrderOfTheKeysHasNoMeaning) {
  const FarmDocument read = readFarm(R"({"wishes": [{"amount": 4, "crop": "Corn", "kind": "acresAtMost"}],
      "farm": {"noSplit": true, "txtArea": "9"}, "version": 1, "format": "verdalis-farm"})");
  FarmDocument expected;
  expected.inputs.wishes = {{{Wish::Kind::acresAtMost, "Corn", 0, 4}, {}}};
  expected.inputs.farm.noSplit = true;
  expected.inputs.farm.txtArea = "9";
  EXPECT_EQ(read, expected);
}

TEST(FarmFile, InputsAreWrittenAsInAFile) {
  const FarmInputs inputs = testing::inputsWithEverything();
  FarmDocument document;
  document.inputs = inputs;
  const std::string text = writeInputs(inputs);
  EXPECT_TRUE(text.starts_with("{\n  \"farm\": {\n    \"txtArea\": \"125\",\n"));
  EXPECT_THAT(writeFarm(document), HasSubstr(text.substr(2, text.size() - 5)));
}

}  // namespace
}  // namespace verdalis
