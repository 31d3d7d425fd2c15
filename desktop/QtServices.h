#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "controls/services.h"
#include "desktop/Printing.h"
#include "desktop/QtBackground.h"

namespace verdalis::desktop {

class HelpViewer;

/// The platform's services, implemented with Qt.
class QtServices : public MessageBoxService,
                   public FileChooserService,
                   public ClipboardService,
                   public HelpService,
                   public OpenFileService,
                   public ClockService,
                   public EventPumpService,
                   public PrinterService {
 public:
  /// \param helpFolder folder of the help topics.
  explicit QtServices(const QString& helpFolder);
  ~QtServices() override;

  [[nodiscard]] Services services() {
    return {*this, *this, *this, *this, *this, *this, *this, *this, background_};
  }

  [[nodiscard]] QtBackground& background() { return background_; }

  /// The help window; created on first use.
  [[nodiscard]] HelpViewer& help();

  MessageAnswer show(const Message& message) override;
  std::optional<std::filesystem::path> chooseOpen(const FileQuestion& question) override;
  std::optional<std::filesystem::path> chooseSave(const FileQuestion& question) override;
  void clear() override;
  void setText(const std::string& text) override;
  [[nodiscard]] std::string text() const override;
  void showTopic(const std::string& topic) override;
  bool open(const std::filesystem::path& path) override;
  [[nodiscard]] ClockTime now() const override;
  void pump() override;
  std::optional<int> askCopies() override;
  std::unique_ptr<PageSurface> beginDocument() override;
  [[nodiscard]] const TextMeasure& pageMeasure() const override { return printing_.pageMeasure(); }
  [[nodiscard]] std::string pdfOf(const PlacedPages& pages) override;
  void printPages(const PlacedPages& pages) override { printing_.print(pages); }

 private:
  QString helpFolder_;
  std::unique_ptr<HelpViewer> help_;
  Printing printing_;
  QtBackground background_;
};

}  // namespace verdalis::desktop
