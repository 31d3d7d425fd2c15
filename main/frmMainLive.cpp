#include "main/frmMain.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// The document with values of the page Live in place of those on screen.
FarmDocument withValues(FarmDocument document, const LivePane::Values& values) {
  FarmInputs& inputs = document.inputs;
  for (const auto& [input, value] : values) {
    const std::string text = generalText(value);
    switch (input.kind) {
      case FarmInput::Kind::water:
        inputs.farm.txtMax = text;
        break;
      case FarmInput::Kind::rain:
        inputs.farm.txtAnnRain = text;
        break;
      case FarmInput::Kind::efficiency:
        inputs.farm.txtEff = text;
        break;
      case FarmInput::Kind::fuel:
        inputs.plant.plant.cost = value;
        break;
      case FarmInput::Kind::price:
      case FarmInput::Kind::maxYield: {
        SharedList<DocumentCrop> crops;
        for (const auto& crop : inputs.crops) {
          if (crop->name != input.crop) {
            crops.add(crop);
            continue;
          }
          DocumentCrop changed = *crop;
          if (input.kind == FarmInput::Kind::price) {
            changed.price = text;
            changed.priceInForce.reset();
          } else {
            changed.maxYield = text;
            changed.maxYieldInForce.reset();
          }
          crops.add(std::move(changed));
        }
        inputs.crops = std::move(crops);
        break;
      }
    }
  }
  return document;
}

}  // namespace

void frmMain::wireLive() {
  panes.addPane(pneLive);
  menus.mnuLive.onClick.connect([this] {
    if (!isRunning()) pneLive.open();
  });
  pneLive.onShowPane.connect([this] { panes.showPassing(pneLive); });
  pneLive.onBack.connect([this] { goBack(); });
  pneLive.onTakeOver.connect([this](const LivePane::Values& values) {
    keeper.replace(withValues(keeper.document(), values), "Values from Live");
    showMainPane();
  });
}

}  // namespace verdalis
