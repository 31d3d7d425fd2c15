#include <gtest/gtest.h>

#include "data/SavedCropBlocks.h"
#include "data/SavedInputs.h"
#include "tests/data/SampleInputs.h"
#include "tests/data/SampleValues.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using testing::sampleCorn;
using testing::sampleFallow;
using testing::sampleGeneral;
using testing::samplePlant;

using Names = std::vector<std::string>;

Names namesOf(const std::vector<SavedCropBlock>& blocks) {
  Names names;
  for (const SavedCropBlock& block : blocks)
    names.push_back(block.name);
  return names;
}

const std::string head = sampleGeneral + samplePlant;

/// The block of the sample under another name.
std::string blockOf(const std::string& name) {
  return name + sampleCorn.substr(sampleCorn.find("\r\n"));
}

TEST(SavedCropBlocks, AreFoundInOrder) {
  const auto blocks =
      savedCropBlocks(head + sampleCorn + sampleFallow + blockOf("Oats") + "batch_enabled\r\n");
  EXPECT_EQ(namesOf(blocks), (Names{"Corn", "Fallow", "Oats"}));
  EXPECT_EQ(blocks[0].text(), sampleCorn);
  EXPECT_EQ(blocks[1].text(), sampleFallow);
}

TEST(SavedCropBlocks, AreNoneInWhatHoldsNoCrop) {
  EXPECT_TRUE(savedCropBlocks("").empty());
  EXPECT_TRUE(savedCropBlocks(head + "batch_enabled\r\n").empty());
  EXPECT_TRUE(savedCropBlocks(std::string(100, '\n')).empty());
}

TEST(SavedCropBlocks, AreFoundBesideDamage) {
  const std::string cut = sampleCorn.substr(0, sampleCorn.rfind("18\r\n"));
  const auto blocks =
      savedCropBlocks("a\r\n" + head + cut + blockOf("Oats") + "x,y\r\n" + blockOf("Rye") + cut);
  EXPECT_EQ(namesOf(blocks), (Names{"Oats", "Rye"}));
}

TEST(SavedCropBlocks, ValuesAreReadBack) {
  const auto blocks = savedCropBlocks(head + sampleCorn);
  ASSERT_EQ(blocks.size(), 1U);
  Crop crop;
  crop.cropType = "Corn";
  SavedValueReader values(blocks[0].values);
  readSavedCrop(values, crop);
  EXPECT_TRUE(values.atEnd());
  EXPECT_EQ(crop.writeData(), testing::cornOfSample()->writeData());
  EXPECT_THROW(static_cast<void>(values.next()), RunTimeError);
}

TEST(SavedCropBlocks, MissingAreThoseWithoutABlockOfTheirName) {
  const auto former = savedCropBlocks(blockOf("Corn") + blockOf("Oats") + blockOf("Corn") + blockOf("Rye"));
  const auto next = savedCropBlocks(blockOf("Rye") + blockOf("Corn") + blockOf("New"));
  EXPECT_EQ(namesOf(missingBlocks(former, next)), (Names{"Oats", "Corn"}));
  EXPECT_TRUE(missingBlocks(next, next).empty());
  EXPECT_EQ(missingBlocks(former, {}), former);
}

TEST(SavedNameCaution, IsOnlyForNamesThatComeBackOtherwise) {
  for (const char* name :
       {"", "Oats", "Winter oats", "Oats ", "fallow", "Fallow land", "Batch_enabled", "Corn"})
    EXPECT_FALSE(savedNameCaution(name)) << name;
  for (const char* name : {" Oats", "\tOats", "\nOats", "Fallow", "batch_enabled", "Oats, winter", " "})
    EXPECT_TRUE(savedNameCaution(name)) << name;
}

// The cautioned names and no others lose their values: a block under the name is read into the crop.
TEST(SavedNameCaution, AgreesWithTheReader) {
  for (const std::string name :
       {"Oats", "Oats ", "Winter oats", " Oats", "\tOats", "batch_enabled", "Oats, w"}) {
    const auto blocks = savedCropBlocks(head + blockOf(name));
    const bool found = blocks.size() == 1 && blocks[0].name == name && name != "batch_enabled";
    EXPECT_EQ(found, !savedNameCaution(name)) << name;
  }
}

}  // namespace
}  // namespace verdalis
