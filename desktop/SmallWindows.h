#pragma once

#include <QElapsedTimer>
#include <QWidget>

#include "desktop/Page.h"
#include "screens/frmUpdating.h"
#include "screens/frmWelcome.h"
#include "screens/modHelp.h"

class QLabel;
class QProgressBar;
class QTimer;

namespace verdalis::desktop {

/// The welcome window.
[[nodiscard]] QWidget* welcomeWindow(frmWelcome& window, Binder& binder);

/// The window of the short notes.
[[nodiscard]] QWidget* noteWindow(frmHelp& window, Binder& binder, QWidget* parent);

/// The progress window: steps, share and time left. It appears only when a run takes longer than a moment,
/// stays in front of the main window without blocking it, and repaints at most some 30 times a second.
class ProgressWindow : public QWidget {
  Q_OBJECT

 public:
  ProgressWindow(frmUpdating& window, Binder& binder, QWidget* parent);

 protected:
  void closeEvent(QCloseEvent* event) override;

  /// Escape cancels the run in whichever window of the program the focus is.
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void follow();
  void showProgress();

  frmUpdating& window_;
  QLabel* steps_;
  QProgressBar* bar_;
  QTimer* appearance_;
  QTimer* repaint_;
  QElapsedTimer elapsed_;
};

}  // namespace verdalis::desktop
