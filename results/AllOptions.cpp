#include "results/AllOptions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <set>
#include <tuple>
#include <utility>

#include "results/figures.h"
#include "results/passOver.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr const char* anyCrop = "any crop";
constexpr const char* unknown = "-";
constexpr const char* searching = "Looking for the best plan of each mix of crops ...";
constexpr double highestPercent = 100;

/// The columns before those of the fields, and after them.
enum Front : std::size_t { rank, crops, fronts };
enum Back : std::size_t { perAcreReturn, farmReturn, behindBest, backs };

/// Dollars, or a dash where they cannot be worked out or shown.
template <class Amount>
std::string dollarsOrDash(Amount&& amount) {
  std::string text = unknown;
  passOver([&] { text = wholeDollars(amount()); });
  return text;
}

/// The fields of an option: crop, acres and net inches.
using FieldTexts = std::vector<std::tuple<std::string, double, double>>;

FieldTexts fieldsOf(const FieldCollection& option) {
  FieldTexts fields;
  for (const auto& field : option)
    fields.emplace_back(field->theCrop->cropType, field->acres, field->Depth);
  return fields;
}

/// What has no number stands behind the rest.
std::size_t rankOf(std::size_t number) {
  return number - 1;
}

std::string inWords(std::size_t number) {
  static constexpr std::array<const char*, 13> words{"no",   "one",    "two",   "three", "four",
                                                     "five", "six",    "seven", "eight", "nine",
                                                     "ten",  "eleven", "twelve"};
  return number < words.size() ? words[number] : formatNumber(static_cast<double>(number), "###,##0");
}

/// The options of a trend differ in its values; their fields are told on their pages.
std::size_t fieldColumns(const OptionRows& rows, const AllOptions::Run& run) {
  return run.trend ? 0 : rows.fields();
}

std::string capitalized(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

}  // namespace

AllOptions::AllOptions(Frame& container, Services& services)
    : Frame(container, "pnlAllOptions"), services_(services), search_(services.background) {
  fillCrops();
  chkMixes.setVisible(false);
  chkMixes.onClick.connect([this] { toggleMixes(); });
  chkFold.setVisible(false);
  chkFold.onClick.connect([this] { filter(); });
  cboWith.onClick.connect([this] { filter(); });
  chkWithin.onClick.connect([this] { filter(); });
  txtWithin.onChange.connect([this] { filter(); });
  cmdCopyOptions.onClick.connect([this] { copy(); });
  tblOptions.onChoose.connect([this](std::size_t record) {
    if (numbers_[record] > 0) onShowOption(static_cast<std::int16_t>(numbers_[record]));
  });
}

void AllOptions::load(const std::vector<Option>& options, const Run& run) {
  search_.cancel();
  kept_ = options;
  run_ = run;
  shown_ = 0;
  efficiency_ = EfficiencyFraction;
  chkMixes.setVisible(run.farm.has_value() && !run.farm->mixes);
  loading_ = true;
  chkMixes.setChecked(false);
  chkWithin.setChecked(false);
  loading_ = false;
  chkWithin.setVisible(!run.trend);
  txtWithin.setVisible(!run.trend);
  listKept();
}

void AllOptions::leave() {
  if (search_.isRunning()) chkMixes.setChecked(false);
}

void AllOptions::listKept() {
  std::vector<std::size_t> numbers(kept_.size());
  std::iota(numbers.begin(), numbers.end(), 1U);
  list(kept_, std::move(numbers));
}

void AllOptions::list(std::vector<Option> options, std::vector<std::size_t> numbers) {
  tblOptions.setContents({}, {});
  loading_ = true;
  options_ = std::move(options);
  numbers_ = std::move(numbers);
  rows_ = OptionRows(options_, efficiency_);
  variables_.clear();
  for (const Option& option : options_) {
    if (option->theVariable.size() > variables_.size()) variables_ = option->theVariable;
  }
  chkFold.setVisible(rows_.hasMirrors() && !run_.trend);
  chkFold.setChecked(rows_.hasMirrors() && !run_.trend);
  fillCrops();
  loading_ = false;
  fill();
}

void AllOptions::toggleMixes() {
  if (loading_) return;
  search_.cancel();
  if (!chkMixes.checked() || !run_.farm) {
    listKept();
    return;
  }
  lblOptionsNote.setCaption(searching);
  search_.start(*run_.farm, [this](const std::vector<Option>& plans) { listMixes(plans); });
}

/// A plan that the run has kept too leads to its option: the one with the same fields, or its mirror image.
void AllOptions::listMixes(const std::vector<Option>& plans) {
  if (plans.empty()) {
    chkMixes.setChecked(false);
    return;
  }
  std::map<FieldTexts, std::size_t> inOrder;
  std::map<FieldTexts, std::size_t> inAnyOrder;
  for (std::size_t i = 0; i < kept_.size(); ++i) {
    FieldTexts fields = fieldsOf(*kept_[i]);
    inOrder.try_emplace(fields, i + 1);
    std::sort(fields.begin(), fields.end());
    inAnyOrder.try_emplace(std::move(fields), i + 1);
  }
  const auto numberIn = [](const std::map<FieldTexts, std::size_t>& known, const FieldTexts& fields) {
    const auto found = known.find(fields);
    return found == known.end() ? 0 : found->second;
  };
  std::vector<std::size_t> numbers;
  for (const Option& plan : plans) {
    FieldTexts fields = fieldsOf(*plan);
    std::size_t number = numberIn(inOrder, fields);
    std::sort(fields.begin(), fields.end());
    if (number == 0) number = numberIn(inAnyOrder, fields);
    numbers.push_back(number);
  }
  list(plans, std::move(numbers));
}

void AllOptions::setCurrent(std::int16_t number) {
  shown_ = number > 0 ? static_cast<std::size_t>(number) : 0;
  std::optional<std::size_t> record;
  const auto found = std::find(numbers_.begin(), numbers_.end(), shown_);
  if (shown_ > 0 && found != numbers_.end()) {
    record = static_cast<std::size_t>(found - numbers_.begin());
    if (chkFold.checked()) record = rows_[*record].first;
  }
  if (record && !tblOptions.placeOf(*record)) record.reset();
  tblOptions.setCurrent(record);
}

void AllOptions::fillCrops() {
  cboWith.clear();
  cboWith.addItem(anyCrop);
  for (const std::string& crop : rows_.crops())
    cboWith.addItem(crop);
  cboWith.setIndex(0);
}

std::optional<std::string> AllOptions::wantedCrop() const {
  if (cboWith.index() < 1) return std::nullopt;
  return cboWith.text();
}

/// What is no percentage counts as none, so that only the best is marked.
double AllOptions::percent() const {
  if (!isNumeric(txtWithin.text())) return 0;
  double number = 0;
  passOver([&] { number = toDouble(txtWithin.text()); });
  return number > 0 && number <= highestPercent ? number : 0;
}

void AllOptions::fill() {
  Table::Contents contents;
  contents.records = rows_.size();
  contents.cell = [this](std::size_t record, std::size_t column) { return cell(record, column); };
  contents.before = [this](std::size_t a, std::size_t b, std::size_t column) { return before(a, b, column); };
  if (!run_.trend) contents.marked = [this](std::size_t record) { return rows_.isWithin(record, percent()); };
  tblOptions.setContents(columns(), std::move(contents));
  filter();
}

std::vector<Table::Column> AllOptions::columns() const {
  std::vector<Table::Column> columns{{run_.trend ? "Option" : "Rank"},
                                     {"Crops and acres", Table::Align::left}};
  for (const std::string& variable : variables_)
    columns.push_back({variable});
  // The acres of the fields stand above them where all options divide the land alike, as far as they do.
  for (std::size_t field = 0; field < fieldColumns(rows_, run_); ++field) {
    std::string head;
    for (std::size_t row = 0; row < rows_.size() && head.empty(); ++row) {
      if (rows_[row].fields < rows_.fields()) continue;
      passOver([&] { head = formatNumber(rows_[row].parts[field], "###,###,##0.#") + " ac"; });
    }
    if (!head.empty() && head.find(". ac") != std::string::npos) head.erase(head.find(". ac"), 1);
    columns.push_back({head + (field == 0 ? ", gross in." : ""), Table::Align::left, true, true});
  }
  columns.push_back({"$/acre"});
  columns.push_back({"Farm"});
  columns.push_back({run_.trend ? "Behind the highest" : "Behind the best"});
  return columns;
}

Table::Cell AllOptions::cell(std::size_t record, std::size_t column) const {
  const OptionRows::Row& row = rows_[record];
  if (column == Front::rank) {
    return {numbers_[record] > 0 ? std::to_string(numbers_[record]) : unknown, {}, false};
  }
  if (column == Front::crops) return {rows_.mixText(row.mix), {}, false};
  column -= Front::fronts;
  if (column < variables_.size()) return trendCell(record, column);
  column -= variables_.size();
  if (column < fieldColumns(rows_, run_)) return waterCell(record, column);
  column -= fieldColumns(rows_, run_);
  if (column == Back::perAcreReturn && row.profit) {
    return {dollarsOrDash([&] { return perAcre(*row.profit, row.acres); }), {}, false};
  }
  if (column == Back::farmReturn && row.profit)
    return {dollarsOrDash([&] { return *row.profit; }), {}, false};
  if (column == Back::behindBest) return behindCell(record);
  return {unknown, {}, false};
}

std::optional<double> AllOptions::trendValue(std::size_t record, std::size_t variable) const {
  const FieldCollection& option = *options_[record];
  return variable < option.theValue.size() ? std::optional(option.theValue[variable]) : std::nullopt;
}

/// A value with which a trend made the option, as its page tells it.
Table::Cell AllOptions::trendCell(std::size_t record, std::size_t variable) const {
  const std::optional<double> value = trendValue(record, variable);
  const FieldCollection& option = *options_[record];
  std::string text = unknown;
  if (!value || variable >= option.theUnits.size()) return {text, {}, false};
  passOver([&] {
    const UnitsPair& units = option.theUnits[variable];
    text = units[0] + formatNumber(*value, "###,##0.00") + " " + units[1];
  });
  return {text, {}, false};
}

Table::Cell AllOptions::waterCell(std::size_t record, std::size_t field) const {
  const OptionRows::Row& row = rows_[record];
  if (field >= row.fields) return {};
  const double gross = row.gross[field];
  if (gross < 0) return {unknown, {}, false};
  std::string text = unknown;
  passOver([&] { text = formatNumber(gross, "#0.0"); });
  // On the undivided farm the one field is not the one that the heading names.
  if (row.fields < rows_.fields() && row.fields == 1) text += ", whole farm";
  return {text, rows_.mostGross() > 0 ? gross / rows_.mostGross() : 0, false};
}

Table::Cell AllOptions::behindCell(std::size_t record) const {
  const std::optional<double> behind = rows_.behind(record);
  if (!behind) return {unknown, {}, false};
  const double longest = *rows_.best() - *rows_.worst();
  const double bar = longest > 0 ? *behind / longest : 0;
  if (*behind == 0) return {run_.trend ? "highest" : "best", bar, false};
  std::string text = unknown;
  passOver([&] {
    const std::string amount = wholeDollars(*behind);
    text = amount == "$0" ? "under $1" : "-" + amount;
    const double best = std::abs(*rows_.best());
    if (best > 0) text += " (" + formatNumber(*behind / best * 100, "###,##0.0") + " %)";
  });
  return {text, bar, false};
}

bool AllOptions::before(std::size_t a, std::size_t b, std::size_t column) const {
  const OptionRows::Row& one = rows_[a];
  const OptionRows::Row& other = rows_[b];
  if (column == Front::rank) return rankOf(numbers_[a]) < rankOf(numbers_[b]);
  if (column == Front::crops) return rows_.mixPlace(one.mix) < rows_.mixPlace(other.mix);
  column -= Front::fronts;
  if (column < variables_.size()) return trendValue(a, column) < trendValue(b, column);
  column -= variables_.size();
  if (column < fieldColumns(rows_, run_)) return one.gross[column] < other.gross[column];
  column -= fieldColumns(rows_, run_);
  // What cannot be worked out counts as less than all else.
  if (column == Back::perAcreReturn) {
    const auto perAcreOf = [](const OptionRows::Row& row) {
      return row.profit && row.acres != 0 ? std::optional(*row.profit / row.acres) : std::nullopt;
    };
    return perAcreOf(one) < perAcreOf(other);
  }
  return column == Back::behindBest ? other.profit < one.profit : one.profit < other.profit;
}

void AllOptions::filter() {
  if (loading_) return;
  const bool folds = chkFold.checked();
  const bool within = chkWithin.checked();
  const std::optional<std::string> crop = wantedCrop();
  const double share = percent();
  std::vector<bool> wanted;
  for (std::size_t mix = 0; mix < rows_.mixes(); ++mix)
    wanted.push_back(!crop || rows_.mixHas(mix, *crop));
  tblOptions.setFilter([this, folds, within, share, wanted](std::size_t record) {
    const OptionRows::Row& row = rows_[record];
    return wanted[row.mix] && !(folds && row.first != record) && (!within || rows_.isWithin(record, share));
  });
  setCurrent(static_cast<std::int16_t>(shown_));
  tell();
}

/// Tells in words how many mixes are as good as the best. Among options that all are, others that the run did
/// not keep may be as good too.
void AllOptions::tell() {
  if (search_.isRunning()) {
    lblOptionsNote.setCaption(searching);
    return;
  }
  std::string text;
  const auto add = [&](const std::string& sentence) { text += (text.empty() ? "" : " ") + sentence; };
  if (!run_.trend && rows_.best()) {
    std::set<std::size_t> mixes;
    bool all = true;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      const bool good = rows_.isWithin(row, percent());
      if (good) mixes.insert(rows_.mixPlace(rows_[row].mix));
      all = all && good;
    }
    passOver([&] {
      const std::string count = mixes.size() > 1 ? inWords(mixes.size()) + " mixes are" : "no other mix is";
      const std::string sentence = count + " as good as the best within " + generalText(percent()) + " % (" +
                                   wholeDollars(rows_.within(percent())) + ").";
      add(all ? "Of the options kept, " + sentence : capitalized(sentence));
    });
  }
  if (run_.plans && rows_.size() > 0) {
    passOver([&] {
      add(formatNumber(*run_.plans, "###,##0") + (*run_.plans == 1 ? " plan" : " plans") + " compared.");
    });
  }
  if (std::find(numbers_.begin(), numbers_.end(), 0U) != numbers_.end()) {
    add("A line without a rank is not among the options kept.");
  }
  if (tblOptions.places() == 0 && rows_.size() > 0) text = "No option is like that. " + text;
  lblOptionsNote.setCaption(text);
}

ListedOptions AllOptions::listed() const {
  return {options_, numbers_, efficiency_, run_.trend};
}

HandoutSection AllOptions::section(std::optional<std::size_t> rows) const {
  return optionsSection(listed(), rows);
}

HandoutSection AllOptions::fieldsSection() const {
  return optionFieldsSection(listed());
}

void AllOptions::copy() {
  services_.clipboard.setText(tblOptions.tabSeparated());
}

}  // namespace verdalis
