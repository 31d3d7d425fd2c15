#include <QAccessible>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>

#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

class FieldMarks : public RunningDesktop {
 protected:
  void evaluate() {
    start();
    typeFarm();
    press("Command1");
    ASSERT_EQ(pane(), "pneResults");
    press("theResults.Command1");
    ASSERT_EQ(pane(), "pneMain");
  }

  [[nodiscard]] bool isMarked(const std::string& path, const char* mark) {
    return widget(path)->property(mark).toBool();
  }

  [[nodiscard]] QString told(const std::string& path) {
    return QAccessible::queryAccessibleInterface(widget(path))->text(QAccessible::Description);
  }
};

TEST_F(FieldMarks, ChangedFieldsAreTintedAndTellTheFormerValue) {
  evaluate();
  const QString before = widget("txtMax")->toolTip();
  EXPECT_FALSE(isMarked("txtMax", "changed"));
  type("txtMax", "11");
  EXPECT_TRUE(comes([this] { return isMarked("txtMax", "changed"); }));
  EXPECT_TRUE(widget("txtMax")->toolTip().contains(QLatin1String("At the last run: 12")));
  EXPECT_TRUE(told("txtMax").contains(QLatin1String("At the last run: 12")));
  EXPECT_FALSE(isMarked("txtMax", "caution"));
  EXPECT_FALSE(isMarked("txtArea", "changed"));
  type("txtMax", "12");
  EXPECT_TRUE(comes([this] { return !isMarked("txtMax", "changed"); }));
  EXPECT_FALSE(widget("txtMax")->toolTip().contains(QLatin1String("last run")));
  EXPECT_TRUE(widget("txtMax")->toolTip().startsWith(before));
}

TEST_F(FieldMarks, AHintAndAChangeAreToldTogether) {
  evaluate();
  type("cr(1).txtPrice", "4,60");
  EXPECT_TRUE(comes([this] { return isMarked("cr(1).txtPrice", "changed"); }));
  EXPECT_TRUE(isMarked("cr(1).txtPrice", "caution"));
  const QString tip = widget("cr(1).txtPrice")->toolTip();
  EXPECT_TRUE(tip.startsWith(QLatin1String("Price of Corn: read as 4."))) << tip.toStdString();
  EXPECT_TRUE(tip.contains(QLatin1String("At the last run: 6.52"))) << tip.toStdString();
}

TEST_F(FieldMarks, AFieldTellsWhatIsUsual) {
  start();
  typeFarm();
  widget("cr(1).txtPrice")->setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(told("cr(1).txtPrice").contains(QLatin1String("Default $6.52 per bu.")))
      << told("cr(1).txtPrice").toStdString();
  QHelpEvent rests(QEvent::ToolTip, {5, 5}, widget("txtAnnRain")->mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(widget("txtAnnRain"), &rests);
  EXPECT_TRUE(widget("txtAnnRain")->toolTip().contains(QLatin1String("from 11 to 21 inches of rain")));
}

TEST_F(FieldMarks, TheFieldsOfThePagesOfCostsAreMarkedToo) {
  start();
  typeFarm();
  press("cr(1).cmdInputCosts");
  ASSERT_EQ(pane(), "pneInputCosts");
  type("txtMiscCost", "1,250");
  EXPECT_TRUE(comes([this] { return isMarked("txtMiscCost", "caution"); }));
  EXPECT_TRUE(told("txtMiscCost").contains(QLatin1String("read as 1. Leave out the comma.")))
      << told("txtMiscCost").toStdString();
  type("txtMiscCost", "1250");
  EXPECT_TRUE(comes([this] { return !isMarked("txtMiscCost", "caution"); }));
}

}  // namespace
}  // namespace verdalis::testing
