#include "tests/main/RandomWalk.h"

#include <algorithm>
#include <array>

namespace verdalis::testing {
namespace {

constexpr int pumpsBeforeCancel = 15;  // a run that lasts longer is cancelled, as a person would
constexpr std::size_t longestStory = 60;

int below(std::mt19937& random, int n) {
  return static_cast<int>(random() % static_cast<unsigned>(n));
}

bool chance(std::mt19937& random, int percent) {
  return below(random, 100) < percent;
}

template <class List>
const auto& anyOf(std::mt19937& random, const List& list) {
  return list[random() % list.size()];
}

const std::vector<std::string>& oddTexts() {
  static const std::vector<std::string> texts{"",
                                              " ",
                                              "-",
                                              ".",
                                              "0",
                                              "0.4",
                                              "1",
                                              "5",
                                              "12",
                                              "16",
                                              "50",
                                              "85",
                                              "100",
                                              "101",
                                              "-5",
                                              "1,234.5",
                                              "12x",
                                              "1e3",
                                              "1e15",
                                              "1e300",
                                              "1e400",
                                              "-1e300",
                                              "1e-320",
                                              "32767",
                                              "40000",
                                              "99999999999999999999999",
                                              "0x10",
                                              "inf",
                                              "nan",
                                              "abc",
                                              "True",
                                              "Corn",
                                              "Fallow",
                                              "Valentine",
                                              "Electricity",
                                              "50,60,70",
                                              "1,,2",
                                              ",",
                                              "a/b\\c:d*?",
                                              "..",
                                              "\t5",
                                              "5\r\n6\t7",
                                              "\xC3\xA4\xE2\x82\xAC",
                                              "\xFF\xFE\x80",
                                              std::string("5\0006", 3),
                                              std::string(2000, '9'),
                                              std::string(20000, 'x'),
                                              std::string(5000, ',')};
  return texts;
}

std::string nameOf(const std::string& text) {
  constexpr std::size_t most = 40;
  return text.size() <= most ? text
                             : text.substr(0, most) + "... (" + std::to_string(text.size()) + " bytes)";
}

bool canBeUsed(const Control& control) {
  switch (control.kind()) {
    case ControlKind::Label:
    case ControlKind::Image:
    case ControlKind::Frame:
    case ControlKind::ProgressBar:
      return false;
    default:
      return control.isReachable();
  }
}

void collect(const Frame& frame, std::vector<Control*>& found) {
  for (Control* control : frame.controls()) {
    if (canBeUsed(*control)) found.push_back(control);
    if (const auto* inner = dynamic_cast<const Frame*>(control)) collect(*inner, found);
  }
}

}  // namespace

RandomWalk::RandomWalk() {
  running_.folder.write("values.txt", "50,60,70");
  running_.folder.write("noise.txt", std::string("\0\xFF,,\n9\r\x01", 8));
  running_.fakes.eventPump.onPump = [this] { duringARun(); };
  running_.fakes.background.holds = true;
  running_.start();
}

void RandomWalk::restart(Engine& random) {
  note("start");
  running_.begin();
  running_.press(chance(random, 50) ? "frmWelcome.Command1" : "frmWelcome.Command4");
}

void RandomWalk::act(std::uint32_t number) {
  Engine random(number);
  meanwhile_.seed(number + 1);
  pumps_ = 0;
  answerQuestion(random);
  if (running_.program->ended()) return restart(random);
  prepareAnswers(random);
  if (chance(random, 4)) return typeFarm(random);
  if (chance(random, 2)) return actOnWindow(random);
  const std::vector<Control*> controls = reachable();
  if (!controls.empty()) actOn(*choose(random, controls), random);
}

/// Lets the last question be answered at times. Large ones, such as a map, would take too long for a walk.
void RandomWalk::answerQuestion(Engine& random) {
  FakeBackground& background = running_.fakes.background;
  if (!background.held.empty() && !running_.program->ended() && chance(random, 30)) {
    const QuestionPanes& pages = running_.program->main().questions;
    const Frame& top = running_.program->main().panes.top();
    constexpr std::size_t mostDigits = 2;
    const bool few = &top != &pages.map && pages.water.txtPoints.text().size() <= mostDigits &&
                     pages.mixes.txtMixes.text().size() <= mostDigits;
    if (few) {
      note("(answer)");
      background.finish(background.held.size() - 1);
    }
  }
  background.held.clear();
}

/// There are many menus and "?" buttons and they are always reachable. Without a second draw they would be
/// chosen too often.
Control* RandomWalk::choose(Engine& random, const std::vector<Control*>& controls) {
  const auto isAside = [](const Control& control) {
    return control.kind() == ControlKind::MenuEntry || control.name().starts_with("cmdHelp(");
  };
  Control* control = anyOf(random, controls);
  for (int throws = 0; throws < 3 && isAside(*control); ++throws)
    control = anyOf(random, controls);
  return control;
}

std::vector<Control*> RandomWalk::reachable() const {
  std::vector<Control*> found;
  for (const Window* window : running_.program->desk.windows()) {
    if (window->isOpen()) collect(*window, found);
  }
  return found;
}

void RandomWalk::actOn(Control& control, Engine& random) {
  const std::string name = control.path();
  if (control.kind() != ControlKind::MenuEntry && chance(random, 5)) {
    note("leave " + name);
    control.enter();
    control.leave();
  } else if (auto* box = dynamic_cast<TextBox*>(&control)) {
    const std::string typed = text(random);
    note("type " + name + " " + nameOf(typed));
    box->type(typed);
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    if (combo->style() == ComboBox::Style::freeText && chance(random, 40)) {
      const std::string typed = text(random);
      note("type " + name + " " + nameOf(typed));
      combo->type(typed);
    } else if (!combo->items().empty()) {
      const int index = below(random, static_cast<int>(combo->items().size()));
      note("pick " + name + " #" + std::to_string(index));
      combo->pick(index);
    }
  } else if (auto* bar = dynamic_cast<ScrollBar*>(&control)) {
    const int value = below(random, 20000) - 1000;
    note("scroll " + name + " " + std::to_string(value));
    bar->scroll(value);
  } else if (auto* grid = dynamic_cast<Grid*>(&control)) {
    actOnGrid(*grid, random);
  } else if (auto* table = dynamic_cast<Table*>(&control)) {
    actOnTable(*table, random);
  } else if (auto* entry = dynamic_cast<MenuEntry*>(&control)) {
    if (entry->menu() != nullptr && !entry->menu()->isReachable()) return;
    if (entry->name() == "mnuExit" && chance(random, 90)) return;  // or there were no long walks
    note("click " + name);
    entry->click();
  } else if (auto* button = dynamic_cast<Button*>(&control)) {
    note("click " + name);
    button->click();
  } else if (auto* check = dynamic_cast<CheckBox*>(&control)) {
    note("click " + name);
    check->click();
  } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    note("click " + name);
    option->click();
  }
}

void RandomWalk::actOnGrid(Grid& grid, Engine& random) {
  static const std::array<GridKey, 6> keys{GridKey::enter, GridKey::backspace, GridKey::erase,
                                           GridKey::copy,  GridKey::paste,     GridKey::cut};
  static const std::array<const char*, 6> characters{"5", ".", "-", "x", "\xC3\xA4", " "};
  const int kind = below(random, 3);
  note("grid " + grid.path() + " " + std::to_string(kind));
  if (kind == 0) {
    grid.clickCell(below(random, grid.rows() + 1), below(random, grid.columns() + 1));
  } else if (kind == 1) {
    grid.typeCharacter(anyOf(random, characters));
  } else {
    grid.pressKey(anyOf(random, keys));
  }
}

void RandomWalk::actOnTable(Table& table, Engine& random) {
  const int number = below(random, static_cast<int>(std::min<std::size_t>(table.places(), 1000)) + 1);
  if (chance(random, 70)) {
    note("row " + table.path() + " " + std::to_string(number));
    table.choose(static_cast<std::size_t>(number));
  } else {
    const int column = below(random, static_cast<int>(table.columns().size()) + 1);
    note("sort " + table.path() + " " + std::to_string(column));
    table.clickHeading(static_cast<std::size_t>(column));
  }
}

void RandomWalk::actOnWindow(Engine& random) {
  std::vector<Window*> open;
  for (Window* window : running_.program->desk.windows()) {
    if (window->isOpen()) open.push_back(window);
  }
  Window& window = *anyOf(random, open);
  const bool closes = chance(random, 50) && (window.name() != "frmMain" || chance(random, 20));
  note((closes ? "close " : "click ") + window.name());
  if (closes) {
    window.closeByUser();
  } else {
    window.click();
  }
}

/// Types a farm that can be evaluated, replacing all previous inputs.
void RandomWalk::typeFarm(Engine& random) {
  note("type a farm");
  if (!findsHome()) {
    fault_ = "no way home";
    return;
  }
  frmMain& main = running_.program->main();
  main.pneMain.txtArea.type("100");
  main.pneMain.txtMax.type("12");
  main.pneMain.txtEff.type("85");
  main.pneMain.txtAnnRain.type("16");
  main.pneMain.txtArraySize.type("20");
  main.pneMain.Option1[random() % main.pneMain.Option1.size()]->click();
  main.pneMain.Command7.click();
  for (const auto& row : main.pneMain.cr) {
    if (row->isActive() != chance(random, 40)) row->chkCrop.click();
  }
  main.pneMain.Command1.click();
}

void RandomWalk::prepareAnswers(Engine& random) {
  FakeServices& fakes = running_.fakes;
  static const std::array<MessageAnswer, 4> answers{MessageAnswer::yes, MessageAnswer::no,
                                                    MessageAnswer::cancel, MessageAnswer::ok};
  static const std::array<const char*, 6> names{"values.txt", "noise.txt",      "crops",
                                                "none/x.xls", "crops/corn.txt", "saved"};
  fakes.messageBox.answers.clear();
  if (chance(random, 50)) fakes.messageBox.answers.push_back(anyOf(random, answers));
  fakes.fileChooser = {};
  if (chance(random, 70)) fakes.fileChooser.answers.emplace_back(running_.home() / anyOf(random, names));
  fakes.printer = {};
  if (chance(random, 50)) fakes.printer.copies.emplace_back(below(random, 3));
  fakes.clipboard.log.clear();
  if (chance(random, 10)) fakes.clipboard.contents = text(random);
  fakes.openFile.works = chance(random, 80);
  fakes.openFile.opened.clear();
  fakes.help.topics.clear();
}

/// Uses the windows during a run.
void RandomWalk::duringARun() {
  frmUpdating& progress = running_.program->windows.updating();
  if (++pumps_ > pumpsBeforeCancel) {
    if (progress.Command1.isReachable()) progress.Command1.click();
    return;
  }
  constexpr int deepest = 2;
  if (depth_ >= deepest || !chance(meanwhile_, 5)) return;
  const std::vector<Control*> controls = reachable();
  if (controls.empty()) return;
  ++depth_;
  note("(meanwhile)");
  actOn(*choose(meanwhile_, controls), meanwhile_);
  --depth_;
}

std::string RandomWalk::text(Engine& random) const {
  if (chance(random, 80)) return anyOf(random, oddTexts());
  std::string bytes(random() % 12, ' ');
  for (char& byte : bytes)
    byte = static_cast<char>(random() % 256);
  return bytes;
}

std::string RandomWalk::fault() {
  if (!fault_.empty()) return fault_;
  for (const Message& message : running_.fakes.messageBox.take()) {
    if (message.title.empty()) return "a message without a title: " + message.text;
    if (message.text.empty()) return "a message without a text: " + message.title;
  }
  if (running_.program->ended()) return "";
  const PaneStack& panes = running_.program->main().panes;
  std::string shown;
  for (const Frame* pane : panes.panes()) {
    if (pane->isShown()) shown += pane->name() + " ";
  }
  const std::string top = panes.top().name() + " ";
  return shown == top ? "" : "on show are " + shown + "and not " + top;
}

bool RandomWalk::pressBack() {
  for (Control* control : reachable()) {
    auto* button = dynamic_cast<Button*>(control);
    if (button == nullptr || button->window().name() != "frmMain") continue;
    if (button->caption() == "Back" || button->caption() == "Cancel" || button->caption() == "Back to Home") {
      button->click();
      return true;
    }
  }
  return false;
}

bool RandomWalk::findsHome() {
  if (running_.program->ended()) return true;
  running_.fakes.messageBox.answers.clear();
  frmMain& main = running_.program->main();
  const auto home = [&] { return &main.panes.top() == &main.pneMain && main.pneMain.isReachable(); };
  constexpr int mostPresses = 5;
  for (int i = 0; i < mostPresses && !home(); ++i) {
    if (!pressBack()) break;
  }
  for (int i = 0; i < 2 && !home(); ++i)
    main.menus.mnuEnableBatch.click();
  return home();
}

void RandomWalk::note(const std::string& action) {
  if (story_.size() == longestStory) story_.erase(story_.begin());
  story_.push_back(std::string(static_cast<std::size_t>(depth_) * 2, ' ') + action);
}

std::string RandomWalk::story() const {
  std::string lines;
  for (const std::string& action : story_)
    lines += action + "\n";
  return lines;
}

}  // namespace verdalis::testing
