#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/displays.h"
#include "controls/services.h"
#include "data/FileReader.h"
#include "data/GeneralInputs.h"
#include "document/DocumentKeeper.h"
#include "document/FarmControls.h"
#include "engine/BestMix.h"
#include "engine/Farm.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "handout/Handout.h"
#include "main/ComparePane.h"
#include "main/CustomCropNotices.h"
#include "main/FarmFiles.h"
#include "main/GoMenu.h"
#include "main/LossNotices.h"
#include "main/MainMenus.h"
#include "main/MainTrendHost.h"
#include "main/NoticeBar.h"
#include "main/PaneStack.h"
#include "main/ProgramFiles.h"
#include "main/QuestionPanes.h"
#include "main/RecoveryBar.h"
#include "main/SavedInputsKeeper.h"
#include "main/SecondaryWindows.h"
#include "main/SinceLastRun.h"
#include "questions/LivePane.h"
#include "results/Details.h"
#include "results/ResultPrinter.h"
#include "results/Results.h"
#include "results/SummaryPane.h"
#include "screens/CustomCropPane.h"
#include "screens/InputCostsPane.h"
#include "screens/IrrigCostsPane.h"
#include "screens/MainPane.h"
#include "screens/WishesCard.h"
#include "trend/TrendScreens.h"

namespace verdalis {

class QuestionJob;

/// The main window. It owns the panes and the state of the session, listens to the events of the panes, and
/// passes data between them.
class frmMain : public Window {
 public:
  frmMain(Desk& desk, Services& services, ProgramState& state, SecondaryWindows& windows, ProgramFiles files);
  ~frmMain() override;

  FileReader cropFiles;  ///< The crop library
  std::shared_ptr<IrrigationCosts> tempIrrigationCosts = std::make_shared<IrrigationCosts>();
  GeneralInputs generalInputs;  ///< As last saved or loaded
  std::string strMainInfo;      ///< The text of the information band on the main pane

  bool TrendEnabled = false;      ///< Trend processing is on; saved with the inputs
  bool TrendNoticeShown = false;  ///< The notice about trend processing is not shown again

  Label lblMainInfo{*this, "lblMainInfo"};
  MainMenus menus{*this};
  NoticeBar notices{*this};     ///< Above the page: what no message box tells
  RecoveryBar recovery{*this};  ///< In the same place: recovery copies, before the notices
  MainPane pneMain;
  WishesCard wishesCard{pneMain};
  InputCostsPane pneInputCosts;
  IrrigCostsPane pneIrrigCosts;
  Frame pneResults{*this, "pneResults"};
  Results theResults;
  Frame pneDetails{*this, "pneDetails"};
  Details theDetails;
  SummaryPane::SavedOptions summaryResults;  ///< Saved options
  SummaryPane pneSummary;

  /// The saved options that pneCompare shows: those of the document.
  std::function<const SharedList<SavedOption>&()> savedForCompare;

  ComparePane pneCompare;
  LivePane pneLive;  ///< Sliders, and the plan that follows them
  CustomCropPane pneCustomCrop;
  QuestionPanes questions;   ///< The pages of the menu Explore
  ResultPrinter thePrinter;  ///< Holds the options of the last run and the last shown field

  MainTrendHost trendHost;
  TrendScreens trends;  ///< pneBatchSetup(0) and (1)

  PaneStack panes;

  SavedInputsKeeper inputsKeeper;  ///< Writes the saved inputs
  FarmControls farmControls;
  DocumentKeeper keeper;  ///< The document of the farm on screen, and its steps
  FarmFiles farms;
  GoMenu go;  ///< Leads from page to page

  /// Whether the present action of the user takes place during a run or beside a message box.
  [[nodiscard]] bool isRunning() { return desk().isInsideAction(); }

  /// The farm on screen, for a question about it.
  /// \throws std::invalid_argument if it is not complete, or if a trend is trying values
  /// \throws RunTimeError for a text that is not a number
  [[nodiscard]] Farm farmToExplore();

  /// The farm of a first start without saved inputs.
  [[nodiscard]] const FarmDocument& untouchedFarm() const { return untouched_; }

  /// The text of the saved inputs if they were written now.
  [[nodiscard]] std::string inputsText() const;

  /// Ends a trend setup, and shows the main pane unless it is on show.
  void showMainPane();

  /// Opens the production costs of a crop, or the irrigation costs, unless they are on show.
  void showCosts(const std::string& crop);
  void showPlant();

  /// Asks whether a custom crop of a farm file is to be added to the library, and adds it.
  /// \returns whether it is in the library now
  bool addToLibrary(const std::string& crop, const std::string& text);

  /// Reads the crop library again; a failure is told as a notice.
  void reloadRows();

  /// Loads the window on the first call: reads the crop library and the saved inputs and shows the main pane.
  /// Call it before using the window.
  void touch();

  /// Reads the crop library again and creates a row for each crop.
  /// \throws RunTimeError if there are more crops than the list of rows has room for; the rows exist then
  void loadCropRows();

  void saveInputs();

  /// Loads the saved inputs into the controls, the rows and the plant.
  /// \returns whether they were read completely; the values before an error are used in any case.
  bool loadInputs();

  /// Whether the saved inputs were read completely when the window was loaded.
  [[nodiscard]] bool inputsLoaded() const { return inputsLoaded_; }

  /// Receives the progress of each run in addition to the progress window; nullptr for none. It must outlive
  /// the runs.
  RunHooks* runListener = nullptr;

  /// Evaluates the current inputs. `description` is the second line of the progress window.
  [[nodiscard]] BestMix RunScenario(const std::string& description);

  /// Turns trend processing on or off. Turning it on for the first time shows a notice that explains it,
  /// before touch() is called.
  void EnableBatch(bool on);

  /// Sets the text of the information band. strMainInfo does not change.
  void SetMainInfo(const std::string& text) { lblMainInfo.setCaption(text); }

  void showPane(Frame& pane) { panes.showPane(pane); }

  /// The pane below the top of the history; see PaneStack::popPane().
  [[nodiscard]] Frame& popPane() const { return panes.popPane(); }

  /// Cancels running evaluations and closes all windows.
  void exit();

  /// User action: open a farm file that was dropped on the window, or named at the start of the program.
  void openFarm(const std::filesystem::path& path);

 private:
  void load();
  void wireMenus();
  void wirePanes();
  void wireResults();
  void wireOptions(Results& results);
  void wirePrinting();
  void wireNotices();
  void wireQuestions();
  void wireReport();
  void openReport(const QuestionPane* asked);
  [[nodiscard]] std::vector<ReportPart> reportParts(const FarmDocument& farm, const QuestionPane* asked);
  void wireWishes();
  void wireExports();
  void exportAnswer(const std::string& title, const FarmInputs& inputs,
                    const std::function<std::vector<HandoutSection>()>& answer);
  void tellSaved(const std::string& text, const std::filesystem::path& file, const std::string& about = {});
  void tellNoPlan();
  void markOutdated();
  [[nodiscard]] std::vector<Season> farmSeasons() const;
  void tellSkippedCrops();
  void tellLeftOutCrops();
  void tellUnprinted(const std::string& reason);
  void reloadCropRows();
  void saveTable(const std::filesystem::path& path, std::string_view bytes);
  [[nodiscard]] CropRecord* rowNamed(const std::string& crop) const;
  void Command1_Click();
  [[nodiscard]] std::optional<Farm> enteredFarm() const;
  [[nodiscard]] double plansOfLastRun() const;
  void Command7_Click();
  void goBack();
  void goHome();
  void cmdHelp_Click(int index);

  [[nodiscard]] GeneralInputs enteredInputs() const;
  void wireFarms();
  void wireLosses();
  void wireLive();
  void wireSinceLastRun();

  LossNotices losses_;
  SinceLastRun sinceLastRun_{theResults, pneMain};
  FarmDocument untouched_;
  Services& services_;
  ProgramState& state_;
  SecondaryWindows& windows_;
  ProgramFiles files_;
  bool loaded_ = false;
  bool inputsLoaded_ = false;
  CustomCropNotices customCropNotices_;
  std::vector<SkippedCropFile> toldSkipped_;
  std::size_t toldLeftOut_ = 0;
  std::shared_ptr<QuestionJob> relaxing_;                ///< Looks for wishes to give up
  std::map<const QuestionPane*, FarmInputs> askedWith_;  ///< What each page has asked about
};

}  // namespace verdalis
