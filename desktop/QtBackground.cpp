#include "desktop/QtBackground.h"

#include <utility>

namespace verdalis::desktop {

QtBackground::QtBackground() {
  threads_.setMaxThreadCount(1);
}

QtBackground::~QtBackground() {
  threads_.waitForDone();
}

void QtBackground::waitFor(Desk& desk) {
  desk_ = &desk;
  // Behind the event, because whoever listens after this may still use what the action has changed.
  acted_ = desk.onActed.connectScoped([this] {
    if (!done_.empty())
      QMetaObject::invokeMethod(
          this, [this] { deliver(); }, Qt::QueuedConnection);
  });
}

void QtBackground::run(const std::function<void()>& work, const std::function<void()>& done) {
  threads_.start([this, work, done] {
    work();
    const auto tell = [this, done] {
      done_.push_back(done);
      deliver();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
  });
}

void QtBackground::deliver() {
  while (!done_.empty() && (desk_ == nullptr || !desk_->isActing())) {
    const std::function<void()> done = std::move(done_.front());
    done_.pop_front();
    done();
  }
}

}  // namespace verdalis::desktop
