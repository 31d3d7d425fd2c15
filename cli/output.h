#pragma once

#include <iosfwd>
#include <optional>
#include <string>

namespace verdalis {

/// Hands a finished result over: to the file, which is replaced whole or not at all, or without one to `out`.
/// \throws RunTimeError (fileNotFound) when it cannot be written
void deliver(const std::string& text, const std::optional<std::string>& file, std::ostream& out);

/// The same, always to a file.
void deliverToFile(const std::string& bytes, const std::string& file);

}  // namespace verdalis
