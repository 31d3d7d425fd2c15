#include "controls/Life.h"

namespace verdalis {

// Not inline: the compiler would warn of the address of a local object, which the destructor takes back.
Life::Watch::Watch(const Life& life) : life_(&life), outer_(life.innermost_) {
  life.innermost_ = this;
}

}  // namespace verdalis
