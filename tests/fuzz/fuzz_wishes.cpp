#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "screens/wishText.h"
#include "tests/fuzz/Fuzzing.h"

// The input as a wish: what is read has a standard form that reads back as the same wish.

namespace verdalis {
namespace {

using fuzz::require;

void check(const std::string& text) {
  static const WishContext context{
      {"C", "c", "Big Corn", "at least", "Fallow"}, {"C", "Big Corn", "at least"}, 2};
  Wish wish;
  try {
    wish = readWish(text, context);
  } catch (const std::invalid_argument& refusal) {
    require(*refusal.what() != '\0', "a refusal says why");
    return;
  }
  require(wish.amount >= 0, "no amount is negative");
  require(wish.field <= context.fields, "the field is there");
  const std::string standard = wishText(wish);
  require(readWish(standard, context) == wish, "the standard form reads back");
  require(wishText(readWish(standard, context)) == standard, "the standard form is one");
}

}  // namespace
}  // namespace verdalis

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  verdalis::check(std::string(data, data + size));
  return 0;
}
