#include "main/ComparePane.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "handout/addCells.h"

namespace verdalis {
namespace {

constexpr std::uint32_t green = 0x008000;  // the best

constexpr const char* noneSaved =
    "No saved results.  Run a scenario and click 'Compare this option' to add options to compare.";
constexpr const char* noneTicked = "No option is ticked.  Tick the options to compare.";
constexpr const char* oneTicked = "Tick another option to compare it with this one.";
constexpr const char* severalTicked =
    "The ticked options side by side.  The best net return of the farm is marked.";

}  // namespace

std::string tabSeparated(const Grid& grid) {
  std::string text;
  for (int row = 0; row < grid.rows(); ++row) {
    for (int column = 0; column < grid.columns(); ++column) {
      if (column > 0) text += '\t';
      for (const char character : grid.cell(row, column)) {
        const bool separates = character == '\t' || character == '\r' || character == '\n';
        text += separates ? ' ' : character;
      }
    }
    text += '\n';
  }
  return text;
}

ComparePane::ComparePane(Frame& window, Services& services, std::function<const SavedOptions&()> saved)
    : Frame(window, "pneCompare"), services_(services), saved_(std::move(saved)) {
  setCaption("Compare Saved Options");
  cmdCopy.onClick.connect([this] { services_.clipboard.setText(tabSeparated(fgCompare)); });
  cmdExport.onClick.connect([this] { onExport(); });
  cmdBack.onClick.connect([this] { onBack(); });
}

void ComparePane::open() {
  const SavedOptions& options = saved_();
  std::vector<bool> ticked(options.size(), true);
  const std::size_t before = options.size() - std::min(options.size(), mostTicked);
  std::fill_n(ticked.begin(), before, false);
  setBoxes(options, ticked);
  compare();
  onShowPane();
}

void ComparePane::refresh() {
  const SavedOptions& options = saved_();
  std::vector<bool> ticked;
  for (const auto& option : options) {
    const auto known = std::find(options_.begin(), options_.end(), option);
    ticked.push_back(known == options_.end() ||
                     chkCompare[static_cast<std::size_t>(known - options_.begin())]->checked());
  }
  setBoxes(options, ticked);
  compare();
}

bool ComparePane::isSection(int row) const {
  return row >= 0 && static_cast<std::size_t>(row) < sections_.size() &&
         sections_[static_cast<std::size_t>(row)];
}

std::string ComparePane::nameOf(std::size_t index) const {
  const std::string& name = options_[index].name;
  return name.empty() ? "Saved Option #" + std::to_string(index + 1) : name;
}

void ComparePane::setBoxes(const SavedOptions& options, const std::vector<bool>& ticked) {
  setting_ = true;
  options_ = options;
  const bool others = chkCompare.size() != options_.size();
  if (chkCompare.size() > options_.size()) chkCompare.resize(options_.size());
  for (std::size_t i = 0; i < options_.size(); ++i) {
    if (i == chkCompare.size()) {
      chkCompare.push_back(std::make_unique<CheckBox>(*this, "chkCompare(" + std::to_string(i) + ")", ""));
      chkCompare.back()->onClick.connect([this] {
        if (!setting_) compare();
      });
    }
    chkCompare[i]->setCaption(nameOf(i));
    chkCompare[i]->setChecked(ticked[i]);
  }
  setting_ = false;
  if (others) onBoxesChanged();
}

void ComparePane::compare() {
  std::vector<ComparedOption> ticked;
  for (std::size_t i = 0; i < options_.size(); ++i) {
    if (chkCompare[i]->checked()) ticked.push_back({nameOf(i), options_.item(i)});
  }
  if (options_.empty()) {
    lblCompare.setCaption(noneSaved);
  } else if (ticked.empty()) {
    lblCompare.setCaption(noneTicked);
  } else {
    lblCompare.setCaption(ticked.size() == 1 ? oneTicked : severalTicked);
  }
  names_.clear();
  for (const ComparedOption& option : ticked)
    names_.push_back(option.name);
  comparison_ = compareOptions(ticked, optionToPrice);
  showRows(ticked, comparison_);
  fgCompare.setVisible(!ticked.empty());
  cmdCopy.setEnabled(!ticked.empty());
  cmdExport.setEnabled(!ticked.empty());
}

HandoutSection ComparePane::section() const {
  HandoutTable table{"", {{"", "", false, {}}}, {}};
  for (const std::string& name : names_)
    table.columns.push_back({name, "", true, {"", "", 2, true, false}});
  for (const ComparisonRow& line : comparison_.rows) {
    HandoutRow row;
    row.strong = line.section;
    addText(row, line.head + (line.unit.empty() ? "" : " (" + line.unit + ")"));
    for (std::size_t i = 0; i < line.cells.size(); ++i) {
      if (i < line.numbers.size()) {
        addNumber(row, line.numbers[i]);
      } else {
        addText(row, line.cells[i]);
      }
    }
    table.rows.push_back(std::move(row));
  }
  return {"Comparison", {lblCompare.caption()}, {}, {std::move(table)}};
}

void ComparePane::showRows(const std::vector<ComparedOption>& options, const Comparison& comparison) {
  const Grid::Batch batch(fgCompare);
  sections_.assign(comparison.rows.size() + 1, false);
  fgCompare.clear();
  fgCompare.setSize(static_cast<int>(comparison.rows.size()) + 1, static_cast<int>(options.size()) + 1);
  int column = 0;
  for (const ComparedOption& option : options)
    fgCompare.setCell(0, ++column, option.name);
  int line = 0;
  for (const ComparisonRow& row : comparison.rows) {
    ++line;
    sections_[static_cast<std::size_t>(line)] = row.section;
    fgCompare.setCell(line, 0, row.head);
    for (std::size_t i = 0; i < row.cells.size(); ++i)
      fgCompare.setCell(line, static_cast<int>(i) + 1, row.cells[i]);
  }
  for (std::size_t i = 0; i < options.size(); ++i) {
    if (!comparison.best[i]) continue;
    for (std::size_t row = 0; row <= comparison.netReturnRows; ++row)
      fgCompare.setColor(static_cast<int>(row), static_cast<int>(i) + 1, green);
  }
}

}  // namespace verdalis
