#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"
#include "controls/Life.h"

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
  Image,
  Table,
  ChartBox
};

/// The name of a kind, such as "TextBox".
[[nodiscard]] std::string_view kindName(ControlKind kind);

/// A control as data: its state and its events, without layout or painting.
///
/// The program changes the state with the set... operations, and the view is notified through
/// `onStateChange`. User actions have operations of their own (click, type, pick, ...), which do the same
/// whether a widget, a script or a test calls them. A change by the program raises the same event as one by
/// the user, but only if the state really changes.
class Control {
 public:
  /// Creates a control in a container, which must outlive it. `name` is its name in the program, such as
  /// "txtArea" or "cr(0)".
  Control(ControlKind kind, Frame& container, std::string name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  [[nodiscard]] ControlKind kind() const { return kind_; }
  [[nodiscard]] const std::string& name() const { return name_; }

  /// The full name, prefixed by the names of the enclosing `Frame::Scope::named` windows and composite
  /// controls, such as "theResults.rh(0).lblCrop".
  [[nodiscard]] std::string path() const;

  [[nodiscard]] Frame* container() const { return container_; }
  [[nodiscard]] Frame& window();

  [[nodiscard]] bool visible() const { return visible_; }
  [[nodiscard]] bool enabled() const { return enabled_; }
  void setVisible(bool visible);
  void setEnabled(bool enabled);

  /// Whether another control lies in front of this one and hides it from the user. visible() is unaffected.
  [[nodiscard]] bool covered() const { return covered_; }
  void setCovered(bool covered);

  /// Whether the user can see it: it and all its containers are visible and not covered.
  [[nodiscard]] bool isShown() const;

  /// Whether the user can use it: it is shown, and it and all its containers are enabled.
  [[nodiscard]] bool isReachable() const;

  /// User actions: move the focus to this control, or away from it to no control. enter() has no effect if
  /// the control already has the focus, or if a field fails its test on leaving and takes the focus back.
  void enter();
  void leave();

  Event<> onEnter;
  Event<> onLeave;

  /// Raised after each change of the state.
  Event<> onStateChange;

  /// The desk of its window, which runs user actions and keeps the focus.
  [[nodiscard]] Desk& desk();

 protected:
  /// Creates a window of a desk.
  Control(ControlKind kind, Desk& desk, std::string name);

  void changed() const { onStateChange(); }

  /// Code that continues after an event watches this, because a listener may have destroyed the control.
  [[nodiscard]] const Life& life() const { return life_; }

  /// Called when the control gets the focus, before onEnter.
  virtual void focused() {}

  /// Runs a user action. Moves the focus here first, unless `takesFocus` is false. A run-time error ends the
  /// action and is reported by the desk.
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
  Life life_;
};

/// A container of controls: a frame, a pane, a window or a composite control.
class Frame : public Control {
 public:
  enum class Scope {
    transparent,  ///< Its name is not part of the paths of its controls
    named,        ///< Its name is part of the paths of its controls
  };

  Frame(Frame& container, std::string name, Scope scope = Scope::transparent)
      : Control(ControlKind::Frame, container, std::move(name)), scope_(scope) {}

  [[nodiscard]] Scope scope() const { return scope_; }
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
  [[nodiscard]] const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);

  /// User action: click on the frame.
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

/// A top-level window. It is open while it is visible. A new window is closed.
class Window : public Frame {
 public:
  Window(Desk& desk, std::string name, Scope scope = Scope::named);
  ~Window() override;

  [[nodiscard]] bool isOpen() const { return visible(); }
  void open();
  void close();

  /// User action: close the window by its frame.
  void closeByUser();

  /// Replaces the closing by the user. It is a handler and not an event because only one can decide.
  std::function<void()> onCloseByUser;

  /// The window was active, and now another window of the program or none is.
  Event<> onDeactivate;
};

/// Shared by all windows of the program: the focus, the active window, and the one place where user actions
/// start and their run-time errors are caught.
class Desk {
 public:
  /// The user starts to do something with a control, and the control that had the focus before has been left.
  /// Not raised for actions inside another one, such as a click on "Cancel" during a run.
  Event<Control&> onActing;

  /// The same for an action inside another one.
  Event<Control&> onActingInside;

  /// An action of the user has ended, or the focus has moved. Not raised for actions inside another one.
  Event<> onActed;

  /// Follows onActed, for what only informs the reader, such as hints. A door that shows the controls may put
  /// it off for a moment, so that a key press does not wait for it.
  Event<> onSettled;

  /// Set by such a door: calls settle() soon. Without it, onSettled follows each onActed at once.
  std::function<void()> settleLater;

  /// Raises onSettled if it has been put off.
  void settle();

  /// Whether the present action of the user is inside another one, which goes on afterwards: a run, or a
  /// message box.
  [[nodiscard]] bool isInsideAction() const { return actions_ > 1; }

  /// Whether an action of the user is being carried out.
  [[nodiscard]] bool isActing() const { return actions_ > 0; }

  Desk() = default;
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  /// Reports a run-time error to the user. It is a handler and not an event because without it the error is
  /// passed on to the caller.
  std::function<void(const class RunTimeError&)> onRunTimeError;

  /// Moves the focus on behalf of the program, without the test of the control that loses it. The view
  /// follows through `onMoveFocus`.
  void moveFocus(Control& control);
  Event<Control&> onMoveFocus;

  [[nodiscard]] Control* focus() const { return focus_; }
  [[nodiscard]] const std::vector<Window*>& windows() const { return windows_; }

  /// Makes a window the active one, or none, and raises onDeactivate of the previous one if it is open.
  void activate(Window* window);

  /// Keeps windows from being deactivated while a message box or file chooser is open.
  class Modal {
   public:
    explicit Modal(Desk& desk) : desk_(desk) { ++desk_.modals_; }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;
    ~Modal() { --desk_.modals_; }

   private:
    Desk& desk_;
  };

  /// The control with a path; nullptr if there is none. Only windows that have been created are searched.
  [[nodiscard]] Control* find(std::string_view path) const;

 private:
  friend class Control;
  friend class Window;

  void activateWindowOf(Control& control);

  /// `acting`: the user does something with the control and does not only move the focus there.
  void enter(Control& control, bool acting);
  void leave(Control& control);
  void forget(const Control& control);
  void run(const std::function<void()>& action);

  /// Counts the actions that are being carried out, for the duration of a scope.
  class Action {
   public:
    explicit Action(Desk& desk) : desk_(desk) { ++desk_.actions_; }
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;
    ~Action() { --desk_.actions_; }

   private:
    Desk& desk_;
  };

  /// Runs a user action and raises onActed at its end.
  void act(const std::function<void()>& action);

  std::vector<Window*> windows_;
  int actions_ = 0;
  bool unsettled_ = false;  ///< An action has ended since onSettled
  Control* focus_ = nullptr;
  Window* active_ = nullptr;
  int modals_ = 0;
};

/// A caption as it is shown: "&&" becomes "&".
[[nodiscard]] std::string shownCaption(std::string_view caption);

}  // namespace verdalis
