#pragma once

#include <filesystem>
#include <iosfwd>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "cli/script/ScriptServices.h"
#include "main/Program.h"

namespace verdalis {

/// A running program that is driven line by line, as a person would drive it. The commands and their answers
/// are told in docs/script.md.
class ScriptSession {
 public:
  explicit ScriptSession(std::filesystem::path home);

  /// Carries one command out. \returns its answer, `ok` false with an `error` when it could not be carried
  /// out.
  [[nodiscard]] nlohmann::ordered_json execute(std::string_view line);

  /// Replays a session: one answer on `out` for each command. \returns whether all of them could be carried
  /// out.
  bool replay(std::istream& in, std::ostream& out);

 private:
  using Json = nlohmann::ordered_json;

  /// Adds what the command answers; throws ScriptError when it cannot be carried out.
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
  int cancelAfter_ = 0;  ///< Steps of the next progress window until Cancel is pressed on it; 0: never
};

}  // namespace verdalis
