#pragma once

#include <cstddef>
#include <string>

namespace verdalis {

/// A condition that a grower sets for plans. Bounds are met within 1e-9 of their size.
struct Wish {
  enum class Kind {
    acresAtLeast,  ///< The fields of `crop` have `amount` acres or more
    acresAtMost,   ///< The fields of `crop` have `amount` acres or less
    fieldIs,       ///< `field` grows `crop`
    fieldIsNot,    ///< `field` does not grow `crop`
    depthAtLeast,  ///< `field` gets `amount` gross inches or more
    depthAtMost,   ///< `field` gets `amount` gross inches or less
    cropsAtLeast,  ///< The plan has `amount` different crops or more; Fallow counts as one
    cropsAtMost,   ///< The plan has `amount` different crops or fewer
  };

  Kind kind = Kind::acresAtLeast;
  std::string crop;       ///< Name, exactly as in the crop library
  std::size_t field = 0;  ///< From 1, in the order of the land split
  double amount = 0;      ///< Acres, gross inches or crops

  friend bool operator==(const Wish&, const Wish&) = default;
};

/// Maximum number of wishes of a run.
inline constexpr std::size_t mostWishes = 12;

}  // namespace verdalis
