#include "pdf/PdfFile.h"

#include <cairo-pdf.h>

#include <exception>
#include <utility>

#include "pdf/support.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

/// Callback from Cairo, a C library: must not throw.
cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) noexcept {
  try {
    static_cast<std::string*>(bytes)->append(data, data + length);
    return CAIRO_STATUS_SUCCESS;
  } catch (const std::exception&) {
    return CAIRO_STATUS_NO_MEMORY;
  }
}

}  // namespace

bool drawsPdf() {
  return true;
}

PdfFile::PdfFile(double width, double height, const std::string& title)
    : surface_(cairo_pdf_surface_create_for_stream(append, &bytes_, width, height)) {
  cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_TITLE, validText(title).c_str());
  cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_CREATOR, "Verdalis");
}

void PdfFile::setAuthor(const std::string& author) {
  cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_AUTHOR, validText(author).c_str());
}

std::string PdfFile::finish() {
  cairo_surface_finish(surface_.get());
  const cairo_status_t status = cairo_surface_status(surface_.get());
  if (status != CAIRO_STATUS_SUCCESS) {
    throw RunTimeError(ErrorNumber::fileNotFound, std::string("The report cannot be made a PDF file: ") +
                                                      cairo_status_to_string(status) + ".");
  }
  return std::move(bytes_);
}

}  // namespace verdalis
