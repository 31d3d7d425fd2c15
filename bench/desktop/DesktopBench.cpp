#include <benchmark/benchmark.h>

#include <QApplication>
#include <QClipboard>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "desktop/Desktop.h"
#include "desktop/TableView.h"
#include "desktop/Theme.h"

// What a user waits for: the start until the main pane is painted, a key press until the field is painted,
// and each next option. Without a screen, so the time of the display comes in addition.

namespace {

using namespace verdalis;

/// The program with the saved farm of the example, after the welcome window.
class Shown {
 public:
  explicit Shown(int customCrops = 0) {
    const std::filesystem::path home = folder_.path().toStdString();
    std::filesystem::copy(VERDALIS_SOURCE_DIR "/crops", home / "crops",
                          std::filesystem::copy_options::recursive);
    std::filesystem::copy(VERDALIS_SOURCE_DIR "/examples/high-plains/inputs.txt", home / "inputs.txt");
    addCropsLikeCorn(home / "crops", customCrops);
    desktop_ = std::make_unique<desktop::Desktop>(home, QStringLiteral(VERDALIS_SOURCE_DIR "/help/HTML"));
  }

  void start() {
    desktop_->program().welcome.Command1.click();
    window()->activateWindow();
    QCoreApplication::processEvents();
    static_cast<void>(window()->grab());
  }

  [[nodiscard]] Program& program() { return desktop_->program(); }
  [[nodiscard]] QWidget* window() { return desktop_->mainWindow(); }

  [[nodiscard]] QWidget* widget(const Control& control) { return desktop_->binder().widget(control); }

 private:
  static void addCropsLikeCorn(const std::filesystem::path& crops, int count) {
    std::ifstream corn(crops / "corn.txt", std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(corn)), std::istreambuf_iterator<char>());
    const std::string head = "CROP=Corn";
    std::filesystem::create_directories(crops / "custom");
    for (int i = 0; i < count; ++i) {
      const std::string name = "Crop " + std::to_string(i);
      std::ofstream file(crops / "custom" / (name + ".txt"), std::ios::binary);
      file << "CROP=" << name << text.substr(text.find(head) + head.size());
    }
  }

  QTemporaryDir folder_;
  std::unique_ptr<desktop::Desktop> desktop_;
};

/// The windows only: the process and the toolkit are running.
void mainPanePainted(benchmark::State& state) {
  for (auto _ : state) {
    Shown shown;
    shown.start();
  }
}
BENCHMARK(mainPanePainted)->Unit(benchmark::kMillisecond);

/// A whole process: its start until the main pane is painted, and its end.
void processToMainPane(benchmark::State& state) {
  for (auto _ : state) {
    if (QProcess::execute(QCoreApplication::applicationFilePath(), {QStringLiteral("--start-only")}) != 0) {
      state.SkipWithError("the process failed");
      return;
    }
  }
}
BENCHMARK(processToMainPane)->Unit(benchmark::kMillisecond)->UseRealTime();

void keyPressToRepaint(benchmark::State& state) {
  Shown shown;
  shown.start();
  QWidget* field = shown.widget(shown.program().main().pneMain.txtArea);
  field->setFocus();
  bool digit = false;
  for (auto _ : state) {
    digit = !digit;
    QTest::sendKeyEvent(QTest::Click, field, digit ? Qt::Key_7 : Qt::Key_Backspace,
                        digit ? QStringLiteral("7") : QString(), Qt::NoModifier);
    field->repaint();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(keyPressToRepaint)->Unit(benchmark::kMicrosecond);

/// Takes back and repeats a change of the main page.
void undoToRepaint(benchmark::State& state) {
  Shown shown;
  shown.start();
  frmMain& main = shown.program().main();
  QWidget* page = shown.widget(main.pneMain);
  main.pneMain.txtMax.type("11");
  main.pneMain.txtMax.leave();
  bool back = false;
  for (auto _ : state) {
    back = !back;
    (back ? main.menus.mnuUndo : main.menus.mnuRedo).click();
    page->repaint();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(undoToRepaint)->Unit(benchmark::kMicrosecond);

/// A step of a slider until the best plan of its value is painted.
void liveFrame(benchmark::State& state) {
  Shown shown;
  shown.start();
  frmMain& main = shown.program().main();
  for (const std::size_t row : {1U, 2U, 3U, 5U})
    main.pneMain.cr[row]->chkCrop.click();
  main.menus.mnuLive.click();
  QWidget* page = shown.widget(main.pneLive);
  ScrollBar& bar = main.pneLive.sliders.front()->bar;
  const int from = bar.value();
  bool up = false;
  for (auto _ : state) {
    up = !up;
    bar.scroll(up ? from + 1 : from);
    page->repaint();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(liveFrame)->Unit(benchmark::kMillisecond);

/// The same for four fields, ten crops and an iteration factor of 20.
void liveFrameOfManyCrops(benchmark::State& state) {
  Shown shown(4);
  shown.start();
  frmMain& main = shown.program().main();
  shown.program().state.FineFactor = 20;
  main.pneMain.Option1[4]->click();
  main.pneMain.Command7.click();
  int crops = 0;
  for (const auto& row : main.pneMain.cr) {
    if (row->GetCrop() == "Fallow") continue;
    if (!row->isActive()) row->chkCrop.click();
    if (row->Crop->Custom) {
      row->txtPrice.type("5." + std::to_string(crops));
      row->txtMaxYield.type("20" + std::to_string(crops % 10));
    }
    ++crops;
  }
  main.menus.mnuLive.click();
  if (crops != 10 || main.pneLive.sliders.empty()) {
    state.SkipWithError("not the farm that was meant");
    return;
  }
  QWidget* page = shown.widget(main.pneLive);
  ScrollBar& bar = main.pneLive.sliders.front()->bar;
  const int from = bar.value();
  bool up = false;
  for (auto _ : state) {
    up = !up;
    bar.scroll(up ? from + 1 : from);
    page->repaint();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(liveFrameOfManyCrops)->Unit(benchmark::kMillisecond);

void nextOption(benchmark::State& state, bool whole) {
  Shown shown;
  shown.start();
  frmMain& main = shown.program().main();
  for (const std::size_t row : {1U, 5U})
    QTest::keyClick(shown.widget(main.pneMain.cr[row]->chkCrop), Qt::Key_Space);
  QTest::keyClick(shown.window(), Qt::Key_F5);
  QWidget* page = shown.widget(main.theResults);
  if (!page->isVisible()) {
    state.SkipWithError("no options came");
    return;
  }
  bool forward = false;
  for (auto _ : state) {
    forward = !forward;
    QTest::mouseClick(shown.widget(forward ? main.theResults.cmdAdvance : main.theResults.cmdPrevious),
                      Qt::LeftButton);
    if (whole) page->repaint();
    QCoreApplication::processEvents();
  }
}

/// The whole page is painted.
void nextOptionToRepaint(benchmark::State& state) {
  nextOption(state, true);
}
BENCHMARK(nextOptionToRepaint)->Unit(benchmark::kMicrosecond);

/// Only what has changed is painted, as on a screen.
void nextOptionAsOnAScreen(benchmark::State& state) {
  nextOption(state, false);
}
BENCHMARK(nextOptionAsOnAScreen)->Unit(benchmark::kMicrosecond);

/// Opens the custom crop editor with its largest grid: 33 rows of 24 yields.
CustomCropPane& openLargestGrid(Shown& shown) {
  shown.start();
  frmMain& main = shown.program().main();
  main.menus.mnuCustomCrop.click();
  CustomCropPane& pane = main.pneCustomCrop;
  pane.cboCustomGrid[1].pick(0);
  pane.cboCustomGrid[2].pick(static_cast<int>(pane.cboCustomGrid[2].items().size()) - 1);
  pane.cboCustomGrid[3].pick(static_cast<int>(pane.cboCustomGrid[3].items().size()) - 1);
  pane.cmdCustomGrid0.click();
  return pane;
}

QString numbersOfGrid(int rows, int columns) {
  QString text;
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column)
      text += QString::number(row * 7 + column) + QLatin1Char(column + 1 < columns ? '\t' : '\n');
  }
  return text;
}

void keyPressInTheGridToRepaint(benchmark::State& state) {
  Shown shown;
  CustomCropPane& pane = openLargestGrid(shown);
  QApplication::clipboard()->setText(numbersOfGrid(33, 24));
  pane.cmdCustomGrid4.click();
  QWidget* grid = shown.widget(pane.dgCustom);
  grid->setFocus();
  bool digit = false;
  for (auto _ : state) {
    digit = !digit;
    QTest::sendKeyEvent(QTest::Click, grid, digit ? Qt::Key_7 : Qt::Key_Backspace,
                        digit ? QStringLiteral("7") : QString(), Qt::NoModifier);
    grid->repaint();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(keyPressInTheGridToRepaint)->Unit(benchmark::kMicrosecond);

void pasteToRepaint(benchmark::State& state) {
  Shown shown;
  CustomCropPane& pane = openLargestGrid(shown);
  QApplication::clipboard()->setText(numbersOfGrid(33, 24));
  QWidget* grid = shown.widget(pane.dgCustom);
  for (auto _ : state) {
    pane.cmdCustomGrid4.click();
    grid->repaint();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(pasteToRepaint)->Unit(benchmark::kMicrosecond);

/// A table with as many records as a run can keep options, in a window of its own.
struct ShownTable {
  ShownTable() {
    window.open();
    view->resize(1100, 400);
    view->show();
  }

  void fill() {
    constexpr std::size_t mostOptions = 32767;
    Table::Contents contents;
    contents.records = mostOptions;
    contents.cell = [](std::size_t record, std::size_t column) {
      return Table::Cell{std::to_string(record * 10 + column), column > 1 ? std::optional(0.5) : std::nullopt,
                         false};
    };
    contents.before = [](std::size_t a, std::size_t b, std::size_t) {
      return a * 7919 % mostOptions < b * 7919 % mostOptions;
    };
    table.setContents(
        {{"Rank"}, {"Crops"}, {"a"}, {"b"}, {"c"}, {"d"}, {"$/acre"}, {"Farm"}, {"Behind the best"}},
        std::move(contents));
  }

  void paint() const {
    view->viewport()->repaint();
    QCoreApplication::processEvents();
  }

  Desk desk;
  Window window{desk, "frmMain"};
  Table table{window, "tblOptions"};
  desktop::Binder binder{desk};
  std::unique_ptr<desktop::TableView> view{
      binder.bind(table, new desktop::TableView, QStringLiteral("Options"))};
};

void fillLongTableToRepaint(benchmark::State& state) {
  ShownTable shown;
  for (auto _ : state) {
    shown.fill();
    shown.paint();
  }
}
BENCHMARK(fillLongTableToRepaint)->Unit(benchmark::kMillisecond);

void sortLongTableToRepaint(benchmark::State& state) {
  ShownTable shown;
  shown.fill();
  for (auto _ : state) {
    shown.table.clickHeading(7);
    shown.paint();
  }
}
BENCHMARK(sortLongTableToRepaint)->Unit(benchmark::kMillisecond);

void scrollLongTableToRepaint(benchmark::State& state) {
  ShownTable shown;
  shown.fill();
  QScrollBar* bar = shown.view->verticalScrollBar();
  for (auto _ : state) {
    bar->setValue((bar->value() + 5003) % bar->maximum());
    shown.paint();
  }
}
BENCHMARK(scrollLongTableToRepaint)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir settings;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  qputenv("XDG_RUNTIME_DIR", settings.path().toUtf8());
  qputenv("QT_LOGGING_RULES", "*.warning=false;*.info=false");
  QApplication application(argc, argv);
  verdalis::desktop::applyTheme(application, verdalis::desktop::Scheme::light);
  if (QCoreApplication::arguments().contains(QLatin1String("--start-only"))) {
    Shown shown;
    shown.start();
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
