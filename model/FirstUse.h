#pragma once

#include <memory>
#include <utility>

namespace verdalis {

/// Holds an object that is created empty on first use, so it always exists when read. A copy shares the
/// object if it exists at that time.
template <class T>
class FirstUse {
 public:
  FirstUse() = default;
  FirstUse(std::shared_ptr<T> object) : object_(std::move(object)) {}  // NOLINT(google-explicit-constructor)

  T* operator->() const { return &object(); }
  T& operator*() const { return object(); }
  [[nodiscard]] const std::shared_ptr<T>& shared() const {
    object();
    return object_;
  }

 private:
  T& object() const {
    if (!object_) object_ = std::make_shared<T>();
    return *object_;
  }

  mutable std::shared_ptr<T> object_;
};

}  // namespace verdalis
