#pragma once

#include "charts/Chart.h"

namespace verdalis {

// How the numbers of reports and workbooks are written.

inline const NumberStyle wholeStyle{"", "", 0, true};     ///< Counts
inline const NumberStyle depthStyle{"", "", 2, true};     ///< Inches
inline const NumberStyle acresStyle{"", "", 2, true};     ///< Acres
inline const NumberStyle dollarsStyle{"$", "", 0, true};  ///< Amounts of a field or a farm
inline const NumberStyle perAcreStyle{"$", "", 2, true};  ///< Amounts of an acre, and prices
inline const NumberStyle yieldStyle{"", "", 1, true};     ///< Units per acre

}  // namespace verdalis
