#include "handout/PageFlow.h"

#include <algorithm>
#include <string_view>

#include "handout/layOutPages.h"

namespace verdalis {
namespace {

constexpr PrintFont titleFont{21, true};
constexpr PrintFont farmFont{12, false};
constexpr PrintFont smallFont{8.5, false};
constexpr PrintFont smallBold{8.5, true};

constexpr double thin = 0.5;
constexpr double belowFirstHead = 20;
constexpr double belowHead = 14;
constexpr double footHeight = 24;
constexpr std::size_t longestDate = 60;
constexpr const char* program = "Verdalis";

}  // namespace

PageFlow::PageFlow(const Handout& handout, PaperSize paper, TextRuler& ruler)
    : handout_(handout), sheet_(sheetOf(paper)), margin_(pageMargin), ruler_(ruler) {
  beginPage();
}

double PageFlow::bottom() const {
  return sheet_.height - margin_ - footHeight;
}

double PageFlow::pageHeight() const {
  return bottom() - margin_ - 2 * lineOf(smallFont) - 6 - belowHead;
}

void PageFlow::need(double height) {
  if (top_ + height > bottom() && !isFresh()) beginPage();
}

void PageFlow::gap(double height) {
  if (!isFresh()) top_ += height;
}

void PageFlow::beginPage() {
  Drawing page;
  page.width = sheet_.width;
  page.height = sheet_.height;
  pages_.push_back(std::move(page));
  top_ = margin_;
  if (pages_.size() == 1) {
    addFirstHead();
  } else {
    addHead();
  }
  fresh_ = top_;
}

/// The letterhead and the date in one line, then title and farm.
void PageFlow::addFirstHead() {
  const std::string date =
      ruler_.firstLines(std::string_view(handout_.date).substr(0, longestDate), width() / 3, smallFont, 1)
          .front();
  const auto letterhead = ruler_.firstLines(handout_.letterhead, width() * 0.62, smallBold, 2);
  addText(width(), top_, Anchor::end, date, smallFont, {Ink::muted});
  for (const std::string& line : letterhead) {
    addText(0, top_, Anchor::start, line, smallBold, {Ink::muted});
    top_ += lineOf(smallFont);
  }
  top_ += 12;
  for (const std::string& line : ruler_.firstLines(handout_.title, width(), titleFont, 3)) {
    addText(0, top_, Anchor::start, line, titleFont, {Ink::title});
    top_ += lineOf(titleFont);
  }
  if (!handout_.farm.empty()) {
    top_ += 2;
    for (const std::string& line : ruler_.firstLines(handout_.farm, width(), farmFont, 3)) {
      addText(0, top_, Anchor::start, line, farmFont, {Ink::text});
      top_ += lineOf(farmFont);
    }
  }
  top_ += 8;
  addRule(0, width(), top_, 1.2, {Ink::title});
  top_ += belowFirstHead;
}

/// Two lines: title and date, farm and letterhead.
void PageFlow::addHead() {
  const double half = width() / 2 - 8;
  const auto line = [&](const std::string& left, PrintFont font, const std::string& right) {
    addText(0, top_, Anchor::start, ruler_.firstLines(left, half, font, 1).front(), font, {Ink::muted});
    addText(width(), top_, Anchor::end, ruler_.firstLines(right, half, smallFont, 1).front(), smallFont,
            {Ink::muted});
    top_ += lineOf(smallFont);
  };
  line(handout_.title, smallBold, handout_.date);
  if (!handout_.farm.empty() || !handout_.letterhead.empty())
    line(handout_.farm, smallFont, handout_.letterhead);
  top_ += 6;
  addRule(0, width(), top_, thin, {Ink::axis});
  top_ += belowHead;
}

void PageFlow::addText(double x, double top, Anchor anchor, const std::string& text, PrintFont font,
                       Paint paint) {
  if (text.find_first_not_of(' ') == std::string::npos) return;
  pages_.back().parts.emplace_back(
      DrawnText{{margin_ + x, top + lineOf(font) / 2}, anchor, font.size, font.bold, paint, text});
}

void PageFlow::addRule(double from, double to, double y, double thickness, Paint paint) {
  pages_.back().parts.emplace_back(
      DrawnLine{{{margin_ + from, y}, {margin_ + to, y}}, paint, thickness, Dash::solid, false});
}

void PageFlow::addDrawing(double x, double top, const Drawing& drawing) {
  const auto move = [&](Place& place) {
    place.x += margin_ + x;
    place.y += top;
  };
  for (DrawnPart part : drawing.parts) {
    if (auto* const line = std::get_if<DrawnLine>(&part)) {
      std::for_each(line->points.begin(), line->points.end(), move);
    } else if (auto* const area = std::get_if<DrawnArea>(&part)) {
      std::for_each(area->corners.begin(), area->corners.end(), move);
    } else {
      move(std::get<DrawnText>(part).at);
    }
    pages_.back().parts.push_back(std::move(part));
  }
}

std::vector<Drawing> PageFlow::finish() {
  const double line = lineOf(smallFont);
  const double y = sheet_.height - margin_ - line / 2;
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    const std::string number = "Page " + std::to_string(i + 1) + " of " + std::to_string(pages_.size());
    pages_[i].parts.emplace_back(
        DrawnText{{margin_, y}, Anchor::start, smallFont.size, false, {Ink::muted}, program});
    pages_[i].parts.emplace_back(
        DrawnText{{margin_ + width(), y}, Anchor::end, smallFont.size, false, {Ink::muted}, number});
  }
  return std::move(pages_);
}

}  // namespace verdalis
