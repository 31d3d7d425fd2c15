#pragma once

#include <QIcon>
#include <QSize>
#include <vector>

#include "desktop/Theme.h"

namespace verdalis::desktop {

inline constexpr QSize landSplitPictureSize{64, 40};

/// A land split drawn to scale: one strip per field, as wide as its percentage.
[[nodiscard]] QIcon landSplitPicture(const std::vector<double>& percentages, Scheme scheme);

}  // namespace verdalis::desktop
