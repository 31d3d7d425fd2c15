#include "trend/TrendValues.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <system_error>
#include <utility>

#include "data/readFile.h"
#include "model/checked.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

constexpr double leastRain = 11;
constexpr double mostRain = 21;
constexpr std::size_t shownValues = 20;

Message invalidValue(const std::string& text) {
  return {"Invalid value", text, MessageKind::refusal, MessageIcon::exclamation, MessageButtons::ok};
}

TrendReading refused(const std::string& text) {
  return {{}, invalidValue(text)};
}

std::string count(double number) {
  return formatNumber(number, "###,###,##0");
}

TrendReading tooMany(const std::string& what) {
  return refused(what + " more than " + count(static_cast<double>(mostTrendValues)) +
                 " values. Use fewer values.");
}

void removeCharacters(std::string& text, std::string_view unwanted) {
  const auto isUnwanted = [&](char c) { return unwanted.find(c) != std::string_view::npos; };
  text.erase(std::remove_if(text.begin(), text.end(), isUnwanted), text.end());
}

/// Calls `use` with each entry of a comma-separated list until it returns false.
template <class Use>
void forEachEntry(std::string_view list, Use use) {
  for (;;) {
    const std::size_t comma = list.find(',');
    if (!use(list.substr(0, comma)) || comma == std::string_view::npos) return;
    list.remove_prefix(comma + 1);
  }
}

std::string readText(const std::filesystem::path& file) {
  try {
    return readFile(file);
  } catch (const RunTimeError&) {
    return {};  // what cannot be read holds no values
  }
}

bool isTooLarge(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return false;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  return !error && size > mostTrendFileBytes;
}

std::string notANumber(const std::filesystem::path& file, std::size_t entry, std::string_view text) {
  const std::string place = "Entry " + count(static_cast<double>(entry)) + " of the file " + file.string();
  const std::string what =
      text.empty() ? place + " is empty." : place + ", " + quoteForMessage(text) + ", is not a number.";
  return what +
         " Every entry must be a number, with commas only between the numbers, such as 2, 2.5, 3. The end of "
         "a line does not separate them.";
}

}  // namespace

TrendReading readRange(const TrendRange& range, bool validate) {
  const double minimum = Val(range.minimum);
  const double maximum = Val(range.maximum);
  const double steps = Val(range.steps);
  if (validate && (maximum == 0 || maximum <= minimum)) {
    return refused("Please select a maximum value greater than the minimum value!");
  }
  if (steps < 2) {
    return refused("The number of steps " + quoteForMessage(range.steps) +
                   " makes fewer than two values. Enter a whole number of 2 or more, such as 5.");
  }
  if (steps > static_cast<double>(mostTrendValues)) {
    return tooMany("The number of steps " + quoteForMessage(range.steps) + " makes");
  }
  const double increment = checked((maximum - minimum) / (steps - 1), "The distance of the trend values");
  TrendReading reading;
  reading.values.reserve(static_cast<std::size_t>(steps));
  for (int i = 0; i <= steps - 1; ++i) {
    reading.values.emplace_back(checked(minimum + i * increment, "A trend value"));
  }
  return reading;
}

TrendReading readValuesFile(const std::filesystem::path& file, bool validate) {
  if (isTooLarge(file)) {
    return refused("The file " + file.string() + " has more than " +
                   count(static_cast<double>(mostTrendFileBytes >> 20U)) +
                   " MB, which is too much for a list of trend values. Select a file with fewer values.");
  }
  std::string text = readText(file);
  removeCharacters(text, "\r\n");
  if (text.empty() && validate) return refused("Please select a file!");
  removeCharacters(text, " ");
  TrendReading reading;
  forEachEntry(text, [&](std::string_view entry) {
    if (!isNumeric(entry)) {
      reading = refused(notANumber(file, reading.values.size() + 1, entry));
    } else if (reading.values.size() == mostTrendValues) {
      reading = tooMany("The file " + file.string() + " has");
    } else {
      reading.values.emplace_back(std::string(entry));
    }
    return !reading.refusal;
  });
  return reading;
}

TrendReading readValuesList(const std::string& list, bool validate) {
  std::string text = list;
  removeCharacters(text, " ");
  if (text.empty() && validate) return refused("Please enter some values for the variables!");
  TrendReading reading;
  forEachEntry(text, [&](std::string_view entry) {
    if (!isNumeric(entry)) return true;
    if (reading.values.size() == mostTrendValues) {
      reading = tooMany("The list has");
      return false;
    }
    reading.values.emplace_back(std::string(entry));
    return true;
  });
  if (reading.values.empty() && !reading.refusal) {
    return refused("The list " + quoteForMessage(list) +
                   " has no number in it. Enter numbers with commas between them, such as 2, 2.5, 3.");
  }
  return reading;
}

std::optional<Message> refuseRain(const std::vector<TrendValue>& values) {
  // A notice and not a refusal: the values are numbers, so the command line continues after it.
  const auto refusal = [](const char* text) {
    return Message{"Please try again", text, MessageKind::notice, MessageIcon::information,
                   MessageButtons::ok};
  };
  for (const TrendValue& value : values) {
    const double rain = numberOf(value);
    if (rain < leastRain) {
      return refusal("Values for Annual Rainfall cannot be below 11 inches.  Please modify the values.");
    }
    if (rain > mostRain) {
      return refusal("Values for Annual Rainfall cannot exceed 21 inches.  Please modify the values.");
    }
  }
  return std::nullopt;
}

std::optional<Message> refuseFixedTrend(std::size_t first, std::size_t second) {
  constexpr auto most = static_cast<double>(std::numeric_limits<std::int16_t>::max());
  const double combinations = static_cast<double>(first) * static_cast<double>(second);
  if (combinations <= most) return std::nullopt;
  return invalidValue("The values make " + count(combinations) +
                      " combinations, and a fixed trend can have at most " + count(most) +
                      ". Use fewer values.");
}

std::optional<Message> refuseVariableTrend(std::size_t values, double optionsToKeep, double most) {
  const double options = static_cast<double>(values) * optionsToKeep;
  if (options <= most) return std::nullopt;
  return invalidValue(count(static_cast<double>(values)) + " values with " + count(optionsToKeep) +
                      " options each are more than the " + count(most) +
                      " options that a variable trend can keep. Use fewer values, or keep fewer options.");
}

std::string describeValues(const std::vector<TrendValue>& values) {
  std::string text;
  for (std::size_t i = 0; i < std::min(values.size(), shownValues); ++i) {
    text += (i == 0 ? "" : ", ") + generalText(numberOf(values[i]));
  }
  if (values.size() > shownValues) {
    text += ", ... (" + count(static_cast<double>(values.size())) + " values)";
  }
  return text;
}

}  // namespace verdalis
