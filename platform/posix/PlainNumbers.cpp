#include "platform/PlainNumbers.h"

#include <clocale>

namespace verdalis {

struct PlainNumbers::Before {
  locale_t plain;
  locale_t before;
};

PlainNumbers::PlainNumbers() {
  const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
  before_ = std::make_unique<Before>(Before{plain, uselocale(plain)});
}

PlainNumbers::~PlainNumbers() {
  uselocale(before_->before);
  if (before_->plain != nullptr) freelocale(before_->plain);
}

}  // namespace verdalis
