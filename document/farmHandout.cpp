#include "document/farmHandout.h"

#include <utility>

#include "document/farmSections.h"

namespace verdalis {

Handout farmHandout(std::string title, std::vector<HandoutSection> answer, const FarmDocument& farm,
                    const CropScenario& library) {
  Handout handout{std::move(title), farm.name, farm.letterhead, "", std::move(answer)};
  handout.sections.push_back(farmSection(farm));
  handout.sections.push_back(cropsSection(farm, library));
  HandoutSection notes = notesSection(farm);
  if (!notes.paragraphs.empty()) handout.sections.push_back(std::move(notes));
  return handout;
}

}  // namespace verdalis
