#include "results/SummaryPane.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>

#include "controls/ask.h"
#include "model/checked.h"
#include "results/OptionRows.h"
#include "results/figures.h"
#include "results/summarySection.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

constexpr int tableRows = 12;
constexpr int cropRow = 1;
constexpr std::array<const char*, tableRows> rowHeads{
    "",
    "Crop",
    "Acres",
    "Soil",
    "Price",
    "Yield",
    "Annual Rainfall",
    "Gross Irrigation",
    "Net Irrigation",
    "Operating Costs",
    "Returns",
    "Net Return",
};

constexpr std::uint32_t green = 0x008000;
constexpr std::uint32_t blue = 0x0000FF;

}  // namespace

std::string commaSeparated(const Grid& grid) {
  std::string text;
  for (int row = 0; row < grid.rows(); ++row) {
    for (int column = 0; column < grid.columns(); ++column) {
      if (column > 0) text += ",";
      if (row == cropRow && beginsLikeFormula(grid.cell(row, column))) text += "'";
      text += grid.cell(row, column);
    }
    text += "\r\n";
  }
  return text;
}

SummaryPane::SummaryPane(Frame& container, Services& services, SavedOptions& summaryResults, Outside outside)
    : Frame(container, "pneSummary"),
      services_(services),
      summaryResults_(summaryResults),
      outside_(std::move(outside)) {
  setCaption("Summary of Saved Options");
  fgsummary.onClick.connect([this] { removeClicked(); });
  fgsummary.onKey.connect([this](GridKey key) {
    if (key == GridKey::erase) removeAtCursor();
  });
  cmdExcelSave.onClick.connect([this] { saveTable(); });
  cmdCompare.setVisible(false);
  cmdWorkbook.setVisible(false);
  cmdWorkbook.onClick.connect([this] { onExport(); });
  cmdCompare.onClick.connect([this] { onCompare(); });
  cmdCancel.onClick.connect([this] { onBack(); });
}

void SummaryPane::showSummary() {
  build();
  onShowPane();
}

void SummaryPane::build() {
  cmdCompare.setVisible(!summaryResults_.empty());
  cmdWorkbook.setVisible(!summaryResults_.empty());
  if (summaryResults_.empty()) {
    fgsummary.setVisible(false);
    Label59.setCaption(
        "No saved results.  Run a scenario and click the 'Save Results' button to add items to be displayed "
        "on "
        "this page");
    return;
  }
  fgsummary.setVisible(true);
  Label59.setCaption("Saved options are displayed in the table below.  Remove a column by clicking it.");
  const Grid::Batch batch(fgsummary);
  fgsummary.clear();
  long fields = 0;
  for (const auto& option : summaryResults_)
    fields += option->Count();
  fgsummary.setSize(tableRows, std::max(2, static_cast<int>(fields) + 1));
  for (int row = 1; row < tableRows; ++row)
    fgsummary.setCell(row, 0, rowHeads[static_cast<std::size_t>(row)]);

  int column = 0;
  try {
    int number = 0;
    for (const auto& option : summaryResults_)
      addOption(*option, ++number, column);
  } catch (const RunTimeError&) {
    fgsummary.setSize(tableRows, std::max(2, column + 1));
    throw;
  }
  fgsummary.setCurrent(fgsummary.row(), fgsummary.columns() - 1);
}

/// `column` is the last column that has been started.
void SummaryPane::addOption(const FieldCollection& option, int number, int& column) {
  const std::string head = "Saved Option #" + std::to_string(number);
  int fieldNumber = 0;
  for (const auto& field : option) {
    ++fieldNumber;
    ++column;
    for (int row = 1; row < tableRows; ++row)
      fgsummary.setColor(row, column, number % 2 == 1 ? green : blue);
    fgsummary.setCell(0, column,
                      option.Count() > 1 ? head + " - Field #" + std::to_string(fieldNumber) : head);
    addField(*field, column);
  }
}

/// Fills the rows one by one, so that a field that cannot be calculated still fills the rows before the
/// error.
void SummaryPane::addField(Field& field, int column) {
  int row = 0;
  const auto add = [&](const std::string& text) { fgsummary.setCell(++row, column, text); };
  const auto addMoney = [&](double amount) { add(dollarsAnAcre(perAcre(amount, field.acres), "###,##0")); };
  const Crop& crop = *field.theCrop;
  add(crop.cropType);
  add(generalText(field.acres));
  add(crop.soilName);
  add("$" + formatNumber(crop.price, "###,##0.00") + "/" + crop.priceUnits());
  add(crop.yieldToString());
  add(generalText(Val(outside_.annualRain())) + "''");
  add(inches(grossFromNet(field.Depth), "#0.0"));
  add(inches(field.Depth, "#0.0"));
  addMoney(field.getCosts());
  addMoney(field.getReturn());
  addMoney(field.getReturn() - field.getCosts());
}

SummaryPane::Columns SummaryPane::columnsOf(std::size_t option) const {
  int first = 1;
  for (std::size_t i = 0; i < option; ++i)
    first += static_cast<int>(summaryResults_[i]->Count());
  return {first, first + static_cast<int>(summaryResults_[option]->Count()) - 1};
}

std::optional<std::size_t> SummaryPane::optionAt(int column) const {
  for (std::size_t option = 0; option < summaryResults_.size(); ++option) {
    const Columns columns = columnsOf(option);
    if (column >= columns.first && column <= columns.last) return option;
  }
  return std::nullopt;
}

std::string SummaryPane::describe(std::size_t option) const {
  return "Saved Option #" + std::to_string(option + 1) + ": " + cropsWithAcres(*summaryResults_[option]);
}

HandoutSection SummaryPane::section(std::optional<std::size_t> rows) const {
  return summarySection(summaryResults_, Val(outside_.annualRain()), rows);
}

/// The option that a click on the current column removes. Each option counts one column more than it has
/// fields, so the columns match those of the table for the first option only. This is intended.
std::optional<std::size_t> SummaryPane::removedByClick() const {
  int n = 1;
  for (std::size_t option = 0; option < summaryResults_.size(); ++option) {
    const int beyond = n + static_cast<int>(summaryResults_[option]->Count());
    if (fgsummary.column() >= n && fgsummary.column() <= beyond) return option;
    n = beyond + 1;
  }
  return std::nullopt;
}

/// Shows which option the question is about while it is asked.
bool SummaryPane::askToRemove(std::optional<std::size_t> option) {
  asksAbout_ = option;
  onAsk();
  const MessageAnswer answer = ask(desk(), services_.messageBox,
                                   {"Delete?", "Do you want to delete this saved result?",
                                    MessageKind::question, MessageIcon::question, MessageButtons::yesNo});
  asksAbout_.reset();
  onAsk();
  return answer == MessageAnswer::yes;
}

void SummaryPane::remove(std::size_t option) {
  summaryResults_.erase(summaryResults_.begin() + static_cast<std::ptrdiff_t>(option));
  showSummary();
}

void SummaryPane::removeClicked() {
  if (!askToRemove(removedByClick())) return;
  // Found again: the options may have changed while the question was on show.
  if (const std::optional<std::size_t> option = removedByClick()) {
    remove(*option);
    return;
  }
  // A click on the row headings removes nothing, but shows the pane again, which adds it to the pane history.
  onShowPane();
}

void SummaryPane::removeAtCursor() {
  const std::optional<std::size_t> option = optionAt(fgsummary.column());
  if (!option) return;
  const std::shared_ptr<FieldCollection> asked = summaryResults_[*option];
  if (!askToRemove(option)) return;
  if (*option < summaryResults_.size() && summaryResults_[*option] == asked) remove(*option);
}

void SummaryPane::saveTable() {
  const std::optional<std::filesystem::path> path =
      askToSave(desk(), services_.fileChooser, {"", {}, "Comma Separated Values|csv", "csv"});
  if (path) outside_.writeFile(*path, encodeForExport(commaSeparated(fgsummary)));
}

}  // namespace verdalis
