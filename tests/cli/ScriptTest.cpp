#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

#include "cli/script/ScriptSession.h"
#include "tests/cli/CliRun.h"

// The command `script`: its input, its answers and its exit code. Sessions are tested in tests/sessions.

namespace verdalis::testing {
namespace {

using nlohmann::json;
using namespace std::string_literals;

CliResult runScript(const std::vector<std::string>& args, const std::string& input) {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  const int exitCode = run(args, in, out, err);
  return {exitCode, out.str(), err.str()};
}

TEST(Script, ReadsStandardInput) {
  const SmallHome home;
  const CliResult result =
      runScript({"script", "--home", home.path(), "-"},
                "# a comment\n\n \t \nget windows\r\nclipboard  two words \nget clipboard");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "{\"ok\":true,\"windows\":[\"frmWelcome\"]}\n"
            "{\"ok\":true}\n"
            "{\"ok\":true,\"clipboard\":\" two words \"}\n");
}

TEST(Script, ReadsAFile) {
  const SmallHome home;
  const std::string file = home.folder().write("session", "get windows\n").string();
  const CliResult result = runScript({"script", file, "--home", home.path()}, "quit\n");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "{\"ok\":true,\"windows\":[\"frmWelcome\"]}\n");
}

TEST(Script, ContinuesAfterAFailedCommandAndExitsWith1) {
  const SmallHome home;
  const CliResult result =
      runScript({"script", "--home", home.path(), "-"}, "jump\nclick frmWelcome.Command1\nget pane\n");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "{\"ok\":false,\"error\":\"There is no command jump\"}\n"
            "{\"ok\":true}\n"
            "{\"ok\":true,\"pane\":\"pneMain\",\"history\":[\"pneMain\",\"pneMain\"]}\n");
}

TEST(Script, RequiresAReadableScript) {
  const SmallHome home;
  const std::string missing = (home.folder() / "missing").string();
  const auto expectRefusal = [](const CliResult& result, const std::string& err) {
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err.find("verdalis-cli: " + err), 0U) << result.err;
  };
  expectRefusal(runScript({"script", "--home", home.path()}, "get windows\n"), "A script is required");
  expectRefusal(runScript({"script", "--home", home.path(), missing}, ""), "The file " + missing + " cannot");
  expectRefusal(runScript({"script", "--home", home.path(), home.path()}, ""), "The file " + home.path());
  expectRefusal(runScript({"script", "--home", home.path(), "-", "-"}, ""), "");
  expectRefusal(runScript({"script", "--fast", "-"}, ""), "");
}

TEST(Script, AnEmptyScriptHasNoAnswers) {
  const SmallHome home;
  const CliResult result = runScript({"script", "--home", home.path(), "-"}, "");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "");
}

TEST(Script, StopsIfAnswersCannotBeWritten) {
  const SmallHome home;
  std::istringstream in("get windows\nget windows\n");
  std::ostringstream out;
  out.setstate(std::ios::badbit);
  std::ostringstream err;
  EXPECT_EQ(run({"script", "--home", home.path(), "-"}, in, out, err), 1);
  EXPECT_EQ(err.str(), "verdalis-cli: The answers cannot be written to standard output.\n");
}

/// Provides one line at a time, and records the answers written before each.
class Dialogue : public std::streambuf {
 public:
  Dialogue(std::vector<std::string> lines, const std::ostringstream& out)
      : lines_(std::move(lines)), out_(out) {}

  std::vector<std::string> answeredBefore;

 protected:
  int_type underflow() override {
    answeredBefore.push_back(out_.str());
    if (next_ == lines_.size()) return traits_type::eof();
    std::string& line = lines_[next_++];
    setg(line.data(), line.data(), line.data() + line.size());
    return traits_type::to_int_type(line.front());
  }

 private:
  std::vector<std::string> lines_;
  const std::ostringstream& out_;
  std::size_t next_ = 0;
};

TEST(Script, AnswersEachCommandBeforeReadingTheNext) {
  const SmallHome home;
  std::ostringstream out;
  std::ostringstream err;
  Dialogue dialogue({"get clipboard\n", "jump\n"}, out);
  std::istream in(&dialogue);
  EXPECT_EQ(run({"script", "--home", home.path(), "-"}, in, out, err), 1);
  const std::string first = "{\"ok\":true,\"clipboard\":\"\"}\n";
  EXPECT_EQ(dialogue.answeredBefore,
            (std::vector<std::string>{"", first,
                                      first + "{\"ok\":false,\"error\":\"There is no command jump\"}\n"}));
}

TEST(Script, RejectsALineThatIsTooLong) {
  const SmallHome home;
  const CliResult result = runScript({"script", "--home", home.path(), "-"},
                                     "clipboard " + std::string(17 << 20, 'x') + "\nget clipboard\n");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out,
            "{\"ok\":false,\"error\":\"The line is too long\"}\n{\"ok\":true,\"clipboard\":\"\"}\n");
}

TEST(Script, AnswersBytesThatAreNotText) {
  const SmallHome home;
  const CliResult result =
      runScript({"script", "--home", home.path(), "-"},
                "clipboard \xFF\xC3\nget clipboard\nget \x00\x01\nclipboard a\x00z\nget clipboard\n"s);
  std::istringstream lines(result.out);
  std::vector<json> answers;
  for (std::string line; std::getline(lines, line);)
    answers.push_back(json::parse(line));
  ASSERT_EQ(answers.size(), 5U);
  EXPECT_EQ(answers[1]["clipboard"], "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(answers[2]["ok"], false);
  EXPECT_EQ(answers[4]["clipboard"], std::string("a\0z", 3));
}

TEST(Script, ListsEveryNamedControl) {
  const SmallHome home;
  ScriptSession session(home.path());
  const auto before = session.execute("controls").at("controls").size();
  static_cast<void>(session.execute("click frmWelcome.Command1"));
  const auto controls = session.execute("controls").at("controls");
  EXPECT_GT(controls.size(), before + 100);
  std::set<std::string> names;
  for (const auto& control : controls) {
    const auto name = control.at("name").get<std::string>();
    EXPECT_TRUE(names.insert(name).second) << name << " stands there twice";
    const auto state = session.execute("get " + name);
    ASSERT_TRUE(state.at("ok").get<bool>()) << name;
    EXPECT_EQ(state.at("control"), name);
    EXPECT_EQ(state.at("kind"), control.at("kind")) << name;
    EXPECT_EQ(control.size(), 2U);
  }
  for (const char* name :
       {"frmWelcome", "frmWelcome.Command1", "frmMain", "mnuTools(0)", "pneMain", "txtArea", "Option1(2)",
        "cropScroll", "cr(0)", "cr(0).txtPrice", "theResults.rh(0).lblCrop", "theDetails.lblNC", "fgsummary"})
    EXPECT_EQ(names.count(name), 1U) << name;
}

}  // namespace
}  // namespace verdalis::testing
