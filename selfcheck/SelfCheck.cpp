#include "selfcheck/SelfCheck.h"

#include <algorithm>
#include <array>
#include <exception>
#include <iterator>
#include <utility>

#include "engine/EfficiencyInForce.h"
#include "engine/evaluateScenario.h"
#include "selfcheck/OptionBytes.h"
#include "selfcheck/PlainEvaluator.h"
#include "selfcheck/RandomFarm.h"
#include "selfcheck/fingerprint.h"

namespace verdalis {
namespace {

using reference::FarmKind;
using reference::RandomFarm;

/// The fingerprints of the made-up farms of each kind. They change with the farms, or if answers do.
struct RecordedKind {
  FarmKind kind;
  std::uint64_t fingerprint;
};
constexpr std::array<RecordedKind, 14> recordedKinds{{
    {FarmKind::ordinary, 0xb663fbc0745c12f9},
    {FarmKind::manyCrops, 0xbbafd3ae9cf7cf34},
    {FarmKind::highFactor, 0x96700621e064b99c},
    {FarmKind::twinCrops, 0x9c96f008b4149494},
    {FarmKind::neighbourPrices, 0x66cd93671d3541dd},
    {FarmKind::neighbourCosts, 0xb452d9856b7f9643},
    {FarmKind::zeroPrices, 0x42b96a29a93935d2},
    {FarmKind::fallowOnly, 0xd041c4c5dfa19801},
    {FarmKind::losses, 0x43090e3614a78bd3},
    {FarmKind::wholeDollars, 0x989dbe9075ba11f9},
    {FarmKind::equalGains, 0xfbfd0c0c8815e2be},
    {FarmKind::equalGainsNoPlant, 0xccc2a2aa8fc7e0fa},
    {FarmKind::linearYields, 0x1992a619de7591f8},
    {FarmKind::fewCandidates, 0xbd2ef4f80168d154},
}};
constexpr std::uint64_t farmsOfAKind = 21;
constexpr double mostPlans = 9000;

/// Every other farm has a wish, because another search answers then.
Scenario scenarioOf(const RandomFarm& farm, bool wished) {
  const SearchInputs inputs = farm.inputs();
  std::vector<Wish> wishes;
  if (wished) wishes.push_back({Wish::Kind::cropsAtMost, "", 0, 2});
  return {farm.acres(),        inputs.landSplit,
          farm.netVolume(),    farm.efficiency(),
          inputs.rain,         inputs.depths,
          inputs.combinations, inputs.irrigationCosts.Copy(),
          inputs.size,         false,
          std::move(wishes),   false};
}

std::vector<std::string> bytesOf(const std::vector<BestMix::Option>& options) {
  std::vector<std::string> bytes;
  bytes.reserve(options.size());
  std::transform(options.begin(), options.end(), std::back_inserter(bytes),
                 [](const BestMix::Option& option) { return reference::optionBytes(*option); });
  return bytes;
}

std::string hexText(std::uint64_t number) {
  std::string text;
  for (int shift = 60; shift >= 0; shift -= 4)
    text.push_back("0123456789abcdef"[(number >> static_cast<unsigned>(shift)) & 0xFU]);
  return text;
}

}  // namespace

std::optional<BestMix> evaluateFast(const Scenario& scenario) {
  ProgramState state;
  RunHooks hooks;
  return evaluateScenario(scenario, state, hooks);
}

void SelfCheck::checkMadeUpFarms() {
  for (const auto& [kind, recorded] : recordedKinds) {
    const std::string name = "Made-up farms \"" + std::string(reference::name(kind)) + "\"";
    std::uint64_t fingerprint = noFingerprint;
    for (std::uint64_t seed = 0; seed < farmsOfAKind; ++seed) {
      const RandomFarm farm(kind, seed, mostPlans);
      const std::uint64_t own =
          compare(name + ", number " + std::to_string(seed + 1), scenarioOf(farm, seed % 2 == 1));
      fingerprint = (fingerprint ^ own) * 0x100000001b3;
    }
    expectRecorded(name, fingerprint, recorded);
  }
}

void SelfCheck::check(const std::string& name, const Scenario& scenario, std::uint64_t recorded) {
  expectRecorded(name, compare(name, scenario), recorded);
}

/// \returns the fingerprint of the answers of the fast search.
std::uint64_t SelfCheck::compare(const std::string& name, const Scenario& scenario) {
  ++farms_;
  RunHooks hooks;
  const EfficiencyInForce inForce(scenario.efficiency, hooks);
  try {
    BestMix plain;
    plain.setSize(scenario.size);
    reference::forEachCandidate(scenario, [&](FieldCollection& candidate) {
      plain.submit(candidate, scenario.efficiency);
      ++plans_;
    });
    std::optional<BestMix> fast = fast_(scenario);
    if (!fast) {
      faults_.push_back(name + ": the fast search gives no answer.");
      return noFingerprint;
    }
    const auto fastOptions = fast->returnCollection(true, scenario.efficiency);
    if (bytesOf(fastOptions) != bytesOf(plain.returnCollection(true, scenario.efficiency)))
      faults_.push_back(name + ": the fast search and the plain one list different plans.");
    return addToFingerprint(noFingerprint, fastOptions, scenario.efficiency);
  } catch (const std::exception& error) {
    faults_.push_back(name + ": the evaluation fails. " + error.what());
    return noFingerprint;
  }
}

void SelfCheck::expectRecorded(const std::string& name, std::uint64_t found, std::uint64_t recorded) {
  if (found == recorded) return;
  faults_.push_back(name + ": the answers have the fingerprint " + hexText(found) + " instead of " +
                    hexText(recorded) + ".");
}

}  // namespace verdalis
