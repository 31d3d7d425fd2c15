#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace verdalis {

/// The command line program: runs the command in the arguments, which exclude the program's name. Only the
/// result is written to `out`; errors, warnings and progress are written to `err`. It never throws.
/// \returns the exit code: 0 success; 1 run-time error, cancel, or no plan that meets the wishes; 2 wrong
/// arguments or incomplete inputs.
int run(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace verdalis
