#pragma once

#include <array>
#include <cstdint>

#include "charts/Drawing.h"

namespace verdalis {

/// A colour, 0xRRGGBB, on a light ground and on a dark one.
struct InkColors {
  std::uint32_t light = 0;
  std::uint32_t dark = 0;
};

inline constexpr std::array<InkColors, 6> seriesColors{{{0x2E6B3A, 0x7CC48A},
                                                        {0x2F7FB0, 0x6FB3D9},
                                                        {0xB9772A, 0xE0A458},
                                                        {0x7B5EA7, 0xB49ADB},
                                                        {0xB8433A, 0xF08A7E},
                                                        {0x2A8F86, 0x62C9BE}}};

inline constexpr std::array<InkColors, 9> categoryColors{{{0x2E6B3A, 0x5FA56D},
                                                          {0xC07F2F, 0xD9983F},
                                                          {0x3B86B5, 0x5E9FC9},
                                                          {0x8468AE, 0xA288CF},
                                                          {0xD0B33A, 0xD9C14F},
                                                          {0xB0503F, 0xD27460},
                                                          {0x37978D, 0x4FB3A8},
                                                          {0x8A928C, 0x8E9890},
                                                          {0xC77BA5, 0xD790B8}}};

/// The ends of the scale of values.
inline constexpr InkColors lowestColor{0xE6F0E2, 0x2A3A2E};
inline constexpr InkColors highestColor{0x2E6B3A, 0x7CC48A};
inline constexpr InkColors gainColor{0x4F9A5B, 0x6DBB7B};
inline constexpr InkColors lossColor{0xC8714F, 0xDD8A68};
inline constexpr InkColors totalColor{0x2F6F98, 0x6FB3D9};

/// Parts of a colour, 0 to 1.
struct InkParts {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;
};

/// The colour of a part of a drawing on white paper.
[[nodiscard]] InkParts paperInk(const Paint& paint);

}  // namespace verdalis
