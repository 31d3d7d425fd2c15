#include "main/NoticeBar.h"

#include <algorithm>
#include <utility>

namespace verdalis {

NoticeBar::NoticeBar(Frame& window) : Frame(window, "noticeBar") {
  cmdNotice.onClick.connect([this] { act(&Notice::action); });
  cmdNotice2.onClick.connect([this] { act(&Notice::action2); });
  cmdNoticeClose.onClick.connect([this] { dismiss(); });
  refresh();
}

void NoticeBar::tell(Notice notice) {
  std::erase_if(notices_, [&](const Notice& other) {
    return other.text == notice.text || (!notice.about.empty() && other.about == notice.about);
  });
  notices_.insert(notices_.begin(), std::move(notice));
  refresh();
}

void NoticeBar::withdraw(std::string_view about) {
  if (std::erase_if(notices_, [&](const Notice& notice) { return notice.about == about; }) > 0) refresh();
}

void NoticeBar::dismiss() {
  if (notices_.empty()) return;
  notices_.erase(notices_.begin());
  refresh();
}

void NoticeBar::setAside(bool aside) {
  aside_ = aside;
  refresh();
}

void NoticeBar::act(std::function<void()> Notice::*action) {
  if (notices_.empty() || !(notices_.front().*action)) return;
  const Notice notice = notices_.front();
  dismiss();
  try {
    (notice.*action)();
  } catch (...) {
    tell(notice);
    throw;
  }
}

void NoticeBar::refresh() {
  const bool shown = !notices_.empty() && !aside_;
  const Notice none;
  const Notice& front = notices_.empty() ? none : notices_.front();
  lblNotice.setCaption(front.text);
  lblNotice.setVisible(shown);
  lblNoticeCount.setCaption(notices_.size() > 1 ? "1 of " + std::to_string(notices_.size()) : "");
  lblNoticeCount.setVisible(shown && notices_.size() > 1);
  cmdNotice.setCaption(front.actionCaption);
  cmdNotice.setVisible(shown && front.action && !front.actionCaption.empty());
  cmdNotice2.setCaption(front.actionCaption2);
  cmdNotice2.setVisible(shown && front.action2 && !front.actionCaption2.empty());
  cmdNoticeClose.setVisible(shown);
  setVisible(shown);
}

}  // namespace verdalis
