#pragma once

#include <string>

#include "results/PageLayout.h"

namespace verdalis::testing {

/// Every character is half as wide as the font is large, bold ones a tenth more.
class PlainMetrics : public FontMetrics {
 public:
  [[nodiscard]] double width(const std::string& text, const PageFont& font) const override {
    double characters = 0;
    for (const char byte : text)
      characters += (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U ? 0 : 1;
    return characters * font.size * (font.bold ? 0.55 : 0.5);
  }
  [[nodiscard]] double ascent(const PageFont& font) const override { return font.size * 0.8; }
  [[nodiscard]] double lineHeight(const PageFont& font) const override { return font.size * 1.2; }
};

/// A sheet with 100 x 60 points to print on: 20 characters of size 10 on each of 5 lines.
inline constexpr Paper card{120, 70, 10, 5};

}  // namespace verdalis::testing
