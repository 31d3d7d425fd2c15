#pragma once

#include <memory>
#include <string>
#include <vector>

#include "controls/displays.h"
#include "data/RecentFarms.h"

namespace verdalis {

/// The menu bar of the main window, in display order. The Location menu is only displayed; nothing depends on
/// it.
struct MainMenus {
  explicit MainMenus(Frame& window)
      : mnuFile(window, "mnuTools(0)", "File"),
        mnuNew(window, "mnuNew", "New", &mnuFile),
        mnuOpen(window, "mnuOpen", "Open...", &mnuFile),
        mnuOpenRecent(window, "mnuOpenRecent", "Open Recent", &mnuFile),
        mnuRecent(recentEntries(window, mnuOpenRecent)),
        mnuSave(window, "mnuSave", "Save", &mnuFile),
        mnuSaveAs(window, "mnuSaveAs", "Save As...", &mnuFile),
        mnuNotes(window, "mnuNotes", "Farm Name and Notes...", &mnuFile),
        mnuPrint(window, "mnuPrint", "Print", &mnuFile),
        mnuReport(window, "mnuReport", "Report...", &mnuFile),
        mnuExit(window, "mnuExit", "Exit", &mnuFile),
        mnuLocation(window, "mnuLocation", "Location"),
        mnuPrairia(window, "mnuPrairia", "Prairia", &mnuLocation),
        mnuTexas(window, "mnuTexas", "Texas", &mnuLocation),
        mnuSummary(window, "mnuSummary", "Summary Table"),
        mnuEdit(window, "mnuTools(1)", "Edit"),
        mnuUndo(window, "mnuUndo", "Undo", &mnuEdit),
        mnuRedo(window, "mnuRedo", "Redo", &mnuEdit),
        mnuOptions(window, "mnuOptions", "Options", &mnuEdit),
        mnuTools(window, "mnuTools(2)", "Tools"),
        mnuCustomCrop(window, "mnuCustomCrop", "Manage Custom Crops", &mnuTools),
        mnuEnableBatch(window, "mnuEnableBatch", "Enable Trend Processing", &mnuTools),
        mnuFallBatch(window, "mnuFallBatch", "Run a variable trend process", &mnuTools),
        mnuExplore(window, "mnuExplore", "Explore"),
        mnuMixes(window, "mnuMixes", "Mixes", &mnuExplore),
        mnuWater(window, "mnuWater", "Value of Water", &mnuExplore),
        mnuSwitch(window, "mnuSwitch", "Switch Prices", &mnuExplore),
        mnuSeasons(window, "mnuSeasons", "Seasons", &mnuExplore),
        mnuInputs(window, "mnuInputs", "What Matters", &mnuExplore),
        mnuMap(window, "mnuMap", "Map", &mnuExplore),
        mnuLive(window, "mnuLive", "Live", &mnuExplore),
        mnuGo(window, "mnuGo", "Go"),
        mnuGoMain(window, "mnuGoMain", "Main page", &mnuGo),
        mnuGoResults(window, "mnuGoResults", "Results", &mnuGo),
        mnuGoTrend(window, "mnuGoTrend", "Trend results", &mnuGo),
        mnuGoSummary(window, "mnuGoSummary", "Summary table", &mnuGo),
        mnuGoCompare(window, "mnuGoCompare", "Compare", &mnuGo),
        mnuAbout(window, "mnuAbout", "Help"),
        mnuHelp(window, "mnuHelp", "Help", &mnuAbout),
        mnuAboutVDL(window, "mnuAboutVDL", "About Verdalis...", &mnuAbout) {
    mnuUndo.setEnabled(false);
    mnuRedo.setEnabled(false);
    mnuPrint.setEnabled(false);
    mnuPrairia.setChecked(true);
    mnuTexas.setEnabled(false);
    mnuFallBatch.setEnabled(false);
    for (MenuEntry* page : {&mnuGoResults, &mnuGoTrend, &mnuGoSummary, &mnuGoCompare})
      page->setEnabled(false);
  }

  MenuEntry mnuFile;  ///< Element 0 of the array mnuTools
  MenuEntry mnuNew;
  MenuEntry mnuOpen;
  MenuEntry mnuOpenRecent;
  std::vector<std::unique_ptr<MenuEntry>>
      mnuRecent;  ///< The farms that were used last; invisible without one
  MenuEntry mnuSave;
  MenuEntry mnuSaveAs;
  MenuEntry mnuNotes;
  MenuEntry mnuPrint;
  MenuEntry mnuReport;  ///< A report to hand out
  MenuEntry mnuExit;
  MenuEntry mnuLocation;
  MenuEntry mnuPrairia;
  MenuEntry mnuTexas;
  MenuEntry mnuSummary;
  MenuEntry mnuEdit;  ///< Element 1 of the array mnuTools
  MenuEntry mnuUndo;
  MenuEntry mnuRedo;
  MenuEntry mnuOptions;
  MenuEntry mnuTools;  ///< Element 2
  MenuEntry mnuCustomCrop;
  MenuEntry mnuEnableBatch;
  MenuEntry mnuFallBatch;
  MenuEntry mnuExplore;  ///< A page for each question about the farm
  MenuEntry mnuMixes;
  MenuEntry mnuWater;
  MenuEntry mnuSwitch;
  MenuEntry mnuSeasons;
  MenuEntry mnuInputs;
  MenuEntry mnuMap;
  MenuEntry mnuLive;
  MenuEntry mnuGo;  ///< The pages that have something to show
  MenuEntry mnuGoMain;
  MenuEntry mnuGoResults;
  MenuEntry mnuGoTrend;
  MenuEntry mnuGoSummary;
  MenuEntry mnuGoCompare;
  MenuEntry mnuAbout;
  MenuEntry mnuHelp;
  MenuEntry mnuAboutVDL;

 private:
  static std::vector<std::unique_ptr<MenuEntry>> recentEntries(Frame& window, MenuEntry& menu) {
    std::vector<std::unique_ptr<MenuEntry>> entries;
    for (std::size_t i = 0; i < RecentFarms::most; ++i) {
      entries.push_back(
          std::make_unique<MenuEntry>(window, "mnuRecent(" + std::to_string(i) + ")", "", &menu));
      entries.back()->setVisible(false);
    }
    return entries;
  }
};

}  // namespace verdalis
