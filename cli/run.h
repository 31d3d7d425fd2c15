#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace verdalis {

/// The command line program: carries out the command that the arguments (without the program's name) ask for.
/// The result goes to `out`, and nothing else does; errors, warnings and progress go to `err`. \returns the
/// exit code: 0 done, 1 a run-time error or a cancel, 2 wrong arguments or inputs that are not complete.
/// Never throws.
int run(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace verdalis
