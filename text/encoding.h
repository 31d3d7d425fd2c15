#pragma once

#include <string>
#include <string_view>

namespace verdalis {

// Inside the program all text is UTF-8.

/// Whether the bytes are well-formed UTF-8: no overlong forms, no surrogates, nothing beyond U+10FFFF.
[[nodiscard]] bool isUtf8(std::string_view bytes);

/// The bytes of a file as UTF-8: as they stand where they are valid UTF-8 (without a byte order mark in
/// front), else read as Windows-1252. A byte that has no character there becomes U+FFFD.
[[nodiscard]] std::string decodeText(std::string bytes);

/// The text for a file that other programs read: in Windows-1252 where every character has a place there,
/// else the UTF-8 as it stands. Bytes that are no UTF-8 come back unchanged.
[[nodiscard]] std::string encodeForExport(std::string_view utf8);

/// Lower case of the letters of Windows-1252, which the farm's files are made of; all other characters and
/// bytes that are no UTF-8 stay. The same in every locale.
[[nodiscard]] std::string lowerCase(std::string_view text);

}  // namespace verdalis
