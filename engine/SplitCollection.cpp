#include "engine/SplitCollection.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

#include "model/listIndex.h"
#include "text/RunTimeError.h"

namespace verdalis {

SplitCollection::SplitCollection(const std::vector<double>& values, std::vector<std::uint16_t> numbers,
                                 std::size_t width)
    : count_(numbers.size() / width), numbers_(std::move(numbers)) {
  if (count_ == 0) return;
  levels_.assign(width, values);
  for (std::size_t place = 0; place < width; ++place)
    dropUnusedLevels(place);
}

/// Removes levels that no split uses: computations with them could fail, or would be wasted.
void SplitCollection::dropUnusedLevels(std::size_t place) {
  std::vector<double>& levels = levels_[place];
  std::vector<bool> isUsed(levels.size());
  for (std::size_t i = place; i < numbers_.size(); i += width())
    isUsed[numbers_[i]] = true;
  if (std::find(isUsed.begin(), isUsed.end(), false) == isUsed.end()) return;

  std::vector<std::uint16_t> newNumbers(levels.size());
  std::vector<double> used;
  for (std::size_t number = 0; number < levels.size(); ++number) {
    newNumbers[number] = static_cast<std::uint16_t>(used.size());
    if (isUsed[number]) used.push_back(levels[number]);
  }
  for (std::size_t i = place; i < numbers_.size(); i += width())
    numbers_[i] = newNumbers[numbers_[i]];
  levels = std::move(used);
}

void SplitCollection::Add(Split split, std::int16_t n) {
  fillSplits(split, n);
  if (count_ == 0) levels_.assign(split.splits.size(), {});
  if (split.splits.size() != width()) {
    throw RunTimeError(ErrorNumber::invalidCall, "A split of " + std::to_string(split.splits.size()) +
                                                     " values does not fit a list of splits of " +
                                                     std::to_string(width()) + ".");
  }
  for (std::size_t place = 0; place < width(); ++place) {
    numbers_.push_back(numberOf(place, split.splits[place]));
  }
  ++count_;
}

std::uint16_t SplitCollection::numberOf(std::size_t place, double value) {
  std::vector<double>& levels = levels_[place];
  // Compares bits, not values, because 0 and -0 are different levels.
  const auto bits = std::bit_cast<std::uint64_t>(value);
  for (std::size_t i = 0; i < levels.size(); ++i) {
    if (std::bit_cast<std::uint64_t>(levels[i]) == bits) return static_cast<std::uint16_t>(i);
  }
  if (levels.size() > std::numeric_limits<std::uint16_t>::max()) {
    throw RunTimeError(ErrorNumber::overflow, "There are too many different shares of water.");
  }
  levels.push_back(value);
  return static_cast<std::uint16_t>(levels.size() - 1);
}

Split SplitCollection::Item(long index) const {
  const std::uint16_t* numbers = levelNumbers(listIndex(index, count_));
  Split split;
  split.splits.reserve(width());
  for (std::size_t place = 0; place < width(); ++place)
    split.addSplit(levels_[place][numbers[place]]);
  return split;
}

void SplitCollection::Remove(long index) {
  const auto first = numbers_.begin() + static_cast<std::ptrdiff_t>(listIndex(index, count_) * width());
  numbers_.erase(first, first + static_cast<std::ptrdiff_t>(width()));
  --count_;
  for (std::size_t place = 0; place < width(); ++place)
    dropUnusedLevels(place);
}

Split& SplitCollection::fillSplits(Split& split, std::int16_t n) {
  while (split.Count() < n)
    split.addSplit(0);
  return split;
}

std::string SplitCollection::toString() const {
  std::string text;
  for (const Split& split : *this)
    text += "\r\n" + split.toString() + "\r\n";
  return text;
}

}  // namespace verdalis
