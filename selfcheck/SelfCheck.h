#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "engine/BestMix.h"
#include "engine/Scenario.h"

namespace verdalis {

/// Finds the best options of a scenario.
using Search = std::function<std::optional<BestMix>(const Scenario& scenario)>;

/// The search that evaluations use.
[[nodiscard]] std::optional<BestMix> evaluateFast(const Scenario& scenario);

/// Whether this machine computes as it should. Each farm is evaluated by the fast search and by pricing plan
/// after plan, and the lists must agree to the last bit. A machine that rounds wrongly may do so in both, so
/// the answers must also have the fingerprint that was recorded when the farm was chosen.
class SelfCheck {
 public:
  /// \param fast the search to check; tests give another one.
  explicit SelfCheck(Search fast = evaluateFast) : fast_(std::move(fast)) {}

  /// Checks farms of every kind, the same on every machine.
  void checkMadeUpFarms();

  /// Checks one farm. The scenario must not be one for mixes or for the undivided farm.
  /// \param name of the farm, to begin a sentence about it.
  void check(const std::string& name, const Scenario& scenario, std::uint64_t recorded);

  [[nodiscard]] std::size_t farms() const { return farms_; }

  /// The plans priced one by one.
  [[nodiscard]] std::uint64_t plans() const { return plans_; }

  /// What differs, a sentence each; empty if the machine computes as it should.
  [[nodiscard]] const std::vector<std::string>& faults() const { return faults_; }

 private:
  [[nodiscard]] std::uint64_t compare(const std::string& name, const Scenario& scenario);
  void expectRecorded(const std::string& name, std::uint64_t found, std::uint64_t recorded);

  Search fast_;
  std::size_t farms_ = 0;
  std::uint64_t plans_ = 0;
  std::vector<std::string> faults_;
};

}  // namespace verdalis
