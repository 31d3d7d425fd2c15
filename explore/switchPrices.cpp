#include "explore/switchPrices.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <memory>
#include <set>
#include <utility>

#include "explore/PlanLine.h"

namespace verdalis {
namespace {

/// A plan that is the best for at least one value, with its profit at both ends of the range.
struct Line {
  PlanLine plan;
  double atFrom;
  double atTo;
};

using SharedLine = std::shared_ptr<const Line>;

/// The best plan at a value.
struct Best {
  double value = 0;
  double profit = 0;
  SharedLine line;
};

/// A line that is the best from a value on.
struct Piece {
  SharedLine line;
  double from;
};

class UpperEdge {
 public:
  UpperEdge(const Farm& farm, const FarmInput& input, double from, double to, ProgramState& state,
            RunHooks& hooks)
      : farm_(farm), input_(input), from_(from), to_(to), state_(state), hooks_(hooks) {}

  std::optional<std::vector<SwitchSegment>> find() {
    const std::optional<Best> first = bestAt(from_);
    if (!first) return std::nullopt;
    const std::optional<Best> last = bestAt(to_);
    if (!last) return std::nullopt;
    take(*first->line);
    take(*last->line);
    apart_ = std::max({1.0, std::fabs(first->profit), std::fabs(last->profit)}) * oneLine;
    if (!trace(*first, *last)) return std::nullopt;
    return segments(first->profit, last->profit);
  }

 private:
  static constexpr double oneLine = 1e-12;
  static constexpr double roundings = 32 * std::numeric_limits<double>::epsilon();

  std::optional<Best> bestAt(double value) {
    const BestMix::Option option = bestOption(withInput(farm_, input_, value), state_, hooks_);
    if (!option) return std::nullopt;
    PlanLine plan(farm_, input_, *option);
    const PlanLine::Point start = plan.at(from_);
    const PlanLine::Point end = plan.at(to_);
    magnitude_ = std::max({magnitude_, start.magnitude, end.magnitude});
    const double profit = plan.at(value).plan.profit;
    return Best{value, profit,
                std::make_shared<const Line>(Line{std::move(plan), start.plan.profit, end.plan.profit})};
  }

  /// Records a line.
  /// \returns whether it is new.
  bool take(const Line& line) { return known_.emplace(line.atFrom, line.atTo).second; }

  [[nodiscard]] double noise() const { return magnitude_ * roundings; }

  /// Whether two lines count as one. Lines are straight, so their distance is largest at an end.
  [[nodiscard]] bool isOne(const Line& a, const Line& b) const {
    const double limit = std::max(apart_, noise());
    return std::fabs(a.atFrom - b.atFrom) <= limit && std::fabs(a.atTo - b.atTo) <= limit;
  }

  /// The value where two lines cross, limited to the two given values. Lines that meet at an end except for
  /// rounding cross there.
  [[nodiscard]] double crossing(const Best& left, const Best& right) const {
    const double leadFrom = left.line->atFrom - right.line->atFrom;
    const double leadTo = right.line->atTo - left.line->atTo;
    double value = from_ + (to_ - from_) * (leadFrom / (leadFrom + leadTo));
    if (leadFrom <= noise()) value = from_;
    if (leadTo <= noise()) value = to_;
    return value > left.value ? std::min(value, right.value) : left.value;  // also if `value` is not a number
  }

  /// Fills pieces_.
  /// \returns false after a cancel.
  bool trace(Best left, const Best& last) {
    pieces_.push_back({left.line, from_});
    std::vector<Best> ahead{last};  // the nearest is last
    while (!ahead.empty()) {
      const Best& right = ahead.back();
      if (!isOne(*left.line, *right.line)) {
        const double value = crossing(left, right);
        if (left.value < value && value < right.value) {
          std::optional<Best> middle = bestAt(value);
          if (!middle) return false;
          if (isBetween(left, *middle, right)) {
            ahead.push_back(std::move(*middle));
            continue;
          }
        }
        pieces_.push_back({right.line, value});
        left.line = right.line;
      }
      left.value = right.value;
      ahead.pop_back();
    }
    return true;
  }

  /// Whether a plan lies between two others. Each such plan is new, so the search ends whatever the rounding
  /// errors are.
  bool isBetween(const Best& left, const Best& middle, const Best& right) {
    const double below =
        std::max(left.line->plan.at(middle.value).plan.profit, right.line->plan.at(middle.value).plan.profit);
    return middle.profit > below + noise() && !isOne(*left.line, *middle.line) &&
           !isOne(*middle.line, *right.line) && take(*middle.line);
  }

  [[nodiscard]] std::vector<SwitchSegment> segments(double profitFrom, double profitTo) {
    dropEmpty();
    std::vector<SwitchSegment> result;
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
      const double end = i + 1 < pieces_.size() ? pieces_[i + 1].from : to_;
      PlanLine::Point start = pieces_[i].line->plan.at(pieces_[i].from);
      result.push_back({pieces_[i].from, end, start.plan.profit, pieces_[i].line->plan.at(end).plan.profit,
                        std::move(start.plan.fields)});
    }
    // Of two lines that count as one, the other may be better at an end in its last bits.
    result.front().profitFrom = profitFrom;
    result.back().profitTo = profitTo;
    return result;
  }

  /// Removes segments that hold at a single value, and joins neighbours that are then the same line.
  void dropEmpty() {
    std::vector<Piece> kept;
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
      const double end = i + 1 < pieces_.size() ? pieces_[i + 1].from : to_;
      const bool empty = !(pieces_[i].from < end);
      if (empty) continue;
      if (!kept.empty() && isOne(*kept.back().line, *pieces_[i].line)) continue;
      kept.push_back(pieces_[i]);
    }
    pieces_ = std::move(kept);
  }

  const Farm& farm_;
  const FarmInput& input_;
  double from_;
  double to_;
  ProgramState& state_;
  RunHooks& hooks_;
  std::set<std::pair<double, double>> known_;  ///< Known lines, by their profits at the ends
  std::vector<Piece> pieces_;
  double magnitude_ = 0;  ///< Largest sum of amounts so far
  double apart_ = 0;      ///< Maximum difference of lines that count as one, dollars
};

}  // namespace

bool isLinear(const FarmInput& input) {
  return input.kind == FarmInput::Kind::price || input.kind == FarmInput::Kind::maxYield ||
         input.kind == FarmInput::Kind::fuel;
}

std::optional<std::vector<SwitchSegment>> switchPrices(const Farm& farm, const FarmInput& input, double from,
                                                       double to, ProgramState& state, RunHooks& hooks) {
  return UpperEdge(farm, input, from, to, state, hooks).find();
}

}  // namespace verdalis
