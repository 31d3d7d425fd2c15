#pragma once

#include <functional>
#include <optional>

namespace verdalis::testing {

/// Runs `test` as a user who is subject to permissions: on Debian as asOrdinaryUser() does, on Windows at
/// once. \returns the result of `test`; nothing if there is no such user
std::optional<bool> asPlainUser(const std::function<bool()>& test);

}  // namespace verdalis::testing
