#include "xlsx/Book.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/paths.h"
#include "xlsx/ArchiveCopy.h"
#include "xlsx/cleanText.h"
#include "xlsx/exactParts.h"
#include "xlsx/library.h"

namespace verdalis {
namespace {

constexpr int mostDecimals = 15;
constexpr std::size_t mostLiteral = 40;  // a format has at most 255 characters
constexpr std::uint32_t quietColour = 0x595959;
constexpr std::uint32_t headColour = 0xE7EFE4;
constexpr std::uint32_t borderColour = 0x8AA383;
constexpr double titlePoints = 14;

/// A text in a number format, where most characters have a meaning unless they stand within quotes.
std::string literal(std::string_view text) {
  if (text == "$" || text.size() > mostLiteral) return text == "$" ? "$" : "";
  std::string result;
  bool quoted = false;
  const auto quote = [&](bool on) {
    if (quoted != on) result += '"';
    quoted = on;
  };
  for (const char c : cleanText(text)) {
    const bool escaped = c == '"' || c == '\\';
    quote(!escaped);
    if (escaped) result += '\\';
    result += c;
  }
  quote(false);
  return result;
}

}  // namespace

std::string numberFormat(const NumberStyle& style) {
  std::string digits = style.thousands ? "#,##0" : "0";
  const int decimals = std::clamp(style.decimals, 0, mostDecimals);
  if (decimals > 0) digits += "." + std::string(static_cast<std::size_t>(decimals), '0');
  const std::string positive = literal(style.before) + digits + literal(style.after);
  // The sign of a negative number stands before the unit.
  return style.before.empty() ? positive : positive + ";-" + positive;
}

void require(lxw_error error) {
  if (error != LXW_NO_ERROR) failToMake(lxw_strerror(error));
}

Book::Book(std::filesystem::path file, std::filesystem::path folder)
    : file_(std::move(file)),
      folder_(std::move(folder)),
      rounded_(folder_ / "rounded.xlsx"),
      temporary_(libraryName(folder_)) {
  lxw_workbook_options options{};
  options.tmpdir = temporary_.data();
  book_ = workbook_new_opt(libraryName(rounded_).c_str(), &options);
  if (book_ == nullptr) require(LXW_ERROR_MEMORY_MALLOC_FAILED);
}

Book::~Book() {
  if (book_ != nullptr) lxw_workbook_free(book_);
}

lxw_format* Book::format(const Look& look) {
  const auto [known, isNew] = formats_.try_emplace(look, nullptr);
  if (!isNew) return known->second;
  lxw_format* format = workbook_add_format(book_);
  if (format == nullptr) require(LXW_ERROR_MEMORY_MALLOC_FAILED);
  using Kind = Look::Kind;
  if (look.strong || look.kind == Kind::title || look.kind == Kind::caption || look.kind == Kind::head)
    format_set_bold(format);
  if (look.kind == Kind::title) format_set_font_size(format, titlePoints);
  if (look.kind == Kind::quiet) format_set_font_color(format, quietColour);
  if (look.kind == Kind::head) {
    format_set_text_wrap(format);
    format_set_align(format, LXW_ALIGN_VERTICAL_BOTTOM);
    format_set_bg_color(format, headColour);
    format_set_bottom(format, LXW_BORDER_THIN);
    format_set_bottom_color(format, borderColour);
  }
  if (look.right) format_set_align(format, LXW_ALIGN_RIGHT);
  if (look.indented) format_set_indent(format, 1);
  if (look.fill != 0) format_set_bg_color(format, look.fill);
  if (!look.number.empty()) format_set_num_format(format, look.number.c_str());
  known->second = format;
  return format;
}

SheetNumbers& Book::addSheet() {
  return sheets_.emplace_back();
}

void Book::addChart(const SheetNumbers& numbers) {
  charts_.push_back(&numbers);
}

void Book::close() {
  require(workbook_close(std::exchange(book_, nullptr)));
  ArchiveCopy archive(rounded_, folder_);
  for (std::size_t i = 0; i < sheets_.size(); ++i) {
    sheets_[i].sort();
    ExactCells cells(sheets_[i]);
    archive.change("xl/worksheets/sheet" + std::to_string(i + 1) + ".xml",
                   [&](std::string_view piece, std::string& out) { cells.take(piece, out); });
    cells.finish();
  }
  for (std::size_t i = 0; i < charts_.size(); ++i) {
    ExactPoints points(*charts_[i]);
    archive.change("xl/charts/chart" + std::to_string(i + 1) + ".xml",
                   [&](std::string_view piece, std::string& out) { points.take(piece, out); });
  }
  archive.write(file_);
}

}  // namespace verdalis
