#include "cli/TrendCommandText.h"

#include <algorithm>
#include <string_view>

#include "platform/scratchFile.h"
#include "text/RunTimeError.h"

namespace verdalis {

void TextPieces::forEach(const std::function<void(const std::string&)>& use) {
  if (file_) std::rewind(file_.get());
  std::string piece(pieceSize, '\0');
  for (std::size_t i = 0; i < spilled_; ++i) {
    if (std::fread(piece.data(), pieceSize, 1, file_.get()) != 1)
      throw RunTimeError(ErrorNumber::fileNotFound, "The temporary file of the result cannot be read.");
    use(piece);
  }
  for (const std::string& kept : pieces_)
    use(kept);
}

/// Moves the first piece, which is full, to the file. Without room there, all further pieces stay in memory.
void TextPieces::spill() {
  if (!file_) file_ = File(openScratchFile(), &std::fclose);
  maySpill_ = file_ && std::fwrite(pieces_.front().data(), pieceSize, 1, file_.get()) == 1 &&
              std::fflush(file_.get()) == 0;
  if (!maySpill_) return;
  pieces_.pop_front();
  ++spilled_;
}

std::streamsize TextPieces::xsputn(const char* text, std::streamsize count) {
  std::string_view rest(text, static_cast<std::size_t>(count));
  while (!rest.empty()) {
    if (pieces_.empty() || pieces_.back().size() == pieceSize) {
      if (maySpill_ && pieces_.size() == mostInMemory) spill();
      pieces_.emplace_back().reserve(pieceSize);
    }
    std::string& piece = pieces_.back();
    const std::size_t taken = std::min(rest.size(), pieceSize - piece.size());
    piece += rest.substr(0, taken);
    rest.remove_prefix(taken);
  }
  return count;
}

TextPieces::int_type TextPieces::overflow(int_type c) {
  const char text = traits_type::to_char_type(c);
  if (!traits_type::eq_int_type(c, traits_type::eof())) xsputn(&text, 1);
  return traits_type::not_eof(c);
}

}  // namespace verdalis
