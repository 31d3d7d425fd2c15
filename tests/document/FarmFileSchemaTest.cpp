#include <gtest/gtest.h>

// docs/farm-file.schema.json against the reader and the writer.

#if __has_include(<valijson/validator.hpp>)

#include <nlohmann/json.hpp>
#include <set>

#include "document/farmText.h"
#include "tests/document/farmFileSchema.h"
#include "tests/document/fullDocument.h"
#include "tests/document/jsonPlaces.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using Tree = nlohmann::ordered_json;
using testing::agrees;
using testing::documentWithEverything;
using testing::schemaText;

bool isRead(const std::string& text) {
  try {
    static_cast<void>(readFarm(text));
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

TEST(FarmFileSchema, AcceptsWhatTheProgramWrites) {
  EXPECT_TRUE(agrees(writeFarm(FarmDocument())));
  EXPECT_TRUE(agrees(writeFarm(documentWithEverything())));
}

TEST(FarmFileSchema, NeedsOnlyTheFormatAndTheVersion) {
  EXPECT_TRUE(agrees(R"({"format": "verdalis-farm", "version": 1})"));
  EXPECT_FALSE(agrees(R"({"format": "verdalis-farm"})"));
  EXPECT_FALSE(agrees(R"({"version": 1})"));
  EXPECT_FALSE(agrees(R"({"format": "verdalis-farms", "version": 1})"));
  EXPECT_FALSE(agrees(R"({"format": "verdalis-farm", "version": 2})"));
  EXPECT_FALSE(agrees("[]"));
}

TEST(FarmFileSchema, AgreesWithTheReaderOnEachValue) {
  Tree whole = Tree::parse(writeFarm(documentWithEverything()));
  const std::vector<Tree> others{nullptr,
                                 true,
                                 "",
                                 "price",
                                 "list",
                                 "cropsAtMost",
                                 "fieldIs",
                                 -1,
                                 -0.5,
                                 0,
                                 0.5,
                                 1,
                                 4,
                                 5,
                                 6,
                                 7,
                                 100,
                                 101,
                                 1e9,
                                 Tree::array(),
                                 Tree::array({Tree::object()}),
                                 Tree::array({7}),
                                 Tree::object()};
  int accepted = 0;
  int refused = 0;
  testing::forEachPlace(whole, Tree::json_pointer(), [&](const Tree::json_pointer& place) {
    Tree changed = whole;
    for (const Tree& other : others) {
      changed[place] = other;
      const std::string text = changed.dump();
      const bool read = isRead(text);
      ++(read ? accepted : refused);
      EXPECT_EQ(agrees(text), read) << place.to_string() << ": " << other.dump();
    }
  });
  EXPECT_GT(accepted, 1000);
  EXPECT_GT(refused, 1000);
}

TEST(FarmFileSchema, AgreesWithTheReaderOnTheLengthOfLists) {
  const Tree whole = Tree::parse(writeFarm(documentWithEverything()));
  for (const std::string list :
       {"/crops", "/wishes", "/seasons", "/trend", "/saved", "/saved/0/option/fields",
        "/saved/0/option/trend", "/saved/0/inputs/wishes", "/customCrops"}) {
    Tree changed = whole;
    Tree& value = changed[Tree::json_pointer(list)];
    const Tree entry = value[0];
    value.clear();
    for (int count = 1; count <= 14; ++count) {
      value.push_back(entry);
      const std::string text = changed.dump();
      EXPECT_EQ(agrees(text), isRead(text)) << list << " " << count;
    }
  }
}

/// The schema at the place of a reference, or the schema itself.
const nlohmann::json& resolved(const nlohmann::json& schema) {
  const nlohmann::json& found =
      schema.contains("allOf") && schema["allOf"].size() == 1 ? schema["allOf"][0] : schema;
  if (!found.contains("$ref")) return found;
  return schemaText().at(nlohmann::json::json_pointer(found["$ref"].get<std::string>().substr(1)));
}

/// Requires that a schema describes all keys of a value, and nothing else.
void expectDescribed(const Tree& value, const nlohmann::json& schema, const std::string& place) {
  const nlohmann::json& described = resolved(schema);
  EXPECT_TRUE(described.contains("description")) << place;
  if (value.is_array() && !value.empty()) {
    expectDescribed(value[0], described.at("items"), place + "/*");
  } else if (value.is_object()) {
    std::set<std::string> written;
    for (const auto& [key, inside] : value.items()) {
      if (key.starts_with("x-")) continue;
      written.insert(key);
      ASSERT_TRUE(described["properties"].contains(key)) << place << "/" << key;
      expectDescribed(inside, described["properties"][key], place + "/" + key);
    }
    std::set<std::string> keys;
    for (const auto& [key, inside] : described["properties"].items())
      keys.insert(key);
    if (place.ends_with("wishes/*")) keys.erase("field");  // the first wish has no field
    EXPECT_EQ(written, keys) << place;
  }
}

TEST(FarmFileSchema, DescribesEachKeyAndNoOther) {
  expectDescribed(Tree::parse(writeFarm(documentWithEverything())), schemaText(), "");
}

}  // namespace
}  // namespace verdalis

#else

TEST(FarmFileSchema, AgreesWithTheReader) {
  GTEST_SKIP() << "needs the package libvalijson-dev";
}

#endif
