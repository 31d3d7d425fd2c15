#include "cli/TrendCommandProcess.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "cli/FarmOptions.h"
#include "cli/textOptions.h"
#include "platform/fileAccess.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"
#include "text/quote.h"
#include "trend/TrendValues.h"
#include "trend/TrendVariables.h"

namespace verdalis {
namespace {

std::string variableNames(std::string_view separator) {
  std::string names;
  for (std::size_t i = 0; i < trendVariableCount; ++i) {
    if (i > 0) names += separator;
    names += std::to_string(i) + " is \"" + trendVariables().at(i).label + "\"";
  }
  return names;
}

std::int16_t variableIndex(const TrendProcessRequest& request, const std::string& option) {
  if (!request.variable) {
    throw Refusal("A trend needs a variable (" + option + " N): " + variableNames(", ") + ".");
  }
  const std::string& text = *request.variable;
  if (text.size() == 1 && text[0] >= '0' && text[0] < '0' + static_cast<int>(trendVariableCount))
    return static_cast<std::int16_t>(text[0] - '0');
  throw Refusal(option + " " + quoteForMessage(text) + ": There is no such variable: " + variableNames(", ") +
                ".");
}

/// The crop of the first row with this exact name, else the crop found ignoring case.
std::optional<std::string> cropName(const std::string& name, TypedFarm& typed, const TrendInputs& inputs) {
  if (GetCropIndex(inputs, name).found) return name;
  const std::optional<std::size_t> row = typed.findRow(name);
  if (!row) return std::nullopt;
  const std::shared_ptr<Crop> crop = inputs.rowCrop(*row);
  return crop ? std::optional(crop->cropType) : std::nullopt;
}

std::string cropOf(const TrendProcessRequest& request, const std::string& option, TypedFarm& typed,
                   const TrendInputs& inputs) {
  if (!request.crop) throw Refusal("This variable belongs to a crop (" + option + " NAME).");
  if (std::optional<std::string> found = cropName(*request.crop, typed, inputs)) return *found;
  throw Refusal(option + ": " + unknownCrop(typed, *request.crop));
}

/// Requires a plain number. The pane accepts a leading number; on the command line this would hide a typing
/// error.
void requireNumber(const std::string& option, const std::string& text) {
  if (isNumeric(text) && text.find(',') == std::string::npos) return;
  throw Refusal(option + " " + quoteForMessage(text) + ": Please enter a valid number");
}

/// Checks the file first. The reader would only ask for a file, without the name of this one.
void requireReadable(const std::string& option, const std::string& file) {
  std::error_code error;
  const std::filesystem::path path = pathOf(file);
  const bool readable = std::filesystem::is_regular_file(path, error) && mayRead(path);
  if (readable && std::filesystem::file_size(path, error) != 0) return;
  throw Refusal(option + ": Please select a file! The file " + file +
                (readable ? " is empty." : " cannot be read."));
}

struct ValuesOption {
  std::string option;
  TrendReading reading;
  TrendValuesKind kind;
};

ValuesOption readRangeOptions(const TrendProcessRequest& request, const std::string& suffix) {
  if (!request.from || !request.to || !request.steps) {
    throw Refusal("A range of values requires --from" + suffix + " A, --to" + suffix + " B and --steps" +
                  suffix + " N.");
  }
  requireNumber("--from" + suffix, *request.from);
  requireNumber("--to" + suffix, *request.to);
  requireNumber("--steps" + suffix, *request.steps);
  return {"--from" + suffix, readRange({*request.from, *request.to, *request.steps}),
          TrendValuesKind::automatic};
}

ValuesOption readValues(const TrendProcessRequest& request, const std::string& suffix) {
  const bool range = request.from || request.to || request.steps;
  if (int{range} + int{request.values.has_value()} + int{request.valuesFile.has_value()} != 1) {
    throw Refusal("A trend needs its values in one way: --values" + suffix + " LIST, or --from" + suffix +
                  " A --to" + suffix + " B --steps" + suffix + " N, or --values-file" + suffix + " FILE.");
  }
  if (range) return readRangeOptions(request, suffix);
  if (request.values) return {"--values" + suffix, readValuesList(*request.values), TrendValuesKind::manual};
  const std::string option = "--values-file" + suffix;
  requireReadable(option, *request.valuesFile);
  return {option, readValuesFile(pathOf(*request.valuesFile)), TrendValuesKind::import};
}

/// Reads the values. Values that no run can use, such as 1e999, are refused before the first run.
ValuesOption checkValues(const TrendProcessRequest& request, const std::string& suffix, bool rain) {
  try {
    ValuesOption values = readValues(request, suffix);
    if (!values.reading.refusal && rain) values.reading.refusal = refuseRain(values.reading.values);
    for (const TrendValue& value : values.reading.values)
      static_cast<void>(numberOf(value));
    return values;
  } catch (const RunTimeError& error) {
    throw Refusal("The values of the trend" + (suffix.empty() ? "" : " process " + suffix) + ": " +
                  error.what());
  }
}

void keepTexts(const TrendProcessRequest& request, BatchProcess& process) {
  if (request.from) {
    process.variables_min = generalText(Val(*request.from));
    process.variables_max = generalText(Val(*request.to));
    process.variables_steps = generalText(Val(*request.steps));
  }
  if (request.values) process.variables_manual = *request.values;
  if (request.valuesFile) process.inputfilename = *request.valuesFile;
}

}  // namespace

void addTrendProcessOptions(CLI::App& command, const std::string& suffix, TrendProcessRequest& request) {
  const bool first = suffix.empty();
  const std::string of = first ? "" : " of the second process";
  addTextOption(
      command, "--variable" + suffix, "N", request.variable,
      first ? "The variable to vary:\n" + variableNames("\n") : "The second variable of a fixed trend");
  addTextOption(command, "--trend-crop" + suffix, "NAME", request.crop,
                "The crop" + of + ", for variables 0 to 2");
  addTextOption(command, "--values" + suffix, "LIST", request.values,
                "The values" + of + ", separated by commas");
  addTextOption(command, "--from" + suffix, "A", request.from,
                "Or evenly spaced values" + of + " from A ...");
  addTextOption(command, "--to" + suffix, "B", request.to, "... to B ...");
  addTextOption(command, "--steps" + suffix, "N", request.steps, "... with this number of values");
  addTextOption(command, "--values-file" + suffix, "FILE", request.valuesFile,
                "Or a file with the values" + of + ", separated by commas");
}

TrendProcess makeTrendProcess(const TrendProcessRequest& request, const std::string& suffix, TypedFarm& typed,
                              const TrendInputs& inputs, const std::string& fallbackCrop) {
  const std::int16_t variable = variableIndex(request, "--variable" + suffix);
  TrendProcess result;
  const bool ofCrop = trendVariable(variable).ofCrop;
  ValuesOption values = checkValues(request, suffix, variable == rainVariable);
  if (values.reading.refusal) throw Refusal(values.option + ": " + values.reading.refusal->text);
  if (ofCrop) result.crop = cropOf(request, "--trend-crop" + suffix, typed, inputs);

  BatchProcess& process = result.process;
  process.VariableIndex = variable;
  process.cropIndex = static_cast<double>(GetCropIndex(inputs, ofCrop ? result.crop : fallbackCrop).row);
  process.variables_type = static_cast<std::int16_t>(values.kind);
  keepTexts(request, process);
  process.SetValueArray(std::move(values.reading.values));
  return result;
}

}  // namespace verdalis
