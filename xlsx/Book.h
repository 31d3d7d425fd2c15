#pragma once

#include <xlsxwriter.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <tuple>

#include "charts/Chart.h"

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
    std::uint32_t fill = 0;  ///< A colour such as 0xDDEBF7; 0 for none
    std::string number;      ///< See numberFormat(); empty for texts

    friend auto operator<=>(const Look&, const Look&) = default;
  };

  /// \throws RunTimeError (fileNotFound) if there is no memory
  Book(const std::filesystem::path& file, const std::filesystem::path& folder);
  Book(const Book&) = delete;
  Book& operator=(const Book&) = delete;
  ~Book();

  [[nodiscard]] lxw_workbook* book() const { return book_; }
  [[nodiscard]] lxw_format* format(const Look& look);

  /// Writes the file.
  /// \throws RunTimeError (fileNotFound) if it cannot be written
  void close();

 private:
  std::string folder_;
  lxw_workbook* book_ = nullptr;
  std::map<Look, lxw_format*> formats_;
};

/// \throws RunTimeError (fileNotFound) if a step of the library has failed
void require(lxw_error error);

}  // namespace verdalis
