#pragma once

#include <string>
#include <vector>

#include "handout/Handout.h"
#include "tests/charts/AnyChart.h"

namespace verdalis::testing {

/// A text of a report: usual ones, long ones, odd ones.
inline rc::Gen<std::string> anyText() {
  return rc::gen::weightedOneOf<std::string>(
      {{8, rc::gen::element<std::string>("Corn", "Grain Sorghum", "Net return", "by yield", "125", "", " ",
                                         "the farm as it is, with the water of a usual year")},
       {2, rc::gen::map(rc::gen::inRange(1, 60),
                        [](int words) {
                          std::string text;
                          for (int i = 0; i < words; ++i)
                            text += "word" + std::to_string(i) + " ";
                          return text;
                        })},
       {1, rc::gen::map(rc::gen::inRange(1, 700),
                        [](int letters) { return std::string(static_cast<std::size_t>(letters), 'w'); })},
       {1, rc::gen::element<std::string>("Größe\tund\nHöhe", "\xff\x80\x80", "\xe6\x9c\xac\xe6\x9c\xac",
                                         "a\r\nb\rc")}});
}

inline HandoutCell anyCell() {
  switch (*rc::gen::inRange(0, 5)) {
    case 0:
      return {};
    case 1:
      return *anyText();
    default:
      return *anyNumber();
  }
}

inline HandoutTable anyTable() {
  HandoutTable table{*anyText(), {}, {}};
  for (int columns = *rc::gen::weightedElement<int>({{6, 4}, {2, 9}, {1, 30}, {1, 0}}); columns > 0;
       --columns) {
    const NumberStyle style = *rc::gen::element(
        NumberStyle{"$", "", 2, true, false}, NumberStyle{"", " in", 1}, NumberStyle{"", "", 0, true, true});
    table.columns.push_back(
        {*anyText(), *rc::gen::element<std::string>("", "in", "$/acre"), *rc::gen::arbitrary<bool>(), style});
  }
  for (int rows = count(50); rows > 0; --rows) {
    HandoutRow row{{}, *rc::gen::arbitrary<bool>()};
    for (int cells = count(static_cast<int>(table.columns.size()) + 1); cells > 0; --cells)
      row.cells.push_back(anyCell());
    table.rows.push_back(row);
  }
  return table;
}

inline HandoutSection anySection() {
  HandoutSection section{*anyText(), {}, {}, {}};
  for (int i = count(2); i > 0; --i)
    section.paragraphs.push_back(*anyText());
  for (int i = count(2); i > 0; --i)
    section.charts.push_back(anyChart());
  for (int i = count(2); i > 0; --i)
    section.tables.push_back(anyTable());
  return section;
}

inline Handout anyHandout() {
  Handout handout{*anyText(), *anyText(), *anyText(), *anyText(), {}};
  for (int i = count(3); i > 0; --i)
    handout.sections.push_back(anySection());
  return handout;
}

}  // namespace verdalis::testing
