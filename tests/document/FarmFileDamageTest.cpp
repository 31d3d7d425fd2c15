#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

#include "data/readFile.h"
#include "document/documentKeys.h"
#include "document/farmText.h"
#include "tests/document/fullDocument.h"
#include "tests/document/jsonPlaces.h"
#include "tests/document/refusal.h"
#include "text/version.h"

namespace verdalis {
namespace {

using Tree = nlohmann::ordered_json;
using testing::documentWithEverything;
using testing::forEachPlace;
using ::testing::HasSubstr;
using testing::refusal;
using ::testing::StartsWith;

std::string damagedAt(std::size_t line, const std::string& reason) {
  return "The farm file is damaged at line " + std::to_string(line) + ": " + reason;
}

/// A file with the version on line 2 and these members from line 3.
std::string fileWith(const std::string& members) {
  return "{\"format\": \"verdalis-farm\",\n\"version\": 1,\n" + members + "}";
}

std::string repeated(std::string_view text, std::size_t times) {
  std::string result;
  result.reserve(text.size() * times);
  for (std::size_t i = 0; i < times; ++i)
    result += text;
  return result;
}

// Texts that are no farm file.

TEST(FarmFileDamage, ATextOfAnotherKindIsNoFarmFile) {
  const std::string brace = "This is not a farm file: it does not begin with a brace.";
  EXPECT_EQ(refusal("125,14,17,85\r\n"), brace);
  EXPECT_EQ(refusal("%PDF-1.4"), brace);
  EXPECT_EQ(refusal("[1, 2]"), brace);
  EXPECT_EQ(refusal("\"text\""), brace);
  EXPECT_EQ(refusal(std::string(1, '\0')), brace);
  EXPECT_EQ(refusal("\xFF\xFE{"), brace);
  EXPECT_EQ(refusal(""), "This is not a farm file: it is empty.");
  EXPECT_EQ(refusal(" \r\n\t"), "This is not a farm file: it is empty.");
  EXPECT_EQ(refusal("\xEF\xBB\xBF\n"), "This is not a farm file: it is empty.");
}

TEST(FarmFileDamage, OtherJsonIsNoFarmFile) {
  for (const std::string text : {"{}", R"({"name": "x", "version": "1.0.0"})", R"({"format": "other"})",
                                 R"({"format": 5, "version": 1})", R"({"format": null})"}) {
    EXPECT_EQ(refusal(text), "This is not a farm file.") << text;
  }
}

TEST(FarmFileDamage, TheVersionMustBeThereAndBeAWholeNumber) {
  EXPECT_EQ(refusal("\n{\"format\": \"verdalis-farm\"}"),
            damagedAt(2, "The \"version\" of the format is missing."));
  for (const std::string version : {"\"1\"", "0", "-1", "1.5", "null", "1e300"}) {
    EXPECT_THAT(refusal("{\"format\": \"verdalis-farm\",\n\"version\": " + version + "}").value_or("read"),
                StartsWith(damagedAt(2, "\"version\" must be a whole number from 1 ")))
        << version;
  }
}

TEST(FarmFileDamage, ANewerVersionIsRefusedWithBothVersions) {
  // Whatever else a newer version may contain.
  const std::string text = R"({"farm": ["?"], "format": "verdalis-farm", "version": 2, "options": 7})";
  EXPECT_EQ(refusal(text), "This farm file has version 2 of the format, and this program, Verdalis " +
                               versionNumber() + ", reads up to version 1. Open it with a newer Verdalis.");
}

TEST(FarmFileDamage, ATextAboveTheMaximumSizeIsRefused) {
  const std::string text = writeFarm(FarmDocument());
  EXPECT_EQ(refusal(text + std::string(maxFileSize - text.size(), ' ')), std::nullopt);
  EXPECT_EQ(refusal(text + std::string(maxFileSize - text.size() + 1, ' ')),
            "The farm file is too large: farm files have up to 64 MB.");
}

// Texts that are no JSON.

TEST(FarmFileDamage, TextThatIsNoJsonIsRefusedWithLineAndReason) {
  const std::string punctuation =
      ". A comma, colon, quotation mark or bracket is missing before it, or there is one too many.";
  const std::vector<std::tuple<std::string, std::size_t, std::string>> examples{
      {"\"name\": \"a\"\n\"notes\": \"\"", 4, "Unexpected \"\"notes\"\"" + punctuation},
      {"\"name\" \"a\"", 3, "Unexpected \"\"a\"\"" + punctuation},
      {"\"name\": \"a\",\n", 4, "Unexpected \"}\"" + punctuation},
      {"\"crops\": [1,\n2}", 4, "Unexpected \"}\"" + punctuation},
      {"\"name\": \"a\"}\n}", 4, "Unexpected \"}\"" + punctuation},
      {"\n\nname: 1", 5, "Unexpected \"name\". A text stands in quotation marks."},
      {"\"name\": Hill", 3, "Unexpected \"Hill\". A text stands in quotation marks."},
      {"\"name\": \"Hill,\n\"notes\": \"\"", 3,
       "A text has no quotation mark at its end, or has a control character in it."},
      {"\"name\": \"D:\\Farm\"", 3, "A backslash in a text is followed by something that means nothing."},
      {"\"name\": \"\\uD800\"", 3, "A backslash in a text is followed by something that means nothing."},
      {"\"name\": \"a\xE9\"", 3, "A text is not in UTF-8."},
      {"\"name\": \"\xC0\xAF\"", 3, "A text is not in UTF-8."},
      {"\"name\": \"\xED\xA0\x80\"", 3, "A text is not in UTF-8."},
      {"\n\"x\": 1e999", 4, "The number \"1e999\" is too large."},
      {"\"plant\": {\"gpm\":\n-1e999}", 4, "The number \"-1e999\" is too large."},
      {"\"x\": 1.", 3, "\"1.\" is not a number."},
      {"\"x\": 1,5", 3, "Unexpected \"5\"" + punctuation},
      {"\"x\": [true\nfalse]", 4, "Unexpected \"false\"" + punctuation},
      {"\"x\": [tru]", 3, "Unexpected \"tru\". A text stands in quotation marks."},
      {"\"x\": 1}\n\n{", 5, "Unexpected \"{\"" + punctuation},
      {"\n" + std::string(3, '\0'), 4, "There is a zero byte."},
      {"\"x\": 1}" + std::string(3, '\0') + "{", 3, "There is a zero byte."},
      {"\"x\": [\n", 4, "Unexpected \"}\"" + punctuation},
  };
  for (const auto& [members, line, reason] : examples) {
    EXPECT_EQ(refusal(fileWith(members)), damagedAt(line, reason)) << members;
  }
}

TEST(FarmFileDamage, AFileThatEndsTooEarlyIsDamagedAtItsLastLine) {
  EXPECT_EQ(refusal("{"), damagedAt(1, "The file ends too early."));
  EXPECT_EQ(refusal("{\"format\": \"verdalis-farm\",\n\"version\""),
            damagedAt(2, "The file ends too early."));
  EXPECT_EQ(refusal("{\"format\": \"verdalis-farm\",\n\"version\": 1,\n\n"),
            damagedAt(2, "The file ends too early."));
  EXPECT_EQ(refusal("{\"format\":\n\"verdalis"), damagedAt(2, "The file ends too early."));
}

TEST(FarmFileDamage, EachBeginningOfAFileIsRefused) {
  const std::string text = writeFarm(documentWithEverything());
  const std::size_t end = text.rfind('}');
  for (std::size_t length = 0; length <= end; ++length) {
    const auto said = refusal(text.substr(0, length));
    ASSERT_TRUE(said.has_value()) << length;
    if (length > 0) {
      ASSERT_THAT(*said, StartsWith("The farm file is damaged at line ")) << length;
    }
  }
}

// Values of the wrong kind.

std::set<std::string, std::less<>> nullableKeys() {
  std::set<std::string, std::less<>> keys{"split"};
  for (const auto& cost : costKeys()) {
    inputCosts costs;
    cost.field.visit(costs, [&](auto& member) {
      if constexpr (std::is_same_v<std::remove_cvref_t<decltype(member)>, Number>) keys.emplace(cost.key);
    });
  }
  return keys;
}

TEST(FarmFileDamage, AValueOfTheWrongKindIsRefusedWithItsLineAndKey) {
  const Tree whole = Tree::parse(writeFarm(documentWithEverything()));
  const std::set<std::string, std::less<>> nullable = nullableKeys();
  ASSERT_EQ(nullable.size(), 14U);
  int places = 0;
  forEachPlace(whole, Tree::json_pointer(), [&](const Tree::json_pointer& place) {
    ++places;
    Tree changed = whole;
    changed[place] = "@here@";
    const std::string text = changed.dump(1);
    const std::size_t at = text.find("\"@here@\"");
    const auto line = static_cast<std::size_t>(1 + std::count(text.data(), text.data() + at, '\n'));
    const std::string& key = place.back();
    const bool inList = whole[place.parent_pointer()].is_array();
    for (const Tree& other :
         {Tree(nullptr), Tree(true), Tree(0.5), Tree("?"), Tree::array(), Tree::object()}) {
      const Tree& value = whole[place];
      const bool sameKind = value.type_name() == std::string_view(other.type_name());
      if (sameKind || (other.is_null() && nullable.contains(key))) continue;
      if (value.is_null() && other.is_number()) continue;  // an empty number
      std::string damaged = text;
      damaged.replace(at, std::string_view("\"@here@\"").size(), other.dump());
      const std::string said = refusal(damaged).value_or("read");
      EXPECT_THAT(said, StartsWith(damagedAt(line, ""))) << place.to_string() << " " << other.dump();
      if (!inList && !value.is_object()) {
        EXPECT_THAT(said, HasSubstr("\"" + key + "\" must be ")) << other.dump();
      }
    }
  });
  EXPECT_GT(places, 390);
}

TEST(FarmFileDamage, TheReasonSaysWhatMustStandThere) {
  const auto said = [](const std::string& members) { return refusal(fileWith(members)); };
  EXPECT_EQ(said(R"("name": 5)"), damagedAt(3, "\"name\" must be a text in quotation marks."));
  EXPECT_EQ(said(R"("farm": {"noSplit": 1})"), damagedAt(3, "\"noSplit\" must be true or false."));
  EXPECT_EQ(said("\"plant\": {\n\"gpm\": \"750\"}"), damagedAt(4, "\"gpm\" must be a number."));
  EXPECT_EQ(said(R"("crops": [{"costs": {"harvestHauling": ""}}])"),
            damagedAt(3, "\"harvestHauling\" must be a number or null."));
  EXPECT_EQ(said(R"("crops": {})"), damagedAt(3, "\"crops\" must be a list in brackets."));
  EXPECT_EQ(said("\"crops\": [{},\n{}, 7]"), damagedAt(4, "Here must be an object, in braces."));
  EXPECT_EQ(said("\n\"farm\": []"), damagedAt(4, "Here must be an object, in braces."));
  EXPECT_EQ(said(R"("trend": [{"values": "rain"}])"),
            damagedAt(3, R"("values" must be one of "range", "file", "list".)"));
}

// Values that no control can hold.

TEST(FarmFileDamage, AValueThatNoControlCanHoldIsRefused) {
  const auto said = [](const std::string& members) { return refusal(fileWith(members)).value_or("read"); };
  for (const std::string split : {"99", "6", "-1", "0.5", "1e9", "true"}) {
    EXPECT_EQ(said("\"farm\": {\"split\": " + split + "}"),
              damagedAt(3, "\"split\" must be null or a whole number from 0 to 5."));
  }
  for (const std::string factor : {"1e9", "0", "101", "0.5", "-10", "65546", "null"}) {
    EXPECT_EQ(said("\"options\": {\"factor\": " + factor + "}"),
              damagedAt(3, "\"factor\" must be a whole number from 1 to 100."));
  }
  for (const std::string field : {"0", "5", "1.5"}) {
    EXPECT_EQ(said(R"("wishes": [{"kind": "fieldIs", "field": )" + field + "}]"),
              damagedAt(3, "\"field\" must be a whole number from 1 to 4."));
  }
  EXPECT_EQ(said(R"("wishes": [{"kind": "cropsAtMost", "amount": -1}])"),
            damagedAt(3, "\"amount\" must not be below 0."));
  EXPECT_EQ(said(R"("saved": [{"option": {"fields": [{"acres": -1}]}}])"),
            damagedAt(3, "\"acres\" must not be below 0."));
  EXPECT_EQ(said(R"("saved": [{"option": {"fields": [{"netDepth": -1e-9}]}}])"),
            damagedAt(3, "\"netDepth\" must not be below 0."));
  for (const std::string weight : {"0", "-0.0", "-1", "1e-400"})
    EXPECT_EQ(said("\"seasons\": [{\"weight\": " + weight + "}]"),
              damagedAt(3, "\"weight\" must be above 0."));
}

TEST(FarmFileDamage, AWordThatTheFormatDoesNotHaveIsRefused) {
  EXPECT_THAT(refusal(fileWith(R"("wishes": [{"kind": "acres"}])")),
              damagedAt(3, R"("kind" must be one of "acresAtLeast", "acresAtMost", "fieldIs", "fieldIsNot", )"
                           R"("depthAtLeast", "depthAtMost", "cropsAtLeast", "cropsAtMost".)"));
  EXPECT_THAT(
      refusal(fileWith(R"("trend": [{"variable": "hail"}])")),
      damagedAt(3, R"("variable" must be one of "price", "productionCosts", "maxYield", "efficiency", )"
                   R"("irrigationCosts", "rain".)"));
  EXPECT_EQ(refusal(fileWith("\"wishes\": [\n{\"crop\": \"Corn\"}]")),
            damagedAt(4, "A wish has no \"kind\"."));
}

TEST(FarmFileDamage, AListThatIsTooLongIsRefusedAtTheFirstEntryTooMany) {
  const auto list = [](const std::string& entry, std::size_t count) {
    return "[" + entry + repeated("," + entry, count - 1) + "]";
  };
  const auto expectMost = [&](std::size_t most, const std::string& key, const std::string& entry,
                              const std::string& before = "", const std::string& behind = "") {
    const auto file = [&](std::size_t count) {
      return fileWith(before + "\"" + key + "\": " + list(entry, count) + behind);
    };
    EXPECT_EQ(refusal(file(most)), std::nullopt) << key;
    EXPECT_EQ(refusal(file(most + 1)),
              damagedAt(4 + most, "\"" + key + "\" has more than " + std::to_string(most) + " entries."));
  };
  expectMost(12, "wishes", "\n{\"kind\": \"cropsAtMost\"}");
  expectMost(9, "seasons", "\n{}");
  expectMost(2, "trend", "\n{}");
  expectMost(4, "fields", "\n{}", R"("saved": [{"option": {)", "}}]");
  expectMost(2, "trend", "\n{}", R"("saved": [{"option": {)", "}}]");
  expectMost(12, "wishes", "\n{\"kind\": \"cropsAtMost\"}", R"("saved": [{"inputs": {)", "}}]");
}

TEST(FarmFileDamage, AKeyThatStandsTwiceIsRefused) {
  const auto said = [](const std::string& members) { return refusal(fileWith(members)); };
  EXPECT_EQ(said("\"name\": \"a\",\n\"name\": \"b\""),
            damagedAt(4, "\"name\" stands here for the second time."));
  EXPECT_EQ(said("\"version\":\n1"), damagedAt(3, "\"version\" stands here for the second time."));
  EXPECT_EQ(said("\"farm\": {\"txtArea\": \"1\",\n\"txt\\u0041rea\": \"1\"}"),
            damagedAt(4, "\"txtArea\" stands here for the second time."));
  EXPECT_EQ(said("\"x\": 1,\n\"y\": 1,\n\"z\": 1,\n\"y\": 1"),
            damagedAt(6, "\"y\" stands here for the second time."));
  EXPECT_EQ(
      said(
          "\"saved\": [{\"option\": {\"fields\": [{\"ownCosts\": {\"herbicide\": 1,\n\"herbicide\": 1}}]}}]"),
      damagedAt(4, "\"herbicide\" stands here for the second time."));
}

// Texts that are made to do harm.

TEST(FarmFileDamage, DeepNestingIsRefused) {
  constexpr std::size_t many = 200'000;
  const std::string reason = "Lists and objects are nested too deeply.";
  EXPECT_EQ(refusal(fileWith("\n\"x\": " + repeated("[", many))), damagedAt(4, reason));
  EXPECT_EQ(refusal(fileWith("\n\"x\": " + repeated("[", many) + repeated("]", many))), damagedAt(4, reason));
  EXPECT_EQ(refusal(fileWith("\n\"x\": " + repeated("{\"x\": ", many))), damagedAt(4, reason));
  EXPECT_EQ(refusal(repeated("{\"x\":[", many)), damagedAt(1, reason));
  EXPECT_EQ(refusal(fileWith("\"x\": " + repeated("[", 63) + repeated("]", 63))), std::nullopt);
  EXPECT_EQ(refusal(fileWith("\"x\": " + repeated("[", 64) + repeated("]", 64))), damagedAt(3, reason));
}

TEST(FarmFileDamage, MoreEntriesThanAFarmCanHaveAreRefused) {
  EXPECT_EQ(refusal(fileWith("\"crops\": [{}" + repeated(",{}", 600'000) + "]")),
            damagedAt(3, "The file has more entries than a farm can have."));
}

TEST(FarmFileDamage, VeryManyUnknownKeysAreRead) {
  std::string members = "\"x\": 0";
  for (int i = 0; i < 100'000; ++i)
    members += ",\"" + std::to_string(i) + "\":0";
  const FarmDocument document = readFarm(fileWith(members));
  EXPECT_EQ(document.unknown.size(), 100'001U);
  EXPECT_EQ(document.unknown.back(), (std::pair<std::string, std::string>("99999", "0")));
  EXPECT_EQ(readFarm(writeFarm(document)), document);
}

}  // namespace
}  // namespace verdalis
