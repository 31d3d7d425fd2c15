#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "charts/Drawing.h"

namespace verdalis::testing {

/// A font of which all letters are equally wide.
class PlainMeasure : public TextMeasure {
 public:
  [[nodiscard]] double size() const override { return 12; }
  [[nodiscard]] double width(const std::string& text, double size, bool bold) const override {
    double letters = 0;
    for (const char byte : text) {
      if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80U) ++letters;
    }
    return letters * size * (bold ? 0.65 : 0.6);
  }
};

/// The texts of a drawing.
inline std::vector<DrawnText> textsOf(const Drawing& drawing) {
  std::vector<DrawnText> texts;
  for (const DrawnPart& part : drawing.parts) {
    if (const auto* text = std::get_if<DrawnText>(&part)) texts.push_back(*text);
  }
  return texts;
}

inline bool hasText(const Drawing& drawing, const std::string& wanted) {
  for (const DrawnText& text : textsOf(drawing)) {
    if (text.text == wanted) return true;
  }
  return false;
}

/// The areas of an ink.
inline std::vector<DrawnArea> areasOf(const Drawing& drawing, Ink ink) {
  std::vector<DrawnArea> areas;
  for (const DrawnPart& part : drawing.parts) {
    const auto* area = std::get_if<DrawnArea>(&part);
    if (area != nullptr && area->paint.ink == ink) areas.push_back(*area);
  }
  return areas;
}

inline std::vector<DrawnLine> linesOf(const Drawing& drawing, Ink ink) {
  std::vector<DrawnLine> lines;
  for (const DrawnPart& part : drawing.parts) {
    const auto* line = std::get_if<DrawnLine>(&part);
    if (line != nullptr && line->paint.ink == ink) lines.push_back(*line);
  }
  return lines;
}

/// What is wrong with a drawing: parts outside of it, or texts on each other; empty if nothing is.
inline std::string faultOf(const Drawing& drawing, const TextMeasure& measure) {
  const auto isInside = [&](Place place) {
    constexpr double most = 0.01;
    return place.x >= -most && place.y >= -most && place.x <= drawing.width + most &&
           place.y <= drawing.height + most;
  };
  std::vector<std::pair<Rect, std::string>> texts;
  for (const DrawnPart& part : drawing.parts) {
    std::vector<Place> places;
    if (const auto* line = std::get_if<DrawnLine>(&part)) places = line->points;
    if (const auto* area = std::get_if<DrawnArea>(&part)) places = area->corners;
    if (const auto* text = std::get_if<DrawnText>(&part)) {
      const Rect rect = placeOf(*text, measure);
      places = {{rect.left, rect.top}, {rect.right, rect.bottom}};
      for (const auto& [other, name] : texts) {
        constexpr double most = 0.01;
        if (rect.left < other.right - most && other.left < rect.right - most &&
            rect.top < other.bottom - most && other.top < rect.bottom - most) {
          return text->text + " is on " + name;
        }
      }
      texts.emplace_back(rect, text->text);
    }
    for (const Place place : places) {
      if (!isInside(place)) {
        const auto* text = std::get_if<DrawnText>(&part);
        return "outside: " + std::to_string(place.x) + ", " + std::to_string(place.y) +
               (text == nullptr ? std::string() : " " + text->text);
      }
    }
  }
  for (const Target& target : drawing.targets) {
    if (!isInside(target.at) || !isInside({target.reach.left, target.reach.top}) ||
        !isInside({target.reach.right, target.reach.bottom})) {
      return "a target is outside";
    }
  }
  return {};
}

}  // namespace verdalis::testing
