#include <gtest/gtest.h>

#include <functional>
#include <nlohmann/json.hpp>
#include <set>

#include "document/documentKeys.h"
#include "document/farmText.h"
#include "tests/document/fullDocument.h"

// Each key of the format alone, with the member that it sets. All other members have their defaults.

namespace verdalis {
namespace {

using Costs = inputCosts;
using Plant = IrrigationCosts;
using Document = FarmDocument;

Document readWith(const std::string& members) {
  return readFarm(R"({"format": "verdalis-farm", "version": 1)" + (members.empty() ? "" : ", " + members) +
                  "}");
}

void expectSets(const std::string& members, const std::function<void(Document&)>& set) {
  Document expected;
  set(expected);
  EXPECT_NE(expected, Document()) << members << ": the example shows nothing";
  EXPECT_EQ(readWith(members), expected) << members;
}

TEST(FarmFileKeys, WithoutAnyKeyEverythingHasItsDefault) {
  EXPECT_EQ(readWith(""), Document());
  EXPECT_EQ(readWith(R"("farm": {}, "plant": {}, "crops": [], "options": {}, "wishes": [], "trend": [])"),
            Document());
}

TEST(FarmFileKeys, OfTheFile) {
  expectSets(R"("name": "Hill")", [](Document& d) { d.name = "Hill"; });
  expectSets(R"("notes": "a\nb")", [](Document& d) { d.notes = "a\nb"; });
  expectSets(R"("letterhead": "A. A.")", [](Document& d) { d.letterhead = "A. A."; });
  EXPECT_EQ(readWith(R"("program": "0.9")"), Document()) << "the program that wrote the file has no effect";
}

TEST(FarmFileKeys, OfTheFarm) {
  const auto sets = [](const std::string& member, const std::function<void(DocumentFarm&)>& set) {
    expectSets(R"("farm": {)" + member + "}", [&](Document& d) { set(d.inputs.farm); });
  };
  sets(R"("txtArea": "1")", [](DocumentFarm& farm) { farm.txtArea = "1"; });
  sets(R"("txtMax": "1")", [](DocumentFarm& farm) { farm.txtMax = "1"; });
  sets(R"("txtAnnRain": "1")", [](DocumentFarm& farm) { farm.txtAnnRain = "1"; });
  sets(R"("txtEff": "1")", [](DocumentFarm& farm) { farm.txtEff = "1"; });
  sets(R"("txtSoil": "Sand")", [](DocumentFarm& farm) { farm.txtSoil = "Sand"; });
  sets(R"("txtSize": "1")", [](DocumentFarm& farm) { farm.txtSize = "1"; });
  sets(R"("split": 0)", [](DocumentFarm& farm) { farm.split = 0; });
  sets(R"("split": 5)", [](DocumentFarm& farm) { farm.split = 5; });
  sets(R"("noSplit": true)", [](DocumentFarm& farm) { farm.noSplit = true; });
  sets(R"("fallowNegatives": true)", [](DocumentFarm& farm) { farm.fallowNegatives = true; });
  EXPECT_EQ(readWith(R"("farm": {"split": null})"), Document());
}

TEST(FarmFileKeys, OfThePlant) {
  const auto sets = [](const std::string& member, const std::function<void(Plant&)>& set) {
    expectSets(R"("plant": {)" + member + "}", [&](Document& d) { set(d.inputs.plant.plant); });
    expectSets(R"("saved": [{"option": {"fields": [{"ownPlant": {)" + member + "}}]}}]", [&](Document& d) {
      SavedOption saved;
      set(saved.fields.emplace_back().ownPlant.emplace());
      d.saved.add(saved);
    });
  };
  sets(R"("gpm": 750)", [](Plant& plant) { plant.GPM = 750; });
  sets(R"("lift": 200)", [](Plant& plant) { plant.Lift = 200; });
  sets(R"("psi": 35)", [](Plant& plant) { plant.PSI = 35; });
  sets(R"("fuelType": "Diesel")", [](Plant& plant) { plant.FuelType = "Diesel"; });
  sets(R"("fuelCost": 3.5)", [](Plant& plant) { plant.cost = 3.5; });
  sets(R"("fuelPerformance": 12.5)", [](Plant& plant) { plant.NPC = 12.5; });
  sets(R"("laborPerHour": 20)", [](Plant& plant) { plant.LaborPerHour = 20; });
  sets(R"("repairsPerAcreInch": 0.6)", [](Plant& plant) { plant.RepairsPerAcreInch = 0.6; });
  sets(R"("fixedPerAcre": 5)", [](Plant& plant) { plant.FixedPerAcre = 5; });
  sets(R"("seasonHours": 1800)", [](Plant& plant) { plant.dblEstHours = 1800; });
  sets(R"("active": true)", [](Plant& plant) { plant.active = true; });
}

TEST(FarmFileKeys, OfACrop) {
  const auto sets = [](const std::string& member, const std::function<void(DocumentCrop&)>& set) {
    DocumentCrop crop;
    set(crop);
    EXPECT_NE(crop, DocumentCrop());
    expectSets(R"("crops": [{)" + member + "}]", [&](Document& d) { d.inputs.crops.add(crop); });
  };
  sets(R"("name": "Corn")", [](DocumentCrop& crop) { crop.name = "Corn"; });
  sets(R"("chosen": true)", [](DocumentCrop& crop) { crop.chosen = true; });
  sets(R"("price": "6.52")", [](DocumentCrop& crop) { crop.price = "6.52"; });
  sets(R"("priceInForce": 0)", [](DocumentCrop& crop) { crop.priceInForce = 0; });
  sets(R"("maxYield": "220")", [](DocumentCrop& crop) { crop.maxYield = "220"; });
  sets(R"("maxYieldInForce": -0.5)", [](DocumentCrop& crop) { crop.maxYieldInForce = -0.5; });
}

TEST(FarmFileKeys, OfTheCostsOfACrop) {
  const auto sets = [](const std::string& key, auto member) {
    using Value = std::remove_cvref_t<decltype(Costs().*member)>;
    const bool flag = std::is_same_v<Value, bool>;
    const auto set = [&](Costs& costs) {
      if constexpr (std::is_same_v<Value, bool>) {
        costs.*member = true;
      } else {
        costs.*member = 2.5;
      }
    };
    const std::string costs = "{\"" + key + "\": " + (flag ? "true" : "2.5") + "}";
    expectSets(R"("crops": [{"costs": )" + costs + "}]", [&](Document& d) {
      DocumentCrop crop;
      set(crop.costs);
      d.inputs.crops.add(crop);
    });
    expectSets(R"("saved": [{"option": {"fields": [{"ownCosts": )" + costs + "}]}}]", [&](Document& d) {
      SavedOption saved;
      set(saved.fields.emplace_back().ownCosts.emplace());
      d.saved.add(saved);
    });
  };
  sets("nitrogenApplied", &Costs::NitrogenApplied);
  sets("nitrogenCost", &Costs::NitrogenCost);
  sets("nitrogenOptimal", &Costs::NOptimal);
  sets("phosphorusApplied", &Costs::PApplied);
  sets("phosphorusCost", &Costs::PCost);
  sets("phosphorusOptimal", &Costs::POptimal);
  sets("seedRate", &Costs::SeedRate);
  sets("seedCost", &Costs::SeedCost);
  sets("seedOptimal", &Costs::SeedOptimal);
  sets("herbicide", &Costs::Herbicide);
  sets("insecticide", &Costs::Insecticide);
  sets("tillage", &Costs::Tillage);
  sets("planting", &Costs::Planting);
  sets("fertilizerApplication", &Costs::FertilizerApplication);
  sets("herbicideApplication", &Costs::HerbicideApplication);
  sets("insecticideApplication", &Costs::InsecticideApplication);
  sets("harvestBasePerAcre", &Costs::HarvestBasePerAcre);
  sets("harvestExceed", &Costs::HarvestExceedBu);
  sets("harvestExceedRate", &Costs::HarvestExceedRate);
  sets("harvestHauling", &Costs::HarvestHauling);
  sets("harvestFlatRate", &Costs::HarvestFlatRate);
  sets("swathing", &Costs::AlfalfaSwathing);
  sets("swathingNumber", &Costs::AlfalfaSwathingNum);
  sets("raking", &Costs::AlfalfaRaking);
  sets("rakingNumber", &Costs::AlfalfaRakingNum);
  sets("baling", &Costs::AlfalfaBaling);
  sets("balesPerAcre", &Costs::AlfalfaBalingNum);
  sets("forageFlatRate", &Costs::AlfalfaPerTon);
  sets("lifeOfStand", &Costs::AlfalfaStand);
  sets("miscellaneous", &Costs::MiscCost);
  sets("otherReturns", &Costs::Returns);
}

TEST(FarmFileKeys, AnEmptyNumberIsNull) {
  Document document;
  DocumentCrop crop;
  crop.costs.HarvestFlatRate = 0;
  document.inputs.crops.add(crop);
  const Document read = readWith(R"("crops": [{"costs": {"harvestFlatRate": 0, "harvestHauling": null}}])");
  EXPECT_EQ(read, document);
  EXPECT_FALSE(read.inputs.crops[0].costs.HarvestFlatRate.isEmpty());
  EXPECT_TRUE(read.inputs.crops[0].costs.HarvestHauling.isEmpty());
}

TEST(FarmFileKeys, OfTheOptions) {
  expectSets(R"("options": {"keep": "250"})", [](Document& d) { d.inputs.options.keep = "250"; });
  expectSets(R"("options": {"factor": 1})", [](Document& d) { d.inputs.options.factor = 1; });
  expectSets(R"("options": {"factor": 100})", [](Document& d) { d.inputs.options.factor = 100; });
  expectSets(R"("options": {"factor": 2e1})", [](Document& d) { d.inputs.options.factor = 20; });
  expectSets(R"("options": {"mixes": true})", [](Document& d) { d.inputs.options.mixes = true; });
  EXPECT_EQ(readWith(R"("options": {"factor": 10, "mixes": false})"), Document());
}

TEST(FarmFileKeys, OfAWish) {
  const auto sets = [](const std::string& members, const Wish& wish) {
    expectSets(R"("wishes": [{"kind": )" + members + "}]", [&](Document& d) {
      d.inputs.wishes = {{wish, {}}};
    });
  };
  sets(R"("acresAtLeast", "crop": "Corn", "amount": 40)", {Wish::Kind::acresAtLeast, "Corn", 0, 40});
  sets(R"("acresAtMost", "crop": "Corn", "amount": 40.5)", {Wish::Kind::acresAtMost, "Corn", 0, 40.5});
  sets(R"("fieldIs", "crop": "Corn", "field": 1)", {Wish::Kind::fieldIs, "Corn", 1, 0});
  sets(R"("fieldIsNot", "crop": "Corn", "field": 4)", {Wish::Kind::fieldIsNot, "Corn", 4, 0});
  sets(R"("depthAtLeast", "field": 2, "amount": 3)", {Wish::Kind::depthAtLeast, "", 2, 3});
  sets(R"("depthAtMost", "field": 2, "amount": 0)", {Wish::Kind::depthAtMost, "", 2, 0});
  sets(R"("cropsAtLeast", "amount": 2)", {Wish::Kind::cropsAtLeast, "", 0, 2});
  sets(R"("cropsAtMost", "amount": 3)", {Wish::Kind::cropsAtMost, "", 0, 3});
  sets(R"("fieldIs", "crop": "Corn")", {Wish::Kind::fieldIs, "Corn", 1, 0});
}

TEST(FarmFileKeys, ThatAKindOfWishDoesNotUseAreUnknown) {
  expectSets(R"("wishes": [{"kind": "cropsAtMost", "crop": 7, "amount": 3}])", [](Document& d) {
    d.inputs.wishes = {{{Wish::Kind::cropsAtMost, "", 0, 3}, {{"crop", "7"}}}};
  });
}

TEST(FarmFileKeys, OfASeason) {
  expectSets(R"("seasons": [{"name": "dry", "rain": 13, "weight": 2.5}])", [](Document& d) {
    d.seasons = {{"dry", 13, 2.5, {}}};
  });
  expectSets(R"("seasons": [{}])", [](Document& d) { d.seasons = {{"", 0, 1, {}}}; });
}

TEST(FarmFileKeys, OfATrendProcess) {
  const auto sets = [](const std::string& members, const std::function<void(DocumentProcess&)>& set) {
    expectSets(R"("trend": [{)" + members + "}]", [&](Document& d) { set(d.trend.emplace_back()); });
  };
  sets(R"("crop": "Corn")", [](DocumentProcess& process) { process.crop = "Corn"; });
  sets(R"("minimum": "3")", [](DocumentProcess& process) { process.minimum = "3"; });
  sets(R"("maximum": "3")", [](DocumentProcess& process) { process.maximum = "3"; });
  sets(R"("steps": "3")", [](DocumentProcess& process) { process.steps = "3"; });
  sets(R"("list": "3;4")", [](DocumentProcess& process) { process.list = "3;4"; });
  sets(R"("file": "a.csv")", [](DocumentProcess& process) { process.file = "a.csv"; });
  sets(R"("shown": true)", [](DocumentProcess& process) { process.shown = true; });
  const std::vector<std::string> variables{"price",      "productionCosts", "maxYield",
                                           "efficiency", "irrigationCosts", "rain"};
  for (std::size_t i = 0; i < variables.size(); ++i)
    sets(R"("variable": ")" + variables[i] + '"', [&](DocumentProcess& process) { process.variable = i; });
  const std::vector<std::string> kinds{"range", "file", "list"};
  for (std::size_t i = 0; i < kinds.size(); ++i)
    sets(R"("values": ")" + kinds[i] + '"', [&](DocumentProcess& process) { process.values = i; });
}

TEST(FarmFileKeys, OfASavedOption) {
  const auto sets = [](const std::string& members, const std::function<void(SavedOption&)>& set) {
    expectSets(R"("saved": [{)" + members + "}]", [&](Document& d) {
      SavedOption saved;
      set(saved);
      EXPECT_NE(saved, SavedOption()) << members;
      d.saved.add(saved);
    });
  };
  sets(R"("name": "Wet")", [](SavedOption& saved) { saved.name = "Wet"; });
  sets(R"("option": {"costs": 5.5})", [](SavedOption& saved) { saved.costs = 5.5; });
  sets(R"("option": {"trend": [{"variable": "Rain", "value": 17, "before": "$", "after": "in."}]})",
       [](SavedOption& saved) {
         saved.trend = {{"Rain", 17, "$", "in.", {}}};
       });
  sets(
      R"("inputs": {"farm": {"txtArea": "3"}, "options": {"factor": 3}, "wishes": [{"kind": "cropsAtMost"}]})",
      [](SavedOption& saved) {
        saved.inputs.farm.txtArea = "3";
        saved.inputs.options.factor = 3;
        saved.inputs.wishes = {{{Wish::Kind::cropsAtMost, "", 0, 0}, {}}};
      });
  sets(R"("inputs": {"plant": {"gpm": 7}, "crops": [{"name": "Corn"}]})", [](SavedOption& saved) {
    saved.inputs.plant.plant.GPM = 7;
    DocumentCrop corn;
    corn.name = "Corn";
    saved.inputs.crops.add(corn);
  });
}

TEST(FarmFileKeys, OfAFieldOfASavedOption) {
  const auto sets = [](const std::string& members, const std::function<void(SavedOptionField&)>& set) {
    expectSets(R"("saved": [{"option": {"fields": [{)" + members + "}]}}]", [&](Document& d) {
      SavedOption saved;
      set(saved.fields.emplace_back());
      EXPECT_NE(saved.fields[0], SavedOptionField()) << members;
      d.saved.add(saved);
    });
  };
  sets(R"("crop": "Corn")", [](SavedOptionField& field) { field.crop = "Corn"; });
  sets(R"("acres": 2.5)", [](SavedOptionField& field) { field.acres = 2.5; });
  sets(R"("netDepth": 2.5)", [](SavedOptionField& field) { field.depth = 2.5; });
  sets(R"("rain": 2.5)", [](SavedOptionField& field) { field.rain = 2.5; });
  sets(R"("price": 2.5)", [](SavedOptionField& field) { field.price = 2.5; });
  sets(R"("maxYield": 2.5)", [](SavedOptionField& field) { field.maxYield = 2.5; });
  sets(R"("normalFactor": 2.5)", [](SavedOptionField& field) { field.normalFactor = 2.5; });
  sets(R"("yield": 2.5)", [](SavedOptionField& field) { field.yield = 2.5; });
  sets(R"("units": "bu.")", [](SavedOptionField& field) { field.units = "bu."; });
  sets(R"("soil": "Sand")", [](SavedOptionField& field) { field.soil = "Sand"; });
  sets(R"("costs": -2.5)", [](SavedOptionField& field) { field.costs = -2.5; });
  sets(R"("return": -2.5)", [](SavedOptionField& field) { field.returns = -2.5; });
  sets(R"("trendedProductionCosts": 0)", [](SavedOptionField& field) { field.trendedCosts = 0; });
  sets(R"("trendedIrrigationCosts": 0)", [](SavedOptionField& field) { field.trendedIrrigation = 0; });
  sets(R"("ownCosts": {})", [](SavedOptionField& field) { field.ownCosts.emplace(); });
  sets(R"("ownPlant": {})", [](SavedOptionField& field) { field.ownPlant.emplace(); });
}

TEST(FarmFileKeys, OfACustomCrop) {
  expectSets(R"("customCrops": [{"name": "Beets", "text": "CROP=Beets\r\n"}])", [](Document& d) {
    d.customCrops.add({"Beets", "CROP=Beets\r\n", {}});
  });
}

template <class Owner>
void expectSameFields(std::span<const DocumentKey<Owner>> keys, std::span<const SavedField<Owner>> fields) {
  EXPECT_EQ(keys.size(), fields.size());
  std::set<std::string_view> names;
  for (const DocumentKey<Owner>& key : keys) {
    EXPECT_TRUE(names.insert(key.key).second) << key.key;
    EXPECT_EQ(std::count(fields.begin(), fields.end(), key.field), 1) << key.key;
  }
}

TEST(FarmFileKeys, AreThereForEachSavedField) {
  expectSameFields(plantKeys(), plantFields());
  expectSameFields(costKeys(), costFields());
}

// Unknown keys. Every object of a full document gets more of them.

void addUnknownToAll(nlohmann::ordered_json& value, bool first, int& objects) {
  if (value.is_object()) {
    nlohmann::ordered_json changed = nlohmann::ordered_json::object();
    const auto add = [&] {
      changed["later"] = {{"b", ++objects}, {"a", nullptr}};
      changed["also later"] = "x";
    };
    if (first) add();
    for (auto& [key, inside] : value.items()) {
      const bool kept = !key.starts_with("x-") && key != "ownCosts" && key != "ownPlant";
      if (kept) addUnknownToAll(inside, first, objects);
      changed[key] = inside;
    }
    if (!first) add();
    value = changed;
  } else if (value.is_array()) {
    for (auto& inside : value)
      addUnknownToAll(inside, first, objects);
  }
}

TEST(FarmFileKeys, ThatAreUnknownAreKeptInTheirOrderAtTheEndOfTheirObject) {
  const std::string text = writeFarm(testing::documentWithEverything());
  auto before = nlohmann::ordered_json::parse(text);
  auto after = before;
  int objects = 0;
  addUnknownToAll(before, true, objects);
  EXPECT_GT(objects, 40);
  objects = 0;
  addUnknownToAll(after, false, objects);

  // Those that were there before come behind the new ones at the beginning, and before the new ones at the
  // end.
  const auto written = [](const nlohmann::ordered_json& json) {
    return nlohmann::ordered_json::parse(writeFarm(readFarm(json.dump())));
  };
  EXPECT_EQ(written(after).dump(2), after.dump(2));
  EXPECT_EQ(nlohmann::json::parse(written(before).dump()), nlohmann::json::parse(before.dump()));
  const auto farm = written(before)["farm"];
  std::vector<std::string> keys;
  for (const auto& [key, value] : farm.items())
    keys.push_back(key);
  EXPECT_EQ((std::vector<std::string>(keys.end() - 3, keys.end())),
            (std::vector<std::string>{"later", "also later", "x-farm"}));
}

TEST(FarmFileKeys, ThatAreUnknownKeepTheSpellingOfTheirValues) {
  const std::string value = R"({"z":1.10,"a":"\u00e4\/","n":12345678901234567890123,"e":-1E+05,"z":[[],{}]})";
  const Document document = readWith("\"x\": " + value);
  EXPECT_EQ(document.unknown, (UnknownKeys{{"x", value}}));
  EXPECT_EQ(readFarm(writeFarm(document)), document);
}

}  // namespace
}  // namespace verdalis
