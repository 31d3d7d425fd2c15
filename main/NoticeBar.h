#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/displays.h"

namespace verdalis {

/// Something that the user should know, with what can be done about it.
struct Notice {
  std::string text;  ///< What happened, where, and why, in the user's words

  /// The caption of the button, such as "Restore"; empty if nothing can be done.
  std::string actionCaption = {};

  /// What the button does. The notice is taken away first; an action that could not do its work tells it
  /// again. If it throws, the notice stays.
  std::function<void()> action = {};

  /// A second button, such as "Open folder", in the same way.
  std::string actionCaption2 = {};
  std::function<void()> action2 = {};

  /// What it is about, for a notice that is brought up to date or withdrawn later: a new notice replaces the
  /// one about the same. Empty for a notice on its own.
  std::string about = {};
};

/// The bar above the page that shows the notices one at a time, the newest first. It never takes the focus by
/// itself, and is invisible when there is no notice.
class NoticeBar : public Frame {
 public:
  explicit NoticeBar(Frame& window);

  Label lblNotice{*this, "lblNotice"};
  Label lblNoticeCount{*this, "lblNoticeCount"};  ///< Such as "1 of 3"; invisible for a single notice
  Button cmdNotice{*this, "cmdNotice", ""};       ///< Visible only if the notice has an action
  Button cmdNotice2{*this, "cmdNotice2", ""};     ///< Visible only if it has a second one
  Button cmdNoticeClose{*this, "cmdNoticeClose", "\u00D7"};

  /// Puts a notice in front of the others. One with the same text, or about the same, is removed.
  void tell(Notice notice);

  /// Removes the notice about something; nothing happens without one.
  void withdraw(std::string_view about);

  /// Removes the notice on show.
  void dismiss();

  /// Hides the bar while another bar stands in its place. The notices are kept.
  void setAside(bool aside);

  /// The notices, the one on show first.
  [[nodiscard]] const std::vector<Notice>& all() const { return notices_; }

 private:
  void act(std::function<void()> Notice::*action);
  void refresh();

  std::vector<Notice> notices_;
  bool aside_ = false;
};

}  // namespace verdalis
