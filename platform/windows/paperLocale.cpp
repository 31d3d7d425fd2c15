#include "platform/paperLocale.h"

#include "platform/windows/system.h"

namespace verdalis {
namespace {

std::string localePart(LCTYPE part) {
  std::wstring text(16, L'\0');
  const int size =
      GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, part, text.data(), static_cast<int>(text.size()));
  return size > 1 ? narrowText(text.substr(0, static_cast<std::size_t>(size) - 1)) : std::string();
}

}  // namespace

std::string paperLocale() {
  const std::string language = localePart(LOCALE_SISO639LANGNAME);
  const std::string country = localePart(LOCALE_SISO3166CTRYNAME);
  return country.empty() ? language : language + "_" + country;
}

}  // namespace verdalis
