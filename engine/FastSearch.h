#pragma once

#include <optional>
#include <vector>

#include "engine/FieldTables.h"
#include "engine/KeptCandidates.h"
#include "engine/RunPulse.h"
#include "engine/SearchInputs.h"

namespace verdalis {

/// Finds the best candidates without pricing all of them.
///
/// WHY THE RESULT EQUALS PRICING ALL CANDIDATES, TO THE LAST BIT
///
/// Notation: a candidate plants field k = 1..n with a crop that returns r_k and costs c_k. fl() rounds to the
/// nearest float, u = 2^-53. A float sum goes from left to right.
///
/// 1. The profit. FieldCollection adds the costs of the fields in field order, then the returns, and
/// subtracts once: p = fl(R - C), where R and C are the float sums of the r_k and c_k. These depend only on
/// acres, depth and crop of field k, so FieldTables takes each from the pricing of a field, and the search
/// makes the same additions in the same order. (FieldCollection starts with 0 + x, which is x; only the sign
/// of a zero can differ, and no comparison depends on it.) The kept candidates are built again in full at the
/// end, so everything shown comes from the model.
///
/// 2. The order. The plain loop ranks candidates by (profit, later submission first) and drops those that do
/// not fit. KeptCandidates keeps exactly this order, as numbers, so candidates may be visited in any order. A
/// candidate may be skipped as soon as `places` others are known to rank above it.
///
/// 3. The exact bound. Rounding is monotone: x <= y implies fl(x) <= fl(y). If every r_k is replaced by the
/// largest and every c_k by the smallest of its row, in the same order of additions, no partial sum of
/// returns decreases and no partial sum of costs increases, so the result is at least p. If the crops of the
/// first fields are fixed, their partial sums are used as they are. This bound needs no slack, but it is
/// loose if the crop with the largest return is not the one with the smallest cost.
///
/// 4. The tight bound. Let g_k = fl(r_k - c_k) be the gain, G a float sum of the gains in any order, P the
/// sum of r_k - c_k over the reals, and M >= the sum of |r_k| + |c_k|. n - 1 additions have an error of at
/// most gamma(n-1) times the sum of the absolute terms, gamma(m) = m u / (1 - m u); one subtraction has an
/// error of at most u times its result; additions do not underflow. Hence
///     |p - P| <= gamma(n) M,  |G - P| <= gamma(n) M,  and so  |p - G| <= 2 gamma(n) M.
/// G does not decrease if a gain is replaced by a larger one at its place in the additions. So with G* the
/// sum where every open field has its largest gain,
///     p <= G* + 2 gamma(n) M.
/// The test is computed in floats, fl(G* + slack) < limit, which loses another u (|G*| + slack). To first
/// order this needs a slack of (2n + 1) u M. The search uses 4 (n + 1) u M', where M' is the float sum of the
/// largest magnitudes of the fields: nearly twice as much, which also covers the rounding of M'. Without the
/// slack, candidates are lost where profits are almost equal. The same inequality as a lower bound: the
/// candidate with the largest gains of a split has a profit of at least G* - slack. Every split has such a
/// candidate, and all of them are different, so the `places`-th largest fl(G* - slack) is a lower bound for
/// the profit in the last place, known before the search starts.
///
/// 5. Skipping. Let T be the profit in the last place once all places are taken, and the lower bound of 4.
/// before that. T never decreases. A block (a split, or a split with its first crops fixed) is skipped if a
/// bound is strictly below T. If the exact bound equals T, it is skipped only if the last submission in the
/// block comes before the candidate in the last place: that candidate, and all above it, then outrank the
/// whole block. KeptCandidates::needed() expresses both in one number: the minimum profit to enter, which is
/// T or the next float above. (The bound of a split may be the tight one, which is also at or above every
/// profit of the split.) PricedRow::gains are sorted in descending order, so a loop ends at the first group
/// whose tight bound is below T. Splits and groups whose bounds differ by little more than rounding are
/// visited latest first. This does not change the result, but if many profits are equal, T soon belongs to a
/// late candidate and the rest is skipped.
///
/// 6. Twins. Crops of equal return and cost on a field (a group) give equal profits, so one sum serves all
/// candidates that differ only in them; they are offered latest first until one does not enter, after which
/// no earlier one can. Splits whose rows have equal prices in every field give equal profits for equal crops:
/// if `places` such splits follow a split, each of its candidates is outranked by the same crops on each of
/// those, so the split is left out.
///
/// 7. Errors. A crop that cannot be priced on a field occurs in some candidate, and the plain loop ends
/// there. It also ends at a sum that leaves the range of floats. The extremes of each split tell where this
/// can happen (3. also holds for infinities). Candidates of such splits are visited in the order of
/// submission, and the model prices the first that fails, which throws.
class FastSearch {
 public:
  FastSearch(const SearchInputs& inputs, RunPulse& pulse) : inputs_(inputs), pulse_(pulse), tables_(inputs) {}

  /// The best candidates, best first, at most inputs.size, which must be 1 or more. Each water split advances
  /// the progress by one. \returns nothing if the search is cancelled. \throws RunTimeError if a candidate
  /// cannot be priced
  [[nodiscard]] std::optional<std::vector<KeptCandidate>> run();

 private:
  struct BoundedSplit {
    double bound;  ///< No candidate of the split earns more
    std::size_t split;
  };

  [[nodiscard]] bool raiseErrors();
  [[nodiscard]] bool raiseErrorsOf(std::size_t split);
  [[nodiscard]] bool boundSplits();
  void leaveOutRepeatedSplits(std::vector<BoundedSplit>& splits) const;
  [[nodiscard]] double exactBound(std::size_t split) const;
  [[nodiscard]] double roughBound(double bound) const;
  [[nodiscard]] bool searchSplits(KeptCandidates& kept);
  [[nodiscard]] bool step();
  [[nodiscard]] bool stepOver(std::size_t count);

  const SearchInputs& inputs_;
  RunPulse& pulse_;
  FieldTables tables_;
  double slack_ = 0;
  double lowerBound_ = 0;             ///< Profit that the last place reaches in the end
  std::vector<BoundedSplit> splits_;  ///< Those not skipped yet
  bool isFirstStepTaken_ = false;     ///< The progress already includes a split that is still to come
};

}  // namespace verdalis
