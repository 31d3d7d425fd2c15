#include <algorithm>
#include <array>
#include <ostream>

#include "cli/OptionsWriter.h"
#include "cli/TextTable.h"
#include "questions/planText.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr std::size_t leastCropWidth = 8;

enum Column : std::size_t { acres, crop, net, gross, yield, unit, costs, returns, netReturn, columnCount };

using Row = std::array<std::string, columnCount>;
using Widths = std::array<std::size_t, columnCount>;

/// Blanks before each column. The unit directly follows its yield.
constexpr Widths gaps{2, 2, 2, 2, 2, 1, 2, 2, 2};

const Row head{"Acres", "Crop", "Net", "Gross", "Yield", "", "Costs", "Returns", "Net return"};

std::string dollars(double amount) {
  return formatNumber(amount, "###,##0");
}

std::string inches(double depth) {
  return formatNumber(depth, "#0.0");
}

Row fieldRow(const FieldResult& field) {
  return {formatNumber(field.acres, "###,###,##0.0"),
          printable(field.crop),
          inches(field.netDepth),
          inches(field.grossDepth),
          formatNumber(field.yield, "###,##0.0"),
          field.yieldUnit.empty() ? "" : printable(field.yieldUnit) + "/ac",
          dollars(field.costs / field.acres),
          dollars(field.returns / field.acres),
          dollars(field.profit() / field.acres)};
}

Row totalRow(const OptionResult& option, double efficiency) {
  const double farm = option.acres();
  return {formatNumber(farm, "###,###,##0.0"),
          "Farm",
          inches(option.netVolume / farm),
          inches(option.netVolume / efficiency / farm),
          "",
          "",
          dollars(option.costs / farm),
          dollars(option.returns / farm),
          dollars(option.profit / farm)};
}

std::string optionTitle(std::size_t number, const OptionResult& option) {
  return "Option " + std::to_string(number) + ": net return " + formatNumber(option.profit, "$###,###,##0") +
         ", " + formatNumber(option.profit / option.acres(), "$###,##0") + " /acre";
}

/// A title and the rows below it.
struct Block {
  std::string title;
  std::vector<Row> rows;
};

std::vector<Block> makeBlocks(const EvaluationResult& result) {
  std::vector<Block> blocks;
  for (const OptionResult& option : result.options) {
    Block block{optionTitle(blocks.size() + 1, option), {}};
    for (const FieldResult& field : option.fields)
      block.rows.push_back(fieldRow(field));
    block.rows.push_back(totalRow(option, result.efficiency));
    blocks.push_back(std::move(block));
  }
  return blocks;
}

/// Widths that fit every row. If the table is too wide, only crop names are shortened.
Widths measure(const std::vector<Block>& blocks) {
  Widths widths{};
  const auto widen = [&](const Row& row) {
    for (std::size_t column = 0; column < columnCount; ++column) {
      widths.at(column) = std::max(widths.at(column), textWidth(row.at(column)));
    }
  };
  widen(head);
  for (const Block& block : blocks)
    std::for_each(block.rows.begin(), block.rows.end(), widen);

  std::size_t others = 0;
  for (std::size_t column = 0; column < columnCount; ++column) {
    others += gaps.at(column) + (column == crop ? 0 : widths.at(column));
  }
  const std::size_t room = std::max(others + leastCropWidth, mostTableColumns) - others;
  widths[crop] = std::min(widths[crop], room);
  return widths;
}

void writeRow(std::ostream& out, const Row& row, const Widths& widths) {
  std::string line;
  for (std::size_t column = 0; column < columnCount; ++column) {
    const std::string text = cutTo(widths.at(column), row.at(column));
    const std::string padding(widths.at(column) - textWidth(text), ' ');
    const bool left = column == crop || column == unit;
    line += std::string(gaps.at(column), ' ') + (left ? text + padding : padding + text);
  }
  line.erase(line.find_last_not_of(' ') + 1);
  out << line << '\n';
}

/// Writes the line above the head. Each of its two texts ends with the columns that it describes.
void writeGroups(std::ostream& out, const Widths& widths) {
  std::string line;
  std::size_t end = 0;
  for (std::size_t column = 0; column < columnCount; ++column) {
    end += gaps.at(column) + widths.at(column);
    const std::string_view group = column == gross       ? "Irrigation, in."
                                   : column == netReturn ? "Dollars per acre"
                                                         : std::string_view();
    if (group.empty()) continue;
    line.resize(std::max(line.size(), end - std::min(end, group.size())), ' ');
    line += group;
  }
  out << line << '\n';
}

std::string grouped(std::uint64_t count) {
  std::string text = std::to_string(count);
  for (std::size_t i = text.size(); i > 3; i -= 3)
    text.insert(i - 3, ",");
  return text;
}

void writeSteps(std::ostream& out, const Explanation& explanation) {
  out << "\nHow field " << explanation.field << " of option " << explanation.option
      << " comes to its net return:\n";
  std::size_t number = 0;
  for (const ExplainedStep& step : explanation.steps) {
    const std::string place = std::to_string(++number) + ". ";
    const std::string margin(place.size() < 4 ? 4 - place.size() : 0, ' ');
    out << margin << wrapped(place + printable(step.what + ": " + step.shown + " = " + step.formula), 4)
        << '\n';
  }
}

}  // namespace

void writeTable(std::ostream& out, const EvaluationResult& result) {
  out << "Candidates: " << grouped(result.candidates()) << " (water splits: " << grouped(result.waterSplits)
      << ", crop combinations: " << grouped(result.cropCombinations)
      << ")\nIrrigation efficiency: " << formatNumber(result.efficiency * 100, "##0.0") << " %\n";
  for (const std::string& wish : result.wishes)
    out << "Wish: " << printable(wish) << '\n';
  if (result.mixes) out << "Of each mix of acres and crops the best option alone\n";
  out << '\n';
  if (result.options.empty()) {
    out << (result.wishes.empty() ? "No option was found.\n" : "No plan meets all wishes.\n");
    return;
  }
  const std::vector<Block> blocks = makeBlocks(result);
  const Widths widths = measure(blocks);
  writeGroups(out, widths);
  writeRow(out, head, widths);
  for (const Block& block : blocks) {
    out << '\n' << block.title << '\n';
    for (const Row& row : block.rows)
      writeRow(out, row, widths);
  }
  out << "\nCosts include irrigation costs. Net returns to land, management, and irrigation equipment.\n";
  if (result.explanation) writeSteps(out, *result.explanation);
}

}  // namespace verdalis
