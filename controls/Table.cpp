#include "controls/Table.h"

#include <algorithm>
#include <utility>

namespace verdalis {

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
  const auto place = std::find(order_.begin(), order_.end(), record);
  if (place == order_.end()) return std::nullopt;
  return static_cast<std::size_t>(place - order_.begin());
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
  if (sortColumn_) {
    const std::size_t column = *sortColumn_;
    const auto before = [&](std::size_t a, std::size_t b) {
      return contents_.before ? contents_.before(a, b, column)
                              : contents_.cell(a, column).text < contents_.cell(b, column).text;
    };
    // Equal records keep their order in both directions.
    if (sortsDown_) {
      std::stable_sort(order_.begin(), order_.end(),
                       [&](std::size_t a, std::size_t b) { return before(b, a); });
    } else {
      std::stable_sort(order_.begin(), order_.end(), before);
    }
  }
  changed();
}

}  // namespace verdalis
