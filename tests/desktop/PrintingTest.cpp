#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QProcess>
#include <QSpinBox>
#include <filesystem>
#include <fstream>

#include "tests/data/FullDisk.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

/// Prints reports through the print dialog of a machine without a printer, which offers PDF.
class Printing : public RunningDesktop {
 protected:
  void startWithOptions() {
    start();
    typeFarm();
    press("Command1");
    ASSERT_EQ(pane(), "pneResults");
    QTest::qWait(0);
  }

  /// Answers the next print dialog: prints to a file, or cancels if the path is empty.
  void expectDialog(const std::filesystem::path& path, int copies = 1) {
    QTimer::singleShot(0, qApp, [this, path, copies] { answer(path, copies, 50); });
  }

  [[nodiscard]] static QString textOf(const std::filesystem::path& pdf) {
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), QString::fromStdString(pdf.string()), QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished(20000)) << "pdftotext is missing: run tools/install-deps test";
    EXPECT_EQ(reader.exitCode(), 0);
    return QString::fromUtf8(reader.readAllStandardOutput());
  }

  int dialogs = 0;

 private:
  void answer(const std::filesystem::path& path, int copies, int tries) {
    auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) {
      if (tries > 0)
        QTimer::singleShot(10, qApp, [this, path, copies, tries] { answer(path, copies, tries - 1); });
      return;
    }
    ++dialogs;
    if (path.empty()) {
      dialog->reject();
      return;
    }
    auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("filename"));
    ASSERT_NE(name, nullptr);
    EXPECT_TRUE(name->isEnabled()) << "a machine without a printer prints to a file";
    name->setText(QString::fromStdString(path.string()));
    if (copies > 1) {
      auto* number = dialog->findChild<QSpinBox*>(QStringLiteral("copies"));
      ASSERT_NE(number, nullptr);
      number->setValue(copies);
    }
    for (auto* box : dialog->findChildren<QDialogButtonBox*>()) {
      for (QAbstractButton* button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::AcceptRole)
          QTest::mouseClick(button, Qt::LeftButton);
      }
    }
    if (dialog->isVisible()) dialog->reject();
  }
};

TEST_F(Printing, TheResultsReportPrintsToAFile) {
  startWithOptions();
  expectDialog(home() / "report.pdf");
  press("theResults.Command2");
  EXPECT_EQ(dialogs, 1);
  ASSERT_TRUE(std::filesystem::exists(home() / "report.pdf"));
  const QString text = textOf(home() / "report.pdf");
  for (const char* line : {"Verdalis Planning Program", "Evaluation Results: ", "Total Acres: 100 acres",
                           "Annual Rainfall: 16 inches", "Crops to Evaluate: ", "Option 1", "Option 5",
                           "*Net returns to land, management, and irrigation equipment"}) {
    EXPECT_TRUE(text.contains(QLatin1String(line))) << line << '\n' << text.toStdString();
  }
  EXPECT_FALSE(text.contains(QLatin1String("Option 6")));
  EXPECT_EQ(pane(), "pneResults");
}

TEST_F(Printing, TheDetailsReportPrintsToAFileFromTheMenu) {
  startWithOptions();
  press("theResults.rh(0).cmdDetails");
  ASSERT_EQ(pane(), "pneDetails");
  expectDialog(home() / "field.pdf");
  choose(program().main().menus.mnuPrint);
  EXPECT_EQ(dialogs, 1);
  const QString text = textOf(home() / "field.pdf");
  for (const char* line : {"Verdalis - Detailed Field Results", "Field Information & Totals",
                           "Net Return Per Acre: ", "General Input Costs", "Irrigation Cost Information",
                           "Land Returns", "Subtotal: $"}) {
    EXPECT_TRUE(text.contains(QLatin1String(line))) << line << '\n' << text.toStdString();
  }
}

TEST_F(Printing, EachCopyIsASeparateDocument) {
  startWithOptions();
  expectDialog(home() / "report.pdf", 3);
  press("theResults.Command2");
  const QString first = textOf(home() / "report.pdf");
  for (const char* copy : {"report-2.pdf", "report-3.pdf"}) {
    ASSERT_TRUE(std::filesystem::exists(home() / copy)) << copy;
    EXPECT_EQ(textOf(home() / copy), first);
  }
  EXPECT_FALSE(std::filesystem::exists(home() / "report-4.pdf"));
}

TEST_F(Printing, AReportReplacesTheOldFile) {
  startWithOptions();
  const std::filesystem::path second = home() / "report-2.pdf";
  std::ofstream(second) << "old";
  std::filesystem::create_hard_link(second, home() / "reader");
  expectDialog(home() / "report.pdf", 2);
  press("theResults.Command2");
  EXPECT_EQ(textOf(second), textOf(home() / "report.pdf"));
  EXPECT_EQ(std::filesystem::file_size(home() / "reader"), 3U) << "replaced, not overwritten";
}

TEST_F(Printing, AFullDiskLeavesNoPartOfAReport) {
  startWithOptions();
  {
    const FullDisk full(1000);
    expectDialog(home() / "report.pdf");
    press("theResults.Command2");
  }
  EXPECT_EQ(dialogs, 1);
  EXPECT_FALSE(std::filesystem::exists(home() / "report.pdf"));
  EXPECT_EQ(pane(), "pneResults");
  const std::string notice = control<Label>("lblNotice").caption();
  EXPECT_NE(notice.find("could not be printed"), std::string::npos) << notice;
  EXPECT_NE(notice.find((home() / "report.pdf").string()), std::string::npos) << notice;
}

TEST_F(Printing, AReportThatCannotReplaceItsFileIsToldInANotice) {
  startWithOptions();
  std::filesystem::create_directory(home() / "report-2.pdf");
  expectDialog(home() / "report.pdf", 2);
  press("theResults.Command2");
  EXPECT_TRUE(std::filesystem::exists(home() / "report.pdf"));
  const std::string notice = control<Label>("lblNotice").caption();
  EXPECT_NE(notice.find((home() / "report-2.pdf").string() + " cannot be written: "), std::string::npos)
      << notice;
}

TEST_F(Printing, ACancelledDialogAndAnUnwritablePathEndTheReportSilently) {
  startWithOptions();
  expectDialog({});
  press("theResults.Command2");
  EXPECT_EQ(dialogs, 1);
  expectDialog(home() / "no such folder" / "report.pdf");
  expectBox();  // from the dialog itself, if it checks the path
  press("theResults.Command2");
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(pane(), "pneResults");
  QTest::qWait(600);
  press("theResults.cmdAdvance");
  EXPECT_EQ(control<Label>("theResults.lblCounter").caption(), "Option 2");
}

}  // namespace
}  // namespace verdalis::testing
