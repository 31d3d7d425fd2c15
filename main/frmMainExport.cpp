// Workbooks of what the pages of the main window show.

#include <new>

#include "controls/ask.h"
#include "data/writeFile.h"
#include "document/farmHandout.h"
#include "main/frmMain.h"
#include "text/RunTimeError.h"
#include "xlsx/writeWorkbook.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr const char* filter = "Excel Workbook (*.xlsx)|*.xlsx";

std::string sheetsOf(const fs::path& path) {
  return "workbook " + path.string();
}

}  // namespace

void frmMain::wireExports() {
  using Sections = std::vector<HandoutSection>;
  theResults.onExport.connect([this] {
    exportAnswer("Evaluation", farmControls.foundWith, [this] {
      return Sections{theResults.all.section(), theResults.all.fieldsSection()};
    });
  });
  BatchResults& trend = trends.pneBatchSetup1.theBatchResults;
  trend.theResults.onExport.connect([this, &trend] {
    exportAnswer("Trend", farmControls.foundWith, [&trend] {
      return Sections{trend.section(), trend.theResults.all.section(), trend.fieldsSection()};
    });
  });
  pneSummary.onExport.connect([this] {
    exportAnswer("Saved options", keeper.document().inputs,
                 [this] { return Sections{pneSummary.section()}; });
  });
  pneCompare.onExport.connect([this] {
    exportAnswer("Comparison", keeper.document().inputs, [this] { return Sections{pneCompare.section()}; });
  });
  for (QuestionPane* page : questions.all()) {
    page->onExport.connect([this, page] {
      if (!page->hasAnswer()) return;
      exportAnswer(page->caption(), askedWith_[page], [page] { return Sections{page->section()}; });
    });
  }
}

/// Asks for a file and writes a workbook: the answer, then the inputs that it was found with.
void frmMain::exportAnswer(const std::string& title, const FarmInputs& inputs,
                           const std::function<std::vector<HandoutSection>()>& answer) {
  const auto path = askToSave(desk(), services_.fileChooser,
                              {"Export to a Workbook", {}, filter, "xlsx", farms.fileName(title, ".xlsx")});
  if (!path || path->empty()) return;
  const std::string about = sheetsOf(*path);
  FarmDocument farm = keeper.document();
  farm.inputs = inputs;
  try {
    writeFile(*path, writeWorkbook(farmHandout(title, answer(), farm, cropFiles.cropCollection)));
  } catch (const std::bad_alloc&) {
    notices.tell({.text = "The workbook " + path->string() +
                          " could not be saved. There is not enough memory. "
                          "What it would show is still on screen.",
                  .about = about});
    return;
  } catch (const RunTimeError& error) {
    notices.tell({.text = "The workbook " + path->string() + " could not be saved. " + error.what() +
                          " What it would show is still on screen.",
                  .about = about});
    return;
  }
  tellSaved("Saved " + path->filename().string() + ".", *path, about);
}

/// Tells that a file has been saved, and offers to open it or its folder.
void frmMain::tellSaved(const std::string& text, const fs::path& file, const std::string& about) {
  const auto open = [this](const fs::path& what) {
    if (services_.openFile.open(what)) return;
    notices.tell({.text = "No program could be found to open " + what.string() + "."});
  };
  const fs::path whole = fs::absolute(file);
  notices.tell({.text = text,
                .actionCaption = "Open",
                .action = [open, whole] { open(whole); },
                .actionCaption2 = "Open folder",
                .action2 = [open, whole] { open(whole.parent_path()); },
                .about = about});
}

}  // namespace verdalis
