#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "data/SavedInputs.h"
#include "tests/data/AnyInputs.h"
#include "tests/data/FilledTarget.h"
#include "tests/data/Noise.h"
#include "tests/data/PlainInputsReader.h"
#include "tests/data/SameInputs.h"
#include "tests/support/TemporaryFolder.h"
#include "text/encoding.h"

// Corrupted saved inputs, compared with the simple reader.

namespace verdalis {
namespace {

using testing::contentOf;
using testing::FilledTarget;
using testing::PlainInputsReader;
using testing::TemporaryFolder;

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
