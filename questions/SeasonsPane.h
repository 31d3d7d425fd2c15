#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "explore/seasons.h"
#include "questions/QuestionPane.h"

namespace verdalis {

/// Plans that are chosen before the season is known: the best average, and the safest.
class SeasonsPane : public QuestionPane {
 public:
  /// `farmSeasons` returns the seasons of the farm file, if it has any.
  SeasonsPane(Frame& window, Services& services, FarmToExplore farm,
              std::function<std::vector<Season>()> farmSeasons);

  /// A line for a season.
  struct Line {
    Line(Frame& pane, std::size_t index)
        : txtSeason(pane, "txtSeason(" + std::to_string(index) + ")"),
          txtRain(pane, "txtRain(" + std::to_string(index) + ")"),
          txtWeight(pane, "txtWeight(" + std::to_string(index) + ")") {}
    TextBox txtSeason;
    TextBox txtRain;    ///< Inches
    TextBox txtWeight;  ///< How often, compared with the others
  };
  std::vector<std::unique_ptr<Line>> lines;  ///< Those in use are visible

  Button cmdAddSeason{*this, "cmdAddSeason", "Add season"};
  Button cmdRemoveSeason{*this, "cmdRemoveSeason", "Remove last"};

 protected:
  void prepare(const Farm& farm) override;
  [[nodiscard]] Work question(const Farm& farm) override;

 private:
  void setCount(std::size_t count);
  void addSeason();
  [[nodiscard]] std::vector<Season> seasons() const;
  void show(const std::shared_ptr<const Farm>& farm, const std::shared_ptr<const SeasonsResult>& found);

  std::function<std::vector<Season>()> farmSeasons_;
  std::size_t count_ = 0;
  std::size_t offered_ = 0;  ///< The number of seasons that was offered
};

}  // namespace verdalis
