#pragma once

namespace verdalis {

/// Whether this program can draw PDF files. Without Cairo it cannot: then a PdfFont measures nothing, and all
/// that draws throws RunTimeError (invalidCall).
[[nodiscard]] bool drawsPdf();

}  // namespace verdalis
