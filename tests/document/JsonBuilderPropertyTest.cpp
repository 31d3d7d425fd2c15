#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>

#include "tests/document/arbitraryDocument.h"
#include "tests/document/builtJson.h"

namespace verdalis {
namespace {

using testing::indented;
using testing::written;

RC_GTEST_PROP(JsonBuilder, NumbersReadBackToTheLastBit, ()) {
  const double number = *testing::arbitraryNumber();
  const auto read = nlohmann::json::parse(written(number)).get<double>();
  RC_ASSERT(std::bit_cast<std::uint64_t>(read) == std::bit_cast<std::uint64_t>(number));
}

RC_GTEST_PROP(JsonBuilder, TextsReadBack, ()) {
  const std::string text = *testing::arbitraryText();
  RC_ASSERT(nlohmann::json::parse(written(text)).get<std::string>() == text);
}

RC_GTEST_PROP(JsonBuilder, IndentingAWrittenDocumentAgainChangesNothing, ()) {
  const std::string text = writeFarm(*testing::arbitraryDocument());
  RC_ASSERT(indented(text) == text);
}

}  // namespace
}  // namespace verdalis
