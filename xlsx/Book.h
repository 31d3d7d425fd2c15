#pragma once

#include <xlsxwriter.h>

#include <cstdint>
#include <deque>
#include <filesystem>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "charts/Chart.h"
#include "xlsx/SheetNumbers.h"

namespace verdalis {

/// The format of a number in a cell, such as `$#,##0.00;-$#,##0.00`.
[[nodiscard]] std::string numberFormat(const NumberStyle& style);

/// A workbook that is being made. Files for the moment stand in `folder`.
class Book {
 public:
  /// The looks of a cell.
  struct Look {
    enum class Kind { plain, title, quiet, caption, head };
    Kind kind = Kind::plain;
    bool strong = false;
    bool right = false;
    bool indented = false;   ///< Apart from the numbers of the column before
    std::uint32_t fill = 0;  ///< A colour such as 0xDDEBF7; 0 for none
    std::string number;      ///< See numberFormat(); empty for texts

    friend auto operator<=>(const Look&, const Look&) = default;
  };

  /// \throws RunTimeError (fileNotFound) if there is no memory
  Book(std::filesystem::path file, std::filesystem::path folder);
  Book(const Book&) = delete;
  Book& operator=(const Book&) = delete;
  ~Book();

  [[nodiscard]] lxw_workbook* book() const { return book_; }
  [[nodiscard]] lxw_format* format(const Look& look);

  /// A list for the numbers of the next sheet, which close() writes with all their digits. To be called for
  /// each sheet in order.
  [[nodiscard]] SheetNumbers& addSheet();

  /// To be called for each chart in order, with the list of its sheet.
  void addChart(const SheetNumbers& numbers);

  /// Writes the file. The library writes 16 significant digits of a number; after it the numbers are written
  /// again, from the lists.
  /// \throws RunTimeError (fileNotFound) if it cannot be written
  void close();

 private:
  std::filesystem::path file_;
  std::filesystem::path folder_;
  std::filesystem::path rounded_;  ///< As the library writes it
  std::string temporary_;          ///< The folder as the library takes it
  lxw_workbook* book_ = nullptr;
  std::deque<SheetNumbers> sheets_;
  std::vector<const SheetNumbers*> charts_;
  std::map<Look, lxw_format*> formats_;
};

/// \throws RunTimeError (fileNotFound) if a step of the library has failed
void require(lxw_error error);

}  // namespace verdalis
