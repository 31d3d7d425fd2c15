#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "results/ReportWriter.h"
#include "results/ResultPrinter.h"
#include "tests/results/Operations.h"
#include "tests/results/Options.h"

// The results report, and the printing of both reports.

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using Operations = std::vector<std::string>;

class ResultPrinterTest : public ::testing::Test {
 protected:
  ScopedEfficiency efficiency{0.85};
  FakePrinter paper;
  ReportedFarm farm{"100", "85", "16", "12", "Corn, Wheat"};
  ClockTime time{2024, 5, 6, 7, 8, 9};
  ResultPrinter printer{paper, {[this] { return farm; }, [this] { return time; }}};

  /// The operations of the document that is printed when one copy is requested.
  Operations printed() {
    paper.documents.clear();
    paper.copies = {1};
    printer.printResults();
    EXPECT_THAT(paper.documents, SizeIs(1));
    EXPECT_TRUE(paper.documents.at(0)->ended);
    return operations(*paper.documents.at(0));
  }
};

const Operations head{
    "12b |Verdalis Planning Program|",
    "@7300 9 |Evaluation Results: 5/6/2024 7:08 AM|/",
    "9 ||/",
    "8 |These results are generated from the Verdalis Planning Program developed by Marlowe Institute.|/",
    "8 |The information is presented 'as is'.  The user is responsible for how the information is utilized "
    "in "
    "their own operation.|/",
    "8 |Marlowe Institute has technically reviewed the information but disclaims any responsibility or "
    "liability for interpretations or decisions based theron.|/",
    "@0 9b |Total Acres: |",
    "9 |100 acres|",
    "@5200 9b |Irrigation Efficiency: |",
    "9 |85%|",
    "9 ||/",
    "@0 9b |Annual Rainfall: |",
    "9 |16 inches|",
    "@5200 9b |Seasonal Irrigation Amount: |",
    "9 |12 inches|",
    "9 ||/",
    "@0 9b |Crops to Evaluate: |",
    "9 |Corn, Wheat|",
    "9 ||/",
};

const Operations note{"8i |*Net returns to land, management, and irrigation equipment|/"};

const std::string asterisks(168, '*');

TEST_F(ResultPrinterTest, WithoutOptionsOnlyHeadingAndNoteArePrinted) {
  EXPECT_THAT(printed(), ElementsAreArray(join(head, note)));
}

TEST_F(ResultPrinterTest, PrintsWishesAndMixesBelowTheCrops) {
  farm.wishes = {"Corn at least 40 acres", "field 1 is not Wheat"};
  farm.mixes = true;
  const Operations wished{"@0 9b |Wish: |",
                          "9 |Corn at least 40 acres|",
                          "9 ||/",
                          "@0 9b |Wish: |",
                          "9 |field 1 is not Wheat|",
                          "9 ||/",
                          "@0 9b |Options: |",
                          "9 |of each mix of acres and crops the best alone|",
                          "9 ||/"};
  EXPECT_THAT(printed(), ElementsAreArray(join(join(head, wished), note)));
}

TEST_F(ResultPrinterTest, PrintsAnOption) {
  printer.setCollection(
      {optionOf({plainField(75, 1500, 200, 8.5, "Corn"), plainField(25.5, 100.5, 300.25)})});
  const Operations option{
      "9 |" + asterisks + "|/",
      "12b |Option 1|/",
      "@0 9bu |Land Split|",
      "@1300 9bu |Crop|",
      "@2600 9bu |Yield|",
      "@3900 9bu |Gross Irrig|",
      "@5200 9bu |Total Operating Costs|",
      "@7300 9bu |Total Returns|",
      "@9000 9bu |*Net Return|",
      "9 ||/",
      "@0 9 |75 acres|",
      "@1300 9 |Corn|",
      "@2600 9 |1.0 bu./ac|",
      "@3900 9 |10.0''|",
      "@5200 9 |$200 /acre|",
      "@7300 9 |$1,500 /acre|",
      "@9000 9 |$1,300 /acre|",
      "9 ||/",
      "@0 9 |25.5 acres|",
      "@1300 9 |Millet|",
      "@2600 9 |1.0 bu./ac|",
      "@3900 9 |0.0''|",
      "@5200 9 |$300 /acre|",
      "@7300 9 |$101 /acre|",
      "@9000 9 |$-200 /acre|",
      "9 ||/",
      // 75 x 1300 - 25.5 x 199.75 = 92406.375
      "@9000 10b |*Net Return: $92,406|",
      "10b ||/",
      "9 |" + asterisks + "|/",
      "9 ||/",
      "9 ||/",
  };
  EXPECT_THAT(printed(), ElementsAreArray(join(join(head, option), note)));
}

/// The numbers of the options on a document.
std::vector<std::string> optionLines(const Operations& printed) {
  std::vector<std::string> lines;
  for (const std::string& operation : printed) {
    if (operation.find("|Option ") != std::string::npos) lines.push_back(operation);
  }
  return lines;
}

std::vector<Option> earning(std::initializer_list<double> profits) {
  std::vector<Option> options;
  for (const double profit : profits)
    options.push_back(optionEarning(profit));
  return options;
}

TEST_F(ResultPrinterTest, PrintsAtMostFiveOptions) {
  printer.setCollection(earning({70, 60, 50, 40, 30, 20, 10}));
  EXPECT_THAT(optionLines(printed()),
              ElementsAreArray({"12b |Option 1|/", "12b |Option 2|/", "12b |Option 3|/", "12b |Option 4|/",
                                "12b |Option 5|/"}));
}

TEST_F(ResultPrinterTest, EndsBeforeTheFirstOptionWithoutNetReturn) {
  printer.setCollection(earning({20, 10, 0, 5}));
  EXPECT_THAT(optionLines(printed()), SizeIs(2));
  printer.setCollection(earning({20, -1, 5}));
  EXPECT_THAT(optionLines(printed()), SizeIs(1));
  printer.setCollection(earning({0.001, 0}));
  EXPECT_THAT(optionLines(printed()), SizeIs(1));
}

TEST_F(ResultPrinterTest, WithoutAProfitableOptionOnlyHeadingAndNoteArePrinted) {
  printer.setCollection(earning({0, -10}));
  EXPECT_THAT(printed(), ElementsAreArray(join(head, note)));
  printer.setCollection({placeholder()});
  EXPECT_THAT(printed(), ElementsAreArray(join(head, note)));
}

TEST_F(ResultPrinterTest, TheHeadingShowsTheFarmAtTheTimeOfPrinting) {
  printer.setCollection(earning({10}));
  farm = {"", "90", "11", "0.5", ""};
  time = {2025, 12, 31, 23, 59, 59};
  const Operations operations = printed();
  EXPECT_EQ(operations[1], "@7300 9 |Evaluation Results: 12/31/2025 11:59 PM|/");
  EXPECT_EQ(operations[7], "9 | acres|");
  EXPECT_EQ(operations[9], "9 |90%|");
  EXPECT_EQ(operations[12], "9 |11 inches|");
  EXPECT_EQ(operations[14], "9 |0.5 inches|");
  EXPECT_EQ(operations[17], "9 ||");
}

TEST_F(ResultPrinterTest, GrossDepthsUseTheCurrentEfficiency) {
  printer.setCollection({optionOf({plainField(10, 100, 50, 8.5)})});
  EfficiencyFraction = 0.5;
  const Operations operations = printed();
  EXPECT_THAT(operations, ::testing::Contains("@3900 9 |17.0''|"));
}

TEST_F(ResultPrinterTest, TheOptionsAreCopies) {
  const Option option = optionOf({plainField(10, 100, 50)});
  printer.setCollection({option});
  const Operations before = printed();
  option->mCol[0]->acres = 99;
  option->mCol[0]->theCrop->price = 1;
  option->Add(plainField(1, 2, 1));
  EXPECT_EQ(printed(), before);
}

TEST_F(ResultPrinterTest, NewOptionsReplaceTheOldOnes) {
  printer.setCollection(earning({30, 20, 10}));
  printer.setCollection(earning({40}));
  EXPECT_THAT(optionLines(printed()), SizeIs(1));
  printer.setCollection({});
  EXPECT_THAT(optionLines(printed()), IsEmpty());
}

TEST_F(ResultPrinterTest, EachCopyIsASeparateDocument) {
  printer.setCollection(earning({10}));
  paper.copies = {3};
  printer.printResults();
  ASSERT_THAT(paper.documents, SizeIs(3));
  EXPECT_EQ(paper.asked, 1);
  for (const auto& document : paper.documents) {
    EXPECT_TRUE(document->ended);
    EXPECT_EQ(operations(*document), operations(*paper.documents[0]));
  }
}

TEST_F(ResultPrinterTest, ACancelledDialogPrintsNothing) {
  printer.setCollection(earning({10}));
  printer.printResults();
  printer.setField(*plainField(10, 100, 50));
  printer.printDetails();
  EXPECT_EQ(paper.asked, 2);
  EXPECT_THAT(paper.documents, IsEmpty());
}

TEST_F(ResultPrinterTest, AFigureThatCannotBeCalculatedEndsTheReport) {
  printer.setCollection({optionEarning(10), optionOf({plainField(1e200, 1e200, 0)})});
  paper.copies = {2};
  printer.printResults();
  ASSERT_THAT(paper.documents, SizeIs(1));
  EXPECT_FALSE(paper.documents[0]->ended);
}

/// A printer whose paper runs out after some texts.
class FaultyPrinter : public PrinterService {
 public:
  int texts = 0;
  int documents = 0;
  bool ended = false;
  bool dialogWorks = true;
  bool beginWorks = true;

  std::optional<int> askCopies() override {
    if (!dialogWorks) throw std::runtime_error("no dialog");
    return 2;
  }
  std::unique_ptr<PageSurface> beginDocument() override {
    if (!beginWorks) return nullptr;
    ++documents;
    return std::make_unique<Page>(*this);
  }

 private:
  class Page : public FakePage {
   public:
    explicit Page(FaultyPrinter& printer) : FakePage(std::make_shared<FakeDocument>()), printer_(printer) {}
    void print(const std::string& /*text*/) override { take(); }
    void printLine(const std::string& /*text*/) override { take(); }
    void endDocument() override { printer_.ended = true; }

   private:
    void take() {
      if (--printer_.texts < 0) throw std::runtime_error("out of paper");
    }
    FaultyPrinter& printer_;
  };
};

TEST_F(ResultPrinterTest, AFailureOfThePrinterEndsTheReportWithoutAMessage) {
  for (const int texts : {0, 1, 7, 18}) {
    FaultyPrinter faulty;
    faulty.texts = texts;
    const ResultPrinter report(faulty, {[this] { return farm; }, [this] { return time; }});
    EXPECT_NO_THROW(report.printResults());
    EXPECT_EQ(faulty.documents, 1) << texts;
    EXPECT_FALSE(faulty.ended) << texts;
  }
  FaultyPrinter faulty;
  faulty.beginWorks = false;
  const ResultPrinter report(faulty, {[this] { return farm; }, [this] { return time; }});
  EXPECT_NO_THROW(report.printResults());
  faulty.dialogWorks = false;
  EXPECT_NO_THROW(report.printResults());
  EXPECT_EQ(faulty.documents, 0);
}

TEST(ReportTime, UsesATwelveHourClock) {
  EXPECT_EQ(reportTime({2025, 1, 2, 0, 5, 0}), "1/2/2025 12:05 AM");
  EXPECT_EQ(reportTime({2025, 1, 2, 9, 30, 0}), "1/2/2025 9:30 AM");
  EXPECT_EQ(reportTime({2025, 11, 22, 12, 0, 0}), "11/22/2025 12:00 PM");
  EXPECT_EQ(reportTime({2025, 11, 22, 13, 9, 59}), "11/22/2025 1:09 PM");
}

}  // namespace
}  // namespace verdalis
