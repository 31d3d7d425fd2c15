#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "engine/Wish.h"
#include "model/savedFields.h"

namespace verdalis {

// The keys of farm files for things that the program keeps in tables.

/// A key and the member whose value it holds.
template <class Owner>
struct DocumentKey {
  std::string_view key;
  SavedField<Owner> field;
};

/// The numbers and switches of the plant. They are those of plantFields().
[[nodiscard]] std::span<const DocumentKey<IrrigationCosts>> plantKeys();

/// The production costs of a crop. They are those of costFields().
[[nodiscard]] std::span<const DocumentKey<inputCosts>> costKeys();

/// The name of a kind of wish. The order is that of Wish::Kind.
inline constexpr std::array<std::string_view, 8> wishKinds{"acresAtLeast", "acresAtMost",  "fieldIs",
                                                           "fieldIsNot",   "depthAtLeast", "depthAtMost",
                                                           "cropsAtLeast", "cropsAtMost"};

/// What a kind of wish is about. Keys that a kind does not use are left out of its object.
[[nodiscard]] bool namesCrop(Wish::Kind kind);
[[nodiscard]] bool namesField(Wish::Kind kind);
[[nodiscard]] bool hasAmount(Wish::Kind kind);

/// The ways to enter the values of a trend process, in the order of TrendValuesKind.
inline constexpr std::array<std::string_view, 3> trendValueKinds{"range", "file", "list"};

/// The variables of a trend process, by index.
inline constexpr std::array<std::string_view, 6> trendVariableNames{
    "price", "productionCosts", "maxYield", "efficiency", "irrigationCosts", "rain"};

}  // namespace verdalis
