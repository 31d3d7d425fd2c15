#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "engine/Wish.h"
#include "model/FieldCollection.h"
#include "model/IrrigationCosts.h"
#include "model/inputCosts.h"

namespace verdalis {

/// Keys of a farm file that this version does not know, with their values as JSON text. They are kept and
/// written at the end of their object.
using UnknownKeys = std::vector<std::pair<std::string, std::string>>;

/// The inputs at the top of the main pane, as typed.
struct DocumentFarm {
  std::string txtArea;               ///< Total acres
  std::string txtMax;                ///< Gross irrigation, inches
  std::string txtAnnRain;            ///< Annual rainfall, inches
  std::string txtEff;                ///< Irrigation efficiency, percent
  std::string txtSoil;               ///< Soil
  std::string txtSize;               ///< Typed beside the results; without effect
  std::optional<std::size_t> split;  ///< Index of the chosen land split; nothing if none is chosen
  bool noSplit = false;              ///< Also evaluate the undivided farm
  bool fallowNegatives = false;      ///< The tick of `Check1`; without effect
  UnknownKeys unknown;

  friend bool operator==(const DocumentFarm&, const DocumentFarm&) = default;
};

/// The pumping plant. Of `plant`, only the fields of plantFields() count.
struct DocumentPlant {
  IrrigationCosts plant;
  UnknownKeys unknown;

  friend bool operator==(const DocumentPlant& a, const DocumentPlant& b);
};

/// A crop row and the production costs of its crop.
struct DocumentCrop {
  std::string name;
  bool chosen = false;
  std::string price;                      ///< As typed, $ per yield unit
  std::optional<double> priceInForce;     ///< The crop's price where it is not the number that is typed
  std::string maxYield;                   ///< As typed, yield units per acre
  std::optional<double> maxYieldInForce;  ///< Likewise
  inputCosts costs;                       ///< Only the fields of costFields() count
  UnknownKeys unknown;
  UnknownKeys unknownCosts;

  friend bool operator==(const DocumentCrop& a, const DocumentCrop& b);
};

struct DocumentOptions {
  std::string keep;          ///< Number of options to keep, as typed
  std::int16_t factor = 10;  ///< Irrigation iteration factor, 1 to 100
  bool mixes = false;        ///< Keep only the best option of each mix of crops
  UnknownKeys unknown;

  friend bool operator==(const DocumentOptions&, const DocumentOptions&) = default;
};

struct DocumentWish {
  Wish wish;
  UnknownKeys unknown;

  friend bool operator==(const DocumentWish&, const DocumentWish&) = default;
};

/// A list of values that are never changed, so that several documents can share them. Lists are equal if
/// their values are.
template <class Value>
class SharedList {
 public:
  using Item = std::shared_ptr<const Value>;

  void add(Item item) { items_.push_back(std::move(item)); }
  void add(Value value) { items_.push_back(std::make_shared<const Value>(std::move(value))); }

  [[nodiscard]] std::size_t size() const { return items_.size(); }
  [[nodiscard]] bool empty() const { return items_.empty(); }
  [[nodiscard]] const Item& item(std::size_t index) const { return items_.at(index); }
  [[nodiscard]] const Value& operator[](std::size_t index) const { return *items_[index]; }
  [[nodiscard]] auto begin() const { return items_.begin(); }
  [[nodiscard]] auto end() const { return items_.end(); }

  friend bool operator==(const SharedList& a, const SharedList& b) {
    if (a.items_.size() != b.items_.size()) return false;
    for (std::size_t i = 0; i < a.items_.size(); ++i) {
      if (a.items_[i] != b.items_[i] && !(*a.items_[i] == *b.items_[i])) return false;
    }
    return true;
  }

 private:
  std::vector<Item> items_;
};

/// Everything that decides the result of a run.
struct FarmInputs {
  DocumentFarm farm;
  DocumentPlant plant;
  SharedList<DocumentCrop> crops;
  DocumentOptions options;
  std::vector<DocumentWish> wishes;
  UnknownKeys unknown;  ///< Empty in a document, which has its own

  friend bool operator==(const FarmInputs&, const FarmInputs&) = default;
};

/// A kind of year, for plans that are chosen before the rain is known.
struct DocumentSeason {
  std::string name;
  double rain = 0;    ///< Inches
  double weight = 0;  ///< Relative frequency; above 0
  UnknownKeys unknown;

  friend bool operator==(const DocumentSeason&, const DocumentSeason&) = default;
};

/// A trend process as entered on the setup pane.
struct DocumentProcess {
  std::string crop;
  std::size_t variable = 0;  ///< Index of the variable
  std::size_t values = 0;    ///< The chosen way to enter values, a TrendValuesKind
  std::string minimum;
  std::string maximum;
  std::string steps;
  std::string list;
  std::string file;
  bool shown = false;  ///< The process that the pane shows
  UnknownKeys unknown;

  friend bool operator==(const DocumentProcess&, const DocumentProcess&) = default;
};

/// A field of a saved option, with all that its figures were worked out from.
struct SavedOptionField {
  std::string crop;
  double acres = 0;
  double depth = 0;  ///< Net irrigation, inches
  double rain = 0;   ///< Inches
  double price = 0;  ///< $ per yield unit
  double maxYield = 0;
  double normalFactor = 0;                  ///< Scale of a yield table with absolute yields
  double yield = 0;                         ///< Yield units per acre
  std::string soil;                         ///< Name of the soil
  std::string units;                        ///< The unit text of the crop file
  double costs = 0;                         ///< Dollars for the field, 0 if not worked out yet
  double returns = 0;                       ///< Likewise
  std::optional<double> trendedCosts;       ///< Production costs set by a trend, $ per acre
  std::optional<double> trendedIrrigation;  ///< Irrigation costs set by a trend, $ per acre-inch
  std::optional<inputCosts> ownCosts;       ///< Where they are not those of the option's inputs
  std::optional<IrrigationCosts> ownPlant;  ///< Likewise
  UnknownKeys unknown;
  UnknownKeys unknownOwnCosts;
  UnknownKeys unknownOwnPlant;

  friend bool operator==(const SavedOptionField& a, const SavedOptionField& b);
};

/// A value with which a trend made an option.
struct SavedOptionTrend {
  std::string variable;
  double value = 0;
  std::string before;  ///< Text before the value, such as "$"
  std::string after;   ///< Text after the value, such as "/ bu."
  UnknownKeys unknown;

  friend bool operator==(const SavedOptionTrend&, const SavedOptionTrend&) = default;
};

/// An option that the user has saved for comparison, with the inputs under which it was found.
struct SavedOption {
  std::string name;
  double costs = 0;  ///< Dollars for the farm, 0 if not worked out yet
  std::vector<SavedOptionField> fields;
  std::vector<SavedOptionTrend> trend;
  FarmInputs inputs;  ///< Of the crops, only the chosen ones
  UnknownKeys unknown;
  UnknownKeys unknownOption;

  /// The option that the panes show; not part of the value. Made from the fields when it is needed.
  mutable std::shared_ptr<FieldCollection> shown;

  friend bool operator==(const SavedOption& a, const SavedOption& b);
};

/// A custom crop that travels with the farm.
struct EmbeddedCrop {
  std::string name;
  std::string text;  ///< The contents of its crop file
  UnknownKeys unknown;

  friend bool operator==(const EmbeddedCrop&, const EmbeddedCrop&) = default;
};

/// All that a person enters for a farm: one value, which a farm file keeps and undo goes back to. Copies
/// share what is equal.
struct FarmDocument {
  std::string name;
  std::string notes;
  std::string letterhead;  ///< The adviser's line on reports
  FarmInputs inputs;
  std::vector<DocumentSeason> seasons;
  std::vector<DocumentProcess> trend;
  SharedList<SavedOption> saved;
  SharedList<EmbeddedCrop> customCrops;
  UnknownKeys unknown;

  friend bool operator==(const FarmDocument&, const FarmDocument&) = default;
};

/// Whether two crops have the same production costs.
[[nodiscard]] bool sameCosts(const inputCosts& a, const inputCosts& b);

/// Whether the same production costs were entered. Runs write an optimal seeding rate and a missing life of
/// stand into a crop, without effect on its costs.
[[nodiscard]] bool enteredAlike(const inputCosts& a, const inputCosts& b);

/// Whether two plants are described by the same numbers.
[[nodiscard]] bool samePlant(const IrrigationCosts& a, const IrrigationCosts& b);

}  // namespace verdalis
