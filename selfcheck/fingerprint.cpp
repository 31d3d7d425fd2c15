#include "selfcheck/fingerprint.h"

#include <bit>
#include <string>

namespace verdalis {
namespace {

/// FNV-1a.
class Hash {
 public:
  explicit Hash(std::uint64_t value) : value_(value) {}

  void addByte(std::uint64_t byte) { value_ = (value_ ^ (byte & 0xFFU)) * 0x100000001b3; }
  void add(std::uint64_t number) {
    for (unsigned shift = 0; shift < 64; shift += 8)
      addByte(number >> shift);
  }
  void add(double number) { add(std::bit_cast<std::uint64_t>(number)); }
  void add(const std::string& text) {
    add(std::uint64_t{text.size()});
    for (const char character : text)
      addByte(static_cast<unsigned char>(character));
  }

  [[nodiscard]] std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_;
};

}  // namespace

std::uint64_t addToFingerprint(std::uint64_t fingerprint, const std::vector<BestMix::Option>& options,
                               double efficiency) {
  Hash hash(fingerprint);
  hash.add(std::uint64_t{options.size()});
  for (const auto& option : options) {
    hash.add(option->getProfit(efficiency));
    for (const auto& field : *option) {
      hash.add(field->acres);
      hash.add(field->theCrop->cropType);
      hash.add(field->Depth);
      hash.add(field->theCrop->Yield);
      hash.add(field->TotalCost);
      hash.add(field->TotalReturn);
    }
  }
  return hash.value();
}

}  // namespace verdalis
