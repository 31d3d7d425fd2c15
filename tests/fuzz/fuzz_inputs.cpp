#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "data/SavedCropBlocks.h"
#include "data/SavedInputs.h"
#include "tests/data/PlainInputsReader.h"
#include "tests/data/PlainTarget.h"
#include "tests/data/SameInputs.h"
#include "tests/fuzz/Fuzzing.h"
#include "tests/support/TemporaryFolder.h"
#include "text/encoding.h"

// Any input as saved inputs: it must set the same values as the simple reader, and these values must survive
// saving and loading.

namespace verdalis {
namespace {

using fuzz::require;
using testing::contentOf;
using testing::PlainInputsReader;
using testing::PlainTarget;
using testing::TemporaryFolder;

// Short names, so that the fuzzer finds them sooner. "1" is also a value, and there are two crops "C".
const std::vector<std::string> names{"C", "1", "C", "Fallow", ""};

void checkBlocks(const std::string& inputs) {
  const std::vector<SavedCropBlock> blocks = savedCropBlocks(inputs);
  std::string text;
  for (const SavedCropBlock& block : blocks)
    text += block.text();
  require(savedCropBlocks(text) == blocks, "blocks are found again in their own text");
  require(missingBlocks(blocks, blocks).empty(), "nothing is missing from the same blocks");
}

void check(const std::string& bytes) {
  checkBlocks(decodeText(bytes));
  static const TemporaryFolder folder("fuzz");
  const auto file = folder.write("inputs.txt", bytes);
  PlainTarget expected(names);
  const bool expectedRead = PlainInputsReader(decodeText(bytes), expected).read();
  PlainTarget target(names);
  const bool read = loadInputs(file, target);
  require(read == expectedRead, "whether the file is read to its end");
  require(contentOf(target) == contentOf(expected), "what the file sets");
  if (!read) return;

  std::string text = target.general.writeData() + "\r\n" + target.plant.writeData() + "\r\n";
  for (const auto& crop : target.rows)
    text += crop->writeData() + "\r\n";
  require(savedCropBlocks(text).size() == names.size(), "every crop has a block");
  PlainTarget again(names);
  require(PlainInputsReader(text, again).read(), "saved inputs can be read");
  require(contentOf(again.plant) == contentOf(target.plant), "the plant is loaded as it was saved");
  require(contentOf(again.general) == contentOf(target.general), "the inputs are loaded as they were saved");
  for (std::size_t i = 0; i < names.size(); ++i)
    require(contentOf(*again.rows[i]) == contentOf(*target.rows[i]), "a crop is loaded as it was saved");
}

}  // namespace
}  // namespace verdalis

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  verdalis::fuzz::workInMemory();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  verdalis::check(std::string(data, data + size));
  return 0;
}
