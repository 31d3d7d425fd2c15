#pragma once

#include <string>
#include <string_view>

#include "document/FarmDocument.h"

namespace verdalis {

// Farm files: a document as JSON text in UTF-8, with indents of two spaces, keys in a fixed order and a line
// end at the end. Reading a written file and writing it again gives the same bytes.
// docs/farm-file.schema.json describes version 1.

/// The value of the key `format` in every farm file.
inline constexpr std::string_view farmFileFormat = "verdalis-farm";

/// The version of the format that writeFarm() writes.
inline constexpr int farmFileVersion = 1;

/// The text of a farm file. Bytes of texts that are not valid UTF-8 are replaced, and a number that is
/// infinite or NaN, which no input and no result is, becomes 0.
[[nodiscard]] std::string writeFarm(const FarmDocument& document);

/// Reads the text of a farm file. A byte order mark at the beginning and line ends of CR LF are accepted. A
/// key that is missing gives the default of its member; a key that is not known is kept.
/// \throws RunTimeError (invalidCall) for a text that is no farm file, that belongs to a newer version, that
/// is too large, or that is damaged: it is no JSON, or it has a value of the wrong kind, one that no control
/// can hold, or a key that stands twice in its object. The message names the line and the reason.
[[nodiscard]] FarmDocument readFarm(std::string_view text);

/// The text of the inputs of a saved option, for comparing and testing.
[[nodiscard]] std::string writeInputs(const FarmInputs& inputs);

}  // namespace verdalis
