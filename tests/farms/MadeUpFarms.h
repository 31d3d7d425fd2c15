#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace verdalis::testing {

/// A file in the folder of the made-up farms.
struct MadeUpFile {
  std::string path;  ///< With "/" between its parts
  std::string text;
};

/// Farms for comparing what different builds of the program answer. The same sizes and seed give the same
/// bytes on every machine: they are made of whole numbers and digits, without any arithmetic on floats.
/// - `home-01/crops` and so on: crops with yield tables of their own, some with many digits
/// - `home-01.verdalis`: a farm file for this home folder
/// - `home-01.csv`: farms for `batch`, together `farms` of them
/// - `runs.txt`: a run of the program in each line: a name, then the arguments, separated by tabs. First the
///   tables of farms, then `questions` runs of the other commands. Paths are relative to the folder.
[[nodiscard]] std::vector<MadeUpFile> makeFarms(std::size_t farms, std::size_t questions, std::uint64_t seed);

}  // namespace verdalis::testing
