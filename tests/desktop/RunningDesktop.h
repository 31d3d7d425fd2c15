#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "desktop/Desktop.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {

/// The program in its windows, in a home folder of its own with the stock crops.
class RunningDesktop : public ::testing::Test {
 protected:
  RunningDesktop() {
    std::filesystem::copy(VERDALIS_SOURCE_DIR "/crops", folder_.path() / "crops",
                          std::filesystem::copy_options::recursive);
    // A box that nobody expected must not hold the tests for ever.
    QObject::connect(&guard_, &QTimer::timeout, &guard_, [this] {
      QWidget* box = QApplication::activeModalWidget();
      if (box == nullptr || box != unanswered_) {
        unanswered_ = box;
        return;
      }
      const auto* message = qobject_cast<QMessageBox*>(box);
      ADD_FAILURE() << "unexpected box: " << (message == nullptr ? "" : message->text().toStdString());
      box->close();
    });
    guard_.start(2000);
    desktop_ =
        std::make_unique<desktop::Desktop>(folder_.path(), QStringLiteral(VERDALIS_SOURCE_DIR "/help/HTML"));
  }

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

  /// Whether something comes true within a while. (The toolkit's own waiting checks report to nobody here.)
  [[nodiscard]] static bool comes(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 3000);
  }

  void press(const std::string& path) { QTest::mouseClick(widget(path), Qt::LeftButton); }

  /// A check box or option button is pressed at its mark, not somewhere beside its text.
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

  /// From the welcome window to the main pane.
  void start() {
    press("frmWelcome.Command1");
    ASSERT_NE(window(), nullptr);
    window()->activateWindow();
    QTest::qWait(0);
  }

  /// 100 acres, 12 inches, rain 16, two halves, Corn and Wheat, typed and clicked.
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

  /// Closes the message box that comes next with a key, and keeps its title and text.
  void expectBox(Qt::Key key = Qt::Key_Return) {
    QTimer::singleShot(0, qApp, [this, key] { answerBox(key, 50); });
  }

  std::vector<std::string> boxes;  ///< "title|text" of those that were answered

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

  QTimer guard_;
  QWidget* unanswered_ = nullptr;
  TemporaryFolder folder_{"desktop"};
  std::unique_ptr<desktop::Desktop> desktop_;
};

}  // namespace verdalis::testing
