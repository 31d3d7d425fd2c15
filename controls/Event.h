#pragma once

#include <cassert>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace verdalis {

/// Keeps one listener of an event connected. Destroying the connection disconnects the listener. A connection
/// may outlive the event.
class Connection {
 public:
  Connection() = default;
  explicit Connection(std::weak_ptr<bool> connected) : connected_(std::move(connected)) {}
  Connection(Connection&&) noexcept = default;
  Connection& operator=(Connection&& other) noexcept {
    if (this != &other) {
      end();
      connected_ = std::move(other.connected_);
    }
    return *this;
  }
  ~Connection() { end(); }

 private:
  void end() const {
    if (const std::shared_ptr<bool> connected = connected_.lock()) *connected = false;
  }

  std::weak_ptr<bool> connected_;
};

/// An event of a control or a pane. Raising it calls all listeners in the order in which they were connected.
///
/// While an event is raised, a listener may connect another one, which is called from the next time on; raise
/// the event again; disconnect a listener, which is then no longer called; or destroy the event, after which
/// the remaining listeners are not called. An exception of a listener is passed to the caller, and the
/// remaining listeners are not called.
template <class... Arguments>
class Event {
 public:
  using Listener = std::function<void(Arguments...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;
  ~Event() {
    if (!entries_) return;
    for (const std::shared_ptr<Entry>& entry : *entries_)
      entry->connected = false;
  }

  /// Connects a listener for the lifetime of the event.
  void connect(Listener listener) { static_cast<void>(add(std::move(listener))); }

  /// Connects a listener for the lifetime of the connection. Use it for a listener that is destroyed before
  /// the event.
  [[nodiscard]] Connection connectScoped(Listener listener) {
    const std::shared_ptr<Entry> entry = add(std::move(listener));
    return Connection(std::shared_ptr<bool>(entry, &entry->connected));
  }

  /// Whether a listener is connected.
  [[nodiscard]] bool isHeard() const {
    if (!entries_) return false;
    for (const std::shared_ptr<Entry>& entry : *entries_) {
      if (entry->connected) return true;
    }
    return false;
  }

  /// Raises the event.
  void operator()(Arguments... arguments) const {
    if (!entries_) return;
    // connect() makes a new list, and this copy keeps the list alive if a listener destroys the event.
    const std::shared_ptr<const Entries> entries = entries_;
    for (const std::shared_ptr<Entry>& entry : *entries) {
      if (entry->connected) entry->listener(arguments...);
    }
  }

 private:
  struct Entry {
    Listener listener;
    bool connected = true;
  };
  using Entries = std::vector<std::shared_ptr<Entry>>;

  std::shared_ptr<Entry> add(Listener listener) {
    assert(listener);
    auto entries = std::make_shared<Entries>();
    if (entries_) {
      for (const std::shared_ptr<Entry>& entry : *entries_) {
        if (entry->connected) entries->push_back(entry);
      }
    }
    entries->push_back(std::make_shared<Entry>(Entry{std::move(listener), true}));
    entries_ = std::move(entries);
    return entries_->back();
  }

  std::shared_ptr<const Entries> entries_;
};

}  // namespace verdalis
