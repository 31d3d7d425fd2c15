#include "cli/TerminalServices.h"

#include <ctime>

#include "platform/localTime.h"

namespace verdalis {

MessageAnswer TerminalServices::show(const Message& message) {
  if (message.kind == MessageKind::refusal) {
    if (!refusal_) refusal_ = message.text;
  } else if (message.title == defaultTitle) {
    messages_.tell(message.text);
  } else {
    messages_.tell(message.title, message.text);
  }
  switch (message.buttons) {
    case MessageButtons::yesNo:
      return MessageAnswer::no;
    case MessageButtons::yesNoCancel:
    case MessageButtons::saveDiscardCancel:
      return MessageAnswer::cancel;
    case MessageButtons::ok:
      break;
  }
  return MessageAnswer::ok;
}

ClockTime TerminalServices::now() const {
  return localTime();
}

ClockTime localTime() {
  const std::tm local = localTime(std::time(nullptr));
  if (local.tm_mday == 0) return {};
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

}  // namespace verdalis
