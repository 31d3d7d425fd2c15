#include <gtest/gtest.h>

#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

/// The document on screen with an entry for a crop that the library does not have.
FarmDocument withOats(FarmDocument document) {
  DocumentCrop oats;
  oats.name = "Oats";
  oats.price = "5";
  document.inputs.crops.add(std::move(oats));
  return document;
}

TEST(DeletedCrop, IsDroppedFromTheDocument) {
  RunningProgram running;
  frmMain& main = running.start();
  const FarmDocument before = main.keeper.document();
  main.farmControls.deletedCrops.insert("Oats");
  EXPECT_EQ(main.farmControls.read(withOats(before)), before);
}

TEST(DeletedCrop, ComesBackWithADocumentOfBefore) {
  RunningProgram running;
  frmMain& main = running.start();
  const FarmDocument wanted = withOats(main.keeper.document());
  main.farmControls.deletedCrops.insert("Oats");
  main.farmControls.put(wanted);
  EXPECT_EQ(main.farmControls.read(wanted), wanted);
}

}  // namespace
}  // namespace verdalis::testing
