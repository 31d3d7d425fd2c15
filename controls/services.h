#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "charts/Drawing.h"

namespace verdalis {

// Services of the platform. The desktop window implements them with Qt; the command line answers them from a
// script.

/// The purpose of a message. The icon alone does not tell it.
enum class MessageKind {
  notice,    ///< Information, or something to do first
  refusal,   ///< An input is rejected; a caller that cannot ask for another one stops
  question,  ///< The answer decides what happens next
  failure    ///< An operation failed
};
enum class MessageIcon { none, critical, question, exclamation, information };
enum class MessageButtons { ok, yesNo, yesNoCancel, saveDiscardCancel };
enum class MessageAnswer { ok, yes, no, cancel, save, discard };

/// The title of a box that has no title of its own: the name of the program.
inline constexpr const char* defaultTitle = "Verdalis";

struct Message {
  std::string title;
  std::string text;  ///< Lines are separated by "\n"
  MessageKind kind = MessageKind::notice;
  MessageIcon icon = MessageIcon::none;
  MessageButtons buttons = MessageButtons::ok;
};

class MessageBoxService {
 public:
  virtual ~MessageBoxService() = default;

  /// Shows the box and waits for the answer.
  virtual MessageAnswer show(const Message& message) = 0;
};

struct FileQuestion {
  std::string title;
  std::filesystem::path folder;
  std::string filter;              ///< Such as "Excel Worksheet (*.xls)|*.xls"
  std::string defaultExtension;    ///< Without the dot; added when saving under a name without extension
  std::string suggestedName = {};  ///< Proposed when saving; in the documents folder if `folder` is empty
};

class FileChooserService {
 public:
  virtual ~FileChooserService() = default;

  /// \returns the chosen path; nothing if the user cancels.
  virtual std::optional<std::filesystem::path> chooseOpen(const FileQuestion& question) = 0;
  virtual std::optional<std::filesystem::path> chooseSave(const FileQuestion& question) = 0;
};

class ClipboardService {
 public:
  virtual ~ClipboardService() = default;
  virtual void clear() = 0;
  virtual void setText(const std::string& text) = 0;
  [[nodiscard]] virtual std::string text() const = 0;
};

class HelpService {
 public:
  virtual ~HelpService() = default;

  /// Shows a topic, such as "mainInput.htm#TotalAcres". A missing topic shows nothing.
  virtual void showTopic(const std::string& topic) = 0;
};

class OpenFileService {
 public:
  virtual ~OpenFileService() = default;

  /// Opens a file with the desktop's default program for it.
  /// \returns whether it was opened.
  virtual bool open(const std::filesystem::path& path) = 0;
};

/// A local date and time.
struct ClockTime {
  int year = 1970;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;

  [[nodiscard]] long secondsSinceMidnight() const { return hour * 3600L + minute * 60L + second; }
};

class ClockService {
 public:
  virtual ~ClockService() = default;
  [[nodiscard]] virtual ClockTime now() const = 0;
};

class EventPumpService {
 public:
  virtual ~EventPumpService() = default;

  /// Processes the pending events of the user interface.
  virtual void pump() = 0;
};

/// A document being printed. Texts are placed one after the other in the current font.
class PageSurface {
 public:
  virtual ~PageSurface() = default;
  virtual void setFontSize(double points) = 0;
  virtual void setBold(bool on) = 0;
  virtual void setItalic(bool on) = 0;
  virtual void setUnderline(bool on) = 0;

  /// Sets where the next text begins: twentieths of a point from the left edge of the printable area.
  virtual void setCurrentX(double position) = 0;
  virtual void print(const std::string& text) = 0;
  virtual void printLine(const std::string& text) = 0;

  /// Finishes the document.
  virtual void endDocument() = 0;
};

/// Pages that are laid out, in points; see layOutPages().
struct PlacedPages {
  std::shared_ptr<const std::vector<Drawing>> pages;
  std::string title;   ///< Of the document
  std::string author;  ///< Empty if it is not known
};

/// A rough measure, where no font is known: all letters are equally wide.
class RoughMeasure : public TextMeasure {
 public:
  [[nodiscard]] double size() const override { return 9; }
  [[nodiscard]] double width(const std::string& text, double size, bool bold) const override {
    return static_cast<double>(text.size()) * size * (bold ? 0.62 : 0.56);
  }
};

class PrinterService {
 public:
  virtual ~PrinterService() = default;

  /// Asks for the printer and the number of copies.
  /// \returns the number of copies; nothing if the user cancels.
  virtual std::optional<int> askCopies() = 0;

  /// Starts a new document.
  virtual std::unique_ptr<PageSurface> beginDocument() = 0;

  /// Measures the texts of pages that this printer prints.
  [[nodiscard]] virtual const TextMeasure& pageMeasure() const {
    static const RoughMeasure measure;
    return measure;
  }

  /// Pages as the bytes of a PDF file.
  /// \throws RunTimeError if it cannot be made
  [[nodiscard]] virtual std::string pdfOf(const PlacedPages& /*pages*/) { return {}; }

  /// Prints pages as a document on the printer that was asked for last.
  /// \throws RunTimeError if they cannot be printed
  virtual void printPages(const PlacedPages& /*pages*/) {}
};

/// Runs work that takes long beside the actions of the user.
class BackgroundService {
 public:
  virtual ~BackgroundService() = default;

  /// Runs `work`, which may be on another thread and must not throw or touch a control, and then `done` on
  /// the calling thread, between two actions. Without another thread both run at once.
  virtual void run(const std::function<void()>& work, const std::function<void()>& done) {
    work();
    done();
  }
};

/// All services of the platform.
struct Services {
  MessageBoxService& messageBox;
  FileChooserService& fileChooser;
  ClipboardService& clipboard;
  HelpService& help;
  OpenFileService& openFile;
  ClockService& clock;
  EventPumpService& eventPump;
  PrinterService& printer;
  BackgroundService& background;
};

}  // namespace verdalis
