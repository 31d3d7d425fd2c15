#include "cli/InputSource.h"

#include <cerrno>
#include <chrono>
#include <optional>
#include <system_error>

#include "cli/Messages.h"
#include "platform/Interrupt.h"
#include "platform/errors.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

constexpr std::chrono::milliseconds timeBetweenLooks{100};

std::unique_ptr<InputFile> openFile(const std::string& path) try {
  auto file = std::make_unique<InputFile>(pathOf(path));
  if (file->kind() == InputFile::Kind::folder) throw std::system_error(EISDIR, std::generic_category());
  return file;
} catch (const std::system_error& error) {
  throw Refusal("The file " + path + " cannot be read: " + reasonText(error.code()) + ".");
}

}  // namespace

std::size_t StreamSource::read(char* to, std::size_t size) {
  in_.read(to, static_cast<std::streamsize>(size));
  return static_cast<std::size_t>(in_.gcount());
}

FileSource::FileSource() : name_("standard input"), file_(std::make_unique<InputFile>()) {}

FileSource::FileSource(const std::string& path) : name_("the file " + path), file_(openFile(path)) {}

std::size_t FileSource::read(char* to, std::size_t size) try {
  while (!Interrupt::requested()) {
    if (!file_->isReadyWithin(timeBetweenLooks)) continue;
    if (const std::optional<std::size_t> count = file_->read(to, size)) return *count;
  }
  return 0;
} catch (const std::system_error& error) {
  throw RunTimeError(ErrorNumber::fileNotFound, name_ + " cannot be read: " + reasonText(error.code()) + ".");
}

}  // namespace verdalis
