#pragma once

#include <QString>

namespace verdalis::desktop {

/// The kind of the icons' files: "svg", or "png" if the program is built without a reader for drawings.
extern const char* const iconEnding;

/// The file of an icon of the program, such as "message-notice".
[[nodiscard]] QString iconFile(const QString& name);

}  // namespace verdalis::desktop
