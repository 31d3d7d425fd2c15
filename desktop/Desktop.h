#pragma once

#include <QObject>
#include <filesystem>
#include <memory>

#include "desktop/Binder.h"
#include "desktop/MainWindow.h"
#include "desktop/QtServices.h"
#include "main/Program.h"

namespace verdalis::desktop {

/// The program in its windows: ties the running program to the toolkit.
class Desktop : public QObject {
  Q_OBJECT

 public:
  Desktop(const std::filesystem::path& home, const QString& helpFolder);
  ~Desktop() override;

  [[nodiscard]] Program& program() { return program_; }
  [[nodiscard]] Binder& binder() { return binder_; }
  [[nodiscard]] QtServices& services() { return services_; }
  [[nodiscard]] MainWindow* mainWindow() const { return main_.get(); }

 private:
  void showSecondary(Window& window);
  void endWith(Window& window);

  QtServices services_;
  Services table_;
  Program program_;
  Binder binder_;
  std::unique_ptr<QWidget> welcome_;
  std::unique_ptr<MainWindow> main_;
};

}  // namespace verdalis::desktop
