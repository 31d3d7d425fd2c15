#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <string_view>

#include "document/farmText.h"
#include "tests/document/arbitraryDocument.h"
#include "tests/document/fullDocument.h"
#include "tests/document/refusal.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using testing::documentWithEverything;
using testing::refusal;

RC_GTEST_PROP(FarmFileDamage, EachBeginningOfAnyFileIsRefused, ()) {
  const std::string text = writeFarm(*testing::arbitraryDocument());
  const auto end = static_cast<int>(text.rfind('}'));
  for (int i = 0; i < 20; ++i)
    RC_ASSERT(refusal(text.substr(0, static_cast<std::size_t>(*rc::gen::inRange(0, end + 1)))));
}

RC_GTEST_PROP(FarmFileDamage, GarbledBytesAreRefusedOrReadAsADocument, ()) {
  static const std::string whole = writeFarm(documentWithEverything());
  std::string text = whole;
  for (int i = *rc::gen::inRange(1, 4); i > 0; --i) {
    const auto at = static_cast<std::size_t>(*rc::gen::inRange<int>(0, static_cast<int>(text.size())));
    const auto piece =
        rc::gen::oneOf(rc::gen::map(rc::gen::arbitrary<char>(), [](char c) { return std::string(1, c); }),
                       rc::gen::element<std::string>("", "{", "}", "[", "]", "\"", ",", ":", "\\", "-",
                                                     "1e999", "null", "\n", "\xE4", "\xEF\xBB\xBF", "99"));
    text.replace(at, static_cast<std::size_t>(*rc::gen::inRange(0, 4)), *piece);
  }
  try {
    const FarmDocument read = readFarm(text);
    const std::string again = writeFarm(read);
    RC_ASSERT(readFarm(again) == read);
    RC_ASSERT(writeFarm(readFarm(again)) == again);
  } catch (const RunTimeError& error) {
    const std::string_view said = error.what();
    RC_ASSERT(said.starts_with("The farm file is damaged at line ") ||
              said.starts_with("This is not a farm file") || said.starts_with("This farm file has version "));
  }
}

}  // namespace
}  // namespace verdalis
