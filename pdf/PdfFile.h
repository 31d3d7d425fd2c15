#pragma once

#include <string>

#include "pdf/pango.h"

namespace verdalis {

/// A PDF file in the making.
class PdfFile {
 public:
  /// \param width, height of the pages, points.
  /// \param title shown by PDF readers instead of the file name.
  PdfFile(double width, double height, const std::string& title);

  PdfFile(const PdfFile&) = delete;  // Cairo keeps the place of the bytes
  PdfFile& operator=(const PdfFile&) = delete;
  ~PdfFile() = default;

  void setAuthor(const std::string& author);

  /// What is drawn on. It must be released before finish().
  [[nodiscard]] CairoContext context() const { return CairoContext(cairo_create(surface_.get())); }

  /// \returns the bytes of the file
  /// \throws RunTimeError (fileNotFound) if something could not be drawn
  [[nodiscard]] std::string finish();

 private:
  std::string bytes_;
  CairoSurface surface_;
};

}  // namespace verdalis
