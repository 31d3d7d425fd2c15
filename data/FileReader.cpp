#include "data/FileReader.h"

#include <algorithm>
#include <memory>
#include <system_error>
#include <utility>

#include "data/listFiles.h"
#include "data/readFile.h"
#include "model/CropKind.h"
#include "platform/fileAccess.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

/// Limit for the cells of all tables in a soils file: a hundred of the largest tables. Without it, a file of
/// many short records with large tables could delay the start by hours.
constexpr long maxSoilCells = 100L * maxTableSide * maxTableSide;

/// Iterates over a comma separated list; an empty text has no entries.
class ListReader {
 public:
  explicit ListReader(std::string_view text) : rest_(text), more_(!text.empty()) {}

  [[nodiscard]] bool next(std::string_view& entry) {
    if (!more_) return false;
    const std::size_t comma = rest_.find(',');
    entry = rest_.substr(0, comma);
    more_ = comma != std::string_view::npos;
    rest_.remove_prefix(more_ ? comma + 1 : rest_.size());
    return true;
  }

 private:
  std::string_view rest_;
  bool more_;
};

int wholeNumber(std::string_view entry, std::string_view what) {
  return toInt16(toDouble(entry), what);
}

std::string_view firstEntry(std::string_view list) {
  return list.substr(0, list.find(','));
}

std::string_view lastEntry(std::string_view list) {
  const std::size_t comma = list.rfind(',');
  return comma == std::string_view::npos ? list : list.substr(comma + 1);
}

std::string_view shortLine(std::string_view text, const std::string& what) {
  if (isShortCropText(text)) return text;
  throw RunTimeError(ErrorNumber::invalidCall,
                     what + " has more than " + std::to_string(mostCropCharacters) + " characters.");
}

/// Reads the text of a crop file into an existing crop, overwriting its values.
void readCrop(Crop& crop, std::string_view text) {
  LineReader lines(text);
  const auto keyLine = [&] { return FileReader::parseEquals(lines.next()); };
  const auto passOver = [&] { static_cast<void>(lines.next()); };

  crop.cropType = shortLine(keyLine(), "The name of the crop");
  passOver();
  crop.cropUnits = shortLine(keyLine(), "The text of the units");
  ListReader units(crop.cropUnits);
  crop.cropUnitsArray = {};
  for (std::string& unit : crop.cropUnitsArray) {
    std::string_view word;
    if (units.next(word)) unit = word;
  }
  passOver();
  const std::string_view rainfall = keyLine();
  passOver();
  const std::string_view irrigation = keyLine();
  passOver();
  crop.setYieldTable(FileReader::makeYieldArray(rainfall, irrigation, keyLine()));
}

std::shared_ptr<Crop> makeFallowCrop() {
  auto fallow = std::make_shared<Crop>();
  fallow->cropType = cropName(CropKind::fallow);
  return fallow;
}

}  // namespace

std::string_view FileReader::parseEquals(std::string_view line) {
  const std::size_t sign = line.find('=');
  if (sign == std::string_view::npos) {
    throw RunTimeError(ErrorNumber::invalidCall, "A line of a crop file has no \"=\".");
  }
  return line.substr(sign + 1);
}

YieldTable FileReader::makeYieldArray(std::string_view rainfall, std::string_view irrigation,
                                      std::string_view values) {
  const int firstRain = wholeNumber(firstEntry(rainfall), "The first rainfall");
  const int lastRain = wholeNumber(lastEntry(rainfall), "The last rainfall");
  const int maxIrrigation = wholeNumber(lastEntry(irrigation), "The last net irrigation");
  if (lastRain >= maxTableSide || maxIrrigation >= maxTableSide) {
    throw RunTimeError(ErrorNumber::subscript,
                       "A yield table has at most " + std::to_string(maxTableSide) + " rows and columns.");
  }
  YieldTable table(maxIrrigation, firstRain, lastRain);
  int row = 0;
  int column = firstRain;
  ListReader list(values);
  for (std::string_view value; list.next(value);) {
    table.setCell(row, column, Val(value));
    if (column == lastRain) {
      column = firstRain;
      ++row;
    } else {
      ++column;
    }
  }
  return table;
}

std::shared_ptr<const std::string> FileReader::textOf(const Crop& crop) const {
  const auto found = texts_.find(&crop);
  return found == texts_.end() ? nullptr : found->second;
}

bool FileReader::isFarmCrop(std::string_view name) const {
  return std::any_of(farmCrops.begin(), farmCrops.end(),
                     [&](const FarmCrop& crop) { return crop.name == name; });
}

std::shared_ptr<const std::string> FileReader::libraryText(std::string_view name) const {
  const auto found = ownTexts_.find(name);
  return found == ownTexts_.end() ? nullptr : found->second;
}

bool isShortCropText(std::string_view text) {
  const auto startsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCharacter)) <=
         mostCropCharacters;
}

bool FileReader::isCropFile(std::string_view text) {
  try {
    Crop crop;
    readCrop(crop, text);
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

bool FileReader::Initialize() {
  fileCollection.clear();
  cropCollection = {};
  texts_.clear();
  ownTexts_.clear();
  skipped.clear();
  leftOut = 0;
  fileDirectory = home_ / "crops";
  fileCollection = filesByName(fileDirectory);
  const std::size_t stockFiles = std::min(fileCollection.size(), mostCropFiles);
  fileDirectory /= "custom";
  static_cast<void>(makeFolder(fileDirectory));
  std::error_code error;
  // A home folder that is not writable has no custom crops, but the stock crops are still read.
  if (fs::is_directory(fileDirectory, error)) {
    for (fs::path& path : filesByName(fileDirectory))
      fileCollection.push_back(std::move(path));
  }
  if (fileCollection.size() > mostCropFiles) {
    leftOut = fileCollection.size() - mostCropFiles;
    fileCollection.resize(mostCropFiles);
  }

  std::size_t position = 1;
  auto crop = std::make_shared<Crop>();
  for (const fs::path& path : fileCollection) {
    Text text;
    try {
      text = std::make_shared<const std::string>(readFile(path));
      crop->Custom = fs::absolute(path).string().find("custom") != std::string::npos;
      readCrop(*crop, *text);
    } catch (const RunTimeError& fault) {
      skipped.push_back({path, fault.what()});
      continue;  // not a crop: the next file overwrites what this one left in `crop`
    }
    readSoils(*crop);
    cropCollection.Add(crop);
    if (crop->Custom) {
      texts_[crop.get()] = text;
      ownTexts_[crop->cropType] = text;
    }
    if (position == stockFiles) cropCollection.Add(makeFallowCrop());
    ++position;
    crop = std::make_shared<Crop>();
  }
  addFarmCrops();
  return true;
}

void FileReader::addFarmCrops() {
  for (const FarmCrop& own : farmCrops) {
    auto crop = std::make_shared<Crop>();
    try {
      readCrop(*crop, own.text);
    } catch (const RunTimeError&) {
      continue;
    }
    crop->cropType = own.name;
    crop->Custom = true;
    readSoils(*crop);
    texts_[crop.get()] = std::make_shared<const std::string>(own.text);
    bool replaced = false;
    CropScenario crops;
    for (const auto& each : cropCollection) {
      const bool same = !replaced && each->Custom && each->cropType == own.name;
      crops.Add(same ? crop : each);
      replaced = replaced || same;
    }
    if (!replaced) crops.Add(crop);
    cropCollection = std::move(crops);
  }
}

void FileReader::readSoils(Crop& crop) const {
  try {
    const std::string name = lowerCase(crop.cropType);
    const fs::path own = pathOf(name + ".txt");
    if (own != own.filename()) return;  // would lead out of the folder
    const fs::path file = home_ / "crops" / "soils" / own;
    if (isHidden(file)) return;
    const std::string text = readFile(file);
    LineReader lines(text);
    for (long cells = 0; cells < maxSoilCells && !lines.atEnd();) {
      const std::string soil = lowerCase(parseEquals(lines.next()));
      const std::string_view rainfall = parseEquals(lines.next());
      const std::string_view irrigation = parseEquals(lines.next());
      auto tables = std::make_shared<SoilTables>();
      for (const char* key : {"yield", "relative"}) {
        YieldTable table = makeYieldArray(rainfall, irrigation, parseEquals(lines.next()));
        cells += (table.maxIrrigation() + 1L) * (table.lastRain() + 1L);
        tables->emplace_back(key, std::make_shared<const YieldTable>(std::move(table)));
      }
      if (soil == "ulysses") crop.soil_ulysses = tables;
      if (soil == "valent") crop.soil_valent = tables;
      if (soil == "valentine") crop.soil_valentine = tables;
    }
  } catch (const RunTimeError&) {
    // The soils file is missing or cut short: the crop keeps what was read so far.
  }
}

}  // namespace verdalis
