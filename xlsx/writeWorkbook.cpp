#include "xlsx/writeWorkbook.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <system_error>
#include <vector>

#include "platform/PlainNumbers.h"
#include "platform/TemporaryFolder.h"
#include "platform/errors.h"
#include "text/RunTimeError.h"
#include "xlsx/Book.h"
#include "xlsx/Sheet.h"
#include "xlsx/cleanText.h"
#include "xlsx/sheetCharts.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t lineWidth = 110;
constexpr std::size_t mostLinesAbove = 10;  // above the first table; the head of the table stays on screen
constexpr std::size_t widestBeside = 110;   // characters of tables that leave room for charts beside them
constexpr std::size_t mostRowsAboveCharts = 40;
constexpr std::uintmax_t bytesOfCell = 200;  // more than a cell takes while the file is made
constexpr std::uintmax_t bytesOfBook = 1U << 20U;

/// Makes an empty folder among the temporary files that is for this user only.
std::unique_ptr<TemporaryFolder> newPrivateFolder() try {
  return std::make_unique<TemporaryFolder>(fs::temp_directory_path(), "verdalis-");
} catch (const fs::filesystem_error& error) {
  throw RunTimeError(ErrorNumber::fileNotFound,
                     "The workbook cannot be made, because there is no folder for temporary files: " +
                         reasonText(error.code()) + ".");
}

/// A folder for this user only, which goes with all that is in it.
class PrivateFolder {
 public:
  PrivateFolder() : folder_(newPrivateFolder()) {}

  [[nodiscard]] const fs::path& path() const { return folder_->path(); }

  /// The library does not notice a full disk.
  void requireRoom(std::uintmax_t bytes) const {
    std::error_code error;
    const fs::space_info space = fs::space(path(), error);
    if (error || space.available >= bytes) return;
    throw RunTimeError(ErrorNumber::fileNotFound,
                       "The workbook cannot be made, because " + path().parent_path().string() + " is full.");
  }

 private:
  std::unique_ptr<TemporaryFolder> folder_;
};

std::string join(const std::vector<std::string>& texts) {
  std::string line;
  for (const std::string& text : texts) {
    if (!text.empty()) line += (line.empty() ? "" : "  |  ") + text;
  }
  return line;
}

/// Fills a sheet with a section.
class SectionSheet {
 public:
  SectionSheet(Sheet& sheet, const HandoutSection& section) : sheet_(sheet), section_(section) {}

  void fill(const std::string& about) {
    Book::Look look;
    look.kind = Book::Look::Kind::title;
    sheet_.writeLine({0, 0}, section_.title, look);
    look.kind = Book::Look::Kind::quiet;
    if (!about.empty()) sheet_.writeLine({++row_, 0}, about, look);
    ++row_;
    std::vector<std::string> lines;
    for (const std::string& paragraph : section_.paragraphs) {
      for (std::string& line : brokenIntoLines(paragraph, lineWidth))
        lines.push_back(std::move(line));
    }
    const bool above = lines.size() <= mostLinesAbove || section_.tables.empty();
    if (above) writeLines(lines);
    const std::size_t charts = row_ + 2;  // below the first head, so that it scrolls with the rows
    const bool first = section_.tables.size() > 1;
    if (first) putCharts({row_ + 1, 0});
    for (const HandoutTable& table : section_.tables)
      writeTable(table);
    if (!above) writeLines(lines);
    if (!first) writeCharts(charts);
    sheet_.finish();
  }

 private:
  void writeLines(const std::vector<std::string>& lines) {
    ++row_;
    for (const std::string& line : lines)
      sheet_.writeLine({row_++, 0}, line);
  }

  void writeTable(const HandoutTable& table) {
    ++row_;
    if (!table.title.empty()) {
      Book::Look look;
      look.kind = Book::Look::Kind::caption;
      sheet_.writeLine({row_++, 0}, table.title, look);
    }
    std::size_t lines = 1;
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
      const HandoutColumn& head = table.columns[column];
      const std::string unit = head.unit.empty() ? "" : " (" + head.unit + ")";
      lines = std::max(lines, sheet_.writeHead({row_, column}, head.heading + unit, head.number));
    }
    sheet_.setHeight(row_, lines);
    ++row_;
    if (section_.tables.size() == 1) sheet_.freezeAbove(row_);
    const HandoutColumn plain{"", "", false, {}};
    for (const HandoutRow& row : table.rows) {
      Book::Look look;
      look.strong = row.strong;
      for (std::size_t column = 0; column < row.cells.size(); ++column) {
        const HandoutColumn& how = column < table.columns.size() ? table.columns[column] : plain;
        sheet_.write({row_, column}, row.cells[column], how, look);
      }
      ++row_;
    }
    columns_ = std::max(columns_, table.columns.size());
    rows_ += table.rows.size();
  }

  /// Beside a table that is narrow or long, and below another one. Several tables follow the charts.
  void writeCharts(std::size_t top) {
    const bool beside = !section_.tables.empty() &&
                        (sheet_.widthOfColumns(columns_) <= widestBeside || rows_ > mostRowsAboveCharts);
    putCharts({beside ? top : row_ + 1, beside ? columns_ + 1 : 0});
  }

  void putCharts(SheetPlace place) {
    for (const Chart& chart : section_.charts)
      place.row = putChart(sheet_, chart, place) + 1;
    if (!section_.charts.empty() && place.column == 0) row_ = place.row;
  }

  Sheet& sheet_;
  const HandoutSection& section_;
  std::size_t row_ = 0;
  std::size_t columns_ = 0;
  std::size_t rows_ = 0;
};

void setProperties(lxw_workbook* book, const Handout& handout) {
  std::string title = cleanText(join({handout.title, handout.farm}));
  std::string author = cleanText(handout.letterhead);
  std::string comments = "Made by Verdalis";
  lxw_doc_properties properties{};
  properties.title = title.data();
  properties.author = author.data();
  properties.comments = comments.data();
  require(workbook_set_properties(book, &properties));
}

std::uintmax_t bytesNeeded(const Handout& handout) {
  std::uintmax_t bytes = bytesOfBook;
  const auto addText = [&](const std::string& text) { bytes += text.size() * 6; };
  for (const HandoutSection& section : handout.sections) {
    for (const std::string& paragraph : section.paragraphs)
      addText(paragraph);
    for (const HandoutTable& table : section.tables) {
      for (const HandoutRow& row : table.rows) {
        bytes += row.cells.size() * bytesOfCell;
        for (const HandoutCell& cell : row.cells) {
          if (const auto* const text = std::get_if<std::string>(&cell)) addText(*text);
        }
      }
    }
    for (const Chart& chart : section.charts) {
      if (const auto* const map = std::get_if<MapChart>(&chart.data))
        bytes += map->value.size() * bytesOfCell;
      if (const auto* const lines = std::get_if<LineChart>(&chart.data)) {
        for (const ChartLine& line : lines->lines)
          bytes += line.points.size() * bytesOfCell * 4;
      }
    }
  }
  return bytes;
}

}  // namespace

std::string writeWorkbook(const Handout& handout) {
  const PlainNumbers plain;
  const PrivateFolder folder;
  folder.requireRoom(bytesNeeded(handout));
  const fs::path file = folder.path() / "workbook.xlsx";
  {
    Book book(file, folder.path());
    setProperties(book.book(), handout);
    SheetNames names;
    const HandoutSection empty{handout.title, {"There is nothing to show."}, {}, {}};
    const std::size_t count = std::max<std::size_t>(handout.sections.size(), 1);
    for (std::size_t i = 0; i < count; ++i) {
      const HandoutSection& section = i < handout.sections.size() ? handout.sections[i] : empty;
      Sheet sheet(book, names.nameFor(section.title));
      const std::string title = handout.title == section.title ? "" : handout.title;
      SectionSheet(sheet, section).fill(join({title, handout.farm, handout.letterhead, handout.date}));
    }
    book.close();
  }
  std::ifstream in(file, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (!in || bytes.empty())
    throw RunTimeError(ErrorNumber::fileNotFound,
                       "The workbook cannot be read back from " + file.string() + ".");
  return bytes;
}

}  // namespace verdalis
