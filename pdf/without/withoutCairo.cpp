#include "pdf/PdfFont.h"
#include "pdf/drawHandout.h"
#include "pdf/drawPdf.h"
#include "pdf/support.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

[[noreturn]] void refuse() {
  throw RunTimeError(ErrorNumber::invalidCall, "This program does not draw PDF files.");
}

}  // namespace

bool drawsPdf() {
  return false;
}

class PdfFont::Ruler {};

PdfFont::PdfFont() = default;
PdfFont::~PdfFont() = default;

double PdfFont::width(const std::string& /*text*/, const PageFont& /*font*/) const {
  return 0;
}

double PdfFont::ascent(const PageFont& /*font*/) const {
  return 0;
}

double PdfFont::lineHeight(const PageFont& /*font*/) const {
  return 0;
}

std::string drawPdf(const std::vector<PlacedText>& /*texts*/, int /*pages*/, const Paper& /*paper*/,
                    const std::string& /*title*/) {
  refuse();
}

std::string drawPages(const std::vector<Drawing>& /*pages*/, const std::string& /*title*/,
                      const std::string& /*author*/) {
  refuse();
}

std::string drawHandout(const Handout& /*handout*/, PaperSize /*paper*/) {
  refuse();
}

}  // namespace verdalis
