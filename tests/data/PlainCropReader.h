#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "model/Crop.h"

// A second, simple reader of crop and soils files, for comparison. It copies freely, reads all values before
// it builds a table, and shares no code with the program's reader.

namespace verdalis::testing {

using Texts = std::vector<std::string>;

/// The lines of a text. Text after the last line end counts as a line unless it is empty.
inline Texts plainLines(const std::string& text) {
  Texts lines;
  std::string line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r' && text[i] != '\n') {
      line += text[i];
      continue;
    }
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    lines.push_back(line);
    line.clear();
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

/// The entries of a comma separated list; an empty text has none.
inline Texts plainSplit(const std::string& text) {
  if (text.empty()) return {};
  Texts entries{""};
  for (const char c : text) {
    if (c == ',') {
      entries.emplace_back();
    } else {
      entries.back() += c;
    }
  }
  return entries;
}

/// The length of the longest number at the start of a text, 0 if there is none.
inline std::size_t plainNumberLength(const std::string& text) {
  const auto digits = [&](std::size_t from) {
    std::size_t count = 0;
    while (from + count < text.size() && text[from + count] >= '0' && text[from + count] <= '9')
      ++count;
    return count;
  };
  const auto has = [&](std::size_t at, const char* any) {
    return at < text.size() && text[at] != '\0' && std::string(any).find(text[at]) != std::string::npos;
  };
  std::size_t at = has(0, "+-") ? 1 : 0;
  std::size_t found = digits(at);
  at += found;
  if (has(at, ".")) {
    const std::size_t decimals = digits(at + 1);
    found += decimals;
    at += 1 + decimals;
  }
  if (found == 0) return 0;
  if (has(at, "eE")) {
    const std::size_t sign = has(at + 1, "+-") ? 1 : 0;
    const std::size_t exponent = digits(at + 1 + sign);
    if (exponent > 0) at += 1 + sign + exponent;
  }
  return at;
}

/// The number at the start of a text, 0 if there is none; nothing if it is too large.
inline std::optional<double> plainVal(const std::string& text) {
  const std::size_t start = text.find_first_not_of(" \t");
  if (start == std::string::npos) return 0;
  const std::string rest = text.substr(start);
  const std::size_t length = plainNumberLength(rest);
  if (length == 0) return 0;
  const double value = std::strtod(rest.substr(0, length).c_str(), nullptr);
  if (std::isinf(value)) return std::nullopt;
  return value;
}

/// A whole number of inches of rain or irrigation; nothing for any other text.
inline std::optional<int> plainInches(const std::string& text) {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string::npos) return std::nullopt;
  const std::string rest = text.substr(start, text.find_last_not_of(' ') + 1 - start);
  if (plainNumberLength(rest) != rest.size()) return std::nullopt;
  const double value = std::strtod(rest.c_str(), nullptr);
  const double below = std::floor(value);
  double whole = value - below > 0.5 ? below + 1 : below;
  if (value - below == 0.5 && std::fmod(below, 2) != 0) whole = below + 1;
  if (!(whole >= -32768 && whole <= 32767)) return std::nullopt;
  return static_cast<int>(whole);
}

/// A table as rows of cells.
struct PlainTable {
  int firstRain = 0;
  std::vector<std::vector<double>> rows;

  friend bool operator==(const PlainTable&, const PlainTable&) = default;
};

inline PlainTable plainTable(const YieldTable& table) {
  PlainTable plain{table.firstRain(), {}};
  for (int row = 0; row <= table.maxIrrigation(); ++row) {
    auto& cells = plain.rows.emplace_back();
    for (int rain = 0; rain <= table.lastRain(); ++rain)
      cells.push_back(table.cell(row, rain));
  }
  return plain;
}

inline std::optional<PlainTable> plainTable(const std::string& rainfall, const std::string& irrigation,
                                            const std::string& values) {
  const Texts rain = plainSplit(rainfall);
  const Texts water = plainSplit(irrigation);
  if (rain.empty() || water.empty()) return std::nullopt;
  const auto first = plainInches(rain.front());
  const auto last = plainInches(rain.back());
  const auto top = plainInches(water.back());
  if (!first || !last || !top || *last < 0 || *top < 0 || *last > 999 || *top > 999) return std::nullopt;
  PlainTable table{*first, {}};
  table.rows.assign(static_cast<std::size_t>(*top) + 1,
                    std::vector<double>(static_cast<std::size_t>(*last) + 1));
  std::size_t row = 0;
  int column = *first;
  for (const std::string& text : plainSplit(values)) {
    const auto value = plainVal(text);
    if (!value || row >= table.rows.size() || column < 0 || column > *last) return std::nullopt;
    table.rows[row][static_cast<std::size_t>(column)] = *value;
    if (column == *last) {
      column = *first;
      ++row;
    } else {
      ++column;
    }
  }
  return table;
}

struct PlainCrop {
  std::string name;
  std::string units;
  std::string singular;
  std::string plural;
  PlainTable table;

  friend bool operator==(const PlainCrop&, const PlainCrop&) = default;
};

inline PlainCrop plainCrop(const Crop& crop) {
  return {crop.cropType, crop.cropUnits, crop.cropUnitsArray[0], crop.cropUnitsArray[1],
          crop.yieldTable ? plainTable(*crop.yieldTable) : PlainTable{}};
}

/// The text after the first "=" of a line, counted from 1; nothing without such a line or "=".
inline std::optional<std::string> plainValue(const Texts& lines, std::size_t line) {
  if (line > lines.size()) return std::nullopt;
  const std::size_t sign = lines[line - 1].find('=');
  if (sign == std::string::npos) return std::nullopt;
  return lines[line - 1].substr(sign + 1);
}

/// Whether a name or a text of units has at most 255 characters, each of one or more bytes of UTF-8.
inline bool plainIsShort(const std::string& text) {
  std::size_t characters = 0;
  for (const char c : text) {
    const int byte = static_cast<unsigned char>(c);
    if (byte < 0x80 || byte > 0xBF) ++characters;
  }
  return characters <= 255;
}

/// The crop in a file; nothing if it is not a crop file.
inline std::optional<PlainCrop> plainCrop(const std::string& text) {
  const Texts lines = plainLines(text);
  const auto name = plainValue(lines, 1);
  const auto units = plainValue(lines, 3);
  const auto rain = plainValue(lines, 5);
  const auto water = plainValue(lines, 7);
  const auto values = plainValue(lines, 9);
  if (!name || !units || !rain || !water || !values) return std::nullopt;
  if (!plainIsShort(*name) || !plainIsShort(*units)) return std::nullopt;
  const auto table = plainTable(*rain, *water, *values);
  if (!table) return std::nullopt;
  Texts words = plainSplit(*units);
  words.resize(std::max<std::size_t>(words.size(), 2));
  return PlainCrop{*name, *units, words[0], words[1], *table};
}

struct PlainSoil {
  std::string name;  ///< Lower case
  PlainTable yield;
  PlainTable relative;
};

/// The records of a soils file before the first broken one.
inline std::vector<PlainSoil> plainSoils(const std::string& text) {
  const Texts lines = plainLines(text);
  std::vector<PlainSoil> soils;
  for (std::size_t line = 1; line <= lines.size(); line += 5) {
    Texts values;
    for (std::size_t i = 0; i < 5; ++i) {
      const auto value = plainValue(lines, line + i);
      if (!value) return soils;
      values.push_back(*value);
    }
    const auto yield = plainTable(values[1], values[2], values[3]);
    const auto relative = plainTable(values[1], values[2], values[4]);
    if (!yield || !relative) return soils;
    for (char& c : values[0]) {
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
    }
    soils.push_back({values[0], *yield, *relative});
  }
  return soils;
}

}  // namespace verdalis::testing
