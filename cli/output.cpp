#include "cli/output.h"

#include <filesystem>
#include <fstream>
#include <ostream>

#include "cli/Interrupt.h"
#include "data/writeFile.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

void writeTo(std::ostream& stream, const std::string& text, const std::string& name) {
  stream << text << std::flush;
  if (!stream) throw RunTimeError(ErrorNumber::fileNotFound, "The result cannot be written to " + name + ".");
}

/// Whether the path is a device or a pipe, which takes bytes but cannot be replaced.
bool isDevice(const std::filesystem::path& path) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  return std::filesystem::is_other(status);
}

}  // namespace

void deliver(const std::string& text, const std::optional<std::string>& file, std::ostream& out) {
  if (file) {
    deliverToFile(text, *file);
  } else {
    writeTo(out, text, "standard output");
  }
}

void deliverToFile(const std::string& bytes, const std::string& file) {
  if (isDevice(file)) {
    std::ofstream device(file, std::ios::binary);
    writeTo(device, bytes, file);
  } else {
    const Interrupt untilWritten;  // a Ctrl+C now would leave the unfinished file beside the old one
    writeFile(file, bytes);
  }
}

}  // namespace verdalis
