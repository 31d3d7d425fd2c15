#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

#include "text/encoding.h"
#include "text/quote.h"

namespace verdalis {
namespace {

/// The characters of the bytes 80 to 9F in Windows-1252, encoded as UTF-8 by the compiler; empty for an
/// unused byte.
constexpr std::array<const char8_t*, 32> upperControls = {
    u8"€", u8"",  u8"‚", u8"ƒ", u8"„", u8"…", u8"†", u8"‡", u8"ˆ", u8"‰", u8"Š",
    u8"‹", u8"Œ", u8"",  u8"Ž", u8"",  u8"",  u8"‘", u8"’", u8"“", u8"”", u8"•",
    u8"–", u8"—", u8"˜", u8"™", u8"š", u8"›", u8"œ", u8"",  u8"ž", u8"Ÿ"};

std::string bytes(const char8_t* text) {
  return reinterpret_cast<const char*>(text);
}

TEST(IsUtf8, AcceptsOnlyWellFormedText) {
  using namespace std::string_literals;
  for (const std::string& text :
       {""s, "plain"s, "\0"s, "\x7F"s, "\xC2\x80"s, "\xDF\xBF"s, "\xE0\xA0\x80"s, "\xED\x9F\xBF"s,
        "\xEE\x80\x80"s, "\xEF\xBF\xBF"s, "\xF0\x90\x80\x80"s, "\xF4\x8F\xBF\xBF"s, "a\xC3\xA9z"s}) {
    EXPECT_TRUE(isUtf8(text)) << ::testing::PrintToString(text);
  }
  for (const std::string& text : {"\x80"s,
                                  "\xBF"s,
                                  "\xC0\x80"s,
                                  "\xC1\xBF"s,
                                  "\xC2"s,
                                  "\xC2 "s,
                                  "\xC2\xC2\x80"s,
                                  "\xE0\x80\x80"s,
                                  "\xE0\x9F\xBF"s,
                                  "\xE2\x82"s,
                                  "\xE2\x82 "s,
                                  "\xED\xA0\x80"s,
                                  "\xED\xBF\xBF"s,
                                  "\xF0\x8F\xBF\xBF"s,
                                  "\xF0\x90\x80"s,
                                  "\xF4\x90\x80\x80"s,
                                  "\xF5\x80\x80\x80"s,
                                  "\xF8\x88\x80\x80\x80"s,
                                  "\xFE"s,
                                  "\xFF"s,
                                  "caf\xE9"s,
                                  "plain\xC3"s}) {
    EXPECT_FALSE(isUtf8(text)) << ::testing::PrintToString(text);
  }
}

TEST(IsUtf8, DoesNotReadBeyondTheEnd) {
  const std::string corn = bytes(u8"🌽");
  for (std::size_t length = 1; length < corn.size(); ++length) {
    EXPECT_FALSE(isUtf8(std::string_view(corn).substr(0, length))) << length;
  }
}

TEST(DecodeText, KeepsUtf8) {
  EXPECT_EQ(decodeText(""), "");
  EXPECT_EQ(decodeText("Corn\r\n12"), "Corn\r\n12");
  EXPECT_EQ(decodeText(bytes(u8"Maïs – 10 €")), bytes(u8"Maïs – 10 €"));
}

TEST(DecodeText, DropsALeadingByteOrderMark) {
  EXPECT_EQ(decodeText("\xEF\xBB\xBF"), "");
  EXPECT_EQ(decodeText("\xEF\xBB\xBF"
                       "Corn"),
            "Corn");
  EXPECT_EQ(decodeText("Corn\xEF\xBB\xBF"), "Corn\xEF\xBB\xBF");
  // In a file that is not UTF-8, these bytes are three ordinary characters.
  EXPECT_EQ(decodeText("\xEF\xBB\xBF\xE9"), bytes(u8"ï»¿é"));
}

TEST(DecodeText, ReadsInvalidUtf8AsWindows1252) {
  EXPECT_EQ(decodeText("Ma\xEFs \x80 10"), bytes(u8"Maïs € 10"));
  EXPECT_EQ(decodeText("\x93quoted\x94"), bytes(u8"“quoted”"));
  EXPECT_EQ(decodeText("\x81\x8D\x8F\x90\x9D"), bytes(u8"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"));
}

TEST(Windows1252, EveryCharacterSurvivesARoundTrip) {
  for (unsigned code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    std::string character = byte;
    if (code >= 0x80 && code < 0xA0) {
      character = bytes(upperControls.at(code - 0x80));
      if (character.empty()) {
        EXPECT_EQ(decodeText(byte), bytes(u8"\uFFFD")) << code;
        continue;
      }
    } else if (code >= 0xA0) {
      character = {static_cast<char>(0xC0 | (code / 64)), static_cast<char>(0x80 | (code % 64))};
    }
    EXPECT_EQ(decodeText(byte), character) << code;
    EXPECT_EQ(encodeForExport(character), byte) << code;
  }
}

TEST(EncodeForExport, KeepsUtf8IfACharacterIsNotInWindows1252) {
  for (const char8_t* text :
       {u8"Ω", u8"é Ω", u8"10 ≤ 12", u8"🌽", u8"\uFFFD", u8"\u0081", u8"\u009D", u8"\u0080"}) {
    EXPECT_EQ(encodeForExport(bytes(text)), bytes(text));
  }
}

TEST(EncodeForExport, KeepsInvalidUtf8Unchanged) {
  EXPECT_EQ(encodeForExport("caf\xE9"), "caf\xE9");
  EXPECT_EQ(encodeForExport(bytes(u8"é") + "\xC3"), bytes(u8"é") + "\xC3");
}

TEST(LowerCase, LowersTheLettersOfWindows1252) {
  EXPECT_EQ(lowerCase("Grain Sorghum @[`{ AZaz09"), "grain sorghum @[`{ azaz09");
  EXPECT_EQ(lowerCase(bytes(u8"ÀÖØÞ ŠŒŽŸ")), bytes(u8"àöøþ šœžÿ"));
  EXPECT_EQ(lowerCase(""), "");
}

TEST(LowerCase, KeepsAllOtherCharactersUnchanged) {
  for (const char8_t* text : {u8"×÷ßàþÿ", u8"š œ ž ƒ", u8"İΩЖ", u8"¿¾½", u8"🌽", u8"10 €"}) {
    EXPECT_EQ(lowerCase(bytes(text)), bytes(text));
  }
  EXPECT_EQ(lowerCase("\xC9 A\xC3"), "\xC9 a\xC3");
  EXPECT_EQ(lowerCase(bytes(u8"É") + "\xE2\x82 B"), bytes(u8"é") + "\xE2\x82 b");
}

TEST(QuoteForMessage, PutsTheTextOnOneLine) {
  EXPECT_EQ(quoteForMessage(""), "\"\"");
  EXPECT_EQ(quoteForMessage("12 acres"), "\"12 acres\"");
  EXPECT_EQ(quoteForMessage("a\r\nb\tc"), "\"a  b c\"");
  EXPECT_EQ(quoteForMessage(std::string("a\0b", 3)), "\"a b\"");
  EXPECT_EQ(quoteForMessage("caf\xE9"), bytes(u8"\"café\""));
  EXPECT_EQ(quoteForMessage("a\xC2\x9B"
                            "31mb"),
            "\"a 31mb\"");
}

TEST(Printable, ReplacesEachControlCharacterByABlank) {
  EXPECT_EQ(printable(bytes(u8"Maïs 10 €, 🌽")), bytes(u8"Maïs 10 €, 🌽"));
  EXPECT_EQ(printable("a\x1B[31mb\x7F\a"), "a [31mb  ");
  for (int c = 0x80; c < 0xA0; ++c) {
    const std::string control{'\xC2', static_cast<char>(c)};
    EXPECT_EQ(printable("a" + control + "b"), "a b") << c;
  }
  EXPECT_EQ(printable("\xC2\xA0\xC3\x80"), "\xC2\xA0\xC3\x80");
  EXPECT_EQ(printable("\x9B"
                      "31m"),
            bytes(u8"›31m"))
      << "no byte of a one-byte terminal's own controls";
}

TEST(BeginsLikeFormula, PassesOverBlanks) {
  for (const char* text : {"=1+1", "+Corn", "-Corn", "@SUM(1)", "  =1", "\t=1", "\xC2\xA0 =1"})
    EXPECT_TRUE(beginsLikeFormula(text)) << text;
  for (const char* text : {"", " ", "Corn", "Corn = 1", "'=1", "1-2", "\xC3\xA9=1"})
    EXPECT_FALSE(beginsLikeFormula(text)) << text;
}

TEST(QuoteForMessage, CutsAfterFortyCharacters) {
  const auto repeated = [](const char8_t* text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
      result += bytes(text);
    return result;
  };
  EXPECT_EQ(quoteForMessage(repeated(u8"x", 40)), '"' + repeated(u8"x", 40) + '"');
  EXPECT_EQ(quoteForMessage(repeated(u8"x", 41)), '"' + repeated(u8"x", 40) + "...\"");
  EXPECT_EQ(quoteForMessage(repeated(u8"é", 41)), '"' + repeated(u8"é", 40) + "...\"");
  EXPECT_EQ(quoteForMessage(repeated(u8"🌽", 40)), '"' + repeated(u8"🌽", 40) + '"');
  EXPECT_EQ(quoteForMessage(repeated(u8"🌽", 5000)), '"' + repeated(u8"🌽", 40) + "...\"");
}

}  // namespace
}  // namespace verdalis
