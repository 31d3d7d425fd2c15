#pragma once

#include <QObject>
#include <QThreadPool>
#include <deque>
#include <functional>

#include "controls/Control.h"
#include "controls/services.h"

namespace verdalis::desktop {

/// Runs work on another thread, one piece after the other, because each uses all cores. What is done is told
/// between two actions of the user.
class QtBackground : public QObject, public BackgroundService {
  Q_OBJECT

 public:
  QtBackground();

  /// Waits for the work, which whoever asked for it has cancelled by then. What is done is not told any more.
  ~QtBackground() override;

  /// From now on, what is done waits for the end of the actions at this desk, which must outlive them.
  void waitFor(Desk& desk);

  void run(const std::function<void()>& work, const std::function<void()>& done) override;

 private:
  void deliver();

  QThreadPool threads_;
  Desk* desk_ = nullptr;
  Connection acted_;
  std::deque<std::function<void()>> done_;  ///< Work that is done and not told yet
};

}  // namespace verdalis::desktop
