#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "main/ComparePane.h"
#include "screens/InputCostsTable.h"
#include "tests/main/RunningProgram.h"
#include "tests/results/Options.h"
#include "tests/support/SavedOptions.h"

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Strings = std::vector<std::string>;

class Compare : public ::testing::Test {
 protected:
  Compare() {
    window.open();
    pane.setVisible(true);
    pane.onShowPane.connect([this] { ++shows; });
    pane.onBack.connect([this] { ++backs; });
    pane.onBoxesChanged.connect([this] { ++boxChanges; });
  }

  void open(std::vector<SavedOption> options) {
    saved = {};
    for (SavedOption& option : options)
      saved.add(std::move(option));
    pane.open();
  }

  [[nodiscard]] Strings rowAt(int row) const {
    Strings cells;
    for (int column = 0; column < pane.fgCompare.columns(); ++column)
      cells.push_back(pane.fgCompare.cell(row, column));
    return cells;
  }

  /// The row with a head, without its head; the first one at or after `from`.
  [[nodiscard]] Strings row(const std::string& head, int from = 0) const {
    for (int i = from; i < pane.fgCompare.rows(); ++i) {
      if (pane.fgCompare.cell(i, 0) != head) continue;
      Strings cells = rowAt(i);
      cells.erase(cells.begin());
      return cells;
    }
    return {"no such row"};
  }

  [[nodiscard]] int sectionAt(const std::string& head) const {
    for (int i = 0; i < pane.fgCompare.rows(); ++i) {
      if (pane.fgCompare.cell(i, 0) == head && pane.isSection(i)) return i;
    }
    ADD_FAILURE() << head;
    return 0;
  }

  /// The rows of a section, each as its cells.
  [[nodiscard]] std::vector<Strings> section(const std::string& head) const {
    std::vector<Strings> rows;
    for (int i = sectionAt(head) + 1; i < pane.fgCompare.rows() && !pane.isSection(i); ++i)
      rows.push_back(rowAt(i));
    return rows;
  }

  FakeServices fake;
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  ComparePane::SavedOptions saved;
  ComparePane pane{window, fake.services, [this]() -> const ComparePane::SavedOptions& { return saved; }};
  int shows = 0;
  int backs = 0;
  int boxChanges = 0;
};

TEST_F(Compare, ControlsHaveTheirNamesAndCaptions) {
  EXPECT_EQ(pane.caption(), "Compare Saved Options");
  EXPECT_EQ(desk.find("pneCompare"), &pane);
  EXPECT_EQ(desk.find("lblCompare"), &pane.lblCompare);
  EXPECT_EQ(desk.find("fgCompare"), &pane.fgCompare);
  EXPECT_EQ(desk.find("cmdCopy"), &pane.cmdCopy);
  EXPECT_EQ(desk.find("cmdBack"), &pane.cmdBack);
  EXPECT_EQ(pane.cmdCopy.caption(), "Copy");
  EXPECT_EQ(pane.cmdBack.caption(), "Back");
  open({savedEarning(1), savedEarning(2)});
  EXPECT_EQ(desk.find("chkCompare(1)"), pane.chkCompare[1].get());
  EXPECT_EQ(shows, 1);
}

TEST_F(Compare, BackRaisesItsEvent) {
  pane.cmdBack.click();
  EXPECT_EQ(backs, 1);
}

TEST_F(Compare, ColumnsAreHeadedByTheNames) {
  open({savedEarning(1), savedEarning(2, savedInputs(), "Less water"), savedEarning(3)});
  EXPECT_THAT(rowAt(0), ElementsAre("", "Saved Option #1", "Less water", "Saved Option #3"));
  EXPECT_EQ(pane.chkCompare[1]->caption(), "Less water");
  pane.chkCompare[0]->click();
  EXPECT_THAT(rowAt(0), ElementsAre("", "Less water", "Saved Option #3")) << "the number stays";
}

TEST_F(Compare, TheNetReturnOfTheFarmComesFirst) {
  open({savedEarning(45000), savedEarning(46234.4), savedEarning(-500)});
  EXPECT_THAT(rowAt(1), ElementsAre("Net return of the farm", "$45,000", "$46,234", "$-500"));
  EXPECT_THAT(rowAt(2), ElementsAre("Compared with the best", "$1,234 less", "best", "$46,734 less"));
  EXPECT_THAT(rowAt(3), ElementsAre("Net return per acre", "$450 /acre", "$462 /acre", "$-5 /acre"));
  EXPECT_TRUE(pane.isSection(4));
  for (int line = 0; line <= 3; ++line) {
    EXPECT_FALSE(pane.fgCompare.color(line, 1)) << line;
    EXPECT_TRUE(pane.fgCompare.color(line, 2)) << line;
  }
  EXPECT_FALSE(pane.fgCompare.color(4, 2));
}

TEST_F(Compare, EquallyGoodOptionsAreAllMarked) {
  open({savedEarning(1000), savedEarning(900), savedEarning(1000 - 1e-9), savedEarning(999.5)});
  EXPECT_THAT(row("Compared with the best"), ElementsAre("best", "$100 less", "best", "$1 less"));
  EXPECT_TRUE(pane.fgCompare.color(1, 1));
  EXPECT_FALSE(pane.fgCompare.color(1, 2));
  EXPECT_TRUE(pane.fgCompare.color(1, 3));
}

TEST_F(Compare, TheReturnsOfAllFieldsCount) {
  open({savedOption({savedField("Corn", 60, 9, 50000, 20000), savedField("Fallow", 40, 0, 500, 900)})});
  EXPECT_THAT(row("Net return of the farm"), ElementsAre("$29,600"));
  EXPECT_THAT(row("Net return per acre"), ElementsAre("$296 /acre"));
}

TEST_F(Compare, OneOptionStandsAlone) {
  open({savedEarning(45000)});
  EXPECT_THAT(row("Compared with the best"), ElementsAre("no such row"));
  EXPECT_FALSE(pane.fgCompare.color(1, 1)) << "there is no best of one";
  EXPECT_THAT(row("Inputs that differ"), ElementsAre("Nothing to compare: only one option is shown."));
  EXPECT_THAT(section("Inputs that differ"), IsEmpty());
  EXPECT_EQ(pane.lblCompare.caption(), "Tick another option to compare it with this one.");
}

TEST_F(Compare, EqualInputsAreToldInOneLine) {
  open({savedEarning(45000), savedEarning(46000)});
  EXPECT_THAT(row("Inputs that differ"), ElementsAre("All inputs are the same.", ""));
  EXPECT_THAT(section("Inputs that differ"), IsEmpty());
}

TEST_F(Compare, OnlyInputsThatDifferAreShown) {
  FarmInputs other = savedInputs();
  other.farm.txtMax = "10";
  other.farm.split.reset();
  other.farm.noSplit = true;
  other.options.factor = 5;
  other.options.mixes = true;
  open({savedEarning(1), savedEarning(2, other)});
  EXPECT_THAT(section("Inputs that differ"),
              ElementsAre(Strings{"Annual Gross Irrigation Amount (inches)", "12", "10"},
                          Strings{"Land Split", "50 - 50", "-"},
                          Strings{"Evaluate no land split scenario", "no", "yes"},
                          Strings{"Irrigation Iteration Factor", "10", "5"},
                          Strings{"Only the best option of each mix of crops", "no", "yes"}));
}

TEST_F(Compare, EveryInputOfTheFarmIsCompared) {
  FarmInputs other = savedInputs();
  other.farm.txtArea = "120";
  other.farm.txtAnnRain = "17";
  other.farm.txtEff = "85";
  other.farm.txtSoil = "Fine Sand";
  other.farm.split = 3;
  other.options.keep = "50";
  open({savedEarning(1), savedEarning(2, other)});
  EXPECT_THAT(
      section("Inputs that differ"),
      ElementsAre(Strings{"Total Acres", "100", "120"}, Strings{"Annual Rainfall (inches)", "16", "17"},
                  Strings{"Irrigation Efficiency %", "80", "85"}, Strings{"Soil", "Silt Loam", "Fine Sand"},
                  Strings{"Land Split", "50 - 50", "50 - 25 - 25"}, Strings{"Options to keep", "100", "50"}));
}

TEST_F(Compare, AnotherWayToWriteANumberIsNoDifference) {
  FarmInputs other = savedInputs();
  other.farm.txtMax = "12.0";
  other.farm.txtEff = " 80";
  open({savedEarning(1), savedEarning(2, other)});
  EXPECT_THAT(section("Inputs that differ"), IsEmpty());
  other.farm.txtArea = "1,00";  // is read as 1
  open({savedEarning(1), savedEarning(2, other)});
  EXPECT_THAT(section("Inputs that differ"), ElementsAre(Strings{"Total Acres", "100", "1,00"}));
}

TEST_F(Compare, WishesAreShownAsTheyAreWritten) {
  const DocumentWish acres{{Wish::Kind::acresAtLeast, "Corn", 0, 40}, {}};
  const DocumentWish crops{{Wish::Kind::cropsAtLeast, "", 0, 2}, {}};
  FarmInputs both = savedInputs();
  both.wishes = {acres, crops};
  FarmInputs turned = savedInputs();
  turned.wishes = {crops, acres};
  open({savedEarning(1, both), savedEarning(2, turned)});
  EXPECT_THAT(section("Inputs that differ"), IsEmpty()) << "their order has no effect";
  open({savedEarning(1, both), savedEarning(2)});
  EXPECT_THAT(section("Inputs that differ"),
              ElementsAre(Strings{"Wishes", "Corn at least 40 acres; at least 2 crops", "-"}));
}

TEST_F(Compare, FieldsOfThePlantHaveTheLabelsOfItsPane) {
  FarmInputs other = savedInputs();
  other.plant.plant.GPM = 600;
  other.plant.plant.FuelType = "Diesel";
  other.plant.plant.NPC = 12.5;
  other.plant.plant.LaborPerHour = 12;
  other.plant.plant.active = false;
  open({savedEarning(1), savedEarning(2, other)});
  EXPECT_THAT(
      section("Inputs that differ"),
      ElementsAre(Strings{"Irrigation Costs: Applied", "yes", "no"},
                  Strings{"Irrigation Costs: GPM - Discharge rate in gallons per minute", "750", "600"},
                  Strings{"Irrigation Costs: Fuel Type", "Natural Gas", "Diesel"},
                  Strings{"Irrigation Costs: Labor ($ / hour)", "10", "12"}));
}

TEST_F(Compare, AnUnusualPerformanceOfAFuelIsTold) {
  FarmInputs other = savedInputs();
  other.plant.plant.NPC = 50;
  open({savedEarning(1), savedEarning(2, other)});
  EXPECT_THAT(section("Inputs that differ"), ElementsAre(Strings{"Irrigation Costs: Fuel Type", "Natural Gas",
                                                                 "Natural Gas (performance 50)"}));
}

TEST_F(Compare, PricesYieldsAndCostsOfACropAreCompared) {
  FarmInputs other = savedInputs();
  DocumentCrop corn = savedCrop("Corn", "6.50");
  corn.maxYield = "200";
  corn.costs.NOptimal = true;
  corn.costs.NitrogenCost = 0.5;
  corn.costs.HarvestFlatRate = 0.7;
  corn.costs.HarvestExceedRate = 0.25;
  other.crops = {};
  other.crops.add(corn);
  other.crops.add(savedCrop("Wheat", "8"));
  open({savedEarning(1), savedEarning(2, other)});
  EXPECT_THAT(section("Inputs that differ"),
              ElementsAre(Strings{"Corn: Maximum Yield / Acre", "220", "200"},
                          Strings{"Corn: Nitrogen, Rate (lb / ac)", "180", "optimal"},
                          Strings{"Corn: Nitrogen, Cost ($ / lb)", "0.44", "0.5"},
                          Strings{"Corn: Harvesting Costs, Extra charge for yields exceeding ($ / unit)", "0",
                                  "0.25"},
                          Strings{"Corn: Harvesting Costs, Flat rate ($ / unit)", "0", "0.7"},
                          Strings{"Wheat: Price per unit", "7", "8"}));
}

TEST_F(Compare, EveryProductionCostIsComparedUnderAHeadOfItsOwn) {
  std::set<std::string> heads;
  for (const InputCostsField& field : InputCostsPane::fields()) {
    FarmInputs other = savedInputs();
    DocumentCrop corn = savedCrop("Corn", "6.5");
    field.figure.set(corn.costs, 7.25);
    other.crops = {};
    other.crops.add(corn);
    other.crops.add(savedCrop("Wheat", "7"));
    open({savedEarning(1), savedEarning(2, other)});
    const std::vector<Strings> rows = section("Inputs that differ");
    ASSERT_EQ(rows.size(), 1U) << field.row.control;
    EXPECT_EQ(rows[0][2], "7.25") << field.row.control;
    EXPECT_TRUE(heads.insert(rows[0][0]).second) << rows[0][0];
  }
}

TEST_F(Compare, ANumberInForceCountsAndNotTheText) {
  FarmInputs other = savedInputs();
  DocumentCrop corn = savedCrop("Corn", "abc");
  corn.priceInForce = 6.5;
  other.crops = {};
  other.crops.add(corn);
  other.crops.add(savedCrop("Wheat", "7"));
  open({savedEarning(1), savedEarning(2, other)});
  EXPECT_THAT(section("Inputs that differ"), IsEmpty());
}

TEST_F(Compare, AnUnsetLifeOfStandIsOneYear) {
  FarmInputs other = savedInputs();
  DocumentCrop corn = savedCrop("Corn", "6.5");
  corn.costs.AlfalfaStand = 1;
  other.crops = {};
  other.crops.add(corn);
  other.crops.add(savedCrop("Wheat", "7"));
  open({savedEarning(1), savedEarning(2, other)});
  EXPECT_THAT(section("Inputs that differ"), IsEmpty()) << "as pricing stores it";
}

TEST_F(Compare, ACropThatAnOptionLacksIsADash) {
  FarmInputs without = savedInputs();
  without.crops = {};
  without.crops.add(savedCrop("Corn", "6.5"));
  open({savedEarning(1), savedEarning(2, without)});
  EXPECT_THAT(section("Inputs that differ"), ElementsAre(Strings{"Wheat: Chosen", "yes", "-"}));
  FarmInputs dear = savedInputs();
  dear.crops = {};
  dear.crops.add(savedCrop("Corn", "6.5"));
  dear.crops.add(savedCrop("Wheat", "9"));
  open({savedEarning(1), savedEarning(2, without), savedEarning(3, dear)});
  EXPECT_THAT(section("Inputs that differ"), ElementsAre(Strings{"Wheat: Chosen", "yes", "-", "yes"},
                                                         Strings{"Wheat: Price per unit", "7", "-", "9"}));
}

TEST_F(Compare, TrendValuesAreShownWithTheirUnits) {
  SavedOption low = savedEarning(1);
  low.trend.push_back({"Crop Price - Corn", 5.5, "$", "/ bu.", {}});
  low.trend.push_back({"Annual Rainfall", 17, "", "inches", {}});
  SavedOption high = low;
  high.trend[0].value = 6.125;
  open({low, high});
  EXPECT_THAT(section("Inputs that differ"),
              ElementsAre(Strings{"Trend: Crop Price - Corn", "$5.5 / bu.", "$6.125 / bu."}));
  open({low, savedEarning(2)});
  EXPECT_THAT(section("Inputs that differ"),
              ElementsAre(Strings{"Trend: Crop Price - Corn", "$5.5 / bu.", "-"},
                          Strings{"Trend: Annual Rainfall", "17 inches", "-"}));
}

TEST_F(Compare, EachFieldHasItsFigures) {
  FarmInputs other = savedInputs();
  other.farm.txtEff = "50";
  open({savedOption({savedField("Corn", 60, 8, 50000, 20000), savedField("Wheat", 40, 4, 12000, 8000)}),
        savedOption({savedField("Soybeans", 100, 8, 30000, 20000)}, other)});
  EXPECT_THAT(section("Field 1"),
              ElementsAre(Strings{"Crop", "Corn", "Soybeans"}, Strings{"Acres", "60", "100"},
                          Strings{"Gross Irrigation", "10.0''", "16.0''"},
                          Strings{"Net Irrigation", "8.0''", "8.0''"},
                          Strings{"Yield", "184.4 bu./ac", "184.4 bu./ac"},
                          Strings{"Price", "$6.50/bu.", "$6.50/bu."},
                          Strings{"Net Return", "$500 /acre", "$100 /acre"}));
  EXPECT_THAT(section("Field 2"),
              ElementsAre(Strings{"Crop", "Wheat", ""}, Strings{"Acres", "40", ""},
                          Strings{"Gross Irrigation", "5.0''", ""}, Strings{"Net Irrigation", "4.0''", ""},
                          Strings{"Yield", "184.4 bu./ac", ""}, Strings{"Price", "$6.50/bu.", ""},
                          Strings{"Net Return", "$100 /acre", ""}));
}

TEST_F(Compare, FallowHasNeitherYieldNorPrice) {
  SavedOptionField fallow;
  fallow.crop = "Fallow";
  fallow.acres = 50;
  open({savedOption({fallow})});
  EXPECT_THAT(row("Yield"), ElementsAre("-"));
  EXPECT_THAT(row("Price"), ElementsAre("-"));
  EXPECT_THAT(row("Gross Irrigation"), ElementsAre("0.0''"));
  EXPECT_THAT(row("Net Return"), ElementsAre("$0 /acre"));
}

TEST_F(Compare, AFigureThatCannotBeWorkedOutIsADash) {
  FarmInputs noEfficiency = savedInputs();
  noEfficiency.farm.txtEff = "0";
  SavedOption nothing = savedOption({savedField("Corn", 0, 8, 50000, 20000)}, noEfficiency);
  open({savedEarning(100), nothing});
  EXPECT_THAT(row("Gross Irrigation"), ElementsAre("10.0''", "-"));
  EXPECT_THAT(row("Net Return"), ElementsAre("$1 /acre", "-"));
  EXPECT_THAT(row("Net return per acre"), ElementsAre("$1 /acre", "-"));
}

TEST_F(Compare, FiguresThatWereNotWorkedOutAreWorkedOutNow) {
  const ScopedEfficiency inForce(0.5);
  const Crop corn = cornCrop();
  FieldCollection option;
  option.Add(stockField(corn, 100, 8));
  FieldCollection expected = option.Copy();
  const double net = expected.getReturn() - expected.getCosts(0.8);

  SavedOption notWorkedOut = savedOption({savedField("Corn", 100, 8, 0, 0)});
  pane.optionToPrice = [&](const SavedOption& wanted) -> FieldCollection& {
    EXPECT_EQ(wanted, notWorkedOut);
    return option;
  };
  open({notWorkedOut});
  EXPECT_THAT(row("Net return of the farm"), ElementsAre("$" + formatNumber(net, "###,##0")));
  EXPECT_THAT(row("Net Return"), ElementsAre("$" + formatNumber(net / 100, "###,##0") + " /acre"));
  EXPECT_EQ(option.TotalCost, 0) << "the option itself stays as it is";
  EXPECT_EQ(option.mCol[0]->TotalCost, 0);
  EXPECT_EQ(option.mCol[0]->TotalReturn, 0);
}

TEST_F(Compare, AllOptionsAreTickedAtFirst) {
  open({savedEarning(1), savedEarning(2)});
  EXPECT_TRUE(pane.chkCompare[0]->checked());
  EXPECT_TRUE(pane.chkCompare[1]->checked());
}

TEST_F(Compare, OfManyOptionsTheLatestAreTicked) {
  open(std::vector<SavedOption>(8, savedEarning(1)));
  ASSERT_EQ(pane.chkCompare.size(), 8U);
  for (std::size_t i = 0; i < 8; ++i)
    EXPECT_EQ(pane.chkCompare[i]->checked(), i >= 2) << i;
  EXPECT_EQ(pane.fgCompare.columns(), 7);
  pane.chkCompare[0]->click();
  EXPECT_EQ(pane.fgCompare.columns(), 8);
  EXPECT_EQ(pane.fgCompare.cell(0, 1), "Saved Option #1");
}

TEST_F(Compare, ATickRedrawsAtOnce) {
  open({savedEarning(1000), savedEarning(2000)});
  EXPECT_THAT(row("Compared with the best"), ElementsAre("$1,000 less", "best"));
  pane.chkCompare[1]->click();
  EXPECT_THAT(row("Net return of the farm"), ElementsAre("$1,000"));
  pane.chkCompare[1]->click();
  EXPECT_THAT(row("Net return of the farm"), ElementsAre("$1,000", "$2,000"));
  EXPECT_EQ(shows, 1);
}

TEST_F(Compare, WithoutATickALineSaysWhatToDo) {
  open({savedEarning(1000)});
  pane.chkCompare[0]->click();
  EXPECT_EQ(pane.lblCompare.caption(), "No option is ticked.  Tick the options to compare.");
  EXPECT_FALSE(pane.fgCompare.visible());
  EXPECT_FALSE(pane.cmdCopy.enabled());
  pane.chkCompare[0]->click();
  EXPECT_TRUE(pane.fgCompare.visible());
  EXPECT_TRUE(pane.cmdCopy.enabled());
}

TEST_F(Compare, WithoutSavedOptionsALineSaysWhatToDo) {
  open({});
  EXPECT_EQ(pane.lblCompare.caption(),
            "No saved results.  Run a scenario and click 'Compare this option' to add options to compare.");
  EXPECT_FALSE(pane.fgCompare.visible());
  EXPECT_FALSE(pane.cmdCopy.enabled());
  EXPECT_EQ(shows, 1);
}

TEST_F(Compare, OpeningAgainShowsTheOptionsOfNow) {
  open({savedEarning(1), savedEarning(2), savedEarning(3)});
  pane.chkCompare[2]->click();
  open({savedEarning(5), savedEarning(6)});
  EXPECT_EQ(pane.chkCompare.size(), 2U);
  EXPECT_EQ(boxChanges, 2);
  EXPECT_THAT(row("Net return of the farm"), ElementsAre("$5", "$6"));
  EXPECT_EQ(desk.find("chkCompare(2)"), nullptr);
}

TEST_F(Compare, RefreshKeepsTheTicks) {
  open({savedEarning(1), savedEarning(2), savedEarning(3)});
  pane.chkCompare[1]->click();
  ComparePane::SavedOptions fewer;
  fewer.add(saved.item(1));
  fewer.add(saved.item(2));
  fewer.add(savedEarning(4));
  saved = fewer;
  pane.refresh();
  EXPECT_FALSE(pane.chkCompare[0]->checked());
  EXPECT_THAT(row("Net return of the farm"), ElementsAre("$3", "$4"));
  EXPECT_EQ(shows, 1);
}

TEST_F(Compare, CopyPutsTheTableOnTheClipboard) {
  open({savedEarning(100), savedEarning(200, savedInputs(), "two\twords\n")});
  pane.cmdCopy.click();
  const std::string& text = fake.clipboard.contents;
  EXPECT_EQ(text.substr(0, text.find("Inputs")),
            "\tSaved Option #1\ttwo words \n"
            "Net return of the farm\t$100\t$200\n"
            "Compared with the best\t$100 less\tbest\n"
            "Net return per acre\t$1 /acre\t$2 /acre\n");
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), pane.fgCompare.rows());
}

class CompareInTheWindow : public ::testing::Test {
 protected:
  void save() {
    running.typeFarm();
    running.press("Command1");
    running.press("theResults.cmdSaveResult");
    saved.add(savedEarning(1000));
    main.savedForCompare = [this]() -> const SharedList<SavedOption>& { return saved; };
  }

  [[nodiscard]] Strings shown() const {
    const Strings all = running.history();
    return {all.begin() + 2, all.end()};
  }

  RunningProgram running;
  frmMain& main = running.start();
  SharedList<SavedOption> saved;
};

TEST_F(CompareInTheWindow, TheButtonIsThereWhenThereAreSavedOptions) {
  running.choose("mnuSummary");
  EXPECT_FALSE(main.pneSummary.cmdCompare.visible());
  running.press("cmdCancel(2)");
  save();
  running.choose("mnuSummary");
  EXPECT_TRUE(main.pneSummary.cmdCompare.isReachable());
  EXPECT_EQ(main.pneSummary.cmdCompare.caption(), "Compare");
  main.pneSummary.fgsummary.clickCell(1, 1);  // removes the option
  EXPECT_FALSE(main.pneSummary.cmdCompare.visible());
}

TEST_F(CompareInTheWindow, BackLeadsToTheSummaryAndFromThereToThePaneBefore) {
  save();
  running.choose("mnuSummary");
  running.press("cmdCompare");
  EXPECT_EQ(shown(), (Strings{"pneResults", "pneSummary", "pneCompare"}));
  EXPECT_TRUE(main.pneCompare.fgCompare.isShown());
  EXPECT_EQ(main.pneCompare.fgCompare.columns(), 2);
  running.press("cmdBack");
  EXPECT_EQ(shown(), (Strings{"pneResults", "pneSummary"}));
  EXPECT_TRUE(main.pneSummary.fgsummary.isShown());
  EXPECT_FALSE(main.pneCompare.isShown());
  running.press("cmdCancel(2)");
  EXPECT_EQ(shown(), (Strings{"pneResults", "pneSummary", "pneResults"}));
}

TEST_F(CompareInTheWindow, AMenuLeadsAwayAndBackDoesNotReturn) {
  save();
  running.choose("mnuSummary");
  running.press("cmdCompare");
  running.choose("mnuCustomCrop");
  EXPECT_EQ(shown(), (Strings{"pneResults", "pneSummary", "pneCustomCrop"}));
}

TEST_F(CompareInTheWindow, ASavedOptionIsShownWithTheInputsItWasFoundWith) {
  running.typeFarm();
  running.press("Command1");
  running.press("theResults.cmdSaveResult");
  running.press("theResults.Command1");
  running.control<TextBox>("txtMax").type("8");
  running.press("Command1");
  running.press("theResults.cmdSaveResult");
  running.choose("mnuSummary");
  running.press("cmdCompare");
  const Grid& table = main.pneCompare.fgCompare;
  ASSERT_EQ(table.columns(), 3);
  int row = 0;
  while (row < table.rows() && table.cell(row, 1) != "12")
    ++row;
  ASSERT_LT(row, table.rows());
  EXPECT_EQ(table.cell(row, 2), "8");
}

}  // namespace
}  // namespace verdalis::testing
