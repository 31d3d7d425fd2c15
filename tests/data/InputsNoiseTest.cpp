#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "data/SavedInputs.h"
#include "tests/data/FilledTarget.h"
#include "tests/data/PlainInputsReader.h"
#include "tests/data/SameInputs.h"
#include "tests/data/SampleInputs.h"
#include "tests/support/TemporaryFolder.h"

// Truncated and corrupted saved inputs, compared with the simple reader: values read before an error are
// kept.

namespace verdalis {
namespace {

using testing::contentOf;
using testing::FilledTarget;
using testing::PlainInputsReader;
using testing::TemporaryFolder;

TEST(InputsNoise, CutAtAnyByteKeepsTheValuesReadSoFar) {
  const TemporaryFolder folder;
  const std::vector<std::string> names{"Corn", "Fallow"};
  const std::string whole = testing::sampleInputs + "batch_enabled\r\n";
  std::size_t complete = 0;
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const std::string cut = whole.substr(0, length);
    FilledTarget expected(names);
    const bool expectedRead = PlainInputsReader(cut, expected).read();
    FilledTarget target(names);
    const bool read = loadInputs(folder.write("inputs.txt", cut), target);
    ASSERT_EQ(read, expectedRead) << "cut at byte " << length;
    ASSERT_EQ(contentOf(target), contentOf(expected)) << "cut at byte " << length;
    ASSERT_EQ(target.has("refresh"), read);
    if (read) ++complete;
  }
  EXPECT_GT(complete, 2U);
}

// Without the simple reader: a cut never changes the values after it.
TEST(InputsNoise, CutInAnyLineLeavesLaterValuesUnchanged) {
  const TemporaryFolder folder;
  const auto lines = testing::plainLines(testing::sampleGeneral + testing::samplePlant + testing::sampleCorn);
  const std::size_t head = 16;
  std::string bytes;
  for (std::size_t kept = 0; kept <= lines.size(); ++kept) {
    FilledTarget target({"Corn"});
    const bool read = loadInputs(folder.write("inputs.txt", bytes), target);
    EXPECT_EQ(read, kept == head || kept == lines.size()) << kept;
    EXPECT_EQ(target.general.totalAcres, kept >= 2 ? "125.5" : "2");
    EXPECT_EQ(target.plant.GPM, kept >= 6 ? 650 : 77);
    EXPECT_EQ(target.plant.FuelType, kept >= 15 ? "Natural Gas" : "Propane");
    EXPECT_EQ(target.has("txtArea=125.5"), kept >= head) << "the controls follow when the plant is complete";
    EXPECT_EQ(target.rows[0]->price, kept >= head + 2 ? 4.6 : 77);
    EXPECT_EQ(static_cast<double>(target.rows[0]->inputCosts.AlfalfaStand), kept >= head + 32 ? 6 : 77);
    EXPECT_EQ(target.rows[0]->inputCosts.FertilizerApplication, kept >= head + 34 ? 5.12 : 77);
    if (kept < lines.size()) bytes += lines[kept] + "\r\n";
  }
}

}  // namespace
}  // namespace verdalis
