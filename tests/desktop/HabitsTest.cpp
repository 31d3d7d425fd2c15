#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

using Habit = RunningDesktop;

TEST_F(Habit, TheFirstClickSelectsTheWholeNumberAndTheSecondPlacesTheCursor) {
  start();
  typeFarm();
  auto* field = widget<QLineEdit>("txtMax");
  QTest::mouseClick(field, Qt::LeftButton);
  EXPECT_EQ(field->selectedText(), field->text());
  QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(field->width() - 8, field->height() / 2));
  EXPECT_FALSE(field->hasSelectedText());
}

TEST_F(Habit, ADoubleClickSelectsANumberWithAPoint) {
  start();
  type("txtMax", "12.75");
  auto* field = widget<QLineEdit>("txtMax");
  QTest::mouseDClick(field, Qt::LeftButton);
  EXPECT_EQ(field->selectedText(), QStringLiteral("12.75"));
}

TEST_F(Habit, EnterPressesTheButtonWithTheFocus) {
  start();
  auto* button = widget<QPushButton>("Command8");
  button->setFocus();
  QTest::keyClick(button, Qt::Key_Return);
  EXPECT_EQ(pane(), "pneIrrigCosts");
}

TEST_F(Habit, HintsMarkTheirFieldsAndTheStatusLeadsToWhatIsMissing) {
  start();
  auto* status = widget<QPushButton>("cmdStatus");
  EXPECT_EQ(status->text(), QStringLiteral("Enter the total acres"));
  widget<QLineEdit>("txtMax")->setFocus();
  status->click();
  QCoreApplication::processEvents();
  EXPECT_TRUE(widget<QLineEdit>("txtArea")->hasFocus());
  type("txtArea", "1,250");
  auto* area = widget<QLineEdit>("txtArea");
  const auto isMarked = [area] { return area->property("caution").toBool(); };
  EXPECT_TRUE(QTest::qWaitFor(isMarked));
  EXPECT_EQ(area->toolTip(), QStringLiteral("Total acres: read as 1. Leave out the comma."));
  EXPECT_EQ(widget<QLabel>("lblFarmHint")->text(), area->toolTip());
  type("txtArea", "1250");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !isMarked(); }));
  EXPECT_EQ(area->toolTip(), QString());
}

TEST_F(Habit, APageIsMadeWhenItIsShownForTheFirstTime) {
  press("frmWelcome.Command1");
  QTest::qWait(0);
  EXPECT_EQ(widget("theResults.lblTotalProfit"), nullptr);
  typeFarm();
  press("Command1");
  auto* profit = widget<QLabel>("theResults.lblTotalProfit");
  ASSERT_NE(profit, nullptr);
  EXPECT_TRUE(profit->isVisible());
  EXPECT_EQ(profit->text().toStdString(), control<Label>("theResults.lblTotalProfit").caption());
  EXPECT_FALSE(profit->text().isEmpty());
}

TEST_F(Habit, TheStatusTellsTheSizeOfTheRun) {
  start();
  typeFarm();
  auto* status = widget<QPushButton>("cmdStatus");
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return status->text() == QStringLiteral("2 crops, 11 water splits: ready"); }));
  EXPECT_FALSE(widget("cmdStatus")->isEnabled());
}

TEST_F(Habit, UnappliedCostsAreMarked) {
  start();
  press("Command8");
  EXPECT_FALSE(widget("lblPlantNotApplied")->isVisible());
  type("txtLift", "123");
  EXPECT_TRUE(QTest::qWaitFor([&] { return widget("lblPlantNotApplied")->isVisible(); }));
  press("Command9");
  press("Command8");
  EXPECT_FALSE(widget("lblPlantNotApplied")->isVisible());
}

TEST_F(Habit, TheFuelTellsItsUnit) {
  start();
  press("Command8");
  control<ComboBox>("cboFuelType").pick(0);
  EXPECT_EQ(widget<QLabel>("lblFuelUnit")->text(), QStringLiteral("per gallon"));
  control<ComboBox>("cboFuelType").pick(3);
  EXPECT_EQ(widget<QLabel>("lblFuelUnit")->text(), QStringLiteral("per kWh"));
}

}  // namespace
}  // namespace verdalis::testing
