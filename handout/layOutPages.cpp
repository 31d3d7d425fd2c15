#include "handout/layOutPages.h"

#include <algorithm>
#include <string>
#include <utility>
#include <variant>

#include "handout/PageFlow.h"
#include "handout/TableOnPages.h"

namespace verdalis {
namespace {

constexpr PrintFont headingFont{14, true};
constexpr PrintFont textFont{9.5, false};
constexpr double aboveHeading = 22;
constexpr double belowHeading = 8;
constexpr double betweenParts = 14;
constexpr double betweenParagraphs = 5;
constexpr double belowParagraphs = 4;
constexpr double chartTextSize = 8;
constexpr double mostTogether = 0.65;  ///< Of a page
constexpr double highestInPair = 185;
constexpr double betweenCharts = 16;
constexpr double widestText = 430;  ///< Longer lines are hard to read

/// The font of the texts in a chart.
class ChartMeasure : public TextMeasure {
 public:
  explicit ChartMeasure(const TextMeasure& measure) : measure_(measure) {}
  [[nodiscard]] double size() const override { return chartTextSize; }
  [[nodiscard]] double width(const std::string& text, double size, bool bold) const override {
    return measure_.width(text, size, bold);
  }

 private:
  const TextMeasure& measure_;
};

double heightOf(const Chart& chart) {
  constexpr double usual = 205;
  if (const auto* const bars = std::get_if<BarChart>(&chart.data)) {
    constexpr double row = 17;
    constexpr double around = 50;
    return std::clamp(static_cast<double>(bars->bars.size()) * row + around, 110.0, 420.0);
  }
  if (std::holds_alternative<MapChart>(chart.data)) return 290;
  return std::get<LineChart>(chart.data).strip ? usual + 60 : usual;
}

bool isBlank(const std::string& text) {
  return text.find_first_not_of(" \t\r\n") == std::string::npos;
}

/// A section without what has nothing to show.
HandoutSection withoutBlanks(HandoutSection section) {
  std::erase_if(section.paragraphs, isBlank);
  std::erase_if(section.tables, [](const HandoutTable& table) { return table.columns.empty(); });
  return section;
}

class SectionOnPages {
 public:
  SectionOnPages(const HandoutSection& section, PageFlow& flow, TextRuler& ruler, const TextMeasure& measure)
      : section_(section), flow_(flow), ruler_(ruler), measure_(measure) {}

  void place() {
    if (section_.paragraphs.empty() && section_.charts.empty() && section_.tables.empty()) return;
    placeHeading();
    for (const std::string& paragraph : section_.paragraphs) {
      placeParagraph(paragraph);
      flow_.gap(betweenParagraphs);
    }
    if (!section_.paragraphs.empty()) flow_.gap(belowParagraphs);
    placeCharts();
    bool first = section_.charts.empty();
    for (const HandoutTable& table : section_.tables) {
      if (!std::exchange(first, false)) flow_.gap(betweenParts);
      TableOnPages(table, flow_, ruler_).place();
    }
  }

 private:
  /// What must stand below the heading on the same page.
  [[nodiscard]] double leadHeight() {
    if (!section_.paragraphs.empty()) {
      // A few remarks stand with what they are about.
      constexpr std::size_t fewLines = 10;
      double height = belowParagraphs;
      std::size_t count = 0;
      for (const std::string& paragraph : section_.paragraphs) {
        const auto some = ruler_.firstLines(paragraph, textWidth(), textFont, fewLines + 1);
        count += some.size();
        height += static_cast<double>(some.size()) * PageFlow::lineOf(textFont) + betweenParagraphs;
        if (count > fewLines) break;
      }
      height += partHeight();
      if (count <= fewLines && height < mostTogether * flow_.pageHeight()) return height;
      const auto lines = ruler_.firstLines(section_.paragraphs.front(), textWidth(), textFont, 2);
      return static_cast<double>(lines.size()) * PageFlow::lineOf(textFont);
    }
    return partHeight();
  }

  [[nodiscard]] double partHeight() {
    if (!section_.charts.empty()) return heightOfChart(0);
    if (section_.tables.empty()) return 0;
    return TableOnPages(section_.tables.front(), flow_, ruler_).leadHeight();
  }

  [[nodiscard]] double textWidth() const { return std::min(flow_.width(), widestText); }

  void placeHeading() {
    const auto lines = ruler_.firstLines(section_.title, flow_.width(), headingFont, 3);
    flow_.gap(aboveHeading);
    const double line = PageFlow::lineOf(headingFont);
    flow_.need(static_cast<double>(lines.size()) * line + belowHeading + leadHeight());
    for (const std::string& text : lines) {
      flow_.addText(0, flow_.top(), Anchor::start, text, headingFont, {Ink::title});
      flow_.moveDown(line);
    }
    flow_.moveDown(belowHeading);
  }

  void placeParagraph(const std::string& paragraph) {
    const double line = PageFlow::lineOf(textFont);
    const std::vector<std::string> lines = ruler_.lines(paragraph, textWidth(), textFont);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      // No page ends with the first line of several, and none begins with the last.
      const bool first = i == 0 && lines.size() > 1;
      const bool lastButOne = i + 2 == lines.size();
      flow_.need(first || lastButOne ? 2 * line : line);
      flow_.addText(0, flow_.top(), Anchor::start, lines[i], textFont, {Ink::text});
      flow_.moveDown(line);
    }
  }

  /// Several charts stand in pairs.
  [[nodiscard]] bool inPairs() const { return section_.charts.size() > 1; }

  [[nodiscard]] double heightOfChart(std::size_t index) const {
    const double height = heightOf(section_.charts[index]);
    if (!inPairs()) return height;
    const std::size_t other = index % 2 == 0 ? index + 1 : index - 1;
    const double beside = other < section_.charts.size() ? heightOf(section_.charts[other]) : 0;
    return std::min(std::max(height, beside), highestInPair);
  }

  void placeCharts() {
    const double width = inPairs() ? (flow_.width() - betweenCharts) / 2 : flow_.width();
    for (std::size_t i = 0; i < section_.charts.size(); ++i) {
      const double height = heightOfChart(i);
      const bool right = inPairs() && i % 2 == 1;
      if (!right) {
        if (i > 0) flow_.gap(betweenParts);
        flow_.need(height);
      }
      const Drawing drawing = layOut(section_.charts[i], width, height, ChartMeasure(measure_));
      flow_.addDrawing(right ? width + betweenCharts : 0, flow_.top(), drawing);
      if (right || !inPairs() || i + 1 == section_.charts.size()) flow_.moveDown(height);
    }
  }

  const HandoutSection& section_;
  PageFlow& flow_;
  TextRuler& ruler_;
  const TextMeasure& measure_;
};

}  // namespace

std::vector<Drawing> layOutPages(const Handout& handout, PaperSize paper, const TextMeasure& measure) {
  TextRuler ruler(measure);
  PageFlow flow(handout, paper, ruler);
  for (const HandoutSection& section : handout.sections) {
    const HandoutSection shown = withoutBlanks(section);
    SectionOnPages(shown, flow, ruler, measure).place();
  }
  return flow.finish();
}

}  // namespace verdalis
