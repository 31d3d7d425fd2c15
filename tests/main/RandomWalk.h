#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "controls/Grid.h"
#include "tests/main/RunningProgram.h"

namespace verdalis::testing {

/// A person who does anything that can be done, with any text. Each action follows from one number. What was
/// done is noted, so that a failure can be told.
class RandomWalk {
 public:
  RandomWalk();

  /// One action on a control that can be reached, or on a window, or the typing of a whole farm.
  void act(std::uint32_t number);

  /// What is wrong with what is on show; empty if nothing is: that just one pane can be seen, and that each
  /// message had a title and a text.
  [[nodiscard]] std::string fault();

  /// Leaves the pane on show by its own buttons for going back, else by the menus.
  /// \returns whether that led to the main pane.
  [[nodiscard]] bool findsHome();

  /// The last actions.
  [[nodiscard]] std::string story() const;

 private:
  using Engine = std::mt19937;

  void restart(Engine& random);
  void actOn(Control& control, Engine& random);
  void actOnGrid(Grid& grid, Engine& random);
  void actOnWindow(Engine& random);
  void typeFarm(Engine& random);
  void prepareAnswers(Engine& random);
  void duringARun();
  void note(const std::string& action);
  [[nodiscard]] std::vector<Control*> reachable() const;
  [[nodiscard]] static Control* choose(Engine& random, const std::vector<Control*>& controls);
  [[nodiscard]] std::string text(Engine& random) const;
  [[nodiscard]] bool pressBack();

  RunningProgram running_;
  Engine meanwhile_;  ///< Decides on what is done while a run is under way
  int pumps_ = 0;     ///< Since the last action
  int depth_ = 0;     ///< Actions inside runs inside actions
  std::string fault_;
  std::vector<std::string> story_;
};

}  // namespace verdalis::testing
