// The report to hand out, from the main window.

#include <array>
#include <cstddef>
#include <utility>

#include "data/writeFile.h"
#include "document/farmSections.h"
#include "main/frmMain.h"
#include "main/frmReport.h"
#include "model/EfficiencyFraction.h"
#include "results/detailsSection.h"
#include "results/optionsSection.h"

namespace verdalis {
namespace {

/// The most rows of a table in a report.
constexpr std::size_t mostRows = 50;

}  // namespace

void frmMain::wireReport() {
  menus.mnuReport.onClick.connect([this] { openReport(nullptr); });
  for (QuestionPane* page : questions.all())
    page->onPrint.connect([this, page] { openReport(page); });
  windows_.onCreated.connect([this](Window& window) {
    auto* const report = dynamic_cast<frmReport*>(&window);
    if (report == nullptr) return;
    report->writeFile = &verdalis::writeFile;
    report->onSaved.connect(
        [this](const std::filesystem::path& path) { tellSaved("Saved " + path.string(), path); });
  });
}

/// Opens the window of the report. `asked` is the page that is to be printed; nullptr for what is on show.
void frmMain::openReport(const QuestionPane* asked) {
  if (isRunning()) return;
  const FarmDocument& farm = keeper.document();
  windows_.report().show(reportHandout(farm, services_.clock.now()), reportParts(farm, asked));
}

std::vector<ReportPart> frmMain::reportParts(const FarmDocument& farm, const QuestionPane* asked) {
  std::vector<ReportPart> parts;
  bool anyResult = asked != nullptr;
  const auto add = [&](std::string name, bool chosen, std::function<HandoutSection()> section) {
    parts.push_back({std::move(name), chosen, std::move(section)});
  };
  const auto shows = [&](const Frame& pane) {
    const bool shown = asked == nullptr && pane.isShown();
    anyResult = anyResult || shown;
    return shown;
  };
  add("Farm and pumping plant", asked == nullptr, [farm] { return farmSection(farm); });
  add("Crops, prices and costs", asked == nullptr,
      [farm, library = cropFiles.cropCollection] { return cropsSection(farm, library); });
  const std::size_t results = parts.size();
  const ListedOptions listed = ListedOptions::inOrder(theResults.FieldCollection, EfficiencyFraction);
  const bool hasResults = menus.mnuGoResults.enabled() && !listed.options.empty();
  if (hasResults) {
    const bool shown = shows(pneResults) || shows(pneDetails);
    add("Best options", shown, [listed] {
      HandoutSection section = optionsSection(listed, mostRows);
      section.title = "Best options";
      return section;
    });
    add("The best option in detail", shown, [listed] {
      return detailsSection("The best option in detail", *listed.options.front(), listed.efficiency);
    });
  }
  if (menus.mnuGoTrend.enabled()) {
    add("Trend", shows(trends.pneBatchSetup1),
        [this] { return trends.pneBatchSetup1.theBatchResults.section(mostRows); });
  }
  if (!summaryResults.empty())
    add("Saved options", shows(pneSummary), [this] { return pneSummary.section(mostRows); });
  if (!summaryResults.empty() && pneCompare.fgCompare.rows() > 1)
    add("Comparison", shows(pneCompare), [this] { return pneCompare.section(); });
  for (QuestionPane* page : questions.all()) {
    if (!page->hasAnswer()) continue;
    add(shownCaption(page->caption()), page == asked || shows(*page),
        [page] { return page->section(mostRows); });
  }
  if (!notesSection(farm).paragraphs.empty())
    add("Notes", asked == nullptr, [farm] { return notesSection(farm); });
  // From a page without a result of its own, the results are told.
  if (hasResults && !anyResult) parts[results].chosen = parts[results + 1].chosen = true;
  return parts;
}

}  // namespace verdalis
