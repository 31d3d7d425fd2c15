#pragma once

#include <deque>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "controls/services.h"
#include "pdf/drawHandout.h"

namespace verdalis {

/// The platform services of a replayed session: queued answers, and a record of what was shown.
class ScriptServices : public MessageBoxService,
                       public FileChooserService,
                       public ClipboardService,
                       public HelpService,
                       public OpenFileService,
                       public ClockService,
                       public EventPumpService,
                       public PrinterService,
                       public BackgroundService {
 public:
  [[nodiscard]] Services services() {
    return {*this, *this, *this, *this, *this, *this, *this, *this, *this};
  }

  std::deque<MessageAnswer> answers;  ///< For the next message boxes
  std::deque<std::string> choices;    ///< Of the next file choosers; an empty one cancels
  std::deque<std::pair<std::string, int>>
      prints;  ///< Paths and numbers of copies, for the next print dialogs
  std::optional<ClockTime> fixedTime;

  /// The message boxes since the last call, as the script reports them.
  [[nodiscard]] nlohmann::ordered_json takeMessages();

  /// What the program opened since the last call.
  [[nodiscard]] nlohmann::ordered_json takeOpened();

  /// Records a note window that was shown.
  void noteShown(const std::string& title, const std::string& text, int height);

  MessageAnswer show(const Message& message) override;
  std::optional<std::filesystem::path> chooseOpen(const FileQuestion& question) override;
  std::optional<std::filesystem::path> chooseSave(const FileQuestion& question) override;
  void clear() override { clipboard_.clear(); }
  void setText(const std::string& text) override { clipboard_ = text; }
  [[nodiscard]] std::string text() const override { return clipboard_; }
  void showTopic(const std::string& topic) override;
  bool open(const std::filesystem::path& path) override;
  [[nodiscard]] ClockTime now() const override;
  void pump() override {}
  std::optional<int> askCopies() override;
  std::unique_ptr<PageSurface> beginDocument() override;
  [[nodiscard]] const TextMeasure& pageMeasure() const override { return measure_; }
  [[nodiscard]] std::string pdfOf(const PlacedPages& pages) override;
  void printPages(const PlacedPages& pages) override;

 private:
  nlohmann::ordered_json messages_ = nlohmann::ordered_json::array();
  nlohmann::ordered_json opened_ = nlohmann::ordered_json::array();
  std::string clipboard_;
  std::filesystem::path printPath_;  ///< The answer to the last print dialog
  int printed_ = 0;                  ///< Number of its documents so far
  PdfMeasure measure_;
};

/// The answer with the name ok, yes, no, cancel, save or discard.
[[nodiscard]] std::optional<MessageAnswer> answerNamed(const std::string& name);

}  // namespace verdalis
