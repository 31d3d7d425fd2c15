#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/Desktop.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {

/// Runs the program with its windows, in a separate home folder with the stock crops.
class RunningDesktop : public ::testing::Test {
 protected:
  RunningDesktop() {
    std::filesystem::copy(VERDALIS_SOURCE_DIR "/crops", folder_.path() / "crops",
                          std::filesystem::copy_options::recursive);
    // Closes an unexpected message box, which would block the tests forever.
    QObject::connect(&guard_, &QTimer::timeout, &guard_, [this] {
      QWidget* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (box == nullptr || box != unanswered_) {
        unanswered_ = box;
        return;
      }
      const auto* message = qobject_cast<QMessageBox*>(box);
      ADD_FAILURE() << "unexpected box: " << (message == nullptr ? "" : message->text().toStdString());
      box->close();
    });
    guard_.start(2000);
    restart();
  }

  /// Ends the program without asking, as a crash does, and starts it at the welcome window, or with a farm
  /// file.
  void restart(const std::optional<std::filesystem::path>& farm = {}) {
    desktop_.reset();
    desktop_ = anotherDesktop(farm);
  }

  /// One more program with the same home folder.
  [[nodiscard]] std::unique_ptr<desktop::Desktop> anotherDesktop(
      const std::optional<std::filesystem::path>& farm = {}) {
    ProgramFiles files(folder_.path());
    if (remembers) files.state = folder_.path() / "recovery";
    files.recovers = remembers;
    return std::make_unique<desktop::Desktop>(files, QStringLiteral(VERDALIS_SOURCE_DIR "/help/HTML"), farm);
  }

  /// Whether a program that is started from now on keeps recent farms and recovery copies.
  bool remembers = false;

  [[nodiscard]] desktop::Desktop& desktop() { return *desktop_; }
  [[nodiscard]] Program& program() { return desktop_->program(); }
  [[nodiscard]] QWidget* window() { return desktop_->mainWindow(); }
  [[nodiscard]] std::filesystem::path home() const { return folder_.path(); }

  template <class Kind>
  Kind& control(const std::string& path) {
    return dynamic_cast<Kind&>(*program().desk.find(path));
  }

  /// The widget of a control.
  template <class Kind = QWidget>
  Kind* widget(const std::string& path) {
    return qobject_cast<Kind*>(desktop_->binder().widget(*program().desk.find(path)));
  }

  /// Whether a condition becomes true within a time limit. Replaces Qt's own checks, which only report in Qt
  /// Test.
  [[nodiscard]] static bool comes(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 3000);
  }

  /// Opens the entry's menu in the menu bar and clicks the entry.
  void choose(Control& entry) {
    QAction* wanted = desktop().binder().action(entry);
    ASSERT_NE(wanted, nullptr) << entry.path();
    auto* bar = window()->findChild<QMenuBar*>();
    for (QAction* title : bar->actions()) {
      QMenu* menu = title->menu();
      if (menu == nullptr || !menu->actions().contains(wanted)) continue;
      QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(title).center());
      ASSERT_TRUE(comes([&] { return menu->isVisible(); }));
      QTest::mouseMove(menu, menu->actionGeometry(wanted).center());
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(wanted).center());
      QTest::qWait(0);
      return;
    }
    FAIL() << "in no menu: " << entry.path();
  }

  void press(const std::string& path) { QTest::mouseClick(widget(path), Qt::LeftButton); }

  /// Clicks a check box or option button on its mark, because a click beside its text has no effect.
  void tick(const std::string& path) {
    QWidget* box = widget(path);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(10, box->height() / 2));
  }

  void type(const std::string& path, const char* text) {
    QWidget* field = widget(path);
    field->setFocus(Qt::TabFocusReason);
    QTest::qWait(0);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, QString::fromUtf8(text));
  }

  /// Goes from the welcome window to the main pane.
  void start() {
    press("frmWelcome.Command1");
    ASSERT_NE(window(), nullptr);
    desktop_->mainWindow()->buildPages();
    window()->activateWindow();
    QTest::qWait(0);
  }

  /// Enters 100 acres, 12 inches, 16 inches of rain, two halves, Corn and Wheat, by typing and clicking.
  void typeFarm() {
    type("txtArea", "100");
    type("txtMax", "12");
    type("txtAnnRain", "16");
    tick("Option1(0)");
    press("Command7");
    tick("cr(1).chkCrop");
    tick("cr(5).chkCrop");
  }

  [[nodiscard]] std::string pane() { return program().main().panes.top().name(); }

  /// Closes the next message box with a key, and stores its title and text.
  void expectBox(Qt::Key key = Qt::Key_Return) {
    QTimer::singleShot(0, qApp, [this, key] { answerBox(key, 50); });
  }

  /// Presses a button of the next message box, and stores its title and text.
  void expectAnswer(QMessageBox::StandardButton button) {
    QTimer::singleShot(0, qApp, [this, button] { answerBox(button, 50); });
  }

  /// Presses a key in the main window, and activates it first, because a dialog may have left it inactive.
  void pressKey(Qt::Key wanted, Qt::KeyboardModifiers with = Qt::NoModifier) {
    window()->activateWindow();
    QTest::qWait(0);
    QWidget* focus = window()->focusWidget();
    QTest::keyClick(focus == nullptr ? window() : focus, wanted, with);
  }

  /// Answers the next file chooser by typing a path; an empty path cancels it.
  void expectChooser(const QString& path) {
    QTimer::singleShot(0, qApp, [this, path] { answerChooser(path, 50); });
  }

  std::vector<std::string> boxes;   ///< "title|text" of the answered boxes
  std::vector<std::string> titles;  ///< Titles of the answered choosers

 private:
  void answerBox(Qt::Key key, int tries) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) {
      if (tries > 0) QTimer::singleShot(10, qApp, [this, key, tries] { answerBox(key, tries - 1); });
      return;
    }
    boxes.push_back(box->windowTitle().toStdString() + "|" + box->text().toStdString());
    EXPECT_TRUE(box->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    QTest::keyClick(box, key);
    if (box->isVisible()) box->close();
  }

  void answerBox(QMessageBox::StandardButton button, int tries) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) {
      if (tries > 0) QTimer::singleShot(10, qApp, [this, button, tries] { answerBox(button, tries - 1); });
      return;
    }
    boxes.push_back(box->windowTitle().toStdString() + "|" + box->text().toStdString());
    ASSERT_NE(box->button(button), nullptr) << boxes.back();
    QTest::mouseClick(box->button(button), Qt::LeftButton);
  }

  void answerChooser(const QString& path, int tries) {
    auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (chooser == nullptr) {
      if (tries > 0) QTimer::singleShot(10, qApp, [this, path, tries] { answerChooser(path, tries - 1); });
      return;
    }
    titles.push_back(chooser->windowTitle().toStdString());
    if (path.isEmpty()) {
      chooser->reject();
      return;
    }
    auto* name = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name->setText(path);
    QTest::keyClick(name, Qt::Key_Return);
    if (chooser->isVisible()) chooser->reject();
  }

  QTimer guard_;
  QWidget* unanswered_ = nullptr;
  TemporaryFolder folder_{"desktop"};
  std::unique_ptr<desktop::Desktop> desktop_;
};

}  // namespace verdalis::testing
