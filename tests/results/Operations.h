#pragma once

#include <string>
#include <vector>

#include "tests/support/FakeServices.h"
#include "text/numbers.h"

namespace verdalis::testing {

/// The printed pieces, each as a text: its position ("@7300 "), its font ("12b "), the text itself between
/// bars, and "/" if it ended its line.
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

/// Two lists of operations, one after the other.
inline std::vector<std::string> join(std::vector<std::string> first, const std::vector<std::string>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

}  // namespace verdalis::testing
