#include "cli/script/ScriptSession.h"

#include <charconv>
#include <cstdio>
#include <istream>
#include <map>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <utility>

#include "cli/script/controlState.h"
#include "controls/ChartBox.h"
#include "controls/Grid.h"
#include "controls/Table.h"

namespace verdalis {
namespace {

/// A command that cannot be executed, with the reason.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Removes the first word and one blank after it from the front of a text.
std::string takeWord(std::string_view& rest) {
  const std::size_t blank = rest.find(' ');
  std::string word(rest.substr(0, blank));
  rest.remove_prefix(blank == std::string_view::npos ? rest.size() : blank + 1);
  return word;
}

/// Replaces \n, \t, \r and \\ in a text; any other backslash stays.
std::string unescape(std::string_view text) {
  static const std::map<char, char> escapes{{'n', '\n'}, {'t', '\t'}, {'r', '\r'}, {'\\', '\\'}};
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto escape = text[i] == '\\' && i + 1 < text.size() ? escapes.find(text[i + 1]) : escapes.end();
    if (escape == escapes.end()) {
      result += text[i];
    } else {
      result += escape->second;
      ++i;
    }
  }
  return result;
}

std::optional<int> asWholeNumber(std::string_view text) {
  int value = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || stop != text.data() + text.size()) return std::nullopt;
  return value;
}

int wholeNumber(const std::string& text, const char* what) {
  if (const std::optional<int> value = asWholeNumber(text)) return *value;
  throw ScriptError(std::string(what) + " is no whole number: " + text);
}

constexpr std::size_t longestLine = 16U << 20U;  // bytes; larger than any table that a grid has room for

/// Reads a line; of a line that is too long only the first longestLine bytes.
/// \returns whether there was a line.
bool readLine(std::istream& in, std::string& line, bool& tooLong) {
  line.clear();
  tooLong = false;
  bool any = false;
  for (int byte = in.get(); byte != std::istream::traits_type::eof(); byte = in.get()) {
    any = true;
    if (byte == '\n') break;
    tooLong = line.size() == longestLine;
    if (!tooLong) line += static_cast<char>(byte);
  }
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return any;
}

constexpr int mostCopies = 999;

/// A path, which may contain blanks, and the number of copies if one follows it.
std::pair<std::string, int> printAnswer(std::string_view text) {
  while (!text.empty() && text.back() == ' ')
    text.remove_suffix(1);
  int copies = 1;
  const std::size_t blank = text.rfind(' ');
  if (blank != std::string_view::npos && isNumeric(text.substr(blank + 1))) {
    copies = wholeNumber(std::string(text.substr(blank + 1)), "The number of copies");
    if (copies < 1 || copies > mostCopies) {
      throw ScriptError("The number of copies must be from 1 to " + std::to_string(mostCopies));
    }
    text = text.substr(0, blank);
  }
  if (text.empty()) throw ScriptError("There is no path to print to");
  return {std::string(text), copies};
}

std::size_t characters(std::string_view text) {
  std::size_t count = 0;
  for (const char byte : text) {
    if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80U) ++count;
  }
  return count;
}

}  // namespace

ScriptSession::ScriptSession(ProgramFiles files)
    : services_(platform_.services()), program_(services_, files), recovers_(files.recovers) {
  program_.windows.onCreated.connect([this](Window& window) {
    if (auto* updating = dynamic_cast<frmUpdating*>(&window)) watchProgress(*updating);
    if (auto* help = dynamic_cast<frmHelp*>(&window)) {
      help->onNote.connect(
          [this](const HelpNote& note) { platform_.noteShown(note.title, note.text, note.height); });
    }
  });
}

bool ScriptSession::replay(std::istream& in, std::ostream& out) {
  bool allDone = true;
  bool tooLong = false;
  for (std::string line; out && readLine(in, line, tooLong);) {
    const std::size_t begin = line.find_first_not_of(" \t");
    if (begin == std::string::npos || line.front() == '#') continue;
    const Json answer = tooLong ? Json{{"ok", false}, {"error", "The line is too long"}}
                                : execute(std::string_view(line).substr(begin));
    if (!answer.at("ok").get<bool>()) allDone = false;
    out << answer.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n' << std::flush;
  }
  return allDone;
}

nlohmann::ordered_json ScriptSession::execute(std::string_view line) {
  Json answer;
  const std::string command = takeWord(line);
  try {
    answer["ok"] = true;
    answer.update(carryOut(command, line));
  } catch (const ScriptError& error) {
    answer = {{"ok", false}, {"error", error.what()}};
  }
  if (recovers_ && program_.hasMain() && program_.main().isOpen()) program_.main().farms.recover();
  Json messages = platform_.takeMessages();
  if (!messages.empty()) answer["messages"] = std::move(messages);
  return answer;
}

nlohmann::ordered_json ScriptSession::carryOut(const std::string& command, std::string_view rest) {
  if (command == "controls") return {{"controls", listControls(program_.desk)}};
  if (command == "quit") {
    quit();
    return Json::object();
  }
  if (command == "clipboard") {
    platform_.setText(unescape(rest));
    return Json::object();
  }
  if (command == "choose") {
    platform_.choices.push_back(unescape(rest));
    return Json::object();
  }
  if (command == "print") {
    platform_.prints.push_back(printAnswer(rest));
    return Json::object();
  }
  const std::string name = takeWord(rest);
  if (command == "get") return get(name);
  if (command == "click") {
    click(name);
  } else if (command == "type") {
    type(name, unescape(rest));
  } else if (command == "leave") {
    leave(name);
  } else if (command == "scroll") {
    reach<ScrollBar>(name, "scrolled").scroll(wholeNumber(std::string(rest), "The position"));
  } else if (command == "pick") {
    pick(name, unescape(rest));
  } else if (command == "cell") {
    const int row = wholeNumber(takeWord(rest), "The row");
    Grid& grid = reach<Grid>(name, "clicked at a cell");
    const int column = wholeNumber(std::string(rest), "The column");
    if (row < 0 || row >= grid.rows() || column < 0 || column >= grid.columns()) {
      throw ScriptError(name + " has no such cell");
    }
    grid.clickCell(row, column);
  } else if (command == "row") {
    const int place = wholeNumber(std::string(rest), "The place");
    Table& table = reach<Table>(name, "asked for a row");
    if (place < 0 || static_cast<std::size_t>(place) >= table.places()) {
      throw ScriptError(name + " has no such row");
    }
    table.choose(static_cast<std::size_t>(place));
  } else if (command == "point") {
    const int index = wholeNumber(std::string(rest), "The point");
    ChartBox& box = reach<ChartBox>(name, "pointed at");
    if (index < 0 || !box.chart() || !canPick(*box.chart(), static_cast<std::size_t>(index))) {
      throw ScriptError(name + " has no such point");
    }
    box.pick(static_cast<std::size_t>(index));
  } else if (command == "sort") {
    const int column = wholeNumber(std::string(rest), "The column");
    Table& table = reach<Table>(name, "sorted");
    if (column < 0 || static_cast<std::size_t>(column) >= table.columns().size() ||
        !table.columns()[static_cast<std::size_t>(column)].sorts) {
      throw ScriptError(name + " has no such column to sort by");
    }
    table.clickHeading(static_cast<std::size_t>(column));
  } else if (command == "key") {
    key(name, unescape(rest));
  } else if (command == "answer") {
    const auto answer = answerNamed(name);
    if (!answer) throw ScriptError("There is no button " + name);
    platform_.answers.push_back(*answer);
  } else if (command == "clock") {
    setClock(name);
  } else if (command == "cancel") {
    const int steps = wholeNumber(name, "The number of steps");
    if (steps < 1) throw ScriptError("The number of steps must be 1 or more");
    cancelAfter_ = steps;
  } else {
    throw ScriptError("There is no command " + command);
  }
  return Json::object();
}

nlohmann::ordered_json ScriptSession::get(const std::string& what) {
  if (what == "clipboard") return {{"clipboard", platform_.text()}};
  if (what == "opened") return {{"opened", platform_.takeOpened()}};
  if (what == "windows") {
    Json windows = Json::array();
    for (const Window* window : program_.desk.windows()) {
      if (window->isOpen()) windows.push_back(window->name());
    }
    return {{"windows", std::move(windows)}};
  }
  if (what == "pane") {
    if (!program_.hasMain()) throw ScriptError("The main window has not been opened yet");
    const PaneStack& panes = program_.main().panes;
    Json history = Json::array();
    for (const Frame* pane : panes.history())
      history.push_back(pane->name());
    return {{"pane", panes.top().name()}, {"history", std::move(history)}};
  }
  return controlState(find(what), what);
}

Control& ScriptSession::find(const std::string& name) {
  Control* control = program_.desk.find(name == "mnuFile" ? "mnuTools(0)" : name);
  if (control == nullptr) throw ScriptError("There is no control " + name);
  return *control;
}

template <class Kind>
Kind& ScriptSession::reach(const std::string& name, const char* whatFor) {
  Control& control = find(name);
  auto* found = dynamic_cast<Kind*>(&control);
  if (found == nullptr) throw ScriptError(name + " cannot be " + whatFor);
  if (!control.isReachable()) throw ScriptError(name + " cannot be reached: it is hidden or disabled");
  return *found;
}

void ScriptSession::click(const std::string& name) {
  Control& control = find(name);
  if (!control.isReachable()) throw ScriptError(name + " cannot be reached: it is hidden or disabled");
  if (auto* button = dynamic_cast<Button*>(&control)) return button->click();
  if (auto* entry = dynamic_cast<MenuEntry*>(&control)) {
    if (entry->menu() != nullptr && !entry->menu()->isReachable()) {
      throw ScriptError(name + " cannot be reached: its menu is hidden or disabled");
    }
    return entry->click();
  }
  if (auto* box = dynamic_cast<CheckBox*>(&control)) return box->click();
  if (auto* button = dynamic_cast<OptionButton*>(&control)) return button->click();
  if (auto* window = dynamic_cast<Window*>(&control)) return window->click();
  throw ScriptError(name + " cannot be clicked");
}

void ScriptSession::leave(const std::string& name) {
  Control& control = find(name);
  if (program_.desk.focus() != &control) {
    // A control can only be left if it can be entered.
    if (!control.isReachable()) throw ScriptError(name + " cannot be left: it is hidden or disabled");
    control.enter();
  }
  control.leave();
}

void ScriptSession::type(const std::string& name, const std::string& text) {
  if (auto* combo = dynamic_cast<ComboBox*>(&find(name))) {
    if (combo->style() != ComboBox::Style::freeText) throw ScriptError(name + " takes no typed text");
    return reach<ComboBox>(name, "typed into").type(text);
  }
  reach<TextBox>(name, "typed into").type(text);
}

void ScriptSession::pick(const std::string& name, const std::string& entry) {
  ComboBox& combo = reach<ComboBox>(name, "picked from");
  int index = -1;
  if (entry.starts_with('#') && asWholeNumber(std::string_view(entry).substr(1))) {
    index = *asWholeNumber(std::string_view(entry).substr(1));
  } else {
    for (std::size_t i = combo.items().size(); i-- > 0;) {
      if (combo.items()[i] == entry) index = static_cast<int>(i);
    }
  }
  if (index < 0 || static_cast<std::size_t>(index) >= combo.items().size()) {
    throw ScriptError(name + " has no entry " + entry);
  }
  combo.pick(index);
}

void ScriptSession::key(const std::string& name, const std::string& key) {
  static const std::map<std::string, GridKey> keys{
      {"Return", GridKey::enter}, {"Backspace", GridKey::backspace}, {"Delete", GridKey::erase},
      {"Ctrl+C", GridKey::copy},  {"Ctrl+V", GridKey::paste},        {"Ctrl+X", GridKey::cut}};
  Grid& grid = reach<Grid>(name, "typed into");
  const auto known = keys.find(key);
  if (known != keys.end()) {
    grid.pressKey(known->second);
  } else if (characters(key) == 1) {
    grid.typeCharacter(key);
  } else {
    throw ScriptError("There is no key " + key);
  }
}

void ScriptSession::setClock(const std::string& text) {
  ClockTime time;
  constexpr std::size_t length = 19;
  char tail = '\0';
  if (text.size() != length || std::sscanf(text.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d%c", &time.year, &time.month,
                                           &time.day, &time.hour, &time.minute, &time.second, &tail) != 6) {
    throw ScriptError("The time is not written as YYYY-MM-DDTHH:MM:SS: " + text);
  }
  const auto outside = [](int value, int low, int high) { return value < low || value > high; };
  if (outside(time.month, 1, 12) || outside(time.day, 1, 31) || outside(time.hour, 0, 23) ||
      outside(time.minute, 0, 59) || outside(time.second, 0, 59)) {
    throw ScriptError("There is no such time: " + text);
  }
  platform_.fixedTime = time;
}

void ScriptSession::watchProgress(frmUpdating& window) {
  window.ProgressBar.onStateChange.connect([this, &window] {
    // Presses Cancel only once, even if further steps follow before the run notices.
    if (cancelAfter_ > 0 && window.isOpen() && window.ProgressBar.value() >= cancelAfter_) {
      cancelAfter_ = 0;
      window.Command1.click();
    }
  });
  window.onStateChange.connect([this, &window] {
    if (!window.isOpen()) cancelAfter_ = 0;
  });
}

void ScriptSession::quit() {
  if (!program_.hasMain() || !program_.main().isOpen()) throw ScriptError("The main window is not open");
  program_.main().closeByUser();
}

}  // namespace verdalis
