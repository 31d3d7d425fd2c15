#include "xlsx/Book.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "text/RunTimeError.h"
#include "xlsx/cleanText.h"

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
  if (error == LXW_NO_ERROR) return;
  throw RunTimeError(
      ErrorNumber::fileNotFound,
      "The workbook cannot be made: " + std::string(lxw_strerror(error)) + " Check that the disk has room.");
}

Book::Book(const std::filesystem::path& file, const std::filesystem::path& folder)
    : folder_(folder.string()) {
  lxw_workbook_options options{};
  options.tmpdir = folder_.data();
  book_ = workbook_new_opt(file.c_str(), &options);
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
  if (look.fill != 0) format_set_bg_color(format, look.fill);
  if (!look.number.empty()) format_set_num_format(format, look.number.c_str());
  known->second = format;
  return format;
}

void Book::close() {
  require(workbook_close(std::exchange(book_, nullptr)));
}

}  // namespace verdalis
