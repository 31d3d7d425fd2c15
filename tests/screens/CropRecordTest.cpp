#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "screens/CropRecord.h"
#include "tests/support/FakeServices.h"

// A row of the crop list in a window without other controls.

namespace verdalis::testing {
namespace {

class CropRow : public ::testing::Test {
 protected:
  CropRow() {
    row.Crop = std::make_shared<Crop>();
    window.open();
    show("Corn");
    row.chkCrop.click();
  }

  /// Assigns a crop with this name to the row.
  void show(const std::string& name) {
    row.Crop->cropType = name;
    row.loadInfo(name, "$/bu.", "$/ac", "bushels");
  }

  /// Types a text into a field and leaves it: no message is shown, and the text is kept.
  void expectPasses(TextBox& box, const std::string& text) {
    box.type(text);
    box.leave();
    EXPECT_TRUE(fakes.messageBox.take().empty()) << text;
    EXPECT_EQ(box.text(), text);
    EXPECT_EQ(desk.focus(), nullptr) << text;
  }

  /// Types a text into a field and leaves it: the message is shown, and the previous text is restored.
  void expectRefused(TextBox& box, const std::string& text, const std::string& message) {
    const std::string before = box.text();
    box.type(text);
    EXPECT_TRUE(fakes.messageBox.log.empty()) << "while " << text << " is typed";
    box.leave();
    const std::vector<Message> boxes = fakes.messageBox.take();
    ASSERT_EQ(boxes.size(), 1U) << text;
    EXPECT_EQ(boxes[0].text, message);
    EXPECT_EQ(boxes[0].title, "Input error");
    EXPECT_EQ(boxes[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(boxes[0].buttons, MessageButtons::ok);
    EXPECT_EQ(box.text(), before);
    EXPECT_EQ(desk.focus(), &box);
  }

  Desk desk;
  FakeServices fakes;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  CropRecord row{window, 0, fakes.messageBox};
};

TEST_F(CropRow, ShowsTheCropItIsGiven) {
  row.loadInfo("Oats", "$/ton", "not shown", "tons");
  EXPECT_EQ(row.GetCrop(), "Oats");
  EXPECT_EQ(row.chkCrop.caption(), "Oats");
  EXPECT_EQ(row.lblPriceUnits.caption(), "$/ton");
  EXPECT_EQ(row.lblYieldUnits.caption(), "tons");
  EXPECT_TRUE(row.txtPrice.visible());
  EXPECT_TRUE(row.txtMaxYield.visible());
}

TEST_F(CropRow, GetCropReturnsTheNameThatIsShown) {
  row.Crop->cropType = "Wheat";
  EXPECT_EQ(row.GetCrop(), "Corn");
}

TEST_F(CropRow, TheInputCostIsAlways20) {
  row.Crop->inputCost = 300;
  row.Crop->inputCosts.Herbicide = 45;
  EXPECT_EQ(CropRecord::getInputCost(), 20);
}

TEST_F(CropRow, UsesTheLimitsOfItsCrop) {
  struct Limits {
    std::string crop;
    std::string price;
    std::string abovePrice;
    std::string yield;
    std::string aboveYield;
    std::string yieldAsTold;
  };
  const std::string told = ":  Please enter a value that's less than or equal to ";
  for (const Limits& limits : {Limits{"Alfalfa", "300", "300.01", "20", "20.01", "20"},
                               Limits{"Corn", "10", "10.01", "500", "500.01", "500"},
                               Limits{"Grain Sorghum", "10", "10.01", "300", "300.01", "300"},
                               Limits{"Soybeans", "20", "20.01", "150", "150.01", "150"},
                               Limits{"Sunflower", "25", "25.01", "8000", "8000.01", "8,000"},
                               Limits{"Wheat", "15", "15.01", "200", "200.01", "200"}}) {
    SCOPED_TRACE(limits.crop);
    row.txtPrice.setText("");
    row.txtMaxYield.setText("");
    show(limits.crop);
    expectPasses(row.txtPrice, limits.price);
    expectRefused(row.txtPrice, limits.abovePrice, "Crop Price - " + limits.crop + told + limits.price);
    EXPECT_EQ(row.Crop->price, std::stod(limits.price));
    expectPasses(row.txtMaxYield, limits.yield);
    expectRefused(row.txtMaxYield, limits.aboveYield,
                  "Maximum Yield - " + limits.crop + told + limits.yieldAsTold);
    EXPECT_EQ(row.Crop->maxYield, std::stod(limits.yield));
  }
}

TEST_F(CropRow, RefusesNegativeNumbersButNotZero) {
  expectPasses(row.txtPrice, "0");
  expectPasses(row.txtMaxYield, "0");
  expectRefused(row.txtPrice, "-0.01", "Crop Price - Corn:  Please enter a value that's greater than 0");
  expectRefused(row.txtMaxYield, "-1", "Maximum Yield - Corn:  Please enter a value that's greater than 0");
  EXPECT_EQ(row.Crop->price, 0);
  EXPECT_EQ(row.Crop->maxYield, 0);
}

TEST_F(CropRow, OnlyStockCropsAreTested) {
  // A name has to be that of the stock crop letter by letter.
  for (const char* name : {"Oats", "corn", "CORN", "Corn ", "Fallow"}) {
    SCOPED_TRACE(name);
    show(name);
    for (const char* text : {"10.01", "99999999", "-5", "12x", "words", "1e400"})
      expectPasses(row.txtPrice, text);
    for (const char* text : {"500.01", "99999999", "-5", "12x", "words"})
      expectPasses(row.txtMaxYield, text);
  }
}

TEST_F(CropRow, AnIncompletePriceKeepsThePriceOfTheCrop) {
  row.txtPrice.type("6.5");
  EXPECT_EQ(row.Crop->price, 6.5);
  for (const char* text : {"12x", "-", ".", "", "1e400", "$7", "1.2.3"}) {
    row.txtPrice.type(text);
    EXPECT_EQ(row.Crop->price, 6.5) << text;
  }
  row.txtPrice.type("1e");
  row.txtPrice.type("1e1");
  EXPECT_EQ(row.Crop->price, 10);
}

TEST_F(CropRow, AnIncompleteYieldStoresItsLeadingDigits) {
  row.txtMaxYield.type("200");
  EXPECT_EQ(row.Crop->maxYield, 200);
  row.txtMaxYield.type("12x");
  EXPECT_EQ(row.Crop->maxYield, 12);
  row.txtMaxYield.type("1,500");
  EXPECT_EQ(row.Crop->maxYield, 1);
  for (const char* text : {"-", ".", "", "x12"}) {
    row.txtMaxYield.type("200");
    row.txtMaxYield.type(text);
    EXPECT_EQ(row.Crop->maxYield, 0) << text;
  }
}

TEST_F(CropRow, LeavingAFieldWithATextThatIsNoNumberRestoresTheCrop) {
  row.txtPrice.setText("6.5");
  row.txtMaxYield.setText("200");
  expectRefused(row.txtPrice, "12x", "Crop Price - Corn:  Please enter a numeric value!");
  EXPECT_EQ(row.Crop->price, 6.5);
  expectRefused(row.txtMaxYield, "12x", "Maximum Yield - Corn:  Please enter a numeric value!");
  EXPECT_EQ(row.Crop->maxYield, 200);
}

TEST_F(CropRow, UntickingARowKeepsItsTypedValues) {
  row.txtPrice.type("6.5");
  row.txtMaxYield.type("200");
  row.chkCrop.click();
  EXPECT_FALSE(row.cmdInputCosts.enabled());
  EXPECT_FALSE(row.txtPrice.enabled());
  EXPECT_FALSE(row.background.visible());
  EXPECT_TRUE(row.chkCrop.enabled());
  EXPECT_EQ(row.txtPrice.text(), "6.5");
  EXPECT_EQ(row.Crop->price, 6.5);
  EXPECT_EQ(row.Crop->maxYield, 200);
}

TEST_F(CropRow, RefreshShowsTheNumbersOfTheCrop) {
  row.Crop->price = 6.5;
  row.Crop->maxYield = 1234.5;
  row.refresh();
  EXPECT_EQ(row.txtPrice.text(), "6.50");
  EXPECT_EQ(row.txtMaxYield.text(), "1234.5");
  EXPECT_EQ(row.Crop->price, 6.5);
  EXPECT_EQ(row.Crop->maxYield, 1234.5);
  EXPECT_EQ(row.getPrice(), 6.5);
  EXPECT_EQ(row.getMaxYield(), 1234.5);
}

TEST_F(CropRow, RefreshGroupsTheThousandsOfAPriceWithoutChangingIt) {
  row.Crop->price = 1000;
  row.refresh();
  EXPECT_EQ(row.txtPrice.text(), "1,000.00");
  EXPECT_EQ(row.Crop->price, 1000);
  row.Crop->price = 1234567.25;
  row.refresh();
  EXPECT_EQ(row.txtPrice.text(), "1,234,567.25");
  EXPECT_EQ(row.Crop->price, 1234567.25);
  // A run reads the text up to its comma.
  EXPECT_EQ(row.getPrice(), 1);
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(CropRow, RefreshRoundsThePriceOfTheCropToCents) {
  row.Crop->price = 999.995;
  row.refresh();
  EXPECT_EQ(row.txtPrice.text(), "1,000.00");
  EXPECT_EQ(row.Crop->price, 1000);
  row.Crop->price = 1234.567;
  row.refresh();
  EXPECT_EQ(row.txtPrice.text(), "1,234.57");
  EXPECT_EQ(row.Crop->price, 1234.57);
  // Setting the same text is not a change.
  row.Crop->price = 1234.568;
  row.refresh();
  EXPECT_EQ(row.txtPrice.text(), "1,234.57");
  EXPECT_EQ(row.Crop->price, 1234.568);
}

TEST_F(CropRow, DefaultsAreShownWithoutThousandsCommas) {
  row.setDefault(1234.5, 3500);
  EXPECT_EQ(row.txtPrice.text(), "1234.50");
  EXPECT_EQ(row.txtMaxYield.text(), "3500");
  EXPECT_EQ(row.Crop->price, 1234.5);
  EXPECT_EQ(row.Crop->maxYield, 3500);
  row.setPrice(1234.567);
  row.setMaxYield(0.5);
  EXPECT_EQ(row.txtPrice.text(), "1234.567");
  EXPECT_EQ(row.txtMaxYield.text(), "0.5");
  EXPECT_EQ(row.getPrice(), 1234.567);
}

}  // namespace
}  // namespace verdalis::testing
