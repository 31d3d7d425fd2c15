#include "controls/Control.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "text/RunTimeError.h"

namespace verdalis {
namespace {

Control* findBelow(const Frame& frame, std::string_view name) {
  for (Control* control : frame.controls()) {
    if (control->name() == name) return control;
    if (control->kind() != ControlKind::Frame) continue;
    auto* inner = static_cast<Frame*>(control);
    if (inner->scope() == Frame::Scope::transparent) {
      if (Control* found = findBelow(*inner, name)) return found;
    } else if (name.size() > inner->name().size() && name.starts_with(inner->name()) &&
               name[inner->name().size()] == '.') {
      return findBelow(*inner, name.substr(inner->name().size() + 1));
    }
  }
  return nullptr;
}

}  // namespace

std::string_view kindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::TextBox:
      return "TextBox";
    case ControlKind::ComboBox:
      return "ComboBox";
    case ControlKind::CheckBox:
      return "CheckBox";
    case ControlKind::OptionButton:
      return "OptionButton";
    case ControlKind::Button:
      return "Button";
    case ControlKind::Label:
      return "Label";
    case ControlKind::Frame:
      return "Frame";
    case ControlKind::MenuEntry:
      return "MenuEntry";
    case ControlKind::Grid:
      return "Grid";
    case ControlKind::ProgressBar:
      return "ProgressBar";
    case ControlKind::ScrollBar:
      return "ScrollBar";
    case ControlKind::Table:
      return "Table";
    case ControlKind::ChartBox:
      return "ChartBox";
    case ControlKind::Image:
      break;
  }
  return "Image";
}

std::string shownCaption(std::string_view caption) {
  std::string shown;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption.substr(i, 2) == "&&") ++i;
    shown += caption[i];
  }
  return shown;
}

Control::Control(ControlKind kind, Frame& container, std::string name)
    : kind_(kind), container_(&container), desk_(container.desk_), name_(std::move(name)) {
  container.controls_.push_back(this);
}

Control::Control(ControlKind kind, Desk& desk, std::string name)
    : kind_(kind), desk_(&desk), name_(std::move(name)) {}

Control::~Control() {
  desk_->forget(*this);
  if (container_ != nullptr) std::erase(container_->controls_, this);
}

std::string Control::path() const {
  std::string path = name_;
  for (const Frame* frame = container_; frame != nullptr; frame = frame->container()) {
    if (frame->scope() == Frame::Scope::named) path = frame->name() + "." + path;
  }
  return path;
}

Frame& Control::window() {
  if (container_ == nullptr) return static_cast<Frame&>(*this);
  return container_->window();
}

Desk& Control::desk() {
  return *desk_;
}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  changed();
}

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  changed();
}

void Control::setCovered(bool covered) {
  if (covered_ == covered) return;
  covered_ = covered;
  changed();
}

bool Control::isShown() const {
  return visible_ && !covered_ && (container_ == nullptr || container_->isShown());
}

bool Control::isReachable() const {
  return visible_ && !covered_ && enabled_ && (container_ == nullptr || container_->isReachable());
}

void Control::enter() {
  desk_->act([this] { desk_->run([this] { desk_->enter(*this, false); }); });
}

void Control::leave() {
  desk_->act([this] { desk_->run([this] { desk_->leave(*this); }); });
}

void Control::act(const std::function<void()>& action, bool takesFocus) {
  // Leaving the previous field is an event of its own: the action is carried out even if the field fails its
  // test.
  Desk& desk = *desk_;
  const Life::Watch here(life());
  const auto leavePrevious = [&] {
    if (takesFocus) {
      desk.enter(*this, true);
    } else {
      desk.activateWindowOf(*this);
    }
  };
  const auto carryOut = [&] {
    desk.run(std::cref(leavePrevious));  // a reference needs no memory of its own
    if (here.expired()) return;
    (desk.actions_ == 1 ? desk.onActing : desk.onActingInside)(*this);
    if (!here.expired()) desk.run(action);
  };
  desk.act(std::cref(carryOut));
}

void Frame::setCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed();
}

void Frame::click() {
  act([this] { onClick(); });
}

Window::Window(Desk& desk, std::string name, Scope scope) : Frame(desk, std::move(name), scope) {
  setVisible(false);
  desk.windows_.push_back(this);
}

void Window::open() {
  setVisible(true);
  desk().activate(this);
}

void Window::close() {
  // A field of a closed window is no longer tested.
  if (Control* const focus = desk().focus(); focus != nullptr && &focus->window() == this)
    desk().forget(*focus);
  desk().forget(*this);
  setVisible(false);
}

Window::~Window() {
  std::erase(desk().windows_, this);
}

void Window::closeByUser() {
  Desk& desk = this->desk();
  desk.act([this, &desk] {
    desk.run([this] {
      if (onCloseByUser) {
        onCloseByUser();
      } else {
        close();
      }
    });
  });
}

void Desk::moveFocus(Control& control) {
  focus_ = &control;
  control.focused();
  onMoveFocus(control);
}

void Desk::activate(Window* window) {
  if (modals_ > 0 || active_ == window) return;
  Window* const before = std::exchange(active_, window);
  if (before != nullptr && before->isOpen()) before->onDeactivate();
}

void Desk::activateWindowOf(Control& control) {
  Frame& window = control.window();
  // Almost every action stays in the active window, and comparing is faster than casting.
  if (&window != active_) activate(dynamic_cast<Window*>(&window));
}

void Desk::enter(Control& control, bool acting) {
  const Life::Watch here(control.life());
  activateWindowOf(control);
  if (here.expired() || focus_ == &control) return;
  Control* const before = std::exchange(focus_, &control);
  control.focused();
  if (before != nullptr) {
    before->onLeave();
    if (here.expired()) return;
    if (focus_ != &control) {
      // The previous field failed its test and took the focus back. It keeps the focus unless the user acts
      // on this control: then the action is carried out anyway, and the focus moves here.
      if (!acting) return;
      moveFocus(control);
      if (here.expired()) return;
    }
  }
  control.onEnter();
}

void Desk::leave(Control& control) {
  if (focus_ != &control) return;
  focus_ = nullptr;
  control.onLeave();
}

void Desk::forget(const Control& control) {
  if (focus_ == &control) focus_ = nullptr;
  if (active_ == &control) active_ = nullptr;
}

void Desk::run(const std::function<void()>& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    if (!onRunTimeError) throw;
    onRunTimeError(error);
  }
}

void Desk::act(const std::function<void()>& action) {
  {
    const Action counted(*this);
    action();
  }
  if (actions_ > 0) return;
  onActed();
  unsettled_ = true;
  if (settleLater) {
    settleLater();
  } else {
    settle();
  }
}

void Desk::settle() {
  if (!unsettled_ || actions_ > 0) return;
  unsettled_ = false;
  onSettled();
}

Control* Desk::find(std::string_view path) const {
  for (const Window* window : windows_) {
    if (window->name() == path) return const_cast<Window*>(window);  // NOLINT: the windows are not const
    if (window->scope() == Frame::Scope::transparent) {
      if (Control* found = findBelow(*window, path)) return found;
    } else if (path.starts_with(window->name()) && path.size() > window->name().size() &&
               path[window->name().size()] == '.') {
      return findBelow(*window, path.substr(window->name().size() + 1));
    }
  }
  return nullptr;
}

}  // namespace verdalis
