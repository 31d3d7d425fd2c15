#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "charts/Chart.h"
#include "explore/bestPlan.h"
#include "explore/mixOf.h"
#include "handout/Handout.h"

namespace verdalis {

/// A figure of an answer in words: what it is, and how much.
struct AnswerFigure {
  std::string what;
  std::string amount;
};

/// The answer to a question, as its page shows it and as it leaves the house. The rows of the page's own
/// table are made by the page.
struct Answer {
  std::string title;    ///< Such as "Value of water"
  std::string about;    ///< What is asked
  Chart chart;          ///< Without the table that it is drawn from
  std::string heading;  ///< Above the figures
  std::vector<AnswerFigure> figures;
  std::string note;  ///< Below the figures

  std::vector<HandoutTable> tables;  ///< Numbers with all their digits; only for a section
  std::size_t paperColumns = 0;      ///< The columns of the first table that paper has room for
  std::string rows;                  ///< What its rows are, such as "amounts"
};

/// The answer for a report or a workbook. For paper, `rows` is the most rows; only the first table is told
/// then, without the columns of each field.
[[nodiscard]] HandoutSection sectionOf(const Answer& answer, std::optional<std::size_t> rows = std::nullopt);

/// What the columns of each field tell.
enum class PlanFigures {
  mix,     ///< Acres and crop
  depths,  ///< Also net and gross inches
  all,     ///< Also the yield
};

/// Adds the columns of the fields of plans.
void addPlanColumns(HandoutTable& table, std::size_t fields, PlanFigures figures);

/// Adds the cells of a plan; they are empty for fields that it does not have.
void addPlanCells(HandoutRow& row, const std::vector<PlannedField>& plan, std::size_t fields,
                  PlanFigures figures);

/// The parts of a mix as fields without water.
[[nodiscard]] std::vector<PlannedField> partsOf(const Mix& mix);

}  // namespace verdalis
