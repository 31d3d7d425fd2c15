#pragma once

#include <deque>
#include <streambuf>
#include <string>

namespace verdalis {

/// Collects a long text in pieces, so it can grow without being copied.
class TextPieces final : public std::streambuf {
 public:
  static constexpr std::size_t pieceSize = std::size_t{1} << 20U;  ///< Maximum size of a piece, bytes

  [[nodiscard]] const std::deque<std::string>& pieces() const { return pieces_; }

  /// The whole text. The pieces are removed.
  [[nodiscard]] std::string join();

 protected:
  std::streamsize xsputn(const char* text, std::streamsize count) override;
  int_type overflow(int_type c) override;

 private:
  std::deque<std::string> pieces_;
};

}  // namespace verdalis
