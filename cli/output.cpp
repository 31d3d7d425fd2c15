#include "cli/output.h"

#include <ostream>

#include "data/farmFile.h"
#include "data/writeFile.h"
#include "platform/Interrupt.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

void writeTo(std::ostream& out, std::string_view text) {
  out << text << std::flush;
  if (!out) throw RunTimeError(ErrorNumber::fileNotFound, "The result cannot be written to standard output.");
}

std::unique_ptr<FileReplacement> replacementOf(const std::optional<std::string>& file) {
  if (!file || isOpenTarget(pathOf(*file))) return nullptr;
  return std::make_unique<FileReplacement>(pathOf(*file));
}

std::unique_ptr<OpenTarget> targetOf(const std::optional<std::string>& file) {
  if (!file || !isOpenTarget(pathOf(*file))) return nullptr;
  return std::make_unique<OpenTarget>(pathOf(*file));
}

}  // namespace

void deliver(const std::string& text, const std::optional<std::string>& file, std::ostream& out) {
  if (file) {
    deliverToFile(text, *file);
  } else {
    writeTo(out, text);
  }
}

void deliverToFile(const std::string& bytes, const std::string& file) {
  if (isOpenTarget(pathOf(file))) {
    OpenTarget(pathOf(file)).write(bytes);
  } else {
    const Interrupt untilWritten;  // a Ctrl+C now would leave an unfinished file next to the old one
    writeFile(pathOf(file), bytes);
  }
}

void deliverFarm(const std::string& text, const std::optional<std::string>& file, std::ostream& out) {
  if (!file || isOpenTarget(pathOf(*file))) {
    deliver(text, file, out);
  } else {
    const Interrupt untilWritten;
    writeFarmFile(pathOf(*file), text);
  }
}

ResultStream::ResultStream(const std::optional<std::string>& file, std::ostream& out)
    : file_(replacementOf(file)), target_(targetOf(file)), out_(out) {}

ResultStream::~ResultStream() = default;

void ResultStream::write(std::string_view text) {
  if (file_) {
    file_->write(text);
  } else if (target_) {
    target_->write(text);
  } else {
    writeTo(out_, text);
  }
}

void ResultStream::finish() {
  if (file_) file_->keep();
}

}  // namespace verdalis
