#include "cli/relaxation.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>
#include <utility>

#include "cli/Messages.h"
#include "platform/Interrupt.h"

namespace verdalis {
namespace {

/// Counts each evaluation as a step of the search for wishes to give up.
class EvaluationSteps final : public RunHooks {
 public:
  explicit EvaluationSteps(RunHooks& hooks) : hooks_(hooks) {}
  void pumpEvents() override { hooks_.pumpEvents(); }
  void closeProgress() override { hooks_.update(); }

 private:
  RunHooks& hooks_;
};

}  // namespace

std::vector<Relaxation> findRelaxations(const Farm& farm, ProgramState& state, RunHooks& hooks) {
  EvaluationSteps steps(hooks);
  hooks.showProgress("What to give up");
  hooks.setProgress(static_cast<double>((1ULL << farm.wishes.size()) - 1), "what to give up");
  std::optional<std::vector<Relaxation>> found = relaxWishes(scenarioOf(farm), state, steps);
  hooks.closeProgress();
  if (!found || Interrupt::requested()) throw Cancelled();
  return std::move(*found);
}

Json relaxJson(const std::vector<Relaxation>& relaxations) {
  Json list = Json::array();
  for (const Relaxation& relaxation : relaxations) {
    list.push_back(
        Json{{"without", wishTexts(relaxation.without)}, {"profit", jsonNumber(relaxation.profit)}});
  }
  return list;
}

std::string noPlanJson(const std::vector<Wish>& wishes, const std::vector<Relaxation>& relaxations) {
  std::ostringstream text;
  JsonStream json(text);
  json.beginObject();
  if (!wishes.empty()) json.put("wishes", wishTexts(wishes));
  json.put("options", Json::array());
  json.put("relax", relaxJson(relaxations));
  json.end();
  return std::move(text).str();
}

}  // namespace verdalis
