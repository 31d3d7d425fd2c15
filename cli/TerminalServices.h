#pragma once

#include <optional>
#include <string>
#include <utility>

#include "cli/Messages.h"
#include "controls/services.h"

namespace verdalis {

/// The platform services of a command without a user: messages of the program are written to standard error,
/// and every request is cancelled.
class TerminalServices : public MessageBoxService,
                         public FileChooserService,
                         public ClipboardService,
                         public HelpService,
                         public OpenFileService,
                         public ClockService,
                         public EventPumpService,
                         public PrinterService,
                         public BackgroundService {
 public:
  explicit TerminalServices(Messages& messages) : messages_(messages) {}

  [[nodiscard]] Services services() {
    return {*this, *this, *this, *this, *this, *this, *this, *this, *this};
  }

  /// The first message since the last call that refuses an input. These messages are not shown; they end the
  /// command.
  [[nodiscard]] std::optional<std::string> takeRefusal() { return std::exchange(refusal_, std::nullopt); }

  MessageAnswer show(const Message& message) override;
  std::optional<std::filesystem::path> chooseOpen(const FileQuestion&) override { return std::nullopt; }
  std::optional<std::filesystem::path> chooseSave(const FileQuestion&) override { return std::nullopt; }
  void clear() override {}
  void setText(const std::string&) override {}
  [[nodiscard]] std::string text() const override { return {}; }
  void showTopic(const std::string&) override {}
  bool open(const std::filesystem::path&) override { return false; }
  [[nodiscard]] ClockTime now() const override;
  void pump() override {}
  std::optional<int> askCopies() override { return std::nullopt; }
  std::unique_ptr<PageSurface> beginDocument() override { return nullptr; }

  /// Does nothing: nobody looks at the pages that ask for work.
  void run(const std::function<void()>&, const std::function<void()>&) override {}

 private:
  Messages& messages_;
  std::optional<std::string> refusal_;
};

/// The local time of day.
[[nodiscard]] ClockTime localTime();

}  // namespace verdalis
