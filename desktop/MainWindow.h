#pragma once

#include <QHash>
#include <QMainWindow>
#include <filesystem>
#include <functional>

#include "desktop/Binder.h"
#include "main/frmMain.h"

class QMimeData;
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

  /// Makes what stands on all pages now. Otherwise a page is made when it is shown for the first time.
  void buildPages();

  /// Opens a farm file, as the user's action.
  void openFarm(const std::filesystem::path& path);

 protected:
  void closeEvent(QCloseEvent* event) override;

  // A farm file dropped on the window is opened.
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void addMenus();
  void addPane(Frame& pane, const char* topic, std::function<QWidget*()> make);
  void build(QWidget* page);
  void addBarKeys();
  void showTopPane();
  void settleFocus();
  [[nodiscard]] QString farmIn(const QMimeData* dragged) const;
  void bringIntoSight(QWidget* focus) const;
  void showHelpOfFocus();
  void restorePlace();

  frmMain& window_;
  Binder& binder_;
  std::function<void(const QString&)> showTopic_;
  QStackedWidget* stack_;
  QHash<const Frame*, QWidget*> pages_;
  QHash<QWidget*, std::function<QWidget*()>> unbuilt_;  ///< The pages that were not shown yet
  bool acting_ = false;  ///< The user's last action goes on: a run, or a message box
  Connection acts_;
  Connection acted_;
};

}  // namespace verdalis::desktop
