#pragma once

#include <cassert>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace verdalis {

/// Keeps one listener of an event connected: when it goes, the listener is not called any more. It may
/// outlive the event.
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

/// Something that happens to a control or a pane, told to all who listen, in the order in which they were
/// connected. Without a listener nothing happens.
///
/// A listener may connect another, which hears from the next time on; it may make the event happen again,
/// end a connection, or take away the event itself, and then the listeners behind it are not called. An
/// exception of a listener goes to whoever made the event happen, and ends it likewise.
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

  /// Adds a listener for as long as the event lives.
  void connect(Listener listener) { static_cast<void>(add(std::move(listener))); }

  /// Adds a listener for as long as the connection lives: for one that goes before the event.
  [[nodiscard]] Connection connectScoped(Listener listener) {
    const std::shared_ptr<Entry> entry = add(std::move(listener));
    return Connection(std::shared_ptr<bool>(entry, &entry->connected));
  }

  /// Whether anyone listens.
  [[nodiscard]] bool isHeard() const {
    if (!entries_) return false;
    for (const std::shared_ptr<Entry>& entry : *entries_) {
      if (entry->connected) return true;
    }
    return false;
  }

  /// It happens.
  void operator()(Arguments... arguments) const {
    if (!entries_) return;
    // Connecting makes a new list, and this one stays when a listener takes the event away.
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
