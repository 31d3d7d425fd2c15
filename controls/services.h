#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace verdalis {

// What the platform does for the program. The window carries these out with its toolkit, a script with its
// answers.

/// What a message is about, which its icon does not tell.
enum class MessageKind {
  notice,    ///< Something to know, or to see to first
  refusal,   ///< An input is not accepted; who cannot ask for another one stops with it
  question,  ///< The answer decides how it goes on
  failure    ///< Something did not work
};
enum class MessageIcon { none, critical, question, exclamation, information };
enum class MessageButtons { ok, yesNo, yesNoCancel };
enum class MessageAnswer { ok, yes, no, cancel };

/// A box without a title of its own has the name of the program.
inline constexpr const char* defaultTitle = "Verdalis";

struct Message {
  std::string title;
  std::string text;  ///< Lines are parted by "\n"
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
  std::string filter;            ///< Such as "Excel Worksheet (*.xls)|*.xls"
  std::string defaultExtension;  ///< Added to a saved name that has none; without the point
};

class FileChooserService {
 public:
  virtual ~FileChooserService() = default;

  /// The chosen path; nothing when the person cancels.
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

  /// Shows a topic, such as "mainInput.htm#TotalAcres"; one that is missing shows nothing.
  virtual void showTopic(const std::string& topic) = 0;
};

class OpenFileService {
 public:
  virtual ~OpenFileService() = default;

  /// Opens a file with the desktop's program for it.
  /// \returns whether that worked.
  virtual bool open(const std::filesystem::path& path) = 0;
};

/// A moment of the local time of day.
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

  /// Serves the events that are waiting.
  virtual void pump() = 0;
};

/// A page surface: texts are placed one after the other, in the font that is set.
class PageSurface {
 public:
  virtual ~PageSurface() = default;
  virtual void setFontSize(double points) = 0;
  virtual void setBold(bool on) = 0;
  virtual void setItalic(bool on) = 0;
  virtual void setUnderline(bool on) = 0;

  /// Where the next text begins, in twentieths of a point from the left edge of the printable area.
  virtual void setCurrentX(double position) = 0;
  virtual void print(const std::string& text) = 0;
  virtual void printLine(const std::string& text) = 0;

  /// The document is complete.
  virtual void endDocument() = 0;
};

class PrinterService {
 public:
  virtual ~PrinterService() = default;

  /// Asks for printer and copies. Nothing when the person cancels.
  virtual std::optional<int> askCopies() = 0;

  /// The surface of a new document.
  virtual std::unique_ptr<PageSurface> beginDocument() = 0;
};

/// All services together, handed to those who need them.
struct Services {
  MessageBoxService& messageBox;
  FileChooserService& fileChooser;
  ClipboardService& clipboard;
  HelpService& help;
  OpenFileService& openFile;
  ClockService& clock;
  EventPumpService& eventPump;
  PrinterService& printer;
};

}  // namespace verdalis
