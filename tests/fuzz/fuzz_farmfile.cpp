#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "document/farmText.h"
#include "tests/fuzz/Fuzzing.h"
#include "text/RunTimeError.h"

// The input as a farm file: what is read can be written, and reads back as the same farm and the same bytes.

namespace verdalis {
namespace {

using fuzz::require;

void check(std::string_view text) {
  FarmDocument document;
  try {
    document = readFarm(text);
  } catch (const RunTimeError& refusal) {
    require(*refusal.what() != '\0', "a refusal says why");
    return;
  }
  const std::string written = writeFarm(document);
  const FarmDocument again = readFarm(written);
  require(again == document, "a written farm reads back");
  require(writeFarm(again) == written, "reading and writing gives the same bytes");
}

}  // namespace
}  // namespace verdalis

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  verdalis::check(text);
  return 0;
}
