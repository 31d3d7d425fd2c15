#include "controls/ask.h"

namespace verdalis {

MessageAnswer ask(Desk& desk, MessageBoxService& messageBox, const Message& message) {
  const Desk::Modal modal(desk);
  return messageBox.show(message);
}

std::optional<std::filesystem::path> askToOpen(Desk& desk, FileChooserService& fileChooser,
                                               const FileQuestion& question) {
  const Desk::Modal modal(desk);
  return fileChooser.chooseOpen(question);
}

std::optional<std::filesystem::path> askToSave(Desk& desk, FileChooserService& fileChooser,
                                               const FileQuestion& question) {
  const Desk::Modal modal(desk);
  return fileChooser.chooseSave(question);
}

}  // namespace verdalis
