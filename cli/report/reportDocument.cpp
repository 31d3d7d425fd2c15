#include "cli/report/reportDocument.h"

#include <utility>

#include "cli/Messages.h"
#include "cli/report/TextPage.h"
#include "pdf/PdfFont.h"
#include "pdf/drawPdf.h"
#include "pdf/support.h"
#include "platform/paths.h"

namespace verdalis {
namespace {

/// PdfFont is the first base because the layout refers to it.
class PdfDocument : private PdfFont, public PageLayout {
 public:
  PdfDocument() : PageLayout(static_cast<const PdfFont&>(*this)) {}
};

std::string pdfOf(const PageLayout& layout) {
  const std::string title = layout.texts().empty() ? defaultTitle : layout.texts().front().text;
  return drawPdf(layout.texts(), layout.pages(), layout.paper(), title);
}

}  // namespace

std::unique_ptr<PageSurface> reportDocument(const std::filesystem::path& path,
                                            std::function<void(const std::string&)> onEnd) {
  if (path.extension() == ".txt") return std::make_unique<TextPage>(std::move(onEnd));
  auto document = std::make_unique<PdfDocument>();
  document->onEnd = [onEnd = std::move(onEnd)](const PageLayout& layout) { onEnd(pdfOf(layout)); };
  return document;
}

void requireReportKind(const std::string& option, const std::string& file, bool textInstead) {
  if (drawsPdf() || (textInstead && pathOf(file).extension() == ".txt")) return;
  throw Refusal(option + ": This program prints reports as text, not as PDF. " +
                (textInstead ? "Name a file that ends in .txt, or print from the window."
                             : "Use Report... in the menu File of the window."));
}

std::filesystem::path copyPath(const std::filesystem::path& path, int n) {
  if (n == 1) return path;
  std::filesystem::path name = path.stem();
  name += pathOf("-" + std::to_string(n)).native();
  name += path.extension();
  return path.parent_path() / name;
}

}  // namespace verdalis
