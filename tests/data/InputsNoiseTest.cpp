#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "data/SavedInputs.h"
#include "tests/data/AnyInputs.h"
#include "tests/data/Noise.h"
#include "tests/data/PlainInputsReader.h"
#include "tests/data/SameInputs.h"
#include "tests/data/SampleInputs.h"
#include "tests/support/TemporaryFolder.h"
#include "text/encoding.h"

// Truncated and corrupted saved inputs, compared with the simple reader: values read before an error are
// kept.

namespace verdalis {
namespace {

using testing::contentOf;
using testing::PlainInputsReader;
using testing::PlainTarget;
using testing::TemporaryFolder;

/// A target filled with values that the file does not contain, to show which values were read.
struct FilledTarget : PlainTarget {
  explicit FilledTarget(const std::vector<std::string>& names) : PlainTarget(names) {
    general = {"1", "2", "3", "4", "5"};
    plant.GPM = 77;
    plant.FuelType = "Propane";
    for (const auto& crop : rows) {
      crop->price = 77;
      for (const auto& field : testing::costFields())
        std::visit([&](auto member) { fill(crop->inputCosts.*member); }, field);
    }
  }

 private:
  static void fill(double& field) { field = 77; }
  static void fill(Number& field) { field = 77; }
  static void fill(bool& field) { field = true; }
};

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

void assertReadsLikeThePlainReader(const std::string& bytes, const std::vector<std::string>& names) {
  const TemporaryFolder folder;
  FilledTarget expected(names);
  const bool expectedRead = PlainInputsReader(decodeText(bytes), expected).read();
  FilledTarget target(names);
  const bool read = loadInputs(folder.write("inputs.txt", bytes), target);
  RC_CLASSIFY(read, "read to the end");
  RC_CLASSIFY(target.events.size() > 2, "controls set");
  RC_ASSERT(read == expectedRead);
  RC_ASSERT(contentOf(target) == contentOf(expected));
}

RC_GTEST_PROP(InputsNoise, DamagedFilesLoadLikeInTheSimpleReader, ()) {
  const auto inputs = *testing::anyInputs();
  const auto file = rc::gen::just(inputs.file());
  const auto bytes = *rc::gen::oneOf(testing::damaged(file), testing::damaged(testing::damaged(file)));
  assertReadsLikeThePlainReader(bytes, inputs.names());
}

/// Files of short lines, among them crop names, keywords and difficult values.
rc::Gen<std::string> anyLines() {
  const auto value = rc::gen::weightedOneOf<std::string>(
      {{6, rc::gen::map(rc::gen::inRange(0, 6), [](int n) { return std::to_string(n); })},
       {2, rc::gen::element<std::string>("Corn", "7", "", "batch_enabled", "True", "Diesel", " Corn", "1e3")},
       {1, testing::noise()}});
  const auto lineEnd = rc::gen::weightedElement<std::string>({{8, "\r\n"}, {1, "\n"}, {1, ","}});
  const auto values =
      rc::gen::container<std::vector<std::pair<std::string, std::string>>>(rc::gen::pair(value, lineEnd));
  return rc::gen::map(rc::gen::scale(2, values), [](const auto& lines) {
    std::string bytes;
    for (const auto& [text, end] : lines)
      bytes += text + end;
    return bytes;
  });
}

RC_GTEST_PROP(InputsNoise, AnyLinesLoadLikeInTheSimpleReader, ()) {
  assertReadsLikeThePlainReader(*anyLines(), {"Corn", "7", "Corn", "", "True"});
}

RC_GTEST_PROP(InputsNoise, AnyBytesLoadLikeInTheSimpleReader, (const std::string& bytes)) {
  assertReadsLikeThePlainReader(bytes, {"Corn", ""});
}

}  // namespace
}  // namespace verdalis
