#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "data/SavedInputs.h"
#include "tests/data/AnyInputs.h"
#include "tests/data/SameInputs.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis {
namespace {

using testing::contentOf;
using testing::PlainTarget;
using testing::TemporaryFolder;

RC_GTEST_PROP(InputsRoundTrip, LoadedValuesEqualTheSavedOnesToTheLastBit, ()) {
  const auto inputs = *testing::anyInputs();
  const TemporaryFolder folder;
  RC_ASSERT(saveInputs(folder / "inputs.txt", inputs.general, inputs.plant, inputs.crops, inputs.trends));
  RC_ASSERT(folder.read("inputs.txt") == inputs.file());

  PlainTarget target(inputs.names());
  RC_ASSERT(loadInputs(folder / "inputs.txt", target));
  RC_ASSERT(contentOf(target.general) == contentOf(inputs.general));
  RC_ASSERT(contentOf(target.plant) == contentOf(inputs.plant));
  for (std::size_t i = 0; i < target.rows.size(); ++i)
    RC_ASSERT(contentOf(*target.rows[i]) == contentOf(*inputs.crops.NewEnum()[i]));
  RC_ASSERT(target.has("trends") == inputs.trends);
  RC_ASSERT(target.events.back() == "refresh");
}

RC_GTEST_PROP(InputsRoundTrip, SavingLoadedInputsGivesTheSameFile, ()) {
  const auto inputs = *testing::anyInputs();
  const TemporaryFolder folder;
  RC_ASSERT(saveInputs(folder / "a.txt", inputs.general, inputs.plant, inputs.crops, inputs.trends));
  PlainTarget target(inputs.names());
  RC_ASSERT(loadInputs(folder / "a.txt", target));
  CropScenario crops;
  for (const auto& crop : target.rows)
    crops.Add(crop);
  RC_ASSERT(saveInputs(folder / "b.txt", target.general, target.plant, crops, target.has("trends")));
  RC_ASSERT(folder.read("b.txt") == folder.read("a.txt"));
}

}  // namespace
}  // namespace verdalis
