#include "cli/ExploreQuestion.h"

#include <nlohmann/json.hpp>

#include "cli/relaxation.h"

namespace verdalis {

void beginAnswer(JsonStream& json, const Farm& farm) {
  json.beginObject();
  if (!farm.wishes.empty()) json.put("wishes", wishTexts(farm.wishes));
}

}  // namespace verdalis
