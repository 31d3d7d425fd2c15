#include "desktop/Printing.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "data/writeFile.h"
#include "desktop/Binder.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"

namespace verdalis::desktop {
namespace {

constexpr double pointsPerInch = 72;

/// The font of a text; the painter's unit is the point.
QFont fontOf(const PageFont& font) {
  // The column positions of the reports need a font as narrow as this one.
  QFont result(QStringList{QStringLiteral("Liberation Sans"), QStringLiteral("Sans Serif")}, -1);
  result.setPixelSize(static_cast<int>(font.size));
  result.setBold(font.bold);
  result.setItalic(font.italic);
  result.setUnderline(font.underline);
  result.setHintingPreference(QFont::PreferNoHinting);
  return result;
}

class QtMetrics : public FontMetrics {
 public:
  [[nodiscard]] double width(const std::string& text, const PageFont& font) const override {
    return QFontMetricsF(fontOf(font)).horizontalAdvance(qText(text));
  }
  [[nodiscard]] double ascent(const PageFont& font) const override {
    return QFontMetricsF(fontOf(font)).ascent();
  }
  [[nodiscard]] double lineHeight(const PageFont& font) const override {
    return QFontMetricsF(fontOf(font)).lineSpacing();
  }
};

Paper paperOf(const QPrinter& printer) {
  const QRectF sheet = printer.paperRect(QPrinter::Point);
  Paper paper;
  paper.width = sheet.width();
  paper.height = sheet.height();
  return paper;
}

/// The file name for a further document: "report.pdf" becomes "report-2.pdf".
QString numbered(const QString& file, int number) {
  const QFileInfo info(file);
  const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
  return info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral("-%1").arg(number) +
         suffix;
}

/// Whether a file is a device or a pipe, which can be written but not replaced.
bool isDevice(const QString& file) {
  std::error_code error;
  return std::filesystem::is_other(std::filesystem::status(pathOf(programText(file)), error));
}

RunTimeError cannotPrint(const std::string& text) {
  return {ErrorNumber::fileNotFound, text};
}

}  // namespace

Printing::Printing() : metrics_(std::make_unique<QtMetrics>()) {}

Printing::~Printing() = default;

std::optional<int> Printing::askCopies() {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  QPrintDialog dialog(printer.get(), QApplication::activeWindow());
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const int copies = printer->copyCount();
  printer->setCopyCount(1);  // each copy is a separate document
  file_ = programText(printer->outputFileName());
  documents_ = 0;
  printer_ = std::move(printer);
  return copies;
}

std::unique_ptr<PageSurface> Printing::beginDocument() {
  if (!printer_) return nullptr;
  nameNext();
  auto layout = std::make_unique<PageLayout>(*metrics_, paperOf(*printer_));
  layout->onEnd = [this](const PageLayout& done) {
    deliver([this, &done](QPainter& painter) {
      int page = 0;
      for (const PlacedText& text : done.texts()) {
        for (; page < text.page; ++page)
          printer_->newPage();
        painter.setFont(fontOf(text.font));
        painter.drawText(QPointF(text.x, text.y), qText(text.text));
      }
    });
  };
  return layout;
}

void Printing::print(const PlacedPages& pages) {
  if (!printer_ || !pages.pages) return;
  nameNext();
  deliver([this, &pages](QPainter& painter) {
    const QSizeF paper = printer_->paperRect(QPrinter::Point).size();
    bool first = true;
    for (const Drawing& page : *pages.pages) {
      if (!std::exchange(first, false)) printer_->newPage();
      const double factor = std::min(paper.width() / page.width, paper.height() / page.height);
      painter.save();
      painter.translate((paper.width() - page.width * factor) / 2,
                        (paper.height() - page.height * factor) / 2);
      painter.scale(factor, factor);
      paintPage(painter, page, pageMeasure_);
      painter.restore();
    }
  });
}

void Printing::nameNext() {
  if (++documents_ > 1 && !file_.empty()) printer_->setOutputFileName(numbered(qText(file_), documents_));
}

void Printing::deliver(const Paint& paintDocument) {
  const QString file = printer_->outputFileName();
  if (file_.empty()) {
    paint(paintDocument,
          "The printer " + programText(printer_->printerName()) + " does not take the report.");
    return;
  }
  if (isDevice(file)) {
    paint(paintDocument, "The file " + programText(file) + " cannot be written.");
    return;
  }
  // Qt writes into a file piece by piece. The report is replaced completely or not at all.
  const QTemporaryDir work;
  const std::string fault = "The file " + programText(file) + " cannot be written: the report cannot be " +
                            "prepared in " + programText(QDir::tempPath()) + ", which may be full.";
  const QString suffix = QFileInfo(file).suffix();  // decides the format
  const QString copy =
      work.filePath(suffix.isEmpty() ? QStringLiteral("report") : QStringLiteral("report.") + suffix);
  printer_->setOutputFileName(copy);
  paint(paintDocument, fault);
  QFile painted(copy);
  if (!painted.open(QIODevice::ReadOnly)) throw cannotPrint(fault);
  const QByteArray bytes = painted.readAll();
  // Qt does not report a full disk.
  if (printer_->outputFormat() == QPrinter::PdfFormat && !bytes.trimmed().endsWith("%%EOF"))
    throw cannotPrint(fault);
  writeFile(pathOf(programText(file)),
            std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

void Printing::paint(const Paint& paintDocument, const std::string& fault) {
  printer_->setFullPage(true);
  QPainter painter;
  if (!painter.begin(printer_.get())) throw cannotPrint(fault);
  painter.scale(printer_->resolution() / pointsPerInch, printer_->resolution() / pointsPerInch);
  paintDocument(painter);
  if (!painter.end()) throw cannotPrint(fault);
}

}  // namespace verdalis::desktop
