#include "cli/FarmOptions.h"

#include <algorithm>
#include <utility>

#include "cli/farmTexts.h"
#include "cli/textOptions.h"
#include "data/farmFile.h"
#include "data/home.h"
#include "data/readFile.h"
#include "document/farmText.h"
#include "platform/paths.h"
#include "screens/paneWishes.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

std::size_t cropRow(TypedFarm& farm, std::string_view name) {
  if (const std::optional<std::size_t> row = farm.findRow(name)) return *row;
  throw Refusal(unknownCrop(farm, name));
}

std::pair<std::string, std::string> splitAssignment(const std::string& text, std::size_t sign) {
  if (sign == std::string::npos) throw Refusal("The form is NAME=TEXT.");
  return {text.substr(0, sign), text.substr(sign + 1)};
}

/// The row and the text of "CROP=TEXT". The name of a crop may contain "=", so every position is tried.
std::pair<std::size_t, std::string> rowAssignment(TypedFarm& farm, const std::string& text) {
  for (std::size_t sign = text.find('='); sign != std::string::npos; sign = text.find('=', sign + 1)) {
    if (const auto row = farm.findRow(std::string_view(text).substr(0, sign)))
      return {*row, text.substr(sign + 1)};
  }
  auto [name, value] = splitAssignment(text, text.find('='));
  return {cropRow(farm, name), std::move(value)};
}

std::int16_t iterationFactor(const std::string& text, Messages& messages) {
  const FineFactorEntry entry = requireFactor(text);
  if (entry.message) messages.tell(entry.message->title, entry.message->text);
  return *entry.factor;
}

ProgramFiles filesOf(const FarmRequest& request) {
  ProgramFiles files(request.home ? pathOf(*request.home) : homeFolder(homePlaces()));
  if (request.farmFile) files.inputs.clear();  // the farm file takes the place of all saved inputs
  if (!request.inputs) return files;
  files.inputs = pathOf(*request.inputs);
  try {
    static_cast<void>(readFile(files.inputs));
  } catch (const RunTimeError& error) {
    throw Refusal(std::string("--inputs: ") + error.what());
  }
  return files;
}

/// Reads the farm file of a request.
/// \throws Refusal for a file that cannot be read or is no intact farm file
FarmDocument openFarmFile(const std::string& file) {
  FarmFile read;
  try {
    read = readFarmFile(pathOf(file));
  } catch (const RunTimeError& error) {
    throw Refusal(std::string("--farm: ") + error.what());
  }
  try {
    return readFarm(read.text);
  } catch (const RunTimeError& error) {
    throw Refusal("--farm: The file " + file + ": " + error.what());
  }
}

void applyToRows(const FarmRequest& request, TypedFarm& farm) {
  for (const std::string& price : request.prices) {
    applyOption("--price", price, [&] {
      const auto [row, text] = rowAssignment(farm, price);
      farm.typePrice(row, text);
    });
  }
  for (const std::string& maxYield : request.maxYields) {
    applyOption("--max-yield", maxYield, [&] {
      const auto [row, text] = rowAssignment(farm, maxYield);
      farm.typeMaxYield(row, text);
    });
  }
  if (request.split) {
    applyOption("--split", *request.split, [&] { farm.chooseLandSplit(landSplitIndex(*request.split)); });
  }
  for (const std::string& crop : request.crops) {
    applyOption("--crop", crop, [&] { farm.tick(cropRow(farm, crop)); });
  }
}

void applyWishes(const FarmRequest& request, TypedFarm& farm) {
  if (request.mixes) farm.keepMixes();
  if (request.wishes.empty()) return;
  requireReady(farm.inputs());  // wishes refer to fields and crops
  farm.makeWishes(readWishes("--wish", request.wishes, farm.wishContext(), farm.mainPane().wishes));
}

}  // namespace

void addFarmOptions(CLI::App& command, FarmRequest& request) {
  addTextOption(command, "--home", "DIR", request.home,
                "Folder with crops/ and inputs.txt\n(default: the program's own home folder)");
  addTextOption(command, "--inputs", "FILE", request.inputs,
                "Saved inputs file to read instead of inputs.txt in the home folder");
  addTextOption(
      command, "--farm", "FILE", request.farmFile,
      "Farm file to read instead of saved inputs, not beside --inputs.\nThe options below then change it, in "
      "this order: --crop, --no-split\nand --wish add to it, all others replace what it says");
  command.add_flag("--defaults", request.defaults, "Then load the default prices, yields, costs and plant");
  addTextOption(
      command, "--set", "CONTROL=TEXT", request.sets,
      "Then enter TEXT in a control of the main window,\nsuch as txtArea=100 or \"txtSoil=Loamy Sand\"");
  addTextOption(command, "--price", "CROP=TEXT", request.prices,
                "Then enter the price of a crop, $ per unit");
  addTextOption(command, "--max-yield", "CROP=TEXT", request.maxYields,
                "Then enter the maximum yield of a crop, units per acre");
  addTextOption(command, "--split", "N", request.split, "The land split:\n" + landSplitNames("\n"));
  addTextOption(command, "--crop", "NAME", request.crops, "A crop to include");
  command.add_flag("--no-split", request.noSplit, "Also evaluate each crop on the undivided farm");
  addTextOption(command, "--keep", "N", request.keep,
                "Number of options to keep\n(default: that of the farm file, else 100)");
  addTextOption(command, "--factor", "N", request.factor,
                "Irrigation iteration factor: number of water steps\nbetween 0 and 100 % (default: that of "
                "the farm file, else 10)");
  addTextOption(
      command, "--wish", "TEXT", request.wishes,
      "A wish that every plan must meet, such as\n\"Corn at least 40 acres\", \"field 1 is not Corn\",\n"
      "\"field 2 at most 6 inches\" or \"at least 2 crops\"");
}

void addMixesOption(CLI::App& command, FarmRequest& request) {
  command.add_flag("--mixes", request.mixes, "Keep only the best option of each mix of acres and crops");
}

std::unique_ptr<TypedFarm> makeFarm(const FarmRequest& request, Messages& messages) {
  if (request.farmFile && request.inputs)
    throw Refusal("--farm: A farm file takes the place of saved inputs, so --inputs cannot be given too.");
  const std::optional<FarmDocument> document =
      request.farmFile ? std::optional(openFarmFile(*request.farmFile)) : std::nullopt;
  auto farm = std::make_unique<TypedFarm>(filesOf(request), messages);
  if (request.inputs && !farm->inputsLoaded()) {
    messages.tell("The file " + *request.inputs +
                  " ends too early or contains an invalid value. The values before it are used.");
  }
  if (document) farm->open(*document);
  if (request.defaults) farm->loadDefaultValues();
  for (const std::string& set : request.sets) {
    applyOption("--set", set, [&] {
      const auto [control, text] = splitAssignment(set, set.find('='));
      farm->type(control, text);
    });
  }
  applyToRows(request, *farm);
  if (request.noSplit) farm->tickNoSplit();
  if (request.keep) {
    applyOption("--keep", *request.keep, [&] {
      requireKept(*request.keep);
      farm->type("txtArraySize", *request.keep);
    });
  }
  if (request.factor) {
    applyOption("--factor", *request.factor,
                [&] { farm->state().FineFactor = iterationFactor(*request.factor, messages); });
  }
  applyWishes(request, *farm);
  return farm;
}

std::string unknownCrop(TypedFarm& farm, std::string_view name) {
  return unknownCrop(farm.cropNames(), name);
}

void requireReady(const ScenarioInputs& inputs) {
  const bool splitChosen =
      std::find(inputs.Option1.begin(), inputs.Option1.end(), true) != inputs.Option1.end();
  if (ready(inputs) && splitChosen) return;

  std::string missing;
  const auto require = [&](bool there, const std::string& what) {
    if (!there) missing += (missing.empty() ? "" : "; ") + what;
  };
  const bool area = !inputs.txtArea.empty();
  const bool inches = !inputs.txtMax.empty();
  require(area, "the acres of the farm (--set txtArea=ACRES)");
  require(inches, "the gross irrigation (--set txtMax=INCHES)");
  require(!area || !inches || !inputs.lblVolume.empty(),
          "acres and inches whose product is at least 1 ac-in");
  require(isNumeric(inputs.txtAnnRain), inputs.txtAnnRain.empty()
                                            ? "the annual rainfall (--set txtAnnRain=INCHES)"
                                            : "an annual rainfall that is a number, which " +
                                                  quoteForMessage(inputs.txtAnnRain) + " is not");
  require(splitChosen, "a land split (--split N)");
  require(
      std::any_of(inputs.cr.begin(), inputs.cr.end(), [](const CropRowInput& row) { return row.isActive; }),
      "a crop (--crop NAME)");
  throw Refusal("Please enter all of the necessary information before continuing! Missing: " + missing + ".");
}

void requireReady(const FarmRequest& request, TypedFarm& farm) {
  const ScenarioInputs inputs = farm.inputs();
  requireReady(inputs);
  if (request.farmFile) requireFitting(inputs.wishes, farm.wishContext());
}

void requireFitting(const std::vector<Wish>& wishes, const WishContext& context) {
  for (const Wish& wish : wishes) {
    if (const auto fault = wishFault(wish, context))
      throw Refusal("The wish " + quoteForMessage(wishText(wish)) + " of the farm file: " + *fault);
  }
}

}  // namespace verdalis
