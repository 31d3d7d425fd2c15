#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <vector>

#include "cli/script/ScriptSession.h"
#include "tests/cli/CliRun.h"

namespace verdalis::testing {
namespace {

using nlohmann::json;
using namespace std::string_literals;

TEST(Script, AnswersAnyLine) {
  const SmallHome home;
  ScriptSession session(home.path());
  static_cast<void>(session.execute("click frmWelcome.Command1"));
  const std::vector<std::string> words{"click",
                                       "type",
                                       "leave",
                                       "scroll",
                                       "pick",
                                       "cell",
                                       "point",
                                       "key",
                                       "answer",
                                       "choose",
                                       "clock",
                                       "cancel",
                                       "get",
                                       "controls",
                                       "clipboard",
                                       "txtArea",
                                       "cr(0)",
                                       "Option1(",
                                       "cr(0).",
                                       "pane",
                                       "windows",
                                       "fgsummary",
                                       "txtSoil",
                                       "cr(99999999)",
                                       "frmMain",
                                       ".",
                                       "..",
                                       "#",
                                       "-1",
                                       "99999999999999999999",
                                       "\\",
                                       "\\n",
                                       "yes",
                                       "Return",
                                       "theResults.rh(0)",
                                       "2024-05-06T01:02:03",
                                       "1e9"};
  EXPECT_TRUE(rc::check([&] {
    std::string line;
    const int count = *rc::gen::inRange(0, 6);
    for (int i = 0; i < count; ++i) {
      line += *rc::gen::inRange(0, 4) == 0 ? *rc::gen::arbitrary<std::string>() : *rc::gen::elementOf(words);
      if (*rc::gen::inRange(0, 5) != 0) line += ' ';
    }
    const auto answer = session.execute(line);
    RC_ASSERT(answer.at("ok").is_boolean());
    RC_ASSERT(answer.at("ok").template get<bool>() != answer.contains("error"));
    RC_ASSERT(!answer.dump(-1, ' ', false, json::error_handler_t::replace).empty());
  }));
}

}  // namespace
}  // namespace verdalis::testing
