#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "engine/Split.h"

namespace verdalis {

/// An ordered list of splits, counted from 1, all with the same number of values.
///
/// An iteration factor of 99 on four fields makes 177,000 splits, but each field has only about 100 different
/// values. A place therefore stores the index of its value in the list of values of its field. This keeps the
/// collection small, and a step that changes all values (percent to volume, volume to depth) computes each
/// different value once.
class SplitCollection {
 public:
  SplitCollection() = default;

  /// Splits of `width` values each. `numbers` holds the values of one split after the other, as indices into
  /// `values`, which must all be different.
  SplitCollection(const std::vector<double>& values, std::vector<std::uint16_t> numbers, std::size_t width);

  /// Appends a split, filled up with zeros to n values.
  /// \throws RunTimeError (invalidCall) if it then has a different number of values than the others
  void Add(Split split, std::int16_t n);

  /// \throws RunTimeError (subscript) outside 1..Count().
  [[nodiscard]] Split Item(long index) const;
  [[nodiscard]] long Count() const { return static_cast<long>(count_); }

  /// \throws RunTimeError (subscript) outside 1..Count().
  void Remove(long index);

  /// Fills the split up with zeros to n values. A split with n or more values is unchanged.
  static Split& fillSplits(Split& split, std::int16_t n);

  /// CR LF, the text and CR LF for each split.
  [[nodiscard]] std::string toString() const;

  /// Number of values per split; 0 while the collection is empty.
  [[nodiscard]] std::size_t width() const { return levels_.size(); }

  /// The different values at `place` (from 0) in any split, in no particular order.
  [[nodiscard]] const std::vector<double>& levels(std::size_t place) const { return levels_[place]; }

  /// For the split at `index` (from 0), the indices in levels() of its width() values.
  [[nodiscard]] const std::uint16_t* levelNumbers(std::size_t index) const {
    return numbers_.data() + index * width();
  }

  /// The same splits with each value replaced by change(place, value).
  template <class Change>
  [[nodiscard]] SplitCollection transformed(Change change) && {
    for (std::size_t place = 0; place < levels_.size(); ++place) {
      for (double& value : levels_[place])
        value = change(place, value);
    }
    return std::move(*this);
  }

  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = Split;
    using difference_type = std::ptrdiff_t;
    using pointer = const Split*;
    using reference = Split;

    Iterator(const SplitCollection& splits, long index) : splits_(&splits), index_(index) {}
    Split operator*() const { return splits_->Item(index_); }
    Iterator& operator++() {
      ++index_;
      return *this;
    }
    friend bool operator==(const Iterator& a, const Iterator& b) { return a.index_ == b.index_; }

   private:
    const SplitCollection* splits_;
    long index_;
  };
  [[nodiscard]] Iterator begin() const { return {*this, 1}; }
  [[nodiscard]] Iterator end() const { return {*this, Count() + 1}; }

  /// The splits in order.
  [[nodiscard]] const SplitCollection& NewEnum() const { return *this; }

 private:
  std::uint16_t numberOf(std::size_t place, double value);
  void dropUnusedLevels(std::size_t place);

  std::size_t count_ = 0;
  std::vector<std::vector<double>> levels_;
  std::vector<std::uint16_t> numbers_;
};

}  // namespace verdalis
