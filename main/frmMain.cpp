#include "main/frmMain.h"

#include <utility>

#include "controls/ask.h"
#include "data/CustomCropFile.h"
#include "data/SavedInputs.h"
#include "data/SavingFolder.h"
#include "data/StockDefaults.h"
#include "data/writeFile.h"
#include "document/savedOption.h"
#include "main/SavedInputsControls.h"
#include "platform/fileAccess.h"
#include "screens/RunScenario.h"
#include "screens/modInputTest.h"
#include "screens/readScenario.h"
#include "screens/wishText.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/quote.h"

namespace verdalis {
namespace {

constexpr const char* standardMainInfo =
    "This program evaluates all possible combinations of water distribution over specified land divisions "
    "and the "
    "crop production outcome associated with the water use.";

constexpr const char* trendNotice =
    "Trend processing is now enabled.  This is completely optional and VDL will still run normally.\n"
    "To make use of the trend processing options, select 'Run variable trend process' from the Tools menu\n"
    " or click 'Run Fixed Trend Process' after you execute a normal VDL evaluation.\n"
    "Disable trend processing by unchecking it in the Tools menu.";

}  // namespace

frmMain::frmMain(Desk& desk, Services& services, ProgramState& state, SecondaryWindows& windows,
                 ProgramFiles files)
    : Window(desk, "frmMain", Scope::transparent),
      cropFiles(files.home),
      pneMain(*this, services, tempIrrigationCosts),
      pneInputCosts(*this, services),
      pneIrrigCosts(*this, services, tempIrrigationCosts),
      theResults(pneResults, "theResults", services, state),
      theDetails(pneDetails, "theDetails", state),
      pneSummary(
          *this, services, summaryResults,
          {[this] { return pneMain.txtAnnRain.text(); },
           [this](const std::filesystem::path& path, std::string_view bytes) { saveTable(path, bytes); }}),
      savedForCompare([this]() -> const SharedList<SavedOption>& { return keeper.document().saved; }),
      pneCompare(*this, services, [this]() -> const SharedList<SavedOption>& { return savedForCompare(); }),
      pneLive(*this, services, [this] { return farmToExplore(); }),
      pneCustomCrop(*this, services, files.home / "crops" / "custom"),
      questions(
          *this, services, [this] { return farmToExplore(); }, [this] { return farmSeasons(); }),
      thePrinter(services.printer,
                 {[this] {
                    return ReportedFarm{
                        pneMain.txtArea.text(), pneMain.txtEff.text(), pneMain.txtAnnRain.text(),
                        pneMain.txtMax.text(),  state_.cs.toString(),  wishTexts(pneMain.wishes),
                        pneMain.mixes};
                  },
                  [this] { return services_.clock.now(); },
                  [this](const std::string& reason) { tellUnprinted(reason); }}),
      trendHost(*this, windows, services.eventPump, files.home),
      trends(*this, services, state, trendHost),
      inputsKeeper(files.inputs, notices,
                   {[this](const std::string& name) {
                      const CropRecord* const row = rowNamed(name);
                      return row == nullptr ? nullptr : row->Crop;
                    },
                    [this](const Crop& crop) {
                      for (const auto& row : pneMain.cr) {
                        if (row->Crop.get() == &crop) row->refresh();
                      }
                    }}),
      farmControls(
          {*this, pneMain, pneIrrigCosts, *tempIrrigationCosts, state, trends, cropFiles, summaryResults}),
      keeper(desk, farmControls),
      farms(*this, services, keeper, farmControls, files.state, files.recovers),
      go(*this, state, windows),
      losses_(desk, keeper, notices),
      services_(services),
      state_(state),
      windows_(windows),
      files_(std::move(files)),
      customCropNotices_(pneCustomCrop, notices, inputsKeeper) {
  setCaption(defaultTitle);
  for (Frame* pane : std::initializer_list<Frame*>{&pneMain, &pneInputCosts, &pneIrrigCosts, &pneResults,
                                                   &pneDetails, &pneSummary, &pneCompare, &pneCustomCrop,
                                                   &trends.pneBatchSetup0, &trends.pneBatchSetup1}) {
    panes.addPane(*pane);
  }
  for (QuestionPane* page : questions.all())
    panes.addPane(*page);
  onCloseByUser = [this] { exit(); };
  wireMenus();
  wirePanes();
  wireResults();
  wirePrinting();
  wireNotices();
  wireFarms();
  wireLosses();
  wireSinceLastRun();
  wireLive();
  wireQuestions();
  wireReport();
  wireWishes();
  wireExports();
  desk.onSettled.connect([this] {
    if (pneMain.visible()) pneMain.showHints(state_.FineFactor);
  });
}

void frmMain::touch() {
  if (loaded_) return;
  loaded_ = true;
  load();
}

void frmMain::load() {
  showPane(pneMain);
  strMainInfo = standardMainInfo;
  pneMain.currentSoil = "Silt Loam";
  pneMain.txtSoil.setText(pneMain.currentSoil);
  clearLeftovers(files_.home);
  try {
    loadCropRows();
  } catch (const RunTimeError& error) {
    // The start continues with the rows created so far.
    if (!desk().onRunTimeError) throw;
    desk().onRunTimeError(error);
  }
  untouched_ = farmControls.read({});
  inputsLoaded_ = loadInputs();
  inputsKeeper.offerKept();
  if (TrendEnabled) TrendNoticeShown = true;
  EnableBatch(TrendEnabled);
  state_.FineFactor = 10;
  trends.pneBatchSetup0.cboCrops.setIndex(0);
  SetMainInfo(strMainInfo);
  pneCustomCrop.fillLists();
  untouched_.trend = farmControls.read({}).trend;
  keeper.start();
  farms.start();
  pneMain.showHints(state_.FineFactor);
}

void frmMain::loadCropRows() {
  pneMain.unloadRows();
  try {
    cropFiles.Initialize();
    tellSkippedCrops();
  } catch (const RunTimeError&) {
    pneMain.InitializeCropFrame();  // for the one row that is left
    throw;
  }
  const CropScenario& crops = cropFiles.cropCollection;
  for (long i = 0; i < crops.Count(); ++i) {
    const std::shared_ptr<Crop>& crop = crops.Item(i + 1);
    CropRecord& row = pneMain.row(static_cast<std::size_t>(i));
    row.loadInfo(crop->cropType, "$/" + lowerCase(crop->cropUnitsArray[0]), "$/ac", crop->cropUnitsArray[1]);
    row.Crop = crop;
    // The list is never cleared here, so each reload adds the names again.
    trends.pneBatchSetup0.cboCrops.addItem(crop->cropType);
  }
  pneMain.InitializeCropFrame();
}

GeneralInputs frmMain::enteredInputs() const {
  GeneralInputs inputs;
  inputs.annualRain = pneMain.txtAnnRain.text();
  inputs.irrigEff = pneMain.txtEff.text();
  const int index = pneMain.landSplits.selected();
  inputs.splitIndex = index < 0 ? "" : std::to_string(index);
  inputs.totalAcres = pneMain.txtArea.text();
  inputs.waterAllocation = pneMain.txtMax.text();
  return inputs;
}

std::string frmMain::inputsText() const {
  return savedInputsText(enteredInputs(), *tempIrrigationCosts, cropFiles.cropCollection, TrendEnabled);
}

void frmMain::saveInputs() {
  if (!files_.savesInputs) return;
  generalInputs = enteredInputs();
  const std::string text = inputsText();
  // A file that cannot be written must not stop the run.
  if (inputsKeeper.save(text)) farms.inputsSaved(text);
}

bool frmMain::loadInputs() {
  SavedInputsControls target(*this);
  return verdalis::loadInputs(files_.inputs, target);
}

BestMix frmMain::RunScenario(const std::string& description) {
  pneMain.lblNumber.setCaption("");
  for (const auto& row : pneMain.cr) {
    if (row->Crop || !row->isActive()) continue;
    throw RunTimeError(ErrorNumber::subscript,
                       "A row that is ticked has no crop to evaluate. Check the folder of crops.");
  }
  ProgressHooks hooks(windows_.updating(), services_.eventPump, runListener);
  return verdalis::RunScenario(pneMain.scenarioInputs(), cropFiles.cropCollection, tempIrrigationCosts,
                               state_, hooks, description);
}

void frmMain::EnableBatch(bool on) {
  if (on && !TrendNoticeShown) {
    ask(desk(), services_.messageBox,
        {"Trend processing enabled", trendNotice, MessageKind::notice, MessageIcon::information});
    TrendNoticeShown = true;
  }
  TrendEnabled = on;
  touch();
  menus.mnuFallBatch.setEnabled(on);
  menus.mnuEnableBatch.setChecked(on);
  theResults.EnableBatch(on);
  trends.pneBatchSetup1.theBatchResults.EnableBatch(on);
  pneMain.pnlBatchInstructions.setVisible(on);
  if (!on) showPane(pneMain);
}

void frmMain::exit() {
  if (!farms.mayExit()) return;
  state_.CancelRequested = true;
  windows_.closeAll();
  close();
}

void frmMain::openFarm(const std::filesystem::path& path) {
  act([&] { farms.openFile(path); }, false);
}

void frmMain::wireMenus() {
  menus.mnuExit.onClick.connect([this] { exit(); });
  menus.mnuEnableBatch.onClick.connect([this] { EnableBatch(!menus.mnuEnableBatch.checked()); });
  menus.mnuFallBatch.onClick.connect([this] {
    farmControls.foundWith = keeper.document().inputs;
    trends.mnuFallBatch_Click();
  });
  menus.mnuSummary.onClick.connect([this] { pneSummary.showSummary(); });
  menus.mnuOptions.onClick.connect([this] { windows_.options().show(); });
  menus.mnuCustomCrop.onClick.connect([this] { pneCustomCrop.open(); });
  menus.mnuAboutVDL.onClick.connect([this] { windows_.about().open(); });
  menus.mnuHelp.onClick.connect([this] { showHelpTopic(services_.help, "index.htm"); });
}

void frmMain::wirePanes() {
  const auto help = [this](int index) { cmdHelp_Click(index); };
  const auto applied = [this] { goHome(); };
  pneMain.onRun.connect([this] { Command1_Click(); });
  pneMain.onDefaults.connect([this] { Command7_Click(); });
  pneMain.onIrrigation.connect([this] {
    showPane(pneIrrigCosts);
    pneIrrigCosts.open();
  });
  pneMain.onInputCosts.connect([this](CropRecord& row) {
    if (row.Crop) showPane(pneInputCosts);
    pneInputCosts.open(row.Crop);  // throws if there is no crop
  });
  pneMain.onHelp.connect(help);
  pneInputCosts.onHelp.connect(help);
  pneInputCosts.onBack.connect([this] { goBack(); });
  pneInputCosts.onApplied.connect(applied);
  pneIrrigCosts.onHelp.connect(help);
  pneIrrigCosts.onBack.connect([this] { goBack(); });
  pneIrrigCosts.onApplied.connect(applied);
  pneIrrigCosts.areaText = [this] { return pneMain.txtArea.text(); };
  trends.pneBatchSetup0.onHelp.connect(help);
  pneCustomCrop.onHelp.connect(help);
  pneCustomCrop.loadCropRows = [this] { reloadCropRows(); };
  pneCustomCrop.onShowPane.connect([this] { showPane(pneCustomCrop); });
  // Unlike goHome(), this keeps the text of the information band.
  pneCustomCrop.onBackHome.connect([this] { showPane(pneMain); });
}

void frmMain::wireResults() {
  wireOptions(theResults);
  wireOptions(trends.pneBatchSetup1.theBatchResults.theResults);
  theDetails.onBack.connect([this](Details::BackTo to) {
    if (to == Details::BackTo::trendResults || go.isAtTrendResults()) {
      showPane(trends.pneBatchSetup1);
    } else {
      showPane(pneResults);
    }
  });
  pneSummary.onShowPane.connect([this] { showPane(pneSummary); });
  pneSummary.onBack.connect([this] { goBack(); });
  pneSummary.onCompare.connect([this] { pneCompare.open(); });
  pneCompare.onShowPane.connect([this] { panes.showPassing(pneCompare); });
  pneCompare.onBack.connect([this] { goBack(); });
}

void frmMain::wireOptions(Results& results) {
  results.onBack.connect([this](Results::BackTo to) {
    if (to == Results::BackTo::trendSetup) {
      showPane(trends.pneBatchSetup0);
    } else {
      goHome();
    }
    menus.mnuPrint.setEnabled(false);
  });
  results.onSaveOption.connect([this](const Results::Option& option) { summaryResults.push_back(option); });
  results.onBatchThis.connect([this](const Results::Option& option) { trends.cmdBatchThis_Click(option); });
  results.onDetails.connect([this](const std::shared_ptr<Field>& field) {
    theDetails.loadCosts(*field);  // if this throws, the options stay visible
    showPane(pneDetails);
  });
  results.onHelpTopic.connect([this](const std::string& topic) { showHelpTopic(services_.help, topic); });
  results.onHelpNote.connect([this](const std::string& text, const std::string& title, int height) {
    showHelpNote(windows_.help(), text, title, height);
  });
}

void frmMain::wirePrinting() {
  const auto printResults = [this] {
    const Desk::Modal modal(desk());
    thePrinter.printResults();
  };
  const auto printDetails = [this] {
    const Desk::Modal modal(desk());
    thePrinter.printDetails();
  };
  menus.mnuPrint.onClick.connect([this, printResults, printDetails] {
    if (pneDetails.visible()) {
      printDetails();
    } else {
      printResults();
    }
  });
  theResults.onPrint.connect(printResults);
  trends.pneBatchSetup1.theBatchResults.theResults.onPrint.connect(printResults);
  theDetails.onPrint.connect(printDetails);
  theDetails.onFieldLoaded.connect([this](const Field& field) {
    thePrinter.setField(field);
    menus.mnuPrint.setEnabled(true);
  });
}

void frmMain::Command1_Click() {
  state_.TrendMode = false;
  if (!pneMain.ready()) {
    ask(desk(), services_.messageBox,
        {"Error", "Please enter all of the necessary information before continuing!", MessageKind::refusal,
         MessageIcon::exclamation});
    return;
  }
  saveInputs();
  farmControls.foundWith = keeper.document().inputs;
  const std::optional<Farm> farm = enteredFarm();
  BestMix best = RunScenario("");
  if (best.getSize() == 0) return;
  // Seconds since midnight and not the duration of the run: the label has always shown this.
  pneMain.lblNumber.setCaption("This took " + std::to_string(services_.clock.now().secondsSinceMidnight()) +
                               " seconds");
  const std::vector<Results::Option> options = best.returnCollection(true);
  const bool noPlan = !pneMain.wishes.empty() && options.front()->isNew;
  if (!noPlan) showPane(pneResults);
  theResults.ShowBatchedVariables(false);
  theResults.EnableBatch(TrendEnabled);
  theResults.plansCompared = plansOfLastRun();
  theResults.evaluatedFarm = farm;
  theResults.loadResults(options);
  sinceLastRun_.runEnded(farmControls.foundWith);
  // Packed again: the first packing may have brought new duplicates together. Then the report lists fewer
  // options than the screen.
  thePrinter.setCollection(best.returnCollection(true));
  menus.mnuPrint.setEnabled(!noPlan);
  if (noPlan) tellNoPlan();
}

/// Nothing for inputs that a run refuses: it tells why by itself.
std::optional<Farm> frmMain::enteredFarm() const {
  try {
    return readFarm(pneMain.scenarioInputs(), cropFiles.cropCollection, *tempIrrigationCosts,
                    state_.FineFactor);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

double frmMain::plansOfLastRun() const {
  const double undivided = pneMain.chkNoSplit.checked() ? static_cast<double>(state_.cs.Count()) : 0;
  return static_cast<double>(state_.waterSplits) * static_cast<double>(state_.cropCombinations) + undivided;
}

void frmMain::Command7_Click() {
  for (const auto& row : pneMain.cr) {
    if (!row->Crop) continue;
    const std::string name = lowerCase(row->GetCrop());
    if (const StockPrice* price = defaultPrice(name)) row->setDefault(price->price, price->maxYield);
    loadDefaultCosts(name, row->Crop->inputCosts);
  }
  loadDefaultPlant(*tempIrrigationCosts);
  pneIrrigCosts.showDefaults();
}

void frmMain::wireFarms() {
  for (const Control* control : std::initializer_list<const Control*>{
           &pneMain.Command1, &pneMain.Command8, &menus.mnuFallBatch, &theResults.cmdBatchThis,
           &trends.pneBatchSetup1.theBatchResults.theResults.cmdBatchThis,
           &trends.pneBatchSetup0.cmdBatchIt}) {
    keeper.ignore(*control);
  }
  keeper.ignore("cmdInputCosts");
  pneCompare.optionToPrice = [this](const SavedOption& saved) -> FieldCollection& {
    return *optionOf(saved, cropFiles.cropCollection);
  };
  farmControls.tellCaution = [this](const Message& message) {
    notices.tell({.text = message.text, .about = message.title});
  };
  pneCustomCrop.onDeleted.connect(
      [this](const FormerCustomCrop& crop) { farmControls.deletedCrops.insert(crop.name); });
  pneCustomCrop.onSaved.connect([this](const CustomCropEntry& crop) {
    farmControls.deletedCrops.erase(crop.name);
    // What is saved in the editor is meant to be used, also where the farm has brought its own table.
    std::erase_if(cropFiles.farmCrops, [&](const auto& own) { return own.name == crop.name; });
  });
  farms.onTake.connect([this] { go.forgetResults(); });
  menus.mnuNew.onClick.connect([this] { farms.newFarm(); });
  menus.mnuOpen.onClick.connect([this] { farms.open(); });
  for (std::size_t i = 0; i < menus.mnuRecent.size(); ++i)
    menus.mnuRecent[i]->onClick.connect([this, i] { farms.openRecent(i); });
  menus.mnuSave.onClick.connect([this] { farms.save(); });
  menus.mnuSaveAs.onClick.connect([this] { farms.saveAs(); });
  menus.mnuUndo.onClick.connect([this] { farms.undo(); });
  menus.mnuRedo.onClick.connect([this] { farms.redo(); });
  menus.mnuNotes.onClick.connect([this] {
    const FarmDocument& farm = keeper.document();
    windows_.notes().show({farm.name, farm.notes, farm.letterhead});
  });
  windows_.onCreated.connect([this](Window& window) {
    auto* const notes = dynamic_cast<frmNotes*>(&window);
    if (notes == nullptr) return;
    notes->onApplied.connect([this](const frmNotes::Texts& texts) {
      keeper.change([&](FarmDocument& farm) {
        farm.name = texts.name;
        farm.notes = texts.notes;
        farm.letterhead = texts.letterhead;
      });
    });
  });
}

void frmMain::wireLosses() {
  losses_.undo = [this] { farms.undo(); };
  const auto crops = [](const UndoStep& step, const std::string& what) {
    const std::size_t count = cropsReplaced(step);
    if (count == 0) return std::string();
    return "Prices, yields and costs of " + std::to_string(count) + (count == 1 ? " crop" : " crops") +
           " were " + what + ".";
  };
  losses_.watch(pneMain.Command7, [crops](const UndoStep& step) {
    const std::string text = crops(step, "replaced by default values");
    if (!text.empty() || !plantReplaced(step)) return text;
    return std::string("The irrigation costs were replaced by default values.");
  });
  for (const Control* control : std::initializer_list<const Control*>{
           &pneCustomCrop.cmdCustomGrid2, &pneCustomCrop.cmdCustomGrid5, &pneCustomCrop.cmdCustomGrid6}) {
    losses_.watch(*control, [crops](const UndoStep& step) { return crops(step, "cleared"); });
  }
  for (const Control* control : std::initializer_list<const Control*>{
           &trends.pneBatchSetup0.Command10, &menus.mnuGoMain, &menus.mnuGoResults}) {
    losses_.watch(*control, [](const UndoStep&) {
      return std::string("The inputs were read again as they were saved before the trend.");
    });
  }
  losses_.watchSavedOptions();
  const std::string cleared = "The values on this page were cleared.";
  const std::string defaults = "The values on this page were replaced by default values.";
  losses_.watchPage(pneInputCosts.Command13, pneInputCosts, cleared);
  losses_.watchPage(pneInputCosts.cmdDefault, pneInputCosts, defaults);
  losses_.watchPage(pneIrrigCosts.Command4, pneIrrigCosts, cleared);
  losses_.watchPage(pneIrrigCosts.cmdDefaultIrrigCosts, pneIrrigCosts, defaults);
}

void frmMain::wireSinceLastRun() {
  const auto follow = [this] {
    if (pneResults.visible()) sinceLastRun_.follow(keeper.document().inputs);
  };
  pneResults.onStateChange.connect(follow);
  keeper.onChange.connect(follow);
  desk().onSettled.connect([this] {
    if (pneMain.visible() && sinceLastRun_.hasRun()) sinceLastRun_.mark(keeper.document().inputs);
  });
  farms.onTake.connect([this] { sinceLastRun_.forget(); });
}

void frmMain::showMainPane() {
  state_.TrendMode = false;
  if (&panes.top() != &pneMain) goHome();
}

void frmMain::showCosts(const std::string& crop) {
  const std::shared_ptr<Crop> found = pneMain.findCropByName(crop);
  if (!found) {
    showMainPane();
    return;
  }
  if (&panes.top() != &pneInputCosts) showPane(pneInputCosts);
  pneInputCosts.open(found);
}

void frmMain::showPlant() {
  if (&panes.top() != &pneIrrigCosts) showPane(pneIrrigCosts);
  pneIrrigCosts.open();
}

bool frmMain::addToLibrary(const std::string& crop, const std::string& text) {
  const MessageAnswer answer =
      ask(desk(), services_.messageBox,
          {"Custom crop",
           "This farm brings the custom crop " + quoteForMessage(crop) +
               ", which is not among your crops. Add it to your crops?\nWith No it is used only while "
               "this farm is open.",
           MessageKind::question, MessageIcon::question, MessageButtons::yesNo});
  if (answer != MessageAnswer::yes) return false;
  try {
    const std::filesystem::path folder = files_.home / "crops" / "custom";
    static_cast<void>(makeFolder(folder));
    writeFile(freeCropPath(folder, crop), text);
    return true;
  } catch (const RunTimeError& error) {
    notices.tell({.text = "The custom crop " + quoteForMessage(crop) + " could not be added. " +
                          error.what() + " It is used while this farm is open."});
    return false;
  }
}

void frmMain::reloadRows() {
  try {
    reloadCropRows();
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): a notice tells it
  }
  pneCustomCrop.scanCustomCrops();
  pneCustomCrop.listCustomCrops();
}

void frmMain::goHome() {
  showPane(pneMain);
  SetMainInfo(strMainInfo);
}

void frmMain::goBack() {
  showPane(popPane());
  SetMainInfo(strMainInfo);
}

void frmMain::cmdHelp_Click(int index) {
  for (const HelpAction& action : helpActions()) {
    if (action.index != index) continue;
    if (!action.topic.empty()) showHelpTopic(services_.help, action.topic);
    if (!action.note.text.empty()) {
      showHelpNote(windows_.help(), action.note.text, action.note.title, action.note.height);
    }
  }
}

}  // namespace verdalis
