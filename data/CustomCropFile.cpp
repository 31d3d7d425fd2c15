#include "data/CustomCropFile.h"

#include <algorithm>
#include <utility>

#include "data/FileReader.h"
#include "data/listFiles.h"
#include "data/readBytes.h"
#include "data/readFile.h"
#include "model/YieldUnit.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

/// The number of cells of the largest yield table.
constexpr std::size_t maxValues = static_cast<std::size_t>(maxTableSide) * maxTableSide;

std::string firstEntry(std::string_view list) {
  return std::string(list.substr(0, list.find(',')));
}

std::string lastEntry(std::string_view list) {
  const std::size_t comma = list.rfind(',');
  return std::string(comma == std::string_view::npos ? list : list.substr(comma + 1));
}

/// The text after the "=" of the next line; nothing if there is no such line.
std::optional<std::string_view> nextItem(LineReader& lines) {
  try {
    return FileReader::parseEquals(lines.next());
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

void passOverLines(LineReader& lines, int count) {
  for (; count > 0 && !lines.atEnd(); --count)
    static_cast<void>(lines.next());
}

std::optional<std::string> nameIn(const fs::path& path) {
  try {
    const std::string text = readFile(path);
    LineReader lines(text);
    const std::optional<std::string_view> name = nextItem(lines);
    if (name && isShortCropText(*name)) return std::string(*name);
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): an unreadable file has no name
  }
  return std::nullopt;
}

std::string onOneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return text;
}

std::string_view unitWords(const std::string& choice) {
  for (const YieldUnitNames& unit : yieldUnits) {
    if (unit.choice == choice) return unit.words;
  }
  return namesOf(YieldUnit::bushels).words;
}

std::string inchesFromTo(const std::string& first, const std::string& last) {
  std::string list;
  try {
    const int end = wholeInches(last);
    for (int inches = wholeInches(first); inches <= end; ++inches) {
      if (!list.empty()) list += ',';
      list += std::to_string(inches);
    }
  } catch (const RunTimeError&) {
    list.clear();
  }
  return list;
}

}  // namespace

std::vector<std::string> commaSeparatedEntries(std::string_view list) {
  std::vector<std::string> entries;
  bool more = !list.empty();
  while (more && entries.size() < maxValues) {
    const std::size_t comma = list.find(',');
    entries.emplace_back(list.substr(0, comma));
    more = comma != std::string_view::npos;
    if (more) list.remove_prefix(comma + 1);
  }
  return entries;
}

int wholeInches(const std::string& text) {
  return toInt16(toDouble(text), "The number of inches");
}

std::vector<CustomCropEntry> findCustomCrops(const fs::path& folder) {
  std::vector<CustomCropEntry> crops;
  try {
    std::vector<fs::path> files = filesByName(folder);
    files.resize(std::min(files.size(), mostCropFiles));
    for (fs::path& path : files) {
      if (std::optional<std::string> name = nameIn(path))
        crops.push_back({std::move(path), std::move(*name)});
    }
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): a missing folder has no crops
  }
  return crops;
}

std::optional<FormerCustomCrop> formerCustomCrop(const fs::path& path) {
  try {
    std::string bytes = readBytes(path);
    return FormerCustomCrop{path, nameIn(path).value_or(path.filename().string()), std::move(bytes)};
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

CustomCropContents readCustomCrop(const fs::path& path) {
  CustomCropContents contents;
  std::string text;
  try {
    text = readFile(path);
  } catch (const RunTimeError&) {
    return contents;
  }
  LineReader lines(text);
  if (const auto name = nextItem(lines)) contents.name = *name;
  // Intended: the units are not loaded; the editor keeps the units it shows.
  passOverLines(lines, 3);
  const auto rain = nextItem(lines);
  if (rain && !rain->empty()) {
    contents.firstRain = firstEntry(*rain);
    contents.lastRain = lastEntry(*rain);
  }
  passOverLines(lines, 1);
  const auto irrigation = nextItem(lines);
  if (irrigation && !irrigation->empty()) contents.maxIrrigation = lastEntry(*irrigation);
  passOverLines(lines, 1);
  if (const auto values = nextItem(lines)) contents.values = commaSeparatedEntries(*values);
  return contents;
}

std::string customCropText(const CustomCropItems& items) {
  std::string text;
  const auto addItem = [&](std::string_view key, const std::string& value) {
    if (!text.empty()) text += "\r\n";
    text += key;
    text += onOneLine(value);
    text += "\r\n";
  };
  addItem("CROP=", items.name);
  addItem("UNITS=", std::string(unitWords(items.units)));
  addItem("ANNUAL_RAIN=", inchesFromTo(items.firstRain, items.lastRain));
  addItem("EFF_IRRIG=", inchesFromTo("0", items.maxIrrigation));
  addItem("YIELD_VALUES=", items.values);
  return text;
}

std::string RemoveIllegals(std::string_view name) {
  std::string legal(name);
  std::erase_if(legal,
                [](char c) { return std::string_view("*?/\\:|<>\"").find(c) != std::string_view::npos; });
  return legal;
}

fs::path customCropPath(const fs::path& folder, const std::string& name) {
  const std::string file = RemoveIllegals(name) + ".txt";
  return folder / pathOf(isHidden(file) ? "_" + file : file);
}

std::filesystem::path freeCropPath(const std::filesystem::path& folder, const std::string& name) {
  const std::filesystem::path path = customCropPath(folder, name);
  std::filesystem::path free = path;
  std::error_code error;
  for (int number = 2; std::filesystem::exists(free, error); ++number)
    free = folder / pathOf(path.stem().string() + " (" + std::to_string(number) + ").txt");
  return free;
}

}  // namespace verdalis
