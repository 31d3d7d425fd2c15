#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "screens/wishText.h"

namespace verdalis {
namespace {

using Kind = Wish::Kind;

const WishContext farm{
    {"Corn", "Grain Sorghum", "Wheat", "Rice", "Fallow"}, {"Corn", "Grain Sorghum", "Wheat", "Fallow"}, 2};

/// What is wrong with a wish; empty where nothing is.
std::string refusal(const std::string& text, const WishContext& context = farm) {
  try {
    static_cast<void>(readWish(text, context));
    return {};
  } catch (const std::invalid_argument& error) {
    return error.what();
  }
}

TEST(WishText, EveryFormIsRead) {
  EXPECT_EQ(readWish("Corn at least 40 acres", farm), (Wish{Kind::acresAtLeast, "Corn", 0, 40}));
  EXPECT_EQ(readWish("Corn at most 40.5 acres", farm), (Wish{Kind::acresAtMost, "Corn", 0, 40.5}));
  EXPECT_EQ(readWish("field 1 is Corn", farm), (Wish{Kind::fieldIs, "Corn", 1, 0}));
  EXPECT_EQ(readWish("field 2 is not Corn", farm), (Wish{Kind::fieldIsNot, "Corn", 2, 0}));
  EXPECT_EQ(readWish("field 1 at least 6 inches", farm), (Wish{Kind::depthAtLeast, "", 1, 6}));
  EXPECT_EQ(readWish("field 1 at most 6 inches", farm), (Wish{Kind::depthAtMost, "", 1, 6}));
  EXPECT_EQ(readWish("at least 2 crops", farm), (Wish{Kind::cropsAtLeast, "", 0, 2}));
  EXPECT_EQ(readWish("at most 2 crops", farm), (Wish{Kind::cropsAtMost, "", 0, 2}));
}

TEST(WishText, WordsAreReadInAnyCaseWithAnyBlanks) {
  EXPECT_EQ(readWish("  CORN  At\tLEAST 40   Acre ", farm), (Wish{Kind::acresAtLeast, "Corn", 0, 40}));
  EXPECT_EQ(readWish("FIELD 2 IS NOT grain   sorghum", farm),
            (Wish{Kind::fieldIsNot, "Grain Sorghum", 2, 0}));
  EXPECT_EQ(readWish("Field 1 at most 1 INCH", farm), (Wish{Kind::depthAtMost, "", 1, 1}));
  EXPECT_EQ(readWish("At Least 1 Crop", farm), (Wish{Kind::cropsAtLeast, "", 0, 1}));
}

TEST(WishText, NumbersAreThoseOfTheProgram) {
  EXPECT_EQ(readWish("Corn at least 4e1 acres", farm).amount, 40);
  EXPECT_EQ(readWish("Corn at least 0 acres", farm).amount, 0);
  EXPECT_EQ(wishText(readWish("Corn at least -0 acres", farm)), "Corn at least 0 acres");
  EXPECT_EQ(readWish("at least 1.5 crops", farm).amount, 1.5);
}

TEST(WishText, TheStandardFormCountsItsUnits) {
  EXPECT_EQ(wishText(readWish("corn AT least 1.0 acres", farm)), "Corn at least 1 acre");
  EXPECT_EQ(wishText(readWish("grain sorghum at most 0 acre", farm)), "Grain Sorghum at most 0 acres");
  EXPECT_EQ(wishText(readWish("field 01 is WHEAT", farm)), "field 1 is Wheat");
  EXPECT_EQ(wishText(readWish("field 2 is not rice", farm)), "field 2 is not Rice");
  EXPECT_EQ(wishText(readWish("field 2 at least 1 inches", farm)), "field 2 at least 1 inch");
  EXPECT_EQ(wishText(readWish("field 2 at most 0.5 inch", farm)), "field 2 at most 0.5 inches");
  EXPECT_EQ(wishText(readWish("at least 1 crops", farm)), "at least 1 crop");
  EXPECT_EQ(wishText(readWish("at most 1e15 crop", farm)), "at most 1E+15 crops");
}

TEST(WishText, TheStandardFormReadsBack) {
  for (const char* text : {"Corn at least 40 acres", "Wheat at most 0.1 acres", "field 1 is Grain Sorghum",
                           "field 2 is not Rice", "field 1 at least 1 inch", "field 2 at most 12.25 inches",
                           "at least 2 crops", "at most 1 crop"}) {
    EXPECT_EQ(wishText(readWish(text, farm)), text);
    EXPECT_EQ(readWish(wishText(readWish(text, farm)), farm), readWish(text, farm));
  }
}

TEST(WishText, NamesMayHaveTheWordsOfAWishInThem) {
  const std::vector<std::string> names{
      "Corn at least 3 acres", "field 1", "is not", "not Wheat", "Wheat", "at",
      "Mais \"A\", 2=3: 50%",  "Féverole"};
  const WishContext odd{names, names, 4};
  EXPECT_EQ(readWish("Corn at least 3 acres at least 4 acres", odd),
            (Wish{Kind::acresAtLeast, "Corn at least 3 acres", 0, 4}));
  EXPECT_EQ(readWish("field 2 is Corn at least 3 acres", odd),
            (Wish{Kind::fieldIs, "Corn at least 3 acres", 2, 0}));
  EXPECT_EQ(readWish("field 1 at most 4 acres", odd), (Wish{Kind::acresAtMost, "field 1", 0, 4}));
  EXPECT_EQ(readWish("field 1 at most 4 inches", odd), (Wish{Kind::depthAtMost, "", 1, 4}));
  EXPECT_EQ(readWish("field 1 is is not", odd), (Wish{Kind::fieldIs, "is not", 1, 0}));
  EXPECT_EQ(readWish("field 1 is not is not", odd), (Wish{Kind::fieldIsNot, "is not", 1, 0}));
  EXPECT_EQ(readWish("field 1 is not Wheat", odd), (Wish{Kind::fieldIsNot, "Wheat", 1, 0}));
  EXPECT_EQ(readWish("at at least 4 acres", odd), (Wish{Kind::acresAtLeast, "at", 0, 4}));
  EXPECT_EQ(readWish("mais \"a\", 2=3: 50% at least 4 acres", odd).crop, "Mais \"A\", 2=3: 50%");
  EXPECT_EQ(readWish("FÉVEROLE at least 4 acres", odd).crop, "Féverole");
}

TEST(WishText, ANameThatFitsSeveralCropsIsReadExactly) {
  const std::vector<std::string> names{"Corn", "CORN", "Corn", "two  blanks"};
  const WishContext twins{names, names, 1};
  EXPECT_EQ(readWish("field 1 is CORN", twins).crop, "CORN");
  EXPECT_EQ(readWish("field 1 is Corn", twins).crop, "Corn");
  EXPECT_NE(refusal("field 1 is corn", twins).find("\"Corn\", \"CORN\""), std::string::npos);
  EXPECT_EQ(readWish("field 1 is two  blanks", twins).crop, "two  blanks");
  EXPECT_EQ(readWish("field 1 is two blanks", twins).crop, "two  blanks");
}

TEST(WishText, ACropThatIsNotChosenCanOnlyBeRuledOut) {
  EXPECT_NE(refusal("Rice at least 4 acres").find("\"Rice\" is not chosen"), std::string::npos);
  EXPECT_NE(refusal("field 1 is rice").find("\"Rice\" is not chosen"), std::string::npos);
  EXPECT_EQ(refusal("Rice at most 4 acres"), "");
  EXPECT_EQ(refusal("field 1 is not Rice"), "");
}

TEST(WishText, WhatIsWrongIsTold) {
  EXPECT_NE(refusal("Oats at least 4 acres").find("There is no crop \"Oats\""), std::string::npos);
  EXPECT_NE(refusal("field 1 is not Oats").find("There is no crop \"Oats\""), std::string::npos);
  EXPECT_NE(refusal("Corn at least 4 acres", {{}, {}, 1}).find("empty"), std::string::npos);
  EXPECT_NE(refusal("field 3 is Corn").find("no field 3. It has the fields 1 to 2."), std::string::npos);
  EXPECT_NE(refusal("field 2 is Corn", {farm.library, farm.chosen, 1}).find("field 1 only"),
            std::string::npos);
  EXPECT_NE(refusal("field 0 at most 4 inches").find("no field 0"), std::string::npos);
  EXPECT_NE(refusal("field 99999999999999999999 is Corn").find("no field"), std::string::npos);
  EXPECT_NE(refusal("field x is Corn").find("\"x\""), std::string::npos);
  EXPECT_NE(refusal("field -1 is Corn").find("negative"), std::string::npos);
  EXPECT_NE(refusal("Corn at least -4 acres").find("negative"), std::string::npos);
  EXPECT_NE(refusal("at most -1 crops").find("negative"), std::string::npos);
  EXPECT_NE(refusal("field 1 at least some inches").find("\"some\" is not a number"), std::string::npos);
  EXPECT_NE(refusal("Corn at least 1,000 acres").find("not a number"), std::string::npos);
  EXPECT_NE(refusal("Corn at least 1e999 acres").find("not a number"), std::string::npos);
}

TEST(WishText, WhatIsNoWishCannotBeRead) {
  for (const char* text :
       {"", "  ", "Corn", "at least 4 acres", "Corn at least acres", "Corn at leest 4 acres",
        "Corn at least 4", "Corn at least 4 inches", "at least crops", "field 1", "field 1 is",
        "field 1 is not", "field 1 at least 4", "field is Corn at"}) {
    EXPECT_NE(refusal(text), "") << text;
  }
  EXPECT_NE(refusal("Corn at leest 4 acres").find("cannot be read"), std::string::npos);
}

TEST(WishText, ARepeatedWishCountsOnceAndTwelveAreTheMost) {
  std::vector<Wish> wishes;
  for (int amount = 0; amount < 12; ++amount) {
    addWish(wishes, {Kind::acresAtLeast, "Corn", 0, static_cast<double>(amount)});
    addWish(wishes, {Kind::acresAtLeast, "Corn", 0, 0});
  }
  EXPECT_EQ(wishes.size(), mostWishes);
  EXPECT_THROW(addWish(wishes, {Kind::acresAtMost, "Corn", 0, 0}), std::invalid_argument);
  EXPECT_NO_THROW(addWish(wishes, wishes.back()));
  EXPECT_EQ(wishes.size(), mostWishes);
}

}  // namespace
}  // namespace verdalis
