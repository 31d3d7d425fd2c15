// The pages of the menu Explore in the main window.

#include <algorithm>
#include <array>
#include <stdexcept>

#include "engine/relaxWishes.h"
#include "main/frmMain.h"
#include "questions/QuestionJob.h"
#include "questions/noPlanText.h"
#include "screens/paneWishes.h"
#include "screens/readScenario.h"
#include "text/quote.h"

namespace verdalis {
namespace {

constexpr const char* incomplete =
    "The farm is not complete. Enter the acres, the inches and the rain on the main page, choose how the "
    "land is split, and tick crops.";
constexpr const char* tryingText =
    "A trend tries values in place of those of the farm. Go to the main page first.";

}  // namespace

void frmMain::wireQuestions() {
  const std::array<MenuEntry*, 6> entries{&menus.mnuMixes,   &menus.mnuWater,  &menus.mnuSwitch,
                                          &menus.mnuSeasons, &menus.mnuInputs, &menus.mnuMap};
  const auto pages = questions.all();
  for (std::size_t i = 0; i < pages.size(); ++i) {
    QuestionPane& page = *pages.at(i);
    entries.at(i)->onClick.connect([this, &page] {
      if (isRunning()) return;
      if (pneMain.isShown()) state_.TrendMode = false;  // a trend that was set up has been left
      page.open();
    });
    page.onShowPane.connect([this, &page] { panes.showPassing(page); });
    page.onBack.connect([this] { goBack(); });
    page.onAsked.connect([this, &page] { askedWith_[&page] = keeper.document().inputs; });
  }
  keeper.onChange.connect([this] { markOutdated(); });
}

/// Marks the pages that show an answer for other inputs.
void frmMain::markOutdated() {
  const FarmInputs& now = keeper.document().inputs;
  for (QuestionPane* page : questions.all()) {
    const auto asked = askedWith_.find(page);
    if (asked == askedWith_.end()) continue;
    const bool answers = page->isRunning() || page->chart.chart();
    page->setOutdated(answers && !(asked->second == now));
  }
}

Farm frmMain::farmToExplore() {
  if (farmControls.isTrying()) throw std::invalid_argument(tryingText);
  const bool cropless = std::any_of(pneMain.cr.begin(), pneMain.cr.end(),
                                    [](const auto& row) { return row->isActive() && !row->Crop; });
  if (!pneMain.ready() || cropless || pneMain.landSplits.selected() < 0)
    throw std::invalid_argument(incomplete);
  const WishContext context = wishContextOf(pneMain);
  for (const Wish& wish : pneMain.wishes) {
    if (const auto fault = wishFault(wish, context))
      throw std::invalid_argument("The wish " + quoteForMessage(wishText(wish)) + ": " + *fault);
  }
  Farm farm =
      readFarm(pneMain.scenarioInputs(), cropFiles.cropCollection, *tempIrrigationCosts, state_.FineFactor);
  BestMix().setSize(farm.size);  // fails for a size of 0, as an evaluation does
  return farm;
}

frmMain::~frmMain() {
  if (relaxing_) relaxing_->cancel();
}

void frmMain::wireWishes() {
  desk().onSettled.connect([this] {
    if (pneMain.isShown()) wishesCard.refresh();
  });
}

/// Tells on the main pane that no plan meets the wishes, and then which ones to give up.
void frmMain::tellNoPlan() {
  if (relaxing_) relaxing_->cancel();
  wishesCard.tell(NoPlan({}).what());
  std::shared_ptr<const Farm> farm;
  try {
    farm = std::make_shared<const Farm>(farmToExplore());
  } catch (const std::invalid_argument& error) {  // a wish that no plan can meet
    wishesCard.tell(error.what());
    return;
  }
  const auto wishes = pneMain.wishes;
  const auto work = [this, wishes, farm](ProgramState& state, RunHooks& hooks) -> QuestionJob::Show {
    const auto relaxations = relaxWishes(scenarioOf(*farm), state, hooks);
    if (!relaxations) return nullptr;
    return [this, wishes, text = noPlanText(NoPlan(*relaxations))] {
      if (pneMain.wishes == wishes) wishesCard.tell(text);
    };
  };
  const auto job = std::make_shared<QuestionJob>(work);
  relaxing_ = job;
  services_.background.run([job] { job->run(); },
                           [job] {
                             if (!job->isCancelled() && job->show()) job->show()();
                           });
}

std::vector<Season> frmMain::farmSeasons() const {
  std::vector<Season> seasons;
  for (const DocumentSeason& season : keeper.document().seasons)
    seasons.push_back({season.name, season.rain, season.weight});
  return seasons;
}

}  // namespace verdalis
