#include <gmock/gmock.h>

#include "cli/Messages.h"
#include "cli/report/reportDocument.h"
#include "pdf/support.h"

namespace verdalis {
namespace {

using ::testing::HasSubstr;

TEST(ReportKinds, AreRefusedWhereTheyCannotBeDrawn) {
  const auto refusal = [](const std::string& file, bool textInstead) -> std::string {
    try {
      requireReportKind("--report", file, textInstead);
    } catch (const Refusal& refused) {
      return refused.what();
    }
    return "accepted";
  };
  EXPECT_EQ(refusal("plan.txt", true), "accepted");
  if (drawsPdf()) {
    EXPECT_EQ(refusal("plan.pdf", true), "accepted");
    EXPECT_EQ(refusal("plan.txt", false), "accepted") << "a report that is always PDF";
  } else {
    EXPECT_THAT(refusal("plan.pdf", true), HasSubstr("Name a file that ends in .txt"));
    EXPECT_THAT(refusal("plan.txt", false), HasSubstr("Report... in the menu File"));
  }
}

}  // namespace
}  // namespace verdalis
