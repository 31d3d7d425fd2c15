#pragma once

#include <filesystem>
#include <iosfwd>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "cli/script/ScriptServices.h"
#include "main/Program.h"

namespace verdalis {

/// A running program that is controlled line by line, as by a user. docs/script.md describes the commands and
/// their answers.
class ScriptSession {
 public:
  /// With `ProgramFiles::recovers`, the recovery copy is written after each command.
  explicit ScriptSession(ProgramFiles files);

  /// A session that remembers nothing beside the home folder.
  explicit ScriptSession(const std::filesystem::path& home) : ScriptSession(ProgramFiles(home)) {}

  /// Executes one command.
  /// \returns its answer; on failure `ok` is false and `error` gives the reason
  [[nodiscard]] nlohmann::ordered_json execute(std::string_view line);

  /// Replays a session and writes one answer per command to `out`.
  /// \returns whether all commands succeeded.
  bool replay(std::istream& in, std::ostream& out);

 private:
  using Json = nlohmann::ordered_json;

  /// Executes a command.
  /// \returns the entries to add to its answer.
  /// \throws ScriptError if it cannot be executed
  Json carryOut(const std::string& command, std::string_view rest);
  Json get(const std::string& what);

  [[nodiscard]] Control& find(const std::string& name);
  template <class Kind>
  [[nodiscard]] Kind& reach(const std::string& name, const char* whatFor);
  void click(const std::string& name);
  void leave(const std::string& name);
  void type(const std::string& name, const std::string& text);
  void pick(const std::string& name, const std::string& entry);
  void key(const std::string& name, const std::string& key);
  void setClock(const std::string& text);
  void watchProgress(frmUpdating& window);
  void quit();

  ScriptServices platform_;
  Services services_;
  Program program_;
  bool recovers_;
  int cancelAfter_ = 0;  ///< Steps of the next progress window before Cancel is pressed; 0: never
};

}  // namespace verdalis
