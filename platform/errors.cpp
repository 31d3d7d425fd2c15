#include "platform/errors.h"

namespace verdalis {

std::string reasonText(const std::error_code& error) {
  // The message of a system's own category is in the language of the user, and maybe not in UTF-8.
  return error.default_error_condition().message();
}

}  // namespace verdalis
