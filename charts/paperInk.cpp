#include <cmath>

#include "charts/inkColors.h"

namespace verdalis {
namespace {

constexpr std::uint32_t brand = 0x2E6B3A;
constexpr std::uint32_t text = 0x1D2420;
constexpr std::uint32_t muted = 0x5C665F;
constexpr std::uint32_t line = 0xD3D9D2;
constexpr std::uint32_t water = 0x2F7FB0;
constexpr std::uint32_t white = 0xFFFFFF;

InkParts partsOf(std::uint32_t color) {
  const auto part = [&](unsigned shift) { return static_cast<double>((color >> shift) & 0xFFU) / 255; };
  return {part(16), part(8), part(0), 1};
}

InkParts between(std::uint32_t low, std::uint32_t high, double level) {
  const InkParts from = partsOf(low);
  const InkParts to = partsOf(high);
  const auto part = [&](double a, double b) { return a + (b - a) * level; };
  return {part(from.red, to.red), part(from.green, to.green), part(from.blue, to.blue), 1};
}

/// The relative luminance of a colour, 0 to 1.
double lightness(const InkParts& color) {
  const auto part = [](double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.red) + 0.7152 * part(color.green) + 0.0722 * part(color.blue);
}

}  // namespace

InkParts paperInk(const Paint& paint) {
  switch (paint.ink) {
    case Ink::title:
      return partsOf(brand);
    case Ink::text:
      return partsOf(text);
    case Ink::muted:
    case Ink::change:
      return partsOf(muted);
    case Ink::axis:
      return between(line, muted, 0.5);
    case Ink::grid:
      return between(white, line, 0.6);
    case Ink::series:
      return partsOf(seriesColors.at(paint.index % seriesColors.size()).light);
    case Ink::category:
      return partsOf(categoryColors.at(paint.index % categoryColors.size()).light);
    case Ink::hatch: {
      InkParts hatch = partsOf(white);
      hatch.alpha = 0.55;
      return hatch;
    }
    case Ink::value:
      return between(lowestColor.light, highestColor.light, paint.level);
    case Ink::onValue: {
      // Black and white text are equally readable on an area of this lightness.
      constexpr double middle = 0.179;
      const bool light = lightness(between(lowestColor.light, highestColor.light, paint.level)) > middle;
      return partsOf(light ? 0 : white);
    }
    case Ink::now:
    case Ink::plain:
      return partsOf(water);
    case Ink::best:
      return between(muted, text, 0.5);
    case Ink::gain:
      return partsOf(gainColor.light);
    case Ink::loss:
      return partsOf(lossColor.light);
    case Ink::total:
      return partsOf(totalColor.light);
    case Ink::ground:
      break;
  }
  return partsOf(white);
}

}  // namespace verdalis
