#include "questions/Answer.h"

#include <algorithm>

#include "handout/addCells.h"
#include "handout/limitRows.h"
#include "handout/styles.h"
#include "questions/planText.h"

namespace verdalis {

HandoutSection sectionOf(const Answer& answer, std::optional<std::size_t> rows) {
  HandoutSection section{answer.title, {answer.about}, {answer.chart}, answer.tables};
  if (!answer.heading.empty()) {
    std::string text = answer.heading + (answer.heading.ends_with('.') ? "" : ":");
    for (std::size_t i = 0; i < answer.figures.size(); ++i)
      text += (i == 0 ? " " : "; ") + answer.figures[i].what + " " + answer.figures[i].amount;
    if (!text.ends_with('.')) text += ".";
    section.paragraphs.push_back(text);
  }
  if (!answer.note.empty() && answer.note != answer.heading) section.paragraphs.push_back(answer.note);
  if (!rows) return section;
  section.tables.resize(std::min<std::size_t>(section.tables.size(), 1));
  for (HandoutTable& table : section.tables) {
    table.columns.resize(std::min(table.columns.size(), answer.paperColumns));
    for (HandoutRow& row : table.rows)
      row.cells.resize(std::min(row.cells.size(), answer.paperColumns));
  }
  limitRows(section, rows, answer.rows);
  return section;
}

void addPlanColumns(HandoutTable& table, std::size_t fields, PlanFigures figures) {
  for (std::size_t i = 1; i <= fields; ++i) {
    const std::string field = "Field " + std::to_string(i) + ", ";
    table.columns.push_back({field + "acres", "ac", true, acresStyle});
    table.columns.push_back({field + "crop", "", false, {}});
    if (figures >= PlanFigures::depths) {
      table.columns.push_back({field + "net", "in", true, depthStyle});
      table.columns.push_back({field + "gross", "in", true, depthStyle});
    }
    if (figures == PlanFigures::all) table.columns.push_back({field + "yield", "per acre", true, yieldStyle});
  }
}

void addPlanCells(HandoutRow& row, const std::vector<PlannedField>& plan, std::size_t fields,
                  PlanFigures figures) {
  for (std::size_t i = 0; i < fields; ++i) {
    if (i >= plan.size()) {
      const std::size_t cells = figures == PlanFigures::all ? 5 : figures == PlanFigures::depths ? 4 : 2;
      for (std::size_t cell = 0; cell < cells; ++cell)
        addEmpty(row);
      continue;
    }
    addNumber(row, plan[i].acres);
    addText(row, printable(plan[i].crop));
    if (figures >= PlanFigures::depths) addNumbers(row, {plan[i].netDepth, plan[i].grossDepth});
    if (figures == PlanFigures::all) addNumber(row, plan[i].yield);
  }
}

std::vector<PlannedField> partsOf(const Mix& mix) {
  std::vector<PlannedField> fields;
  fields.reserve(mix.size());
  for (const MixPart& part : mix)
    fields.push_back({part.acres, part.crop, 0, 0, 0});
  return fields;
}

}  // namespace verdalis
