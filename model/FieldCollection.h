#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "model/Field.h"

namespace verdalis {

/// What stands before and after a trend value, such as {"$", "/ bu."}.
using UnitsPair = std::array<std::string, 2>;

/// One candidate allocation of the whole farm: its fields in order, with their totals. The ranking keeps
/// copies of it, and one option on the screen shows it.
class FieldCollection {
 public:
  std::vector<std::shared_ptr<Field>> mCol;  ///< The fields in the order added
  bool isNothing = true;                     ///< Cleared by Add()
  bool isNew = false;                        ///< A placeholder of a ranking
  double TotalCost = 0;                      ///< Cached getCosts(), dollars. 0: not computed

  // What a trend did to make this option; empty outside trends, always of the same length.
  std::vector<std::string> theVariable;
  std::vector<double> theValue;
  std::vector<UnitsPair> theUnits;

  void AddBatchDescription(const std::string& name, double value, const UnitsPair& units);

  /// Appends this very field. TotalCost is not touched.
  void Add(std::shared_ptr<Field> field);

  /// The field at an index counted from 1.
  /// \throws RunTimeError (subscript) outside 1..Count().
  [[nodiscard]] const std::shared_ptr<Field>& Item(long index) const;
  [[nodiscard]] long Count() const { return static_cast<long>(mCol.size()); }

  /// \throws RunTimeError (subscript) outside 1..Count().
  void Remove(long index);

  /// The fields in order.
  [[nodiscard]] const std::vector<std::shared_ptr<Field>>& NewEnum() const { return mCol; }
  [[nodiscard]] auto begin() const { return mCol.begin(); }
  [[nodiscard]] auto end() const { return mCol.end(); }

  /// The fields' reports, each followed by that of its production costs.
  [[nodiscard]] std::string toString() const;

  /// Sum over the fields, dollars, not cached.
  /// \throws RunTimeError (overflow)
  [[nodiscard]] double getReturn() const;

  /// Sum over the fields, dollars, cached.
  /// \throws RunTimeError (overflow)
  double getCosts(double efficiency = EfficiencyFraction);

  /// A deep copy, the cached TotalCost included. isNothing starts anew.
  [[nodiscard]] FieldCollection Copy() const;

  /// Makes a kept option ready for pricing again: no trend figures, no cached field totals, no trend
  /// description. The collection's own TotalCost stays as it is: whoever prices again clears it.
  void ResetBatch();

  /// Net acre-inches, not cached.
  [[nodiscard]] double getVolume() const;

  /// Always an empty text: fields have no value to sort by.
  [[nodiscard]] static std::string hashFields() { return {}; }

  /// Return minus costs, dollars for the farm: the key of the ranking.
  /// \throws RunTimeError (overflow)
  double getProfit(double efficiency = EfficiencyFraction);

  /// The distinct crop names in order of first appearance.
  /// \throws RunTimeError (subscript) without fields.
  [[nodiscard]] std::vector<std::string> getCrops() const;
};

}  // namespace verdalis
