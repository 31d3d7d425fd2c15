#pragma once

#include <cassert>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "model/Number.h"
#include "text/encoding.h"
#include "text/numbers.h"

namespace verdalis {

[[nodiscard]] inline std::string savedText(double value) {
  return generalText(value);
}
[[nodiscard]] inline std::string savedText(const Number& value) {
  return value.text();
}
[[nodiscard]] inline std::string savedText(bool value) {
  return value ? "True" : "False";
}
[[nodiscard]] inline std::string savedText(const std::string& value) {
  return value;
}

[[nodiscard]] inline bool sameSaved(const auto& a, const auto& b) {
  return a == b;
}
[[nodiscard]] inline bool sameSaved(const Number& a, const Number& b) {
  return a.sameAs(b);
}

/// Reads a value back from the text in the file.
/// \throws RunTimeError (overflow) if a number is too large.
inline void readSaved(double& value, std::string_view text) {
  value = Val(text);
}
inline void readSaved(Number& value, std::string_view text) {
  if (text.empty()) {
    value.clear();
  } else {
    value = Val(text);
  }
}
inline void readSaved(bool& value, std::string_view text) {
  value = lowerCase(text) == "true";
}
inline void readSaved(std::string& value, std::string_view text) {
  value = text;
}

/// A member of `Owner` that is stored as one line of the saved inputs: a number, a number that can be empty,
/// a boolean or a text.
template <class Owner>
class SavedField {
 public:
  // NOLINTBEGIN(google-explicit-constructor): a pointer to member converts to its field
  constexpr SavedField(double Owner::*member) : member_(member) {}
  constexpr SavedField(Number Owner::*member) : member_(member) {}
  constexpr SavedField(bool Owner::*member) : member_(member) {}
  constexpr SavedField(std::string Owner::*member) : member_(member) {}
  // NOLINTEND(google-explicit-constructor)

  /// The value as a line of the file.
  [[nodiscard]] std::string text(const Owner& owner) const {
    return std::visit([&](auto member) { return savedText(owner.*member); }, member_);
  }

  /// Reads the value back from a line of the file.
  /// \throws RunTimeError (overflow)
  void read(Owner& owner, std::string_view text) const {
    std::visit([&](auto member) { readSaved(owner.*member, text); }, member_);
  }

  /// Whether the member is a number, possibly empty.
  [[nodiscard]] constexpr bool isNumber() const {
    return std::holds_alternative<double Owner::*>(member_) ||
           std::holds_alternative<Number Owner::*>(member_);
  }

  /// The value of a numeric member; empty counts as 0.
  [[nodiscard]] double value(const Owner& owner) const {
    assert(isNumber());
    const auto* const plain = std::get_if<double Owner::*>(&member_);
    return plain != nullptr ? owner.*(*plain)
                            : static_cast<double>(owner.*std::get<Number Owner::*>(member_));
  }

  void set(Owner& owner, double value) const {
    assert(isNumber());
    if (const auto* const plain = std::get_if<double Owner::*>(&member_)) {
      owner.*(*plain) = value;
    } else {
      owner.*std::get<Number Owner::*>(member_) = value;
    }
  }

  /// Calls `action` with a reference to the member: double, Number, bool or std::string.
  template <class OwnerReference, class Action>
  auto visit(OwnerReference& owner, Action action) const {
    return std::visit([&](auto member) { return action(owner.*member); }, member_);
  }

  /// Whether the member has the same value in both owners.
  [[nodiscard]] bool same(const Owner& a, const Owner& b) const {
    return std::visit([&](auto member) { return sameSaved(a.*member, b.*member); }, member_);
  }

  /// Copies the value of the member.
  void copy(const Owner& from, Owner& to) const {
    std::visit([&](auto member) { to.*member = from.*member; }, member_);
  }

  friend constexpr bool operator==(const SavedField&, const SavedField&) = default;

 private:
  std::variant<double Owner::*, Number Owner::*, bool Owner::*, std::string Owner::*> member_;
};

/// The lines of all fields, separated by CR LF.
template <class Owner>
[[nodiscard]] std::string savedLines(std::span<const SavedField<Owner>> fields, const Owner& owner) {
  std::string text;
  for (const SavedField<Owner>& field : fields) {
    if (&field != fields.data()) text += "\r\n";
    text += field.text(owner);
  }
  return text;
}

}  // namespace verdalis
