#pragma once

#include <QMainWindow>
#include <functional>

#include "desktop/Binder.h"
#include "main/frmMain.h"

class QStackedWidget;

namespace verdalis::desktop {

/// The main window: the menu bar, the information band, the bar of the notices and the pane on top of the
/// others.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `showTopic` opens a help topic.
  MainWindow(frmMain& window, Binder& binder, std::function<void(const QString&)> showTopic);

  ~MainWindow() override;

  /// The page of the pane on show.
  [[nodiscard]] QWidget* currentPage() const;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void addMenus();
  void addPane(Frame& pane, QWidget* page, const char* topic);
  void addBarKeys();
  void showTopPane();
  void bringIntoSight(QWidget* focus) const;
  void showHelpOfFocus();
  void restorePlace();

  frmMain& window_;
  Binder& binder_;
  std::function<void(const QString&)> showTopic_;
  QStackedWidget* stack_;
};

}  // namespace verdalis::desktop
