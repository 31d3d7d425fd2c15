#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "controls/Grid.h"
#include "controls/Table.h"
#include "tests/main/RunningProgram.h"

namespace verdalis::testing {

/// A simulated user who takes any possible action with any text. Each action is determined by one number. The
/// actions are recorded to describe a failure.
class RandomWalk {
 public:
  RandomWalk();

  /// Takes one action: on a reachable control, on a window, or typing a whole farm.
  void act(std::uint32_t number);

  /// Checks that exactly one pane is visible and that each message had a title and a text.
  /// \returns a description of the problem; empty if there is none.
  [[nodiscard]] std::string fault();

  /// Leaves the visible pane with its back buttons, otherwise with the menus.
  /// \returns whether that led to the main pane.
  [[nodiscard]] bool findsHome();

  [[nodiscard]] bool hasEnded() const { return running_.program->ended(); }
  [[nodiscard]] frmMain& main() { return running_.program->main(); }

  /// The last actions.
  [[nodiscard]] std::string story() const;

 private:
  using Engine = std::mt19937;

  void restart(Engine& random);
  void actOn(Control& control, Engine& random);
  void actOnGrid(Grid& grid, Engine& random);
  void actOnTable(Table& table, Engine& random);
  void actOnWindow(Engine& random);
  void typeFarm(Engine& random);
  void prepareAnswers(Engine& random);
  void answerQuestion(Engine& random);
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
