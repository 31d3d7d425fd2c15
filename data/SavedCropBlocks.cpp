#include "data/SavedCropBlocks.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include "model/savedFields.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"

namespace verdalis {
namespace {

/// Whether each value after the name of a crop is one of yes or no.
const std::vector<bool>& yesOrNo() {
  static const std::vector<bool> places = [] {
    std::vector<bool> found(cropFields().size(), false);
    for (const CostField& field : costFields())
      found.push_back(!field.isNumber());
    return found;
  }();
  return places;
}

bool isYesOrNo(std::string_view value) {
  if (value.size() < 4 || value.size() > 5) return false;
  const std::string word = lowerCase(value);
  return word == "true" || word == "false";
}

/// Whether a value reads as a number: what follows the digits does not matter, and nothing counts as 0.
bool isFigure(std::string_view value) {
  return value.empty() || std::string_view("0123456789+-.").find(value.front()) != std::string_view::npos;
}

/// The values that follow a name, if they are those of a crop; `values` is then behind them.
std::optional<std::string> takeCropValues(SavedValueReader& values) {
  SavedValueReader ahead = values;
  std::string text;
  for (const bool expected : yesOrNo()) {
    if (ahead.atEnd()) return std::nullopt;
    const std::string_view value = ahead.next();
    if (!(expected ? isYesOrNo(value) : isFigure(value))) return std::nullopt;
    text += value;
    text += "\r\n";
  }
  values = ahead;
  return text;
}

}  // namespace

std::string_view SavedValueReader::next() {
  if (rest_.empty()) throw RunTimeError(ErrorNumber::invalidCall, "The saved inputs end too early.");
  const std::size_t start = rest_.find_first_not_of(" \t");
  rest_.remove_prefix(start == std::string_view::npos ? rest_.size() : start);
  const std::size_t end = rest_.find_first_of(",\r\n");
  const std::string_view value = rest_.substr(0, end);
  if (end == std::string_view::npos) {
    rest_ = {};
  } else {
    rest_.remove_prefix(end + (rest_.substr(end, 2) == "\r\n" ? 2 : 1));
  }
  return value;
}

std::vector<SavedCropBlock> savedCropBlocks(std::string_view inputs) {
  std::vector<SavedCropBlock> blocks;
  for (SavedValueReader values(inputs); !values.atEnd();) {
    const std::string_view name = values.next();
    if (std::optional<std::string> block = takeCropValues(values))
      blocks.push_back({std::string(name), std::move(*block)});
  }
  return blocks;
}

std::vector<SavedCropBlock> missingBlocks(const std::vector<SavedCropBlock>& former,
                                          const std::vector<SavedCropBlock>& next) {
  std::map<std::string_view, long> left;
  for (const SavedCropBlock& block : next)
    ++left[block.name];
  std::vector<SavedCropBlock> missing;
  std::copy_if(former.begin(), former.end(), std::back_inserter(missing),
               [&](const SavedCropBlock& block) { return --left[block.name] < 0; });
  return missing;
}

}  // namespace verdalis
