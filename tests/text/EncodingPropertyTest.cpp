#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "tests/text/Generators.h"
#include "text/encoding.h"
#include "text/quote.h"

namespace verdalis {
namespace {

/// Bytes close to UTF-8, which often meet and often break its rules.
rc::Gen<std::string> nearUtf8() {
  const std::vector<std::string> pieces = {
      "a",        "\xC2",         "\x80",         "\xA9", "\xC3\xA9",         "\xE2",
      "\x82",     "\xE2\x82\xAC", "\xED",         "\xBF", "\xF0\x9F",         "\x8C\xBD",
      "\xF4\x90", "\xEF\xBB",     "\xEF\xBB\xBF", "\xFF", "\xF0\x9F\x8C\xBD", "\x81"};
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(pieces)),
                      [](const std::vector<std::string>& parts) {
                        std::string text;
                        for (const auto& part : parts)
                          text += part;
                        return text;
                      });
}

RC_GTEST_PROP(EncodingProperty, DecodedTextIsAlwaysUtf8, ()) {
  const auto input = *rc::gen::oneOf(testing::anyBytes(), nearUtf8());
  const std::string text = decodeText(input);
  RC_ASSERT(isUtf8(text));
  RC_ASSERT(text.size() <= 3 * input.size());
  RC_ASSERT(isUtf8(quoteForMessage(input)));
}

RC_GTEST_PROP(EncodingProperty, ExportIsOneBytePerCharacterOrUnchanged, ()) {
  const std::string text = decodeText(*rc::gen::oneOf(testing::anyBytes(), nearUtf8()));
  const std::string exported = encodeForExport(text);
  if (exported != text) {
    RC_ASSERT(exported.size() < text.size());
    // Other programs read the export as Windows-1252. It reads back unchanged, except for rare bytes that are
    // also valid UTF-8.
    if (!isUtf8(exported)) RC_ASSERT(decodeText(exported) == text);
  }
}

}  // namespace
}  // namespace verdalis
