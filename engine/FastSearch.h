#pragma once

#include <optional>
#include <vector>

#include "engine/FieldTables.h"
#include "engine/KeptCandidates.h"
#include "engine/RunPulse.h"
#include "engine/SearchInputs.h"

namespace verdalis {

/// The best candidates of a search, found without pricing all of them.
///
/// WHY THE RESULT IS THAT OF PRICING ALL, TO THE LAST BIT
///
/// Notation: a candidate plants field k = 1..n with a crop that returns r_k and costs c_k. fl() is
/// rounding to the nearest float, u = 2^-53. A float sum goes from left to right.
///
/// 1. The profit. FieldCollection adds the costs of the fields in field order, then the returns, and
/// subtracts once: p = fl(R - C), R and C the float sums of the r_k and the c_k. These follow from acres,
/// depth and crop of field k alone, so FieldTables takes each from the Field operations themselves, and
/// the search makes the same additions in the same order. (FieldCollection begins with 0 + x, which is x;
/// only the sign of a zero can differ, and no comparison sees it.) The kept candidates are built again in
/// full at the end, so whatever is shown comes from the model.
///
/// 2. The order. The plain loop leaves the candidates in the order (profit, later submission first) and
/// drops what does not fit. KeptCandidates holds exactly that order, as numbers, so the order in which
/// candidates are met is free. A candidate may be passed over as soon as `places` others are known to
/// rank above it.
///
/// 3. The exact bound. Rounding is monotone: x <= y gives fl(x) <= fl(y). So when every r_k is replaced
/// by the largest and every c_k by the smallest of its row, in the same order of additions, no partial
/// sum of returns falls and none of costs rises, and the result is at least p. With the crops of the
/// first fields fixed, their partial sums stand as they are. This bound needs no slack, but it is loose
/// where the crop with the largest return is not the one with the smallest cost.
///
/// 4. The tight bound. Let g_k = fl(r_k - c_k), the gain, G a float sum of the gains in any order of
/// additions, P the sum of r_k - c_k over the reals, and M >= the sum of |r_k| + |c_k|. n - 1 additions
/// err by at most gamma(n-1) times the sum of the absolute terms, gamma(m) = m u / (1 - m u); one
/// subtraction errs by at most u times its result; additions do not underflow. Hence
///     |p - P| <= gamma(n) M,  |G - P| <= gamma(n) M,  and so  |p - G| <= 2 gamma(n) M.
/// G does not fall when a gain is replaced by a larger one at its place in the additions. So with G* the
/// sum where every open field has its largest gain,
///     p <= G* + 2 gamma(n) M.
/// The test is made in floats, fl(G* + slack) < limit, which loses another u (|G*| + slack). To first
/// order that needs a slack of (2n + 1) u M. Used is 4 (n + 1) u M', with M' the float sum of the largest
/// magnitudes of the fields: nearly twice as much, so that the rounding of M' is covered too. Without the
/// slack candidates are lost wherever profits are almost equal.
/// The same inequality from below: the candidate with the largest gains of a split really earns at least
/// G* - slack. Every split has such a candidate, and they are different ones, so the `places`-th largest
/// fl(G* - slack) is a lower bound of the profit in the last place, known before anything is searched.
///
/// 5. Turning away. Let T be the profit in the last place once all places are taken, before that the
/// lower bound of 4. T only rises. A block (a split, or a split with its first crops fixed) is passed
/// over when a bound lies strictly below T. When the exact bound equals T, it is passed over only if the
/// last submission in the block comes before the candidate in the last place: that one, and all above it,
/// then outrank the whole block. KeptCandidates::needed() says both in one number: the least profit that
/// can enter, which is T or the next float above. (A split's bound may be the tight one, which lies at or
/// above every profit of the split just the same.) PricedRow::gains fall from group to group, so at the
/// first group whose tight bound lies below T a loop ends.
/// Splits and groups whose bounds differ by little more than rounding are met from the latest on. This
/// changes no result; but where many profits are equal, T's candidate is soon a late one, and the rest is
/// passed over.
///
/// 6. Twins. Crops of equal return and cost on a field (a group) give equal profits, so one sum serves
/// all candidates that differ in them alone; those are offered from the latest on until one does not
/// enter, after which no earlier one can. Splits whose rows have equal prices in every field give equal
/// profits for equal crops: a candidate of a split with `places` such splits after it is outranked by the
/// same crops on each of those, so the split is left out.
///
/// 7. Errors. A crop that cannot be priced on a field occurs in some candidate, and the plain loop ends
/// there. So it does at a sum that leaves the range of floats. The extremes of each split tell where that
/// can happen (3. holds for infinities); there the candidates are gone through in the plain order, and the
/// first that fails is priced by the model, which raises the error.
class FastSearch {
 public:
  FastSearch(const SearchInputs& inputs, RunPulse& pulse) : inputs_(inputs), pulse_(pulse), tables_(inputs) {}

  /// The best candidates, best first, at most as many as inputs.size, which must be 1 or more. Each
  /// water split moves the progress on by one.
  /// \returns nothing when the search is to be given up.
  /// \throws RunTimeError when a candidate cannot be priced.
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
  double lowerBound_ = 0;             ///< A profit that the last place reaches in the end
  std::vector<BoundedSplit> splits_;  ///< Those that are not passed over yet
  bool isFirstStepTaken_ = false;     ///< The progress has moved on for a split that is still to come
};

}  // namespace verdalis
