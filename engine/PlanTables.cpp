#include "engine/PlanTables.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "engine/CandidateBuilder.h"
#include "engine/meetsWishes.h"
#include "model/checked.h"

namespace verdalis {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// While no candidate has returns and costs beyond this together, no sum can leave the range of floats.
constexpr double safeMagnitude = 1e300;

bool isAboutOneField(const Wish& wish) {
  return wish.kind == Wish::Kind::fieldIs || wish.kind == Wish::Kind::fieldIsNot ||
         wish.kind == Wish::Kind::depthAtLeast || wish.kind == Wish::Kind::depthAtMost;
}

}  // namespace

PlanTables::PlanTables(const PlanQuestion& question)
    : question_(question), cropCount_(question.seasons.front().combinations.crops().size()) {
  const SearchInputs& inputs = question.seasons.front();
  for (std::size_t field = 0; field < inputs.depths.width(); ++field)
    levelCount_.push_back(inputs.depths.levels(field).size());
  for (const SearchInputs& season : question.seasons)
    tables_.emplace_back(season);
}

bool PlanTables::price(RunPulse& pulse) {
  for (FieldTables& table : tables_) {
    if (!table.price(pulse)) return false;
  }
  openFields();
  findExtremes();
  findTwins();
  return true;
}

void PlanTables::openFields() {
  const SearchInputs& inputs = question_.seasons.front();
  for (std::size_t field = 0; field < fields(); ++field) {
    std::vector<std::uint8_t>& open = open_.emplace_back(cropCount_ * levelCount_[field], std::uint8_t{1});
    for (const Wish& wish : question_.wishes) {
      if (!isAboutOneField(wish) || wish.field != field + 1) continue;
      for (std::size_t crop = 0; crop < cropCount_; ++crop) {
        const Crop& planted = *inputs.combinations.crops()[crop];
        for (std::size_t level = 0; level < levelCount_[field]; ++level) {
          // The wish sees the field in its place; those before it do not matter.
          std::vector<WishedField> plan(field + 1);
          plan.back() = {
              0, &planted.cropType,
              grossFromNet(netDepthOf(planted, inputs.depths.levels(field)[level]), inputs.efficiency)};
          if (!meetsWish(wish, plan)) open[crop * levelCount_[field] + level] = 0;
        }
      }
    }
  }
}

void PlanTables::closeUnpriced() {
  for (std::size_t field = 0; field < fields(); ++field) {
    for (std::size_t crop = 0; crop < cropCount_; ++crop) {
      for (std::size_t level = 0; level < levelCount_[field]; ++level) {
        for (std::size_t season = 0; season < seasons(); ++season) {
          const PricedRow::Price& found = price(season, field, level, crop);
          if (!std::isfinite(found.income) || !std::isfinite(found.cost))
            open_[field][crop * levelCount_[field] + level] = 0;
        }
      }
    }
  }
  findExtremes();
}

bool PlanTables::isSafe() const {
  return std::all_of(tables_.begin(), tables_.end(),
                     [](const FieldTables& table) { return table.magnitude() < safeMagnitude; });
}

std::vector<std::vector<double>> PlanTables::gains(const std::vector<double>& factors) const {
  std::vector<std::vector<double>> result;
  for (std::size_t field = 0; field < fields(); ++field) {
    std::vector<double>& gains = result.emplace_back(cropCount_ * levelCount_[field], -infinity);
    for (std::size_t level = 0; level < levelCount_[field]; ++level) {
      for (std::size_t crop = 0; crop < cropCount_; ++crop) {
        if (!isOpen(field, crop, level)) continue;
        double sum = 0;
        for (std::size_t season = 0; season < seasons(); ++season) {
          const PricedRow::Price& found = price(season, field, level, crop);
          sum += factors[season] * (found.income - found.cost);
        }
        gains[crop * levelCount_[field] + level] = sum;
      }
    }
  }
  return result;
}

void PlanTables::findExtremes() {
  extremes_.assign(seasons(), std::vector<Extremes>(fields() * cropCount_, Extremes{-infinity, infinity}));
  for (std::size_t season = 0; season < seasons(); ++season) {
    for (std::size_t field = 0; field < fields(); ++field) {
      for (std::size_t level = 0; level < levelCount_[field]; ++level) {
        for (std::size_t crop = 0; crop < cropCount_; ++crop) {
          if (!isOpen(field, crop, level)) continue;
          const PricedRow::Price& found = price(season, field, level, crop);
          Extremes& extremes = extremes_[season][field * cropCount_ + crop];
          extremes.income = std::max(extremes.income, found.income);
          extremes.cost = std::min(extremes.cost, found.cost);
        }
      }
    }
  }
}

void PlanTables::findTwins() {
  const auto areTwins = [&](std::size_t a, std::size_t b) {
    for (std::size_t field = 0; field < fields(); ++field) {
      for (std::size_t level = 0; level < levelCount_[field]; ++level) {
        if (isOpen(field, a, level) != isOpen(field, b, level)) return false;
        for (std::size_t season = 0; season < seasons(); ++season) {
          // A price that is no number is not equal to itself, so such a crop has no twin.
          if (!(price(season, field, level, a) == price(season, field, level, b))) return false;
        }
      }
    }
    return true;
  };
  for (std::uint32_t crop = 0; crop < cropCount_; ++crop) {
    std::uint32_t twin = 0;
    while (twin < crop && (twinClass_[twin] != twin || !areTwins(twin, crop)))
      ++twin;
    twinClass_.push_back(twin);
  }
}

}  // namespace verdalis
