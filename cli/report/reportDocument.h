#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "controls/services.h"

namespace verdalis {

/// The surface of a document for the file `path`: a PDF file, or plain text if the name ends in ".txt". At
/// the end of the document, `onEnd` receives the bytes of the file. A document without an end creates no
/// file.
[[nodiscard]] std::unique_ptr<PageSurface> reportDocument(const std::filesystem::path& path,
                                                          std::function<void(const std::string&)> onEnd);

/// Makes sure that this program can write a report of the kind that the name of its file says.
/// \param option what names the file, such as "--report"
/// \param textInstead whether the report can also be text
/// \throws Refusal if not
void requireReportKind(const std::string& option, const std::string& file, bool textInstead);

/// The path of the n-th copy of a document printed to `path`: the same path for the first, then with "-2",
/// "-3" and so on before the extension.
[[nodiscard]] std::filesystem::path copyPath(const std::filesystem::path& path, int n);

}  // namespace verdalis
