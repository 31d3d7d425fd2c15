#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <functional>
#include <list>
#include <memory>
#include <utility>

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
    if (!list_) return;
    for (Entry& entry : list_->entries)
      entry.disconnect();
    // While the event is raised, the list is still in use; the last call that uses it destroys it.
    if (list_->calls > 0) list_->itself = std::move(list_);
  }

  /// Connects a listener for the lifetime of the event.
  void connect(Listener listener) { add(std::move(listener)); }

  /// Connects a listener for the lifetime of the connection. Use it for a listener that is destroyed before
  /// the event.
  [[nodiscard]] Connection connectScoped(Listener listener) {
    Entry& entry = add(std::move(listener));
    entry.scope = std::make_shared<bool>(true);
    return Connection(entry.scope);
  }

  /// Whether a listener is connected.
  [[nodiscard]] bool isHeard() const {
    return list_ && std::any_of(list_->entries.begin(), list_->entries.end(),
                                [](const Entry& entry) { return entry.isConnected(); });
  }

  /// Raises the event.
  void operator()(Arguments... arguments) const {
    if (!list_) return;
    const Call call(*list_);
    // Listeners connected meanwhile are behind these.
    auto entry = call.list.entries.begin();
    for (std::size_t left = call.list.entries.size(); left > 0; --left, ++entry) {
      if (entry->isConnected()) entry->listener(arguments...);
    }
  }

 private:
  struct Entry {
    Listener listener;
    bool connected = true;        ///< Until the event is destroyed
    std::shared_ptr<bool> scope;  ///< Shared with the connection, if there is one

    [[nodiscard]] bool isConnected() const { return connected && (!scope || *scope); }
    void disconnect() {
      connected = false;
      if (scope) *scope = false;
    }
  };

  struct List {
    std::list<Entry> entries;
    std::size_t calls = 0;         ///< That go through the entries now
    std::unique_ptr<List> itself;  ///< Set if the event is destroyed during a call
  };

  /// Keeps a list in use for the duration of a scope.
  struct Call {
    explicit Call(List& used) : list(used) { ++list.calls; }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call() {
      if (--list.calls == 0) const std::unique_ptr<List> last = std::move(list.itself);
    }

    List& list;
  };

  Entry& add(Listener listener) {
    assert(listener);
    if (!list_) list_ = std::make_unique<List>();
    if (list_->calls == 0) {
      std::erase_if(list_->entries, [](const Entry& entry) { return !entry.isConnected(); });
    }
    return list_->entries.emplace_back(Entry{std::move(listener), true, nullptr});
  }

  std::unique_ptr<List> list_;
};

}  // namespace verdalis
