#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/cli/FarmFiles.h"

// Farm files of random options are evaluated like these options.

namespace verdalis::testing {
namespace {

using json = nlohmann::ordered_json;

std::string pick(const std::vector<std::string>& values) {
  return *rc::gen::elementOf(values);
}

bool chance(int percent) {
  return *rc::gen::inRange(0, 100) < percent;
}

/// Options of a random farm, mostly accepted ones.
Args randomOptions() {
  Args options;
  const auto add = [&](int percent, const std::string& option, const std::string& value) {
    if (chance(percent)) options.insert(options.end(), {option, value});
  };
  if (chance(30)) options.emplace_back("--defaults");
  add(70, "--set", "txtArea=" + pick({"100", "80.5", "1", "123.456", "77", "64", "", "1,000"}));
  add(70, "--set", "txtMax=" + pick({"10", "0", "7.77", "25", "1e2", "5.", "12.5", "9"}));
  add(50, "--set", "txtAnnRain=" + pick({"11", "17.5", "21", "13", "12", "18.25", "14", "wet"}));
  add(40, "--set", "txtEff=" + pick({"100", "72.5", "85.25", "90", "33", "101"}));
  add(40, "--set", "txtSoil=" + pick({"Silt Loam", "Fine Sand", "Loamy Sand"}));
  add(10, "--set", "txtBatchList=" + pick({"1,2", ""}));
  const std::vector<std::string> crops{"Alfalfa",   "Corn",  "Grain Sorghum", "Soybeans",
                                       "Sunflower", "Wheat", "Beets",         "Oats"};
  for (int i = *rc::gen::inRange(0, 3); i > 0; --i)
    add(100, "--price", pick(crops) + "=" + pick({"4.5", "3", "", "7.125", "0", "0.333333333333333333"}));
  for (int i = *rc::gen::inRange(0, 3); i > 0; --i)
    add(100, "--max-yield", pick(crops) + "=" + pick({"15", "19.5", "12.5", "", "1e1"}));
  add(70, "--split", pick({"0", "1", "2", "3", "4", "5"}));
  for (int i = *rc::gen::inRange(1, 5); i > 0; --i)
    add(100, "--crop", pick(crops));
  add(20, "--crop", "Fallow");
  if (chance(30)) options.emplace_back("--no-split");
  add(50, "--keep", pick({"1", "5", "30", "200", "1e1"}));
  add(70, "--factor", pick({"1", "2", "3", "5", "4.4", "6", "7", "0.6"}));
  if (chance(25)) options.emplace_back("--mixes");
  for (int i = *rc::gen::inRange(0, 4) - 2; i > 0; --i) {
    add(100, "--wish",
        pick({"field 1 is Corn", "at most 1 crop", "at least 2 crops", "Beets at most 40 acres",
              "field 2 at most 0.1 inches", "Corn at least 33.333333333333336 acres",
              "field 1 is not Wheat"}));
  }
  return options;
}

RC_GTEST_PROP(FarmCommandFiles, AreEvaluatedLikeTheirOptions, ()) {
  static const FarmHome home;
  home.addCustomCrop("Beets", "corn");
  static const ExampleHome withoutCustomCrops;
  const Args options = randomOptions();
  const CliResult expected = home.run({"evaluate"}, joined(options, {"--format", "json"}));
  const std::string file = (home.folder() / "random.verdalis").string();
  const CliResult written = home.run({"farm"}, joined(options, {"--output", file}));
  if (written.exitCode != 0) {
    RC_ASSERT(expected.exitCode != 0);
    return;
  }
  for (const std::string& folder : {home.path(), withoutCustomCrops.path()}) {
    const CliResult ours = runCli({"evaluate", "--home", folder, "--farm", file, "--format", "json"});
    RC_ASSERT(ours.exitCode == expected.exitCode);
    RC_ASSERT(withoutSeconds(ours.out) == withoutSeconds(expected.out));
    if (ours.exitCode != 0) RC_ASSERT(linesOf(ours.err).back() == linesOf(expected.err).back());
  }

  // Writing the file again gives the same bytes.
  const CliResult again = home.run({"farm"}, {"--farm", file});
  RC_CLASSIFY(expected.exitCode == 0, "evaluated");
  RC_ASSERT(again.exitCode == 0);
  RC_ASSERT(again.out == bytesOf(file));
}

}  // namespace
}  // namespace verdalis::testing
