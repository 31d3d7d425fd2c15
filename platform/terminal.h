#pragma once

#include <string>
#include <vector>

namespace verdalis {

enum class StandardStream { in, out, error };

/// Whether a person sits before the stream, and not a file or a pipe.
[[nodiscard]] bool isTerminal(StandardStream stream);

/// Makes a terminal take texts in UTF-8 and move its cursor as told, and lets the standard streams pass bytes
/// as they are. To be called once, at the start.
void prepareTerminal();

/// The arguments of the command line in UTF-8, without the name of the program.
[[nodiscard]] std::vector<std::string> arguments(int count, char** values);

}  // namespace verdalis
