#pragma once

#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <regex>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {

/// The parts of a workbook, unpacked by another program.
class WorkbookFile {
 public:
  struct Cell {
    bool isText = false;
    std::string text;    ///< Of a text
    double number = 0;   ///< Of a number
    std::string format;  ///< The number format of the cell; empty for the general one
    bool bold = false;
    std::string fill;  ///< Such as "FFE7EFE4"; empty for none
  };

  explicit WorkbookFile(const std::string& bytes) {
    folder_.write("book.xlsx", bytes);
    const std::string there = "'" + folder_.path().string() + "'";
    sound_ = std::system(
                 ("cd " + there + " && unzip -tqq book.xlsx && unzip -qq book.xlsx -d parts").c_str()) == 0;
    if (!sound_) return;
    readTexts();
    readStyles();
    readNames();
  }

  /// Whether the archive is sound.
  [[nodiscard]] bool sound() const { return sound_; }
  [[nodiscard]] const std::vector<std::string>& sheets() const { return names_; }
  [[nodiscard]] const TemporaryFolder& folder() const { return folder_; }

  [[nodiscard]] bool has(const std::string& part) const {
    return std::filesystem::exists(folder_ / "parts" / part);
  }
  [[nodiscard]] std::string part(const std::string& name) const { return folder_.read("parts/" + name); }
  [[nodiscard]] std::string sheetXml(std::size_t sheet) const {
    return part("xl/worksheets/sheet" + std::to_string(sheet + 1) + ".xml");
  }

  /// A line for each part of the archive, in order, as `unzip` tells it with these options. Without the part
  /// that tells when the workbook was made.
  [[nodiscard]] std::string listing(const std::string& options) const {
    const std::string command = "cd '" + folder_.path().string() + "' && unzip " + options +
                                " book.xlsx -x docProps/core.xml >listing";
    return std::system(command.c_str()) == 0 ? folder_.read("listing") : "";
  }

  /// The cells of a sheet (from 0) by their names, such as "B12". Empty ones are not there.
  [[nodiscard]] std::map<std::string, Cell> cells(std::size_t sheet) const {
    std::map<std::string, Cell> cells;
    const std::string xml = sheetXml(sheet);
    std::size_t at = xml.find("<sheetData>");
    while ((at = xml.find("<c r=\"", at)) != std::string::npos) {
      const std::size_t end = xml.find('>', at);
      const std::string head = xml.substr(at, end - at);
      at = end;
      if (head.ends_with("/")) continue;
      const std::size_t value = xml.find("<v>", end) + 3;
      const std::string text = xml.substr(value, xml.find("</v>", value) - value);
      Cell cell;
      cell.isText = head.find(" t=\"s\"") != std::string::npos;
      if (cell.isText) {
        cell.text = texts_.at(std::stoul(text));
      } else {
        cell.number = std::strtod(text.c_str(), nullptr);
      }
      if (const std::string style = attribute(head, "s"); !style.empty()) {
        const Style& look = styles_.at(std::stoul(style));
        cell.format = look.format;
        cell.bold = look.bold;
        cell.fill = look.fill;
      }
      cells[attribute(head, "r")] = cell;
    }
    return cells;
  }

  /// The cells of a row (from 1), in order; "" and 0 for empty ones.
  [[nodiscard]] std::vector<Cell> row(std::size_t sheet, std::size_t number, std::size_t columns) const {
    const auto all = cells(sheet);
    std::vector<Cell> row;
    for (std::size_t column = 0; column < columns; ++column) {
      const auto found = all.find(nameOf(column) + std::to_string(number));
      row.push_back(found == all.end() ? Cell() : found->second);
    }
    return row;
  }

  /// The row (from 1) whose first cell has this text; 0 if there is none.
  [[nodiscard]] std::size_t rowOf(std::size_t sheet, const std::string& first) const {
    for (const auto& [name, cell] : cells(sheet)) {
      if (cell.isText && cell.text == first && name[0] == 'A' &&
          std::isdigit(static_cast<unsigned char>(name[1])) != 0)
        return std::stoul(name.substr(1));
    }
    return 0;
  }

  [[nodiscard]] static std::string nameOf(std::size_t column) {
    std::string name;
    for (std::size_t rest = column + 1; rest > 0; rest = (rest - 1) / 26)
      name.insert(name.begin(), static_cast<char>('A' + (rest - 1) % 26));
    return name;
  }

 private:
  struct Style {
    std::string format;
    bool bold = false;
    std::string fill;
  };

  [[nodiscard]] static std::string attribute(const std::string& tag, const std::string& name) {
    const std::string begin = " " + name + "=\"";
    const std::size_t at = tag.find(begin);
    if (at == std::string::npos) return {};
    const std::size_t from = at + begin.size();
    return tag.substr(from, tag.find('"', from) - from);
  }

  [[nodiscard]] static std::string unescaped(std::string text) {
    const std::array<std::array<const char*, 2>, 4> codes{
        {{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}}};
    for (const auto& [code, character] : codes) {
      for (std::size_t at = text.find(code); at != std::string::npos; at = text.find(code, at + 1))
        text.replace(at, std::string(code).size(), character);
    }
    return text;
  }

  /// The contents of each element with this name, tags included, between two texts.
  [[nodiscard]] static std::vector<std::string> elements(const std::string& xml, const std::string& from,
                                                         const std::string& name, const std::string& to) {
    std::vector<std::string> list;
    std::size_t at = xml.find(from);
    if (at == std::string::npos) return list;
    const std::size_t end = xml.find(to, at);
    const std::string tag = "<" + name;
    while ((at = xml.find(tag, at + 1)) < end) {
      const char after = xml[at + tag.size()];
      if (after != ' ' && after != '>' && after != '/') continue;
      const std::size_t close = xml.find('>', at);
      const std::size_t stop = xml[close - 1] == '/' ? close : xml.find("</" + name + ">", at);
      list.push_back(xml.substr(at, stop - at));
      at = stop;
    }
    return list;
  }

  void readTexts() {
    if (!has("xl/sharedStrings.xml")) return;
    const std::string xml = part("xl/sharedStrings.xml");
    for (const std::string& item : elements(xml, "<sst", "si", "</sst>")) {
      const std::size_t text = item.find("<t");
      const std::size_t begin = item.find('>', text) + 1;
      texts_.push_back(unescaped(item.substr(begin, item.find("</t>", begin) - begin)));
    }
  }

  void readStyles() {
    const std::string xml = part("xl/styles.xml");
    std::map<std::string, std::string> formats;
    for (const std::string& format : elements(xml, "<numFmts", "numFmt", "</numFmts>"))
      formats[attribute(format, "numFmtId")] = unescaped(attribute(format, "formatCode"));
    formats["1"] = "0";
    formats["2"] = "0.00";
    formats["3"] = "#,##0";
    formats["4"] = "#,##0.00";
    std::vector<bool> bold;
    for (const std::string& font : elements(xml, "<fonts", "font", "</fonts>"))
      bold.push_back(font.find("<b/>") != std::string::npos);
    std::vector<std::string> fills;
    for (const std::string& fill : elements(xml, "<fills", "fill", "</fills>"))
      fills.push_back(attribute(fill.substr(std::min(fill.find("<fgColor"), fill.size())), "rgb"));
    for (const std::string& look : elements(xml, "<cellXfs", "xf", "</cellXfs>")) {
      styles_.push_back({formats[attribute(look, "numFmtId")], bold.at(std::stoul(attribute(look, "fontId"))),
                         fills.at(std::stoul(attribute(look, "fillId")))});
    }
  }

  void readNames() {
    const std::string xml = part("xl/workbook.xml");
    for (const std::string& sheet : elements(xml, "<sheets>", "sheet", "</sheets>"))
      names_.push_back(unescaped(attribute(sheet, "name")));
  }

  TemporaryFolder folder_{"workbook"};
  bool sound_ = false;
  std::vector<std::string> texts_;
  std::vector<Style> styles_;
  std::vector<std::string> names_;
};

}  // namespace verdalis::testing
