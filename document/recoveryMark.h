#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "document/FarmDocument.h"

namespace verdalis {

/// The farm file to which a recovery copy belongs, and what the file held when it was last read or saved.
struct RecoveryMark {
  std::string path;
  std::uint64_t size = 0;  ///< Bytes
  std::uint64_t hash = 0;

  friend bool operator==(const RecoveryMark&, const RecoveryMark&) = default;
};

/// Puts the mark into a document that is to be written as a recovery copy.
void putMark(FarmDocument& document, const RecoveryMark& mark);

/// Takes the mark out of a document that was read from a recovery copy; nothing if it has none.
[[nodiscard]] std::optional<RecoveryMark> takeMark(FarmDocument& document);

}  // namespace verdalis
