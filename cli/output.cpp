#include "cli/output.h"

#include <filesystem>
#include <fstream>
#include <ostream>

#include "cli/Interrupt.h"
#include "data/farmFile.h"
#include "data/writeFile.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

void writeTo(std::ostream& stream, std::string_view text, const std::string& name) {
  stream << text << std::flush;
  if (!stream) throw RunTimeError(ErrorNumber::fileNotFound, "The result cannot be written to " + name + ".");
}

/// Whether the path is a device or a pipe, which can be written but not replaced.
bool isDevice(const std::filesystem::path& path) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  return std::filesystem::is_other(status);
}

std::unique_ptr<FileReplacement> replacementOf(const std::optional<std::string>& file) {
  return file && !isDevice(*file) ? std::make_unique<FileReplacement>(*file) : nullptr;
}

std::unique_ptr<std::ostream> deviceOf(const std::optional<std::string>& file) {
  return file && isDevice(*file) ? std::make_unique<std::ofstream>(*file, std::ios::binary) : nullptr;
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
    const Interrupt untilWritten;  // a Ctrl+C now would leave an unfinished file next to the old one
    writeFile(file, bytes);
  }
}

void deliverFarm(const std::string& text, const std::optional<std::string>& file, std::ostream& out) {
  if (!file || isDevice(*file)) {
    deliver(text, file, out);
  } else {
    const Interrupt untilWritten;
    writeFarmFile(*file, text);
  }
}

ResultStream::ResultStream(const std::optional<std::string>& file, std::ostream& out)
    : name_(file.value_or("standard output")),
      file_(replacementOf(file)),
      device_(deviceOf(file)),
      stream_(device_ ? *device_ : out) {}

ResultStream::~ResultStream() = default;

void ResultStream::write(std::string_view text) {
  if (file_) {
    file_->write(text);
  } else {
    writeTo(stream_, text, name_);
  }
}

void ResultStream::finish() {
  if (file_) file_->keep();
}

}  // namespace verdalis
