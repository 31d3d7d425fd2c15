#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>

#include "document/farmText.h"
#include "tests/document/arbitraryDocument.h"
#include "tests/document/jsonValues.h"

namespace verdalis {
namespace {

using testing::inside;

/// The value as the library sees it.
nlohmann::ordered_json treeOf(const JsonValue& value) {
  if (value.isNull()) return nullptr;
  if (value.isBoolean()) return value.boolean();
  if (value.isNumber()) return value.number();
  if (value.isText()) return value.text();
  if (value.isList()) {
    auto list = nlohmann::ordered_json::array();
    for (const JsonValue& item : inside(value))
      list.push_back(treeOf(item));
    return list;
  }
  auto object = nlohmann::ordered_json::object();
  const auto members = inside(value);
  for (std::size_t i = 0; i < members.size(); i += 2)
    object[members[i].text()] = treeOf(members[i + 1]);
  return object;
}

RC_GTEST_PROP(JsonText, AgreesWithATreeOfTheLibrary, ()) {
  const auto document = *testing::arbitraryDocument();
  const std::string text = writeFarm(document);
  const JsonText json(text);
  const auto tree = nlohmann::ordered_json::parse(text);
  RC_ASSERT(treeOf(json.root()) == tree);
  const std::string compact = json.root().compact();
  RC_ASSERT(JsonText(compact).root().raw() == compact);
  RC_ASSERT(treeOf(JsonText(compact).root()) == tree);
}

}  // namespace
}  // namespace verdalis
