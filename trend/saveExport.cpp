#include "trend/saveExport.h"

#include <cerrno>
#include <optional>
#include <system_error>
#include <utility>

#include "controls/ask.h"
#include "platform/fileAccess.h"
#include "screens/modHelp.h"
#include "text/RunTimeError.h"
#include "trend/exportText.h"

namespace verdalis {
namespace {

struct ExportError {
  int number = 0;
  std::string description;
};

ExportError systemError(int reason) {
  return {reason, std::generic_category().message(reason)};
}

/// Tries to open the file for writing, to get the error of the system if it cannot be written. The file is
/// not created yet, so that a failed export leaves no empty file. \returns the error; nothing if it can be
/// written.
std::optional<ExportError> tryToOpen(const std::filesystem::path& path) {
  const int reason = errorOfOpening(path);
  if (reason == 0) return std::nullopt;
  if (reason != ENOENT) return systemError(reason);
  try {
    const FileReplacement canBeCreated(path);
  } catch (const RunTimeError&) {
    return systemError(errno);
  }
  return std::nullopt;
}

std::optional<ExportError> saveText(const std::filesystem::path& path,
                                    const std::function<void(std::string&)>& write,
                                    const FileWriter& writer) {
  if (std::optional<ExportError> refused = tryToOpen(path)) return refused;
  std::string text;
  std::optional<ExportError> error;
  try {
    write(text);
  } catch (const RunTimeError& failure) {
    error = {static_cast<int>(failure.number()), failure.what()};
  }
  errno = 0;
  try {
    writer(path, pageBytes(std::move(text)));
  } catch (const RunTimeError& failure) {
    const int reason = errno;
    if (reason != 0) return systemError(reason);
    return ExportError{static_cast<int>(failure.number()), failure.what()};
  }
  return error;
}

}  // namespace

void exportForSpreadsheet(Desk& desk, Services& services, const std::filesystem::path& folder,
                          const std::function<void(std::string&)>& write, const FileWriter& writer) {
  const std::optional<std::filesystem::path> path =
      askToSave(desk, services.fileChooser, {"", folder, "Microsoft Excel (*.xls) | *.xls", "xls"});
  if (!path || path->empty()) return;
  if (const std::optional<ExportError> error = saveText(*path, write, writer)) {
    ask(desk, services.messageBox,
        {"File Error",
         "The file '" + path->string() +
             "' is either currently open by another program or is unaccessible at the moment.\nPlease check "
             "the file and try again.  Error #" +
             std::to_string(error->number) + " -> " + error->description,
         MessageKind::failure, MessageIcon::exclamation, MessageButtons::ok});
    return;
  }
  const MessageAnswer answer =
      ask(desk, services.messageBox,
          {"Export Complete",
           "The Microsoft Excel worksheet '" + path->string() +
               "' has been created successfully!\nDo you want to open this file now?",
           MessageKind::question, MessageIcon::information, MessageButtons::yesNo});
  if (answer == MessageAnswer::yes) openWithShell(desk, services, *path);
}

}  // namespace verdalis
