#include "cli/BatchColumns.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "cli/farmTexts.h"
#include "text/quote.h"

namespace verdalis {
namespace {

using Kind = BatchColumnKind;

struct NamedKind {
  std::string_view name;
  Kind kind;
};

constexpr std::array<NamedKind, 8> plainColumns{{{"name", Kind::name},
                                                 {"split", Kind::split},
                                                 {"crops", Kind::crops},
                                                 {"no-split", Kind::noSplit},
                                                 {"keep", Kind::keep},
                                                 {"factor", Kind::factor},
                                                 {"fuel", Kind::fuel},
                                                 {"wish", Kind::wish}}};

/// Columns for one crop: the column name, a blank, and the name of the crop.
constexpr std::array<NamedKind, 2> cropColumnKinds{{{"price", Kind::price}, {"max-yield", Kind::maxYield}}};

struct Found {
  Kind kind;
  std::size_t index = 0;
};

std::optional<Found> plainColumn(const std::string& title) {
  for (const NamedKind& column : plainColumns) {
    if (column.name == title) return Found{column.kind};
  }
  return std::nullopt;
}

std::optional<Found> cropColumn(const std::string& title, TypedFarm& farm) {
  for (const NamedKind& column : cropColumnKinds) {
    if (!title.starts_with(std::string(column.name) + " ")) continue;
    const std::string crop = title.substr(column.name.size() + 1);
    const std::optional<std::size_t> row = findCrop(farm.cropNames(), crop);
    if (!row) throw Refusal(unknownCrop(farm.cropNames(), crop));
    const CropRecord& record = *farm.mainPane().cr[*row];
    const bool isPrice = column.kind == Kind::price;
    if (!(isPrice ? record.txtPrice : record.txtMaxYield).visible())
      throw Refusal(record.GetCrop() + (isPrice ? " has no price." : " has no maximum yield."));
    return Found{column.kind, *row};
  }
  return std::nullopt;
}

/// What a control of the main pane sets; nothing if it takes no input.
std::optional<Found> paneControl(const Control& control, const MainPane& pane) {
  const std::array<std::pair<const Control*, Kind>, 9> single{{{&pane.txtArea, Kind::area},
                                                               {&pane.txtMax, Kind::inches},
                                                               {&pane.txtAnnRain, Kind::rain},
                                                               {&pane.txtEff, Kind::efficiency},
                                                               {&pane.txtSoil, Kind::soil},
                                                               {&pane.chkNoSplit, Kind::noSplitBox},
                                                               {&pane.txtArraySize, Kind::optionsToKeep},
                                                               {&pane.Check1, Kind::switchWithoutEffect},
                                                               {&pane.txtSize, Kind::textWithoutEffect}}};
  for (const auto& [each, kind] : single) {
    if (each == &control) return Found{kind};
  }
  for (std::size_t i = 0; i < pane.Option1.size(); ++i) {
    if (pane.Option1[i].get() == &control) return Found{Kind::landSplitButton, i};
  }
  for (std::size_t i = 0; i < pane.cr.size(); ++i) {
    if (&pane.cr[i]->chkCrop == &control) return Found{Kind::tick, i};
    if (&pane.cr[i]->txtPrice == &control) return Found{Kind::price, i};
    if (&pane.cr[i]->txtMaxYield == &control) return Found{Kind::maxYield, i};
  }
  return std::nullopt;
}

Found controlColumn(const std::string& title, TypedFarm& farm) {
  const Control& control = farm.control(title);
  if (const auto notice = farm.noticeOf(control, title)) throw Refusal(*notice);
  if (const auto found = paneControl(control, farm.mainPane())) return *found;
  throw Refusal("Nothing can be typed into " + quoteForMessage(title) + ", a " +
                std::string(kindName(control.kind())) + ".");
}

Found findColumn(const std::string& title, TypedFarm& farm) {
  if (const auto column = plainColumn(title)) return *column;
  if (const auto column = cropColumn(title, farm)) return *column;
  return controlColumn(title, farm);
}

}  // namespace

std::vector<BatchColumn> batchColumns(const std::vector<std::string>& head, TypedFarm& farm) {
  std::vector<BatchColumn> columns;
  for (const std::string& title : head) {
    const auto refuse = [&](const std::string& why) {
      throw Refusal("Column " + std::to_string(columns.size() + 1) + ", " + quoteForMessage(title) + ": " +
                    why);
    };
    try {
      const Found found = findColumn(title, farm);
      const BatchColumn column{title, found.kind, found.index, columns.size()};
      for (const BatchColumn& before : columns) {
        if (column.repeats(before))
          throw Refusal("It sets the same value as column " + std::to_string(before.position + 1) + ", " +
                        quoteForMessage(before.title) + ".");
      }
      columns.push_back(column);
    } catch (const Refusal& refusal) {
      refuse(refusal.what());
    }
  }
  // Controls of the main pane keep their order in the table, like the texts of --set.
  const auto step = [](const BatchColumn& column) { return std::max(column.kind, Kind::tick); };
  std::stable_sort(columns.begin(), columns.end(),
                   [&](const BatchColumn& a, const BatchColumn& b) { return step(a) < step(b); });
  return columns;
}

}  // namespace verdalis
