#include "document/recoveryMark.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace verdalis {
namespace {

constexpr const char* key = "recovery";

bool isMark(const std::pair<std::string, std::string>& entry) {
  return entry.first == key;
}

}  // namespace

void putMark(FarmDocument& document, const RecoveryMark& mark) {
  const nlohmann::ordered_json value{{"path", mark.path}, {"size", mark.size}, {"hash", mark.hash}};
  std::erase_if(document.unknown, isMark);
  document.unknown.emplace_back(key,
                                value.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
}

std::optional<RecoveryMark> takeMark(FarmDocument& document) {
  const auto found = std::find_if(document.unknown.begin(), document.unknown.end(), isMark);
  if (found == document.unknown.end()) return std::nullopt;
  const auto value = nlohmann::json::parse(found->second, nullptr, false);
  document.unknown.erase(found);
  const auto number = [&](const char* name) {
    const auto entry = value.find(name);
    return entry != value.end() && entry->is_number_unsigned() ? entry->get<std::uint64_t>() : 0;
  };
  if (!value.is_object()) return std::nullopt;
  const auto path = value.find("path");
  if (path == value.end() || !path->is_string() || path->get_ref<const std::string&>().empty())
    return std::nullopt;
  return RecoveryMark{path->get<std::string>(), number("size"), number("hash")};
}

}  // namespace verdalis
