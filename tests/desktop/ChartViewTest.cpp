#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <vector>

#include "controls/ChartBox.h"
#include "desktop/Binder.h"
#include "desktop/ChartView.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {
namespace {

using desktop::ChartView;
using desktop::qText;
using desktop::Scheme;

Chart waterChart() {
  LineChart data{
      {"gross inches over the farm", {"", " in", 0, false}}, {"", {"$", "", 0, true}}, {{}}, {}, {}, {}};
  Chart chart{"Best net return of the farm", "More water pays up to 22 in.", {}, {{"Inches", "Net return"}}};
  for (std::size_t i = 0; i < 14; ++i) {
    const double x = 2 + 2.0 * static_cast<double>(i);
    const double y = 43000 - 60 * (x - 22) * (x - 22);
    data.lines[0].points.push_back({x, y, 100 + i});
    chart.table.push_back({std::to_string(static_cast<int>(x)), std::to_string(static_cast<int>(y))});
  }
  data.categories = {"Corn", "Grain Sorghum"};
  data.strip = ChartStrip{};
  for (const ChartLine::Point& point : data.lines[0].points)
    data.strip->boxes.push_back(
        {point.x - 0.8, point.x + 0.8, {point.x < 8 ? 1U : 0U, 0, point.x < 14 ? 1U : 0U}});
  data.markers = {{ChartMarker::Kind::now, 14, "now 14 in"}, {ChartMarker::Kind::best, 22, "most at 22 in"}};
  chart.data = std::move(data);
  return chart;
}

class ChartViews : public ::testing::Test {
 protected:
  ChartViews() {
    window.open();
    binder.bind(box, &view, QStringLiteral("Value of water"));
    box.onPick.connect([this](std::size_t index) { picks.push_back(index); });
    view.resize(700, 400);
    view.show();
  }

  [[nodiscard]] const Target& target(std::size_t column) {
    const std::vector<Target>& targets = view.drawing().targets;
    return *std::find_if(targets.begin(), targets.end(), [&](const Target& one) {
      return one.kind == Target::Kind::point && one.column == column;
    });
  }

  [[nodiscard]] QPoint place(std::size_t column) {
    return QPointF(target(column).at.x, target(column).at.y).toPoint();
  }

  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  ChartBox box{window, "chtWater"};
  desktop::Binder binder{desk};
  ChartView view;
  std::vector<std::size_t> picks;
};

TEST_F(ChartViews, ShowsTheChartOfItsControl) {
  EXPECT_TRUE(view.drawing().parts.empty());
  EXPECT_EQ(view.accessibleName(), QStringLiteral("Value of water"));
  box.setChart(waterChart());
  EXPECT_EQ(view.objectName(), QStringLiteral("chtWater"));
  EXPECT_EQ(view.accessibleName(), QStringLiteral("Best net return of the farm"));
  EXPECT_EQ(view.accessibleDescription(), QStringLiteral("More water pays up to 22 in."));
  const QImage drawn = view.grab().toImage();
  EXPECT_EQ(drawn.pixelColor(place(5)), desktop::chartColor({Ink::series}, Scheme::light, Qt::white));
  box.setChart(std::nullopt);
  EXPECT_TRUE(view.drawing().parts.empty());
}

TEST_F(ChartViews, AClickPicksWhatThePointerIsNear) {
  box.setChart(waterChart());
  QTest::mouseMove(&view, place(5) + QPoint(4, 30));
  EXPECT_EQ(view.cursor().shape(), Qt::PointingHandCursor);
  ASSERT_NE(view.current(), nullptr);
  EXPECT_EQ(view.current()->column, 5U);
  QTest::mouseClick(&view, Qt::LeftButton, {}, place(6));
  QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(2, 2));
  EXPECT_EQ(picks, (std::vector<std::size_t>{106}));
  EXPECT_NE(view.cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(ChartViews, APressThatMovesAwayPicksNothing) {
  box.setChart(waterChart());
  QTest::mousePress(&view, Qt::LeftButton, {}, place(6));
  QTest::mouseRelease(&view, Qt::LeftButton, {}, place(9));
  EXPECT_TRUE(picks.empty());
}

TEST_F(ChartViews, TheKeysGoFromValueToValueAndEnterPicks) {
  box.setChart(waterChart());
  view.activateWindow();
  view.setFocus();
  QTest::keyClick(&view, Qt::Key_Right);
  QTest::keyClick(&view, Qt::Key_Right);
  QTest::keyClick(&view, Qt::Key_Right);
  QTest::keyClick(&view, Qt::Key_Left);
  ASSERT_NE(view.current(), nullptr);
  EXPECT_EQ(view.current()->column, 1U);
  QTest::keyClick(&view, Qt::Key_Return);
  EXPECT_EQ(picks, (std::vector<std::size_t>{101}));
}

TEST_F(ChartViews, AValueThatPicksNothingIsOnlyTold) {
  Chart chart = waterChart();
  std::get<LineChart>(chart.data).lines[0].points[3].pick.reset();
  box.setChart(chart);
  QTest::mouseClick(&view, Qt::LeftButton, {}, place(3));
  EXPECT_TRUE(picks.empty());
  EXPECT_NE(view.cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(ChartViews, ThePickMayTakeTheChartAway) {
  box.setChart(waterChart());
  box.onPick.connect([this](std::size_t) { box.setChart(std::nullopt); });
  QTest::mouseClick(&view, Qt::LeftButton, {}, place(6));
  EXPECT_EQ(picks.size(), 1U);
  EXPECT_EQ(view.current(), nullptr);
}

TEST_F(ChartViews, TheDataIsCopiedAsATable) {
  box.setChart(waterChart());
  view.copyData();
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith(QStringLiteral("Inches\tNet return\n2\t19000\n")));
}

TEST_F(ChartViews, ThePictureIsOnWhiteInAnyScheme) {
  box.setChart(waterChart());
  view.setPalette(desktop::palette(Scheme::dark));
  view.copyPicture();
  const QImage copied = QApplication::clipboard()->image();
  ASSERT_GT(copied.width(), 1000);
  EXPECT_EQ(copied.pixelColor(1, 1), QColor(Qt::white));
}

TEST_F(ChartViews, FilesHaveTheFormOfTheirEnding) {
  box.setChart(waterChart());
  const desktop::ChartPrint print(waterChart(), view.font(), view.size());
  EXPECT_TRUE(QImage::fromData(print.file(QStringLiteral("png"))).width() > 1000);
  EXPECT_TRUE(QSvgRenderer(print.file(QStringLiteral("svg"))).isValid());
  EXPECT_TRUE(print.file(QStringLiteral("svg")).contains("Best net return"));
  EXPECT_TRUE(print.file(QStringLiteral("pdf")).startsWith("%PDF"));
  EXPECT_TRUE(print.file(QStringLiteral("doc")).isEmpty());
}

TEST_F(ChartViews, IsSavedWhereTheUserWants) {
  box.setChart(waterChart());
  const TemporaryFolder folder{"chart"};
  const std::string path = (folder.path() / "water.svg").string();
  QTimer::singleShot(0, qApp, [&] {
    auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(chooser, nullptr);
    chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(qText(path));
    QTest::keyClick(chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
  });
  view.save();
  std::ifstream file(path);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  EXPECT_NE(bytes.find("<svg"), std::string::npos);
}

TEST_F(ChartViews, IsDrawnInBothSchemes) {
  box.setChart(waterChart());
  const QImage light = view.grab().toImage();
  view.setPalette(desktop::palette(Scheme::dark));
  EXPECT_NE(view.grab().toImage(), light);
}

TEST(ChartColors, TextsAreReadableOnTheirGround) {
  const auto light = [](const QColor& color) {
    const auto part = [](float value) {
      return value <= 0.03928F ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
  };
  const auto contrast = [&](const QColor& a, const QColor& b) {
    const double one = light(a) + 0.05;
    const double other = light(b) + 0.05;
    return std::max(one, other) / std::min(one, other);
  };
  for (const Scheme scheme : {Scheme::light, Scheme::dark}) {
    const QColor ground = desktop::accents(scheme).card;
    const auto color = [&](const Paint& paint) { return desktop::chartColor(paint, scheme, ground); };
    for (const Ink ink : {Ink::title, Ink::text, Ink::muted, Ink::best, Ink::change})
      EXPECT_GE(contrast(color({ink}), ground), 4.5) << static_cast<int>(ink);
    EXPECT_GE(contrast(color({Ink::now}), ground), 4.2);
    for (std::size_t i = 0; i < 6; ++i)
      EXPECT_GE(contrast(color({Ink::series, i}), ground), 3) << i;
    for (double level = 0; level <= 1; level += 1.0 / 64)
      EXPECT_GE(contrast(color({Ink::onValue, 0, level}), color({Ink::value, 0, level})), 4.5) << level;
  }
}

}  // namespace
}  // namespace verdalis::testing
