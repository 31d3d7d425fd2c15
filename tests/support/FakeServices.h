#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "controls/services.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {

// Platform services for tests. Each keeps a log of its calls and takes its answers from a queue.

/// Gives the next of `answers`; if empty, the first button of the box.
class FakeMessageBox : public MessageBoxService {
 public:
  std::vector<Message> log;
  std::deque<MessageAnswer> answers;
  std::function<void(const Message&)> onShow;  ///< Called while the box is open

  MessageAnswer show(const Message& message) override {
    log.push_back(message);
    if (onShow) onShow(message);
    if (answers.empty())
      return message.buttons == MessageButtons::ok ? MessageAnswer::ok : MessageAnswer::yes;
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }

  /// The boxes since the last call.
  [[nodiscard]] std::vector<Message> take() { return std::exchange(log, {}); }
};

/// Gives the next of `answers`; if empty, the chooser is cancelled.
class FakeFileChooser : public FileChooserService {
 public:
  std::vector<FileQuestion> openLog;
  std::vector<FileQuestion> saveLog;
  std::deque<std::optional<std::filesystem::path>> answers;

  std::optional<std::filesystem::path> chooseOpen(const FileQuestion& question) override {
    openLog.push_back(question);
    return next();
  }

  /// Adds the default extension to a name without one, like a real chooser.
  std::optional<std::filesystem::path> chooseSave(const FileQuestion& question) override {
    saveLog.push_back(question);
    std::optional<std::filesystem::path> path = next();
    if (path && !path->has_extension() && !question.defaultExtension.empty()) {
      path->replace_extension(question.defaultExtension);
    }
    return path;
  }

 private:
  std::optional<std::filesystem::path> next() {
    if (answers.empty()) return std::nullopt;
    std::optional<std::filesystem::path> answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

class FakeClipboard : public ClipboardService {
 public:
  std::string contents;
  std::vector<std::string> log;  ///< "clear", or "set " and the text

  void clear() override {
    log.emplace_back("clear");
    contents.clear();
  }
  void setText(const std::string& text) override {
    log.push_back("set " + text);
    contents = text;
  }
  [[nodiscard]] std::string text() const override { return contents; }
};

class FakeHelp : public HelpService {
 public:
  std::vector<std::string> topics;
  void showTopic(const std::string& topic) override { topics.push_back(topic); }
};

class FakeOpenFile : public OpenFileService {
 public:
  bool works = true;
  std::vector<std::filesystem::path> opened;

  bool open(const std::filesystem::path& path) override {
    opened.push_back(path);
    return works;
  }
};

/// A clock that stands still until the test sets it.
class FakeClock : public ClockService {
 public:
  ClockTime time{2024, 5, 6, 7, 8, 9};
  [[nodiscard]] ClockTime now() const override { return time; }
};

class FakeEventPump : public EventPumpService {
 public:
  long pumps = 0;
  std::function<void()> onPump;

  void pump() override {
    ++pumps;
    if (onPump) onPump();
  }
};

/// A text on a page, with its font.
struct FakePiece {
  std::string text;
  std::optional<double> position;  ///< Where the program placed it, in twentieths of a point; if absent, it
                                   ///< follows the previous text
  double fontSize = 0;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool endsLine = false;

  /// The letters "b", "i" and "u" for bold, italic and underline.
  [[nodiscard]] std::string marks() const {
    return std::string(bold ? "b" : "") + (italic ? "i" : "") + (underline ? "u" : "");
  }
};

struct FakeDocument {
  std::vector<FakePiece> pieces;
  bool ended = false;

  /// The lines of the page, with a tab before each placed piece.
  [[nodiscard]] std::vector<std::string> lines() const {
    std::vector<std::string> lines;
    std::string line;
    for (const FakePiece& piece : pieces) {
      if (piece.position) line += '\t';
      line += piece.text;
      if (piece.endsLine) lines.push_back(std::exchange(line, {}));
    }
    if (!line.empty()) lines.push_back(line);
    return lines;
  }
};

class FakePage : public PageSurface {
 public:
  explicit FakePage(std::shared_ptr<FakeDocument> document) : document_(std::move(document)) {}

  void setFontSize(double points) override { next_.fontSize = points; }
  void setBold(bool on) override { next_.bold = on; }
  void setItalic(bool on) override { next_.italic = on; }
  void setUnderline(bool on) override { next_.underline = on; }
  void setCurrentX(double position) override { next_.position = position; }
  void print(const std::string& text) override { add(text, false); }
  void printLine(const std::string& text) override { add(text, true); }
  void endDocument() override { document_->ended = true; }

 private:
  void add(const std::string& text, bool endsLine) {
    next_.text = text;
    next_.endsLine = endsLine;
    document_->pieces.push_back(next_);
    next_.position.reset();
  }

  std::shared_ptr<FakeDocument> document_;
  FakePiece next_;
};

/// Gives the next of `copies`; if empty, the dialog is cancelled.
class FakePrinter : public PrinterService {
 public:
  std::deque<std::optional<int>> copies;
  int asked = 0;
  std::vector<std::shared_ptr<FakeDocument>> documents;

  std::optional<int> askCopies() override {
    ++asked;
    if (copies.empty()) return std::nullopt;
    const std::optional<int> answer = copies.front();
    copies.pop_front();
    return answer;
  }

  std::unique_ptr<PageSurface> beginDocument() override {
    documents.push_back(std::make_shared<FakeDocument>());
    return std::make_unique<FakePage>(documents.back());
  }

  /// The pages that were printed. Printing fails if `failure` is set.
  std::vector<PlacedPages> printedPages;
  std::string failure;

  std::string pdfOf(const PlacedPages& pages) override {
    return "%PDF of " + std::to_string(pages.pages->size()) + " pages";
  }

  void printPages(const PlacedPages& pages) override {
    if (!failure.empty()) throw RunTimeError(ErrorNumber::fileNotFound, failure);
    printedPages.push_back(pages);
  }
};

/// Works at once, or keeps the work until the test asks for it.
class FakeBackground : public BackgroundService {
 public:
  struct Held {
    std::function<void()> work;
    std::function<void()> done;
  };
  bool holds = false;
  std::vector<Held> held;

  void run(const std::function<void()>& work, const std::function<void()>& done) override {
    if (holds) {
      held.push_back({work, done});
    } else {
      BackgroundService::run(work, done);
    }
  }

  void finish(std::size_t index) {
    const Held each = held[index];
    each.work();
    each.done();
  }
};

/// All fake services, and the `services` passed to the program.
struct FakeServices {
  FakeMessageBox messageBox;
  FakeFileChooser fileChooser;
  FakeClipboard clipboard;
  FakeHelp help;
  FakeOpenFile openFile;
  FakeClock clock;
  FakeEventPump eventPump;
  FakePrinter printer;
  FakeBackground background;
  Services services{messageBox, fileChooser, clipboard, help,      openFile,
                    clock,      eventPump,   printer,   background};
};

}  // namespace verdalis::testing
