#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "controls/services.h"

namespace verdalis {

/// The surface of a document that is to become the file `path`: a PDF file, or plain text when the name ends
/// in ".txt". At the end of the document `onEnd` takes the bytes of the whole file; a document that never
/// ends makes none.
[[nodiscard]] std::unique_ptr<PageSurface> reportDocument(const std::filesystem::path& path,
                                                          std::function<void(const std::string&)> onEnd);

/// Where the n-th copy of a document goes that is printed to `path`: the first there, the others with "-2",
/// "-3" and so on before the extension.
[[nodiscard]] std::filesystem::path copyPath(const std::filesystem::path& path, int n);

}  // namespace verdalis
