#include "cli/script/ScriptServices.h"

#include <array>
#include <utility>
#include <vector>

#include "cli/TerminalServices.h"
#include "cli/output.h"
#include "cli/report/reportDocument.h"
#include "platform/paths.h"

namespace verdalis {
namespace {

using Json = nlohmann::ordered_json;

const char* iconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::critical:
      return "critical";
    case MessageIcon::question:
      return "question";
    case MessageIcon::exclamation:
      return "exclamation";
    case MessageIcon::information:
      return "information";
    case MessageIcon::none:
      break;
  }
  return "none";
}

constexpr std::array<std::pair<const char*, MessageAnswer>, 6> answerNames{{
    {"ok", MessageAnswer::ok},
    {"yes", MessageAnswer::yes},
    {"no", MessageAnswer::no},
    {"cancel", MessageAnswer::cancel},
    {"save", MessageAnswer::save},
    {"discard", MessageAnswer::discard},
}};

const char* answerName(MessageAnswer answer) {
  for (const auto& [name, value] : answerNames) {
    if (value == answer) return name;
  }
  return "";
}

std::vector<MessageAnswer> answersOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::yesNo:
      return {MessageAnswer::yes, MessageAnswer::no};
    case MessageButtons::yesNoCancel:
      return {MessageAnswer::yes, MessageAnswer::no, MessageAnswer::cancel};
    case MessageButtons::saveDiscardCancel:
      return {MessageAnswer::save, MessageAnswer::discard, MessageAnswer::cancel};
    case MessageButtons::ok:
      break;
  }
  return {MessageAnswer::ok};
}

template <class Queue>
auto takeFirst(Queue& queue) {
  auto first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

std::optional<MessageAnswer> answerNamed(const std::string& name) {
  for (const auto& [known, value] : answerNames) {
    if (name == known) return value;
  }
  return std::nullopt;
}

Json ScriptServices::takeMessages() {
  return std::exchange(messages_, Json::array());
}

Json ScriptServices::takeOpened() {
  return std::exchange(opened_, Json::array());
}

void ScriptServices::noteShown(const std::string& title, const std::string& text, int height) {
  opened_.push_back({{"kind", "note"}, {"title", title}, {"text", text}, {"height", height}});
}

MessageAnswer ScriptServices::show(const Message& message) {
  const std::vector<MessageAnswer> offered = answersOf(message.buttons);
  MessageAnswer answer = offered.front();
  if (!answers.empty()) {
    // An answer that the box does not offer is used up, and the first button is pressed.
    const MessageAnswer wanted = takeFirst(answers);
    for (const MessageAnswer possible : offered) {
      if (possible == wanted) answer = wanted;
    }
  }
  Json buttons = Json::array();
  for (const MessageAnswer possible : offered)
    buttons.push_back(answerName(possible));
  messages_.push_back({{"title", message.title},
                       {"text", message.text},
                       {"icon", iconName(message.icon)},
                       {"buttons", std::move(buttons)},
                       {"answer", answerName(answer)}});
  return answer;
}

std::optional<std::filesystem::path> ScriptServices::chooseOpen(const FileQuestion& /*question*/) {
  if (choices.empty()) return std::nullopt;
  const std::string path = takeFirst(choices);
  if (path.empty()) return std::nullopt;
  return pathOf(path);
}

std::optional<std::filesystem::path> ScriptServices::chooseSave(const FileQuestion& question) {
  std::optional<std::filesystem::path> path = chooseOpen(question);
  if (path && !path->has_extension() && !question.defaultExtension.empty()) {
    path->replace_extension(question.defaultExtension);
  }
  return path;
}

void ScriptServices::showTopic(const std::string& topic) {
  opened_.push_back({{"kind", "topic"}, {"what", topic}});
}

bool ScriptServices::open(const std::filesystem::path& path) {
  opened_.push_back({{"kind", "file"}, {"what", path.string()}});
  return true;
}

ClockTime ScriptServices::now() const {
  return fixedTime ? *fixedTime : localTime();
}

std::optional<int> ScriptServices::askCopies() {
  if (prints.empty()) return std::nullopt;
  const auto [path, copies] = takeFirst(prints);
  printPath_ = path;
  printed_ = 0;
  return copies;
}

std::unique_ptr<PageSurface> ScriptServices::beginDocument() {
  const std::filesystem::path path = copyPath(printPath_, ++printed_);
  return reportDocument(path, [path](const std::string& bytes) { deliverToFile(bytes, path.string()); });
}

std::string ScriptServices::pdfOf(const PlacedPages& pages) {
  return drawPages(*pages.pages, pages.title, pages.author);
}

void ScriptServices::printPages(const PlacedPages& pages) {
  deliverToFile(pdfOf(pages), copyPath(printPath_, ++printed_).string());
}

}  // namespace verdalis
