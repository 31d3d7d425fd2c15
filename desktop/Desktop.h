#pragma once

#include <QObject>
#include <QTimer>
#include <filesystem>
#include <memory>
#include <optional>

#include "desktop/Binder.h"
#include "desktop/MainWindow.h"
#include "desktop/QtServices.h"
#include "main/Program.h"

namespace verdalis::desktop {

/// The program in its windows: ties the running program to the toolkit.
class Desktop : public QObject {
  Q_OBJECT

 public:
  /// \param farm a farm file to open at once, without the welcome window
  Desktop(const ProgramFiles& files, const QString& helpFolder,
          const std::optional<std::filesystem::path>& farm = {});
  ~Desktop() override;

  [[nodiscard]] Program& program() { return program_; }
  [[nodiscard]] Binder& binder() { return binder_; }
  [[nodiscard]] QtServices& services() { return services_; }
  [[nodiscard]] MainWindow* mainWindow() const { return main_.get(); }

  /// The user's session ends: copies unsaved changes for recovery. When the program is told to quit after
  /// that, it asks nothing.
  void endSession();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void showWelcome();
  void openAtStart(const std::filesystem::path& farm);
  void keepCopies(frmMain& window);
  void showSecondary(Window& window);
  void endWith(Window& window);

  QTimer settling_;  ///< Runs from an action to the hints about it
  QtServices services_;
  Services table_;
  Program program_;
  Binder binder_;
  std::unique_ptr<QWidget> welcome_;
  std::unique_ptr<MainWindow> main_;
  QTimer copying_;  ///< Runs from the first change that the recovery copy lacks
  Connection changes_;
};

}  // namespace verdalis::desktop
