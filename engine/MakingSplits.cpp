#include "engine/MakingSplits.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "model/LandDivision.h"
#include "model/checked.h"
#include "model/listIndex.h"

namespace verdalis {
namespace {

constexpr int complete = 100;

/// Possible shares of a field, percent, ascending. They are computed by repeated addition. With some factors,
/// such as 6, the last sum is slightly above 100 and is not a share: intended.
std::vector<double> shareLevels(std::int16_t factor) {
  if (factor == 0) {
    throw RunTimeError(
        ErrorNumber::divisionByZero,
        "The irrigation iteration factor is 0. Set it to a number from 1 to 99 under Edit, Options.");
  }
  if (factor < 0) {
    throw RunTimeError(ErrorNumber::invalidCall,
                       "The irrigation iteration factor " + std::to_string(factor) +
                           " is negative. Set it to a number from 1 to 99 under Edit, Options.");
  }
  const double step = static_cast<double>(complete) / factor;
  std::vector<double> levels;
  for (double level = 0; level <= complete; level += step)
    levels.push_back(level);
  return levels;
}

/// Enumerates the shares depth first. Splits are complete by their rounded shares (Split::total), so the
/// enumeration tracks the rounded sum. It stores indices of shares, so that no lists are copied.
class SplitEnumerator {
 public:
  SplitEnumerator(std::int16_t n, std::int16_t factor)
      : levels_(shareLevels(factor)), current_(static_cast<std::size_t>(std::max<std::int16_t>(n, 1))) {
    int level = 0;
    for (std::size_t least = 0; least < atLeast_.size(); ++least) {
      while (level < count() && rounded(level) < static_cast<int>(least))
        ++level;
      atLeast_.at(least) = level;
    }
  }

  SplitCollection run() {
    // The first share, highest first.
    for (int level = count(); level-- > 0;) {
      current_[0] = static_cast<std::uint16_t>(level);
      if (rounded(level) == complete) {
        emit();
      } else if (current_.size() > 1) {
        expand(1, complete - rounded(level));
      }
    }
    return {levels_, std::move(numbers_), current_.size()};
  }

  [[nodiscard]] double closed() const { return closed_; }

 private:
  [[nodiscard]] int count() const { return static_cast<int>(levels_.size()); }
  [[nodiscard]] int rounded(int level) const {
    return static_cast<int>(std::nearbyint(levels_[static_cast<std::size_t>(level)]));
  }

  /// Adds all completions of the shares before `place`, with `rest` percent (above 0) left.
  void expand(std::size_t place, int rest) {
    // Shares that complete the split come before smaller ones.
    const int firstComplete = atLeast_.at(static_cast<std::size_t>(rest));
    const int firstAbove = atLeast_.at(static_cast<std::size_t>(rest) + 1);
    closed_ += firstAbove - firstComplete + (firstAbove < count() ? 1 : 0);
    for (int level = firstComplete; level < firstAbove; ++level) {
      current_[place] = static_cast<std::uint16_t>(level);
      emit();
    }
    if (place + 1 < current_.size()) {
      for (int level = firstComplete; level-- > 0;) {
        current_[place] = static_cast<std::uint16_t>(level);
        expand(place + 1, rest - rounded(level));
      }
    }
    current_[place] = 0;  // index of the share 0, which fills up complete splits
  }

  void emit() { numbers_.insert(numbers_.end(), current_.begin(), current_.end()); }

  std::vector<double> levels_;               ///< The first is 0
  std::array<int, complete + 2> atLeast_{};  ///< First level that rounds to this percentage or more
  std::vector<std::uint16_t> current_;
  std::vector<std::uint16_t> numbers_;
  double closed_ = 0;
};

}  // namespace

Split landDivision(std::size_t index) {
  Split split;
  split.splits = landDivisions()[listIndex(static_cast<long>(index) + 1, landDivisions().size())].percentages;
  return split;
}

Split percentToAcres(const Split& landSplit, double acres) {
  Split result;
  for (const double percent : landSplit.getSplits()) {
    result.addSplit(checked((percent / 100) * acres, "The size of a field"));
  }
  return result;
}

Split percentToVolume(double netVolume, const Split& split) {
  Split result;
  for (const double percent : split.getSplits()) {
    result.addSplit(checked((percent / 100) * netVolume, "The water of a field"));
  }
  return result;
}

SplitCollection makeWaterSplits(std::int16_t n, double netVolume, double /*acres*/, ProgramState& state) {
  SplitEnumerator enumerator(n, state.FineFactor);
  SplitCollection percentages = enumerator.run();
  state.splitCounter += enumerator.closed();
  return std::move(percentages).transformed([&](std::size_t /*place*/, double percent) {
    return checked((percent / 100) * netVolume, "The water of a field");
  });
}

SplitCollection volumesToDepths(SplitCollection water, const Split& landSplit) {
  return std::move(water).transformed([&](std::size_t place, double volume) {
    const double acres = landSplit.getSplits().at(place);
    if (acres == 0) {
      throw RunTimeError(
          ErrorNumber::divisionByZero,
          "A field has 0 acres, so no depth of water can be calculated. Enter the acres of the farm "
          "in \"Total Acres:\".");
    }
    return checked(volume / acres, "The irrigation depth of a field");
  });
}

}  // namespace verdalis
