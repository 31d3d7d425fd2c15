#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#if __has_include(<valijson/validator.hpp>)

#include "document/farmText.h"
#include "tests/document/arbitraryDocument.h"
#include "tests/document/farmFileSchema.h"

namespace verdalis {
namespace {

RC_GTEST_PROP(FarmFileSchema, AcceptsAnyDocumentThatTheProgramWrites, ()) {
  RC_ASSERT(testing::agrees(writeFarm(*testing::arbitraryDocument())));
}

}  // namespace
}  // namespace verdalis

#endif
