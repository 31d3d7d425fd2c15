#pragma once

namespace verdalis {

/// Tells those who call out of an object's operation whether the object has been destroyed meanwhile. It is a
/// member of that object.
class Life {
 public:
  /// Watches a life for the duration of a scope. Watches of one life end in the reverse order of their start.
  class Watch {
   public:
    explicit Watch(const Life& life);
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch() {
      if (life_ != nullptr) life_->innermost_ = outer_;
    }

    /// Whether the object has been destroyed.
    [[nodiscard]] bool expired() const { return life_ == nullptr; }

   private:
    friend class Life;
    const Life* life_;
    Watch* outer_;
  };

  Life() = default;
  Life(const Life&) = delete;
  Life& operator=(const Life&) = delete;
  ~Life() {
    for (Watch* watch = innermost_; watch != nullptr; watch = watch->outer_)
      watch->life_ = nullptr;
  }

 private:
  mutable Watch* innermost_ = nullptr;
};

}  // namespace verdalis
