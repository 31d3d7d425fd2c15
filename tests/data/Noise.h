#pragma once

#include <rapidcheck.h>

#include <algorithm>
#include <cstddef>
#include <string>

namespace verdalis::testing {

/// Damage that a user, an editor or a failing disk may do to a file.
inline rc::Gen<std::string> noise() {
  const auto pieces =
      rc::gen::element<std::string>("", ",", "=", "\r", "\n", "\r\n", " ", "\t", "1e400", "-1e400", "1e-400",
                                    "1000", "999", "-1", "True", "x", std::string(1, '\0'), "\xEF\xBB\xBF",
                                    "\xE9", "\xC3\xA9", std::string(3000, '7'), std::string(3000, ','));
  return rc::gen::weightedOneOf<std::string>({{5, pieces}, {1, rc::gen::arbitrary<std::string>()}});
}

/// A file with one error: truncated, a part missing, a part duplicated, or noise inserted.
inline rc::Gen<std::string> damaged(const rc::Gen<std::string>& file) {
  return rc::gen::exec([=] {
    std::string bytes = *file;
    const auto size = static_cast<int>(bytes.size());
    const auto at = static_cast<std::size_t>(*rc::gen::inRange(0, size + 1));
    const auto length = std::min(bytes.size() - at, static_cast<std::size_t>(*rc::gen::inRange(0, 30)));
    switch (*rc::gen::inRange(0, 5)) {
      case 0:
        bytes.resize(at);
        break;
      case 1:
        bytes.erase(at, length);
        break;
      case 2:
        bytes.insert(at, bytes.substr(at, length));
        break;
      case 3:
        bytes.replace(at, length, *noise());
        break;
      default:
        bytes.insert(at, *noise());
        break;
    }
    return bytes;
  });
}

}  // namespace verdalis::testing
