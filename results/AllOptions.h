#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/Table.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "engine/Farm.h"
#include "handout/Handout.h"
#include "results/MixSearch.h"
#include "results/OptionRows.h"
#include "results/optionsSection.h"

namespace verdalis {

/// All options of a run in one table, below the option on show: what each grows, how much water each field
/// gets, what it earns, and how far it is behind the best. Options that are as good as the best within some
/// percent are marked.
class AllOptions : public Frame {
 public:
  using Option = OptionRows::Option;

  /// What a run left beside its options.
  struct Run {
    std::optional<double> plans = std::nullopt;  ///< Number of plans compared; nothing if it is not told
    bool trend = false;                          ///< A trend made the options, each under inputs of its own

    /// The farm of the run, for the best plan of each mix; nothing if that is not offered.
    std::optional<Farm> farm = std::nullopt;
  };

  AllOptions(Frame& container, Services& services);

  CheckBox chkMixes{*this, "chkMixes", "One line per mix"};
  CheckBox chkFold{*this, "chkFold", "Fold mirror images"};
  Label lblWith{*this, "lblWith", "with"};
  ComboBox cboWith{*this, "cboWith", ComboBox::Style::list};
  CheckBox chkWithin{*this, "chkWithin", "As good as the best within"};
  TextBox txtWithin{*this, "txtWithin", "1"};
  Table tblOptions{*this, "tblOptions"};
  Label lblOptionsNote{*this, "lblOptionsNote"};
  Button cmdCopyOptions{*this, "cmdCopyOptions", "Copy"};

  /// Lists the options, which must have fields. The number of an option is its place in this list, from 1.
  void load(const std::vector<Option>& options, const Run& run);

  /// Marks an option as the one on show; a number that the list does not have marks none.
  void setCurrent(std::int16_t number);

  /// The page is left: what is still being searched for is not wanted any more.
  void leave();

  /// The options of the table for a report or a workbook: all of them, whatever the table shows, best first.
  /// \param rows the most rows; nothing for all
  [[nodiscard]] HandoutSection section(std::optional<std::size_t> rows = std::nullopt) const;

  /// Each field of each of them.
  [[nodiscard]] HandoutSection fieldsSection() const;

  /// The user has chosen an option, by its number.
  Event<std::int16_t> onShowOption;

 private:
  void list(std::vector<Option> options, std::vector<std::size_t> numbers);
  void listKept();
  void toggleMixes();
  void listMixes(const std::vector<Option>& plans);
  void fill();
  void fillCrops();
  void filter();
  void tell();
  void copy();
  [[nodiscard]] std::vector<Table::Column> columns() const;
  [[nodiscard]] Table::Cell cell(std::size_t record, std::size_t column) const;
  [[nodiscard]] bool before(std::size_t a, std::size_t b, std::size_t column) const;
  [[nodiscard]] Table::Cell waterCell(std::size_t record, std::size_t field) const;
  [[nodiscard]] Table::Cell behindCell(std::size_t record) const;
  [[nodiscard]] Table::Cell trendCell(std::size_t record, std::size_t variable) const;
  [[nodiscard]] std::optional<double> trendValue(std::size_t record, std::size_t variable) const;
  [[nodiscard]] double percent() const;
  [[nodiscard]] std::optional<std::string> wantedCrop() const;
  [[nodiscard]] ListedOptions listed() const;

  Services& services_;
  std::vector<Option> kept_;          ///< The options of the run
  std::vector<Option> options_;       ///< Those in the table: the kept ones, or the best of each mix
  std::vector<std::size_t> numbers_;  ///< Of those in the table; 0 for one that is not among the kept
  OptionRows rows_;
  std::vector<std::string> variables_;  ///< The variables of a trend that made the options
  Run run_;
  std::size_t shown_ = 0;  ///< Number of the option on show; 0 for none
  bool loading_ = false;
  double efficiency_ = 0;  ///< Of the run, as a fraction
  MixSearch search_;
};

}  // namespace verdalis
