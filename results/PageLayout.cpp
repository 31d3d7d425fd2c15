#include "results/PageLayout.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace verdalis {
namespace {

constexpr double pointsPerUnit = 1.0 / 20;

/// A text is shrunk to no less than this fraction of its size to fit on one line.
constexpr double leastShare = 0.9;

/// Most bytes that fit on a line, even with the narrowest letters. Only this many are measured.
constexpr std::size_t mostBytes = 2000;

bool isContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The ends of the characters of a text, in bytes, up to the longest possible line.
std::vector<std::size_t> characterEnds(std::string_view text) {
  std::vector<std::size_t> ends;
  for (std::size_t i = 0; i < text.size() && i < mostBytes;) {
    const std::size_t start = i++;
    while (i < text.size() && i - start < 4 && isContinuation(text[i]))
      ++i;
    ends.push_back(i);
  }
  return ends;
}

std::string withoutControls(const std::string& text) {
  std::string result = text;
  for (char& c : result) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = ' ';
  }
  return result;
}

/// Bytes of the longest prefix of whole characters that is at most `room` wide.
template <class Width>
std::size_t fittingBytes(std::string_view text, double room, const Width& width) {
  const std::vector<std::size_t> ends = characterEnds(text);
  const auto tooWide = std::partition_point(
      ends.begin(), ends.end(), [&](std::size_t end) { return width(text.substr(0, end)) <= room; });
  return tooWide == ends.begin() ? 0 : *(tooWide - 1);
}

}  // namespace

void PageLayout::setCurrentX(double position) {
  x_ = std::clamp(position * pointsPerUnit, 0.0, paper_.printableWidth());
  if (!line_.empty()) x_ = std::max(x_, end_ + metrics_.width(" ", font_));
}

void PageLayout::print(const std::string& text) {
  const std::string shown = withoutControls(text);
  if (shown.empty()) return;
  const double room = paper_.printableWidth() - x_;
  const double width = shown.size() <= mostBytes ? metrics_.width(shown, font_) : 2 * room / leastShare;
  if (width <= room) {
    put(shown, font_);
  } else if (width * leastShare <= room) {
    PageFont smaller = font_;
    smaller.size *= room / width;
    put(shown, smaller);
  } else {
    breakText(shown);
  }
}

void PageLayout::printLine(const std::string& text) {
  print(text);
  endLine();
}

void PageLayout::endDocument() {
  if (!line_.empty()) endLine();
  if (onEnd) onEnd(*this);
}

void PageLayout::put(std::string_view text, const PageFont& font) {
  line_.push_back({0, paper_.sideMargin + x_, 0, std::string(text), font});
  x_ += metrics_.width(line_.back().text, font);
  end_ = x_;
}

void PageLayout::breakText(std::string_view text) {
  const auto width = [this](std::string_view part) { return metrics_.width(std::string(part), font_); };
  while (!text.empty()) {
    const std::size_t fits = fittingBytes(text, paper_.printableWidth() - x_, width);
    if (fits == text.size()) return put(text, font_);

    // The space at the break is omitted, so it need not fit.
    const std::size_t blank = text.substr(0, fits + 1).rfind(' ');
    if (blank != std::string_view::npos) {
      if (blank > 0) put(text.substr(0, blank), font_);
      text.remove_prefix(blank + 1);
    } else if (x_ == 0) {
      // A word, or a letter, that is wider than a line.
      const std::size_t part = fits > 0 ? fits : characterEnds(text).front();
      put(text.substr(0, part), font_);
      text.remove_prefix(part);
    }
    if (line_.empty()) {
      x_ = 0;
    } else {
      endLine();
    }
  }
}

void PageLayout::endLine() {
  double height = line_.empty() ? metrics_.lineHeight(font_) : 0;
  double ascent = 0;
  for (const PlacedText& text : line_) {
    height = std::max(height, metrics_.lineHeight(text.font));
    ascent = std::max(ascent, metrics_.ascent(text.font));
  }
  // Empty lines alone start no new page.
  if (!line_.empty() && top_ + height > paper_.height - paper_.endMargin && top_ > paper_.endMargin) {
    ++page_;
    top_ = paper_.endMargin;
  }
  for (PlacedText& text : line_) {
    text.page = page_;
    text.y = top_ + ascent;
    texts_.push_back(std::move(text));
  }
  line_.clear();
  top_ += height;
  x_ = end_ = 0;
}

}  // namespace verdalis
