#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "data/CsvReader.h"
#include "tests/data/CsvText.h"

namespace verdalis::testing {
namespace {

std::string written(const std::vector<Cells>& rows, bool crLf) {
  std::string text;
  for (const Cells& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      std::string cell = row[i];
      for (std::size_t at = 0; (at = cell.find('"', at)) != std::string::npos; at += 2)
        cell.insert(at, 1, '"');
      text += (i == 0 ? "\"" : ",\"") + cell + '"';
    }
    text += crLf ? "\r\n" : "\n";
  }
  return text;
}

RC_GTEST_PROP(CsvReader, WhatIsWrittenInQuotesIsReadBack, (bool crLf)) {
  const auto cell = rc::gen::container<std::string>(rc::gen::element('a', ',', '"', '\r', '\n', ' '));
  const auto rows =
      *rc::gen::container<std::vector<Cells>>(rc::gen::nonEmpty(rc::gen::container<Cells>(cell)));
  const auto piece = *rc::gen::inRange<std::size_t>(1, 20);
  RC_ASSERT(cellsOf(written(rows, crLf), piece) == rows);
}

RC_GTEST_PROP(CsvReader, TheSizeOfThePiecesDoesNotMatter, ()) {
  const auto text = *rc::gen::container<std::string>(
      rc::gen::element('a', ',', '"', '\r', '\n', ' ', '\xEF', '\xBB', '\xBF'));
  const auto whole = rowsOf(text, 1000);
  const auto pieces = rowsOf(text, *rc::gen::inRange<std::size_t>(1, 5));
  RC_ASSERT(whole.size() == pieces.size());
  for (std::size_t i = 0; i < whole.size(); ++i) {
    RC_ASSERT(whole[i].cells == pieces[i].cells);
    RC_ASSERT(whole[i].count == pieces[i].count);
    RC_ASSERT(whole[i].fault == pieces[i].fault);
  }
}

}  // namespace
}  // namespace verdalis::testing
