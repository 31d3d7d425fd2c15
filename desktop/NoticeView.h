#pragma once

#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <functional>

#include "desktop/Binder.h"
#include "main/NoticeBar.h"
#include "main/RecoveryBar.h"

namespace verdalis::desktop {

/// The text of a bar: wrapped at any place, because a path has no blanks, and cut after a few lines. The tool
/// tip then shows it whole.
class BarText : public QLabel {
  Q_OBJECT

 public:
  BarText();

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;
};

/// A bar above the page. While the focus is in it, Esc does what `onEscape` says and leaves the page alone.
/// When the bar goes by one of its buttons, the focus goes back to where it was.
class Bar : public QFrame {
  Q_OBJECT

 public:
  explicit Bar(std::function<void()> onEscape = {});
  ~Bar() override;

  void giveFocusBack();

 protected:
  bool event(QEvent* event) override;

 private:
  std::function<void()> onEscape_;
  QPointer<QWidget> before_;  ///< Had the focus before it came into the bar
};

/// The bars of the notices and of the recovery copies. Each takes room only while it is visible.
[[nodiscard]] QWidget* noticeView(NoticeBar& notices, Binder& binder);
[[nodiscard]] QWidget* recoveryView(RecoveryBar& recovery, Binder& binder);

}  // namespace verdalis::desktop
