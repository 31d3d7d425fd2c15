#pragma once

#include <string>
#include <vector>

#include "tests/support/FakeServices.h"
#include "text/numbers.h"

namespace verdalis::testing {

/// What was printed, a text for each piece: where it was placed ("@7300 "), its font ("12b "), the text
/// itself in bars, and "/" where it ended its line.
inline std::vector<std::string> operations(const FakeDocument& document) {
  std::vector<std::string> result;
  for (const FakePiece& piece : document.pieces) {
    std::string operation;
    if (piece.position) operation += "@" + generalText(*piece.position) + " ";
    operation += generalText(piece.fontSize) + piece.marks() + " |" + piece.text + "|";
    result.push_back(operation + (piece.endsLine ? "/" : ""));
  }
  return result;
}

/// Two lists of operations, one behind the other.
inline std::vector<std::string> join(std::vector<std::string> first, const std::vector<std::string>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

}  // namespace verdalis::testing
