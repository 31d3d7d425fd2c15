#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QWheelEvent>

#include "desktop/HelpViewer.h"
#include "model/EfficiencyFraction.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {

extern bool germanLocaleIsSet;

namespace {

using Use = RunningDesktop;

TEST_F(Use, WorksInALocaleWithADecimalComma) {
  ASSERT_TRUE(germanLocaleIsSet) << "the locale de_DE.UTF-8 is missing: run tools/install-deps test";
  start();
  typeFarm();
  type("cr(1).txtPrice", "4.25");
  EXPECT_EQ(program().main().pneMain.cr[1]->Crop->price, 4.25);
  EXPECT_EQ(widget<QLabel>("lblVolume")->text(), QStringLiteral("1,200"));
  QTest::keyClick(window(), Qt::Key_F5);
  EXPECT_EQ(EfficiencyFraction, 0.85);
  EXPECT_TRUE(widget<QLabel>("theResults.rh(0).lblYield")->text().contains(QLatin1Char('.')));
}

TEST_F(Use, TheWelcomeWindowLeadsToTheMainPane) {
  EXPECT_TRUE(widget("frmWelcome")->isVisible());
  start();
  EXPECT_FALSE(widget("frmWelcome")->isVisible());
  EXPECT_TRUE(window()->isVisible());
  EXPECT_EQ(pane(), "pneMain");
}

TEST_F(Use, ATypedFarmLeadsToTheOptionsAndBack) {
  start();
  typeFarm();
  press("Command1");
  EXPECT_EQ(pane(), "pneResults");
  EXPECT_TRUE(widget("theResults")->isVisible());
  EXPECT_EQ(widget<QLabel>("theResults.lblCounter")->text(), QStringLiteral("Option 1"));
  EXPECT_FALSE(widget<QLabel>("theResults.lblTotalProfit")->text().isEmpty());
  EXPECT_TRUE(widget("theResults.rh(1)")->isVisible());
  EXPECT_FALSE(widget("theResults.rh(2)")->isVisible());
  press("theResults.cmdAdvance");
  EXPECT_EQ(widget<QLabel>("theResults.lblCounter")->text(), QStringLiteral("Option 2"));
  QTest::keyClick(window(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(widget<QLabel>("theResults.lblCounter")->text(), QStringLiteral("Option 3"));
  QTest::keyClick(window(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(widget<QLabel>("theResults.lblCounter")->text(), QStringLiteral("Option 2"));
  QTest::keyClick(window(), Qt::Key_Escape);
  EXPECT_EQ(pane(), "pneMain");
}

TEST_F(Use, TheDetailsOfAFieldOpenAndClose) {
  start();
  typeFarm();
  press("Command1");
  press("theResults.rh(0).cmdDetails");
  EXPECT_EQ(pane(), "pneDetails");
  EXPECT_EQ(widget<QLabel>("theDetails.lblNC")->text(), QStringLiteral("$0.44/lb"));
  QTest::keyClick(window(), Qt::Key_Escape);
  EXPECT_EQ(pane(), "pneResults");
}

TEST_F(Use, TheCostPanesOpenAcceptValuesAndApplyThem) {
  start();
  typeFarm();
  press("cr(1).cmdInputCosts");
  EXPECT_EQ(pane(), "pneInputCosts");
  EXPECT_EQ(widget<QLabel>("lblHeader")->text(), QStringLiteral("Production Costs for Corn"));
  EXPECT_FALSE(widget("frmICAlf")->isVisible());
  type("txtTillage", "40");
  EXPECT_EQ(widget<QLabel>("lblOC")->text(), QStringLiteral("$69.10 / ac"));
  press("Command6");
  EXPECT_EQ(pane(), "pneMain");
  EXPECT_EQ(program().main().pneMain.cr[1]->Crop->inputCosts.Tillage, 40);
  press("Command8");
  EXPECT_EQ(pane(), "pneIrrigCosts");
  type("txtGPM", "800");
  press("Command9");
  EXPECT_EQ(program().main().tempIrrigationCosts->GPM, 800);
}

TEST_F(Use, AForageCropShowsItsOwnHarvestCosts) {
  start();
  tick("cr(0).chkCrop");
  press("cr(0).cmdInputCosts");
  EXPECT_TRUE(widget("frmICAlf")->isVisible());
  EXPECT_TRUE(widget("frmICAlf2")->isVisible());
  EXPECT_FALSE(widget("txtHarvestBase")->isVisible());
}

TEST_F(Use, AnInvalidValueShowsAMessageIsUndoneAndKeepsTheFocus) {
  start();
  type("txtEff", "101");
  expectBox();
  QTest::keyClick(widget("txtEff"), Qt::Key_Tab);
  ASSERT_TRUE(comes([&] { return boxes.size() == 1; }));
  EXPECT_EQ(boxes[0],
            "Input error|Irrigation Efficiency %:  Please enter a value that's less than or equal to 100");
  EXPECT_EQ(widget<QLineEdit>("txtEff")->text(), QStringLiteral("85"));
  // Without a window manager the window is not activated again after the message box.
  EXPECT_TRUE(comes([&] { return window()->focusWidget() == widget("txtEff"); }));
  EXPECT_TRUE(widget("txtEff")->property("failed").toBool());
  QTest::keyClicks(widget("txtEff"), QStringLiteral("9"));
  EXPECT_FALSE(widget("txtEff")->property("failed").toBool());
}

TEST_F(Use, APressedButtonStillWorksAfterTheMessage) {
  start();
  type("txtEff", "-5");
  expectBox();
  press("Command8");
  ASSERT_TRUE(comes([&] { return boxes.size() == 1; }));
  EXPECT_EQ(boxes[0], "Input error|Irrigation Efficiency %:  Please enter a value that's greater than 0");
  EXPECT_EQ(pane(), "pneIrrigCosts");
  EXPECT_EQ(widget<QLineEdit>("txtEff")->text(), QStringLiteral("85"));
}

TEST_F(Use, IncompleteInputsShowAMessage) {
  start();
  expectBox();
  press("Command1");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0], "Error|Please enter all of the necessary information before continuing!");
}

TEST_F(Use, CancellingARunStaysOnTheMainPane) {
  start();
  typeFarm();
  program().windows.updating();
  auto& bar = control<ProgressBar>("frmUpdating.ProgressBar");
  desktop().binder().alsoWatch(bar, [&] {
    if (bar.value() == 3) QTest::mouseClick(widget("frmUpdating.Command1"), Qt::LeftButton);
  });
  press("Command1");
  EXPECT_EQ(pane(), "pneMain");
  EXPECT_FALSE(program().windows.updating().isOpen());
  EXPECT_FALSE(widget("frmUpdating")->isVisible());
}

TEST_F(Use, AShortRunShowsNoProgressWindow) {
  start();
  typeFarm();
  bool seen = false;
  program().windows.updating();
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] { seen = seen || widget("frmUpdating")->isVisible(); });
  watch.start(1);
  press("Command1");
  QTest::qWait(400);
  EXPECT_FALSE(seen);
}

TEST_F(Use, ALongRunShowsItsProgressAndBlocksNothing) {
  start();
  typeFarm();
  program().windows.updating();
  QWidget* progress = widget("frmUpdating");
  auto& bar = control<ProgressBar>("frmUpdating.ProgressBar");
  desktop().binder().alsoWatch(bar, [&] {
    if (bar.value() != 3) return;
    QTest::qWait(500);  // as long as a step on a large farm
    EXPECT_TRUE(progress->isVisible());
    EXPECT_FALSE(progress->isModal());
    EXPECT_TRUE(window()->isEnabled());
    const QStringList texts = [&] {
      QStringList found;
      for (const QLabel* label : progress->findChildren<QLabel*>())
        found << label->text();
      return found;
    }();
    EXPECT_FALSE(
        texts.filter(QRegularExpression(QStringLiteral("^Step [0-9,]+ of [0-9,]+, [0-9]+ %"))).isEmpty())
        << texts.join(QLatin1Char('|')).toStdString();
    type("txtArea", "200");  // the main window accepts input during the run; the run keeps its own inputs
    QTest::mouseClick(widget("frmUpdating.Command1"), Qt::LeftButton);
  });
  press("Command1");
  EXPECT_EQ(pane(), "pneMain");
  EXPECT_FALSE(progress->isVisible());
  EXPECT_EQ(program().main().pneMain.txtArea.text(), "200");
}

TEST_F(Use, TheKeyboardAloneLeadsFromTheStartToTheOptions) {
  QWidget* welcome = widget("frmWelcome");
  welcome->activateWindow();
  ASSERT_TRUE(comes([&] { return widget("frmWelcome.Command1")->hasFocus(); }));
  QTest::keyClick(widget("frmWelcome.Command1"), Qt::Key_Space);
  ASSERT_NE(window(), nullptr);
  ASSERT_TRUE(comes([&] { return window()->isActiveWindow(); }));
  widget("txtArea")->setFocus();
  ASSERT_TRUE(comes([&] { return widget("txtArea")->hasFocus(); }));
  const auto typeHere = [](const char* text) {
    QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
  };
  const auto tab = [](int times = 1) {
    for (int i = 0; i < times; ++i)
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  };
  const auto tabTo = [&](const std::string& path) {
    for (int i = 0; i < 80 && !widget(path)->hasFocus(); ++i)
      tab();
    ASSERT_TRUE(widget(path)->hasFocus()) << path;
  };
  typeHere("100");
  tabTo("txtMax");
  typeHere("12");
  tabTo("txtAnnRain");
  typeHere("16");
  tabTo("Option1(0)");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_TRUE(program().main().pneMain.Option1[1]->checked());
  tabTo("cr(1).chkCrop");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  tabTo("Command7");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  const MainPane& typed = program().main().pneMain;
  ASSERT_TRUE(typed.ready()) << typed.txtArea.text() << '|' << typed.txtMax.text() << '|'
                             << typed.lblVolume.caption() << '|' << typed.txtAnnRain.text();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F5);
  EXPECT_EQ(pane(), "pneResults");
}

TEST_F(Use, ReturnInAFieldDoesNothing) {
  start();
  typeFarm();
  QTest::keyClick(widget("txtArea"), Qt::Key_Return);
  EXPECT_EQ(pane(), "pneMain");
}

TEST_F(Use, TheMouseWheelDoesNotChangeAFieldWithoutFocus) {
  start();
  widget("txtArea")->setFocus();
  QComboBox* soil = widget<QComboBox>("txtSoil");
  QWheelEvent wheel(QPointF(5, 5), soil->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(soil, &wheel);
  EXPECT_EQ(soil->currentText(), QStringLiteral("Silt Loam"));
}

TEST_F(Use, TheMouseWheelDoesNotFocusAField) {
  start();
  for (const QWidget* field : window()->findChildren<QWidget*>()) {
    if (field->inherits("QComboBox") || field->inherits("QLineEdit")) {
      EXPECT_NE(field->focusPolicy(), Qt::WheelFocus) << field->objectName().toStdString();
    }
  }
}

TEST_F(Use, FreeTextKeepsItsCase) {
  start();
  type("txtSoil", "silt loam");
  QTest::keyClick(widget("txtSoil"), Qt::Key_Return);
  EXPECT_EQ(program().main().pneMain.currentSoil, "silt loam");
}

TEST_F(Use, F1OpensTheTopicOfTheFocusedField) {
  start();
  widget("txtEff")->setFocus();
  QTest::keyClick(window(), Qt::Key_F1);
  EXPECT_TRUE(desktop().services().help().isVisible());
}

TEST_F(Use, TheMinimumWidthOfTheWindowClipsNothing) {
  start();
  window()->resize(300, 300);
  EXPECT_GE(window()->width(), 1000);
  for (const char* field : {"txtArea", "Option1(5)", "cr(1).cmdInputCosts", "Command1"}) {
    const QWidget* shown = widget(field);
    const QPoint right = shown->mapTo(window(), QPoint(shown->width(), 0));
    EXPECT_LE(right.x(), window()->width()) << field;
  }
}

TEST_F(Use, ReloadedCropRowsWork) {
  start();
  program().main().loadCropRows();
  tick("cr(2).chkCrop");
  EXPECT_TRUE(program().main().pneMain.cr[2]->isActive());
  EXPECT_TRUE(widget("cr(2).txtPrice")->isEnabled());
}

}  // namespace
}  // namespace verdalis::testing
