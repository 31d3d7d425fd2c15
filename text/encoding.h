#pragma once

#include <string>
#include <string_view>

namespace verdalis {

// All text inside the program is UTF-8.

/// Whether the bytes are well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
[[nodiscard]] bool isUtf8(std::string_view bytes);

/// Converts the bytes of a file to UTF-8. Valid UTF-8 is kept, without a leading byte order mark; anything
/// else is read as Windows-1252, where a byte without a character becomes U+FFFD.
[[nodiscard]] std::string decodeText(std::string bytes);

/// Encodes a text for a file that other programs read: as Windows-1252 if every character exists there, else
/// as UTF-8 unchanged. Bytes that are not valid UTF-8 are returned unchanged.
[[nodiscard]] std::string encodeForExport(std::string_view utf8);

/// Lower-cases the letters of Windows-1252, the character set of the farm's files. All other characters, and
/// bytes that are not valid UTF-8, stay unchanged. Independent of the locale.
[[nodiscard]] std::string lowerCase(std::string_view text);

}  // namespace verdalis
