#include <gtest/gtest.h>

#include "document/farmText.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

TEST(FarmFile, ReadingAnEmptyDocumentAndWritingItGivesTheSameBytes) {
  const std::string text = writeFarm(FarmDocument());
  EXPECT_EQ(writeFarm(readFarm(text)), text);
}

}  // namespace
}  // namespace verdalis
