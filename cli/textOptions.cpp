#include "cli/textOptions.h"

namespace verdalis {

void addTextOption(CLI::App& app, const std::string& name, const std::string& placeholder,
                   std::optional<std::string>& target, const std::string& description) {
  const CLI::callback_t keep = [&target](const CLI::results_t& values) {
    target = values.back();
    return true;
  };
  app.add_option(name, keep, description)->type_name(placeholder);
}

void addFileOption(CLI::App& app, const std::string& name, const std::string& placeholder,
                   std::optional<std::string>& target, const std::string& description) {
  const CLI::callback_t keep = [&target, name](const CLI::results_t& values) {
    if (values.back().empty()) throw Refusal(name + " needs the name of a file.");
    target = values.back();
    return true;
  };
  app.add_option(name, keep, description)->type_name(placeholder);
}

void addTextOption(CLI::App& app, const std::string& name, const std::string& placeholder,
                   std::vector<std::string>& target, const std::string& description) {
  const CLI::callback_t keep = [&target](const CLI::results_t& values) {
    target = values;
    return true;
  };
  app.add_option(name, keep, description + " (repeatable)")
      ->type_name(placeholder)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

}  // namespace verdalis
