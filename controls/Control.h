#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"

namespace verdalis {

class Desk;
class Frame;

enum class ControlKind {
  TextBox,
  ComboBox,
  CheckBox,
  OptionButton,
  Button,
  Label,
  Frame,
  MenuEntry,
  Grid,
  ProgressBar,
  ScrollBar,
  Image
};

/// The name of a kind, such as "TextBox".
[[nodiscard]] std::string_view kindName(ControlKind kind);

/// A control as data: its state and its events, without layout or painting.
///
/// The program sets state with the set... operations; whoever shows the control is told through
/// `onStateChange`. A person acts through operations of their own (click, type, pick, ...), and these run the
/// same path from a widget, a script line or a test. What the program sets fires the same event as what a
/// person does, where it really changes something.
class Control {
 public:
  /// A control of a container, which must outlive it. `name` is that of the program, such as "txtArea" or
  /// "cr(0)".
  Control(ControlKind kind, Frame& container, std::string name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  [[nodiscard]] ControlKind kind() const { return kind_; }
  [[nodiscard]] const std::string& name() const { return name_; }

  /// The name by which it is reached from outside: with that of the window or composite control it belongs
  /// to, such as "theResults.rh(0).lblCrop".
  [[nodiscard]] std::string path() const;

  [[nodiscard]] Frame* container() const { return container_; }
  [[nodiscard]] Frame& window();

  [[nodiscard]] bool visible() const { return visible_; }
  [[nodiscard]] bool enabled() const { return enabled_; }
  void setVisible(bool visible);
  void setEnabled(bool enabled);

  /// Another one lies in front of it: visible as its state says, yet out of a person's sight.
  [[nodiscard]] bool covered() const { return covered_; }
  void setCovered(bool covered);

  /// Whether a person can see it: it and all that contains it are visible and not covered.
  [[nodiscard]] bool isShown() const;

  /// Whether a person can use it: shown, and it and all that contains it are enabled.
  [[nodiscard]] bool isReachable() const;

  /// A person moves the focus to it, or out of it to nowhere. A focus that is there already stays, and so
  /// does one that the leaving test of another field takes back.
  void enter();
  void leave();

  Event<> onEnter;
  Event<> onLeave;

  /// After each change of its state.
  Event<> onStateChange;

  /// The desk of its window, which passes people's actions on and knows the focus.
  [[nodiscard]] Desk& desk();

 protected:
  /// A window of a desk.
  Control(ControlKind kind, Desk& desk, std::string name);

  void changed() const { onStateChange(); }

  /// Expires with the control. What goes on after an event looks here, as a listener may have taken the
  /// control away.
  [[nodiscard]] std::weak_ptr<const void> life() const { return life_; }

  /// Called when the focus comes to it, before onEnter.
  virtual void focused() {}

  /// Runs a person's action: the focus comes here first (unless `takesFocus` is false), and a run-time error
  /// ends the action and is told by the desk.
  void act(const std::function<void()>& action, bool takesFocus = true);

 private:
  friend class Desk;

  ControlKind kind_;
  Frame* container_ = nullptr;
  Desk* desk_ = nullptr;
  std::string name_;
  bool visible_ = true;
  bool enabled_ = true;
  bool covered_ = false;
  std::shared_ptr<const void> life_ = std::make_shared<char>();
};

/// A frame, a pane, a window or a composite control: what contains controls.
class Frame : public Control {
 public:
  enum class Scope {
    transparent,  ///< Its controls are reached by their own names
    named,        ///< Its controls are reached through its name
  };

  Frame(Frame& container, std::string name, Scope scope = Scope::transparent)
      : Control(ControlKind::Frame, container, std::move(name)), scope_(scope) {}

  [[nodiscard]] Scope scope() const { return scope_; }
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
  [[nodiscard]] const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);

  /// A person clicks on it.
  void click();
  Event<> onClick;

 protected:
  Frame(Desk& desk, std::string name, Scope scope)
      : Control(ControlKind::Frame, desk, std::move(name)), scope_(scope) {}

 private:
  friend class Control;

  Scope scope_;
  std::string caption_;
  std::vector<Control*> controls_;
};

/// A top-level window. It is open while it is visible; a new one is closed.
class Window : public Frame {
 public:
  Window(Desk& desk, std::string name, Scope scope = Scope::named);
  ~Window() override;

  [[nodiscard]] bool isOpen() const { return visible(); }
  void open();
  void close();

  /// A person closes it by its frame.
  void closeByUser();

  /// What that does in place of closing it. It is a handler and no event, as one alone can decide.
  std::function<void()> onCloseByUser;

  /// It was active, and now another window of the program, or none, is.
  Event<> onDeactivate;
};

/// What all windows of the program share: the focus, the active window, and the one place where people's
/// actions enter and their run-time errors are caught.
class Desk {
 public:
  Desk() = default;
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  /// Tells a run-time error to the user. Without it the error goes on to the caller, so it is a handler and
  /// no event.
  std::function<void(const class RunTimeError&)> onRunTimeError;

  /// The program moves the focus, without the leaving test of the control that had it. Whoever shows it
  /// follows.
  void moveFocus(Control& control);
  Event<Control&> onMoveFocus;

  [[nodiscard]] Control* focus() const { return focus_; }
  [[nodiscard]] const std::vector<Window*>& windows() const { return windows_; }

  /// The window becomes the active one; the one that was is told.
  void activate(Window* window);

  /// While a message box or chooser is open, windows do not lose the activation.
  class Modal {
   public:
    explicit Modal(Desk& desk) : desk_(desk) { ++desk_.modals_; }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;
    ~Modal() { --desk_.modals_; }

   private:
    Desk& desk_;
  };

  /// The control at a path, or nullptr. Only open windows and those that have been open are there.
  [[nodiscard]] Control* find(std::string_view path) const;

 private:
  friend class Control;
  friend class Window;

  /// `acting`: a person does something with the control, not just moves the focus there.
  void enter(Control& control, bool acting);
  void leave(Control& control);
  void forget(const Control& control);
  void run(const std::function<void()>& action);

  std::vector<Window*> windows_;
  Control* focus_ = nullptr;
  Window* active_ = nullptr;
  int modals_ = 0;
};

/// A caption as a person sees it: a doubled ampersand is one.
[[nodiscard]] std::string shownCaption(std::string_view caption);

}  // namespace verdalis
