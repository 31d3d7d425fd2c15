#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "document/farmText.h"
#include "tests/document/arbitraryDocument.h"

namespace verdalis {
namespace {

using testing::arbitraryDocument;

RC_GTEST_PROP(FarmFile, AWrittenDocumentIsReadAsTheSameDocumentAndWrittenAsTheSameBytes, ()) {
  const FarmDocument document = *arbitraryDocument();
  const std::string text = writeFarm(document);
  const FarmDocument again = readFarm(text);
  RC_ASSERT(again == document);
  RC_ASSERT(writeFarm(again) == text);
}

}  // namespace
}  // namespace verdalis
