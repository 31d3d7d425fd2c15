#include "platform/PlainNumbers.h"

namespace verdalis {

struct PlainNumbers::Before {};

// A program starts with plain numbers here, and neither this one nor its libraries ever choose others.
PlainNumbers::PlainNumbers() = default;
PlainNumbers::~PlainNumbers() = default;

}  // namespace verdalis
