#pragma once

#include <cstdio>
#include <deque>
#include <functional>
#include <memory>
#include <streambuf>
#include <string>

namespace verdalis {

/// Collects a long text in pieces, so it can grow without being copied. What is above mostInMemory goes to a
/// temporary file, if there can be one.
class TextPieces final : public std::streambuf {
 public:
  static constexpr std::size_t pieceSize = std::size_t{1} << 20U;  ///< Maximum size of a piece, bytes
  static constexpr std::size_t mostInMemory = 32;                  ///< Pieces

  /// Hands on the whole text piece by piece.
  /// \throws RunTimeError (fileNotFound) if the temporary file cannot be read
  void forEach(const std::function<void(const std::string&)>& use);

 protected:
  std::streamsize xsputn(const char* text, std::streamsize count) override;
  int_type overflow(int_type c) override;

 private:
  using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

  void spill();

  std::deque<std::string> pieces_;
  File file_{nullptr, nullptr};
  std::size_t spilled_ = 0;  ///< Full pieces in the file, which come before the others
  bool maySpill_ = true;
};

}  // namespace verdalis
