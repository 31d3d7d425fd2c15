#include "cli/OptionsWriter.h"

#include <array>
#include <utility>

namespace verdalis {
namespace {

constexpr std::array<std::pair<std::string_view, OptionsWriter>, 3> writers{
    {{"table", writeTable}, {"csv", writeCsv}, {"json", writeJson}}};

}  // namespace

OptionsWriter optionsWriter(std::string_view format) {
  for (const auto& [name, writer] : writers) {
    if (name == format) return writer;
  }
  return nullptr;
}

const std::vector<std::string>& optionsFormats() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> list;
    list.reserve(writers.size());
    for (const auto& [name, writer] : writers)
      list.emplace_back(name);
    return list;
  }();
  return names;
}

}  // namespace verdalis
