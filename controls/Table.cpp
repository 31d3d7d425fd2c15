#include "controls/Table.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace verdalis {
namespace {

/// The place of a record that is not on show.
constexpr std::size_t nowhere = std::numeric_limits<std::size_t>::max();

/// Sorts records upwards or downwards; equal ones keep their order in both directions.
template <class Before>
void sortStably(std::vector<std::size_t>& records, bool down, Before&& before) {
  if (down) {
    std::stable_sort(records.begin(), records.end(),
                     [&](std::size_t a, std::size_t b) { return before(b, a); });
  } else {
    std::stable_sort(records.begin(), records.end(), before);
  }
}

}  // namespace

void Table::setContents(std::vector<Column> columns, Contents contents) {
  columns_ = std::move(columns);
  contents_ = std::move(contents);
  passes_ = nullptr;
  sortColumn_.reset();
  sortsDown_ = false;
  current_.reset();
  arrange();
}

void Table::setFilter(const std::function<bool(std::size_t record)>& passes) {
  passes_ = passes;
  if (current_ && passes_ && !passes_(*current_)) current_.reset();
  arrange();
}

std::optional<std::size_t> Table::placeOf(std::size_t record) const {
  if (record >= places_.size() || places_[record] == nowhere) return std::nullopt;
  return places_[record];
}

void Table::setCurrent(std::optional<std::size_t> record) {
  if (record && *record >= contents_.records) record.reset();
  if (current_ == record) return;
  current_ = record;
  changed();
}

std::string Table::tabSeparated() const {
  const auto clean = [](std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return text;
  };
  std::string text;
  for (std::size_t column = 0; column < columns_.size(); ++column)
    text += (column == 0 ? "" : "\t") + clean(columns_[column].heading);
  text += '\n';
  for (const std::size_t record : order_) {
    for (std::size_t column = 0; column < columns_.size(); ++column)
      text += (column == 0 ? "" : "\t") + clean(cell(record, column).text);
    text += '\n';
  }
  return text;
}

void Table::choose(std::size_t place) {
  if (place >= order_.size()) return;
  const std::size_t record = order_[place];
  act([this, record] {
    const Life::Watch here(life());
    setCurrent(record);
    if (!here.expired()) onChoose(record);
  });
}

void Table::clickHeading(std::size_t column) {
  if (column >= columns_.size() || !columns_[column].sorts) return;
  act([this, column] {
    if (sortColumn_ != column) {
      sortColumn_ = column;
      sortsDown_ = false;
    } else if (!sortsDown_) {
      sortsDown_ = true;
    } else {
      sortColumn_.reset();
      sortsDown_ = false;
    }
    arrange();
  });
}

void Table::arrange() {
  order_.clear();
  for (std::size_t record = 0; record < contents_.records; ++record) {
    if (!passes_ || passes_(record)) order_.push_back(record);
  }
  if (sortColumn_) sort();
  places_.assign(contents_.records, nowhere);
  for (std::size_t place = 0; place < order_.size(); ++place)
    places_[order_[place]] = place;
  ++revision_;
  changed();
}

void Table::sort() {
  const std::size_t column = *sortColumn_;
  if (contents_.before) {
    sortStably(order_, sortsDown_,
               [&](std::size_t a, std::size_t b) { return contents_.before(a, b, column); });
    return;
  }
  std::vector<std::string> texts(contents_.records);
  for (const std::size_t record : order_)
    texts[record] = contents_.cell(record, column).text;
  sortStably(order_, sortsDown_, [&](std::size_t a, std::size_t b) { return texts[a] < texts[b]; });
}

}  // namespace verdalis
