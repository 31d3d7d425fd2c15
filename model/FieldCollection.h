#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "model/Field.h"

namespace verdalis {

/// Text before and after a trend value, such as {"$", "/ bu."}.
using UnitsPair = std::array<std::string, 2>;

/// One allocation of the whole farm: its fields in order, with their totals. The ranking keeps copies of it,
/// and the window shows it as an option.
class FieldCollection {
 public:
  std::vector<std::shared_ptr<Field>> mCol;
  bool isNothing = true;  ///< Cleared by Add()
  bool isNew = false;     ///< A placeholder in a ranking
  double TotalCost = 0;   ///< Cached getCosts(), dollars. 0 means not computed

  // How a trend produced this option. Empty outside trends; all three have the same length.
  std::vector<std::string> theVariable;
  std::vector<double> theValue;
  std::vector<UnitsPair> theUnits;

  void AddBatchDescription(const std::string& name, double value, const UnitsPair& units);

  /// Adds the field itself, not a copy. TotalCost is unchanged.
  void Add(std::shared_ptr<Field> field);

  /// \param index counted from 1.
  /// \throws RunTimeError (subscript) outside 1..Count().
  [[nodiscard]] const std::shared_ptr<Field>& Item(long index) const;
  [[nodiscard]] long Count() const { return static_cast<long>(mCol.size()); }

  /// \throws RunTimeError (subscript) outside 1..Count().
  void Remove(long index);

  [[nodiscard]] const std::vector<std::shared_ptr<Field>>& NewEnum() const { return mCol; }
  [[nodiscard]] auto begin() const { return mCol.begin(); }
  [[nodiscard]] auto end() const { return mCol.end(); }

  /// The reports of the fields, each followed by the report of its production costs.
  [[nodiscard]] std::string toString() const;

  /// Sum over the fields, dollars, not cached.
  /// \throws RunTimeError (overflow)
  [[nodiscard]] double getReturn() const;

  /// Sum over the fields, dollars, cached.
  /// \throws RunTimeError (overflow)
  double getCosts(double efficiency = EfficiencyFraction);

  /// A deep copy, including the cached TotalCost. isNothing is not copied.
  [[nodiscard]] FieldCollection Copy() const;

  /// Prepares a kept option for new pricing: clears trend values, cached totals of the fields and the trend
  /// description. The collection's own TotalCost is unchanged; the caller clears it before pricing again.
  void ResetBatch();

  /// Net irrigation volume of the farm, acre-inches; not cached.
  [[nodiscard]] double getVolume() const;

  /// Always empty: fields have no value to sort by.
  [[nodiscard]] static std::string hashFields() { return {}; }

  /// Return minus costs, dollars for the farm. The ranking sorts by it.
  /// \throws RunTimeError (overflow)
  double getProfit(double efficiency = EfficiencyFraction);

  /// The distinct crop names in order of first appearance.
  /// \throws RunTimeError (subscript) if there are no fields.
  [[nodiscard]] std::vector<std::string> getCrops() const;
};

}  // namespace verdalis
