#include "screens/WishesCard.h"

#include <algorithm>
#include <stdexcept>

#include "screens/MainPane.h"
#include "screens/paneWishes.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

constexpr const char* ofPlan = "The plan";
constexpr const char* isText = "is";
constexpr const char* isNotText = "is not";
constexpr std::size_t mostFields = 4;

/// Replaces the entries of a list. An entry that is still there stays chosen, or else the first one is.
void replaceItems(ComboBox& box, const std::vector<std::string>& items) {
  if (box.items() == items) return;
  const std::string before = box.text();
  box.clear();
  for (const std::string& item : items)
    box.addItem(item);
  const auto same = std::find(items.begin(), items.end(), before);
  if (!items.empty()) box.setIndex(same == items.end() ? 0 : static_cast<int>(same - items.begin()));
}

/// The crops and fields of the pane; without a land split, as many fields as there can be.
WishContext knownOf(const MainPane& pane) {
  if (pane.landSplits.selected() >= 0) return wishContextOf(pane);
  WishContext context;
  for (const auto& row : pane.cr) {
    if (row->Crop && row->isActive()) context.chosen.push_back(row->Crop->cropType);
  }
  context.fields = mostFields;
  return context;
}

}  // namespace

WishesCard::WishesCard(MainPane& pane) : Frame(pane, "wishesCard"), pane_(pane) {
  for (std::size_t i = 0; i < mostWishes; ++i) {
    lines.push_back(std::make_unique<Line>(wishesBox, i));
    lines[i]->cmdRemoveWish.onClick.connect([this, i] { remove(i); });
    lines[i]->lblWish.setVisible(false);
    lines[i]->cmdRemoveWish.setVisible(false);
  }
  wishesBox.setVisible(false);
  cmdWishes.onClick.connect([this] { wishesBox.setVisible(!wishesBox.visible()); });
  cboWishOf.onClick.connect([this] { fillHow(); });
  cboWishHow.onClick.connect([this] { fillWhat(); });
  cmdAddWish.onClick.connect([this] { add(); });
  replaceItems(cboWishOf, {ofPlan});
}

void WishesCard::refresh() {
  const WishContext known = knownOf(pane_);
  if (known.chosen != chosen_ || known.fields != fields_) {
    const bool first = chosen_.empty();
    chosen_ = known.chosen;
    fields_ = known.fields;
    std::vector<std::string> items = chosen_;
    for (std::size_t field = 1; field <= fields_; ++field)
      items.push_back("Field " + std::to_string(field));
    items.emplace_back(ofPlan);
    replaceItems(cboWishOf, items);
    if (first) cboWishOf.setIndex(0);
    fillHow();
  }
  if (pane_.wishes == shown_) return;
  shown_ = pane_.wishes;
  lblWishFault.setCaption("");
  cmdWishes.setCaption(shown_.empty() ? "Wishes" : "Wishes (" + std::to_string(shown_.size()) + ")");
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const bool used = i < shown_.size();
    lines[i]->lblWish.setCaption(used ? wishText(shown_[i]) : "");
    lines[i]->lblWish.setVisible(used);
    lines[i]->cmdRemoveWish.setVisible(used);
  }
  cmdAddWish.setEnabled(shown_.size() < mostWishes);
}

void WishesCard::tell(const std::string& text) {
  refresh();
  wishesBox.setVisible(true);
  lblWishFault.setCaption(text);
}

bool WishesCard::isOfPlan() const {
  return cboWishOf.index() + 1 == static_cast<int>(cboWishOf.items().size());
}

bool WishesCard::isOfField() const {
  return !isOfPlan() && cboWishOf.index() >= static_cast<int>(chosen_.size());
}

bool WishesCard::asksForCrop() const {
  return cboWishHow.text() == isText || cboWishHow.text() == isNotText;
}

void WishesCard::fillHow() {
  std::vector<std::string> items{"at least", "at most"};
  if (isOfField()) items.insert(items.begin(), {isText, isNotText});
  replaceItems(cboWishHow, items);
  fillWhat();
}

void WishesCard::fillWhat() {
  const bool crop = asksForCrop();
  const std::vector<std::string> items = crop ? chosen_ : std::vector<std::string>();
  if (cboWishWhat.items() != items) {
    const std::string typed = cboWishWhat.text();
    replaceItems(cboWishWhat, items);
    if (!crop && std::find(chosen_.begin(), chosen_.end(), typed) == chosen_.end())
      cboWishWhat.setText(typed);
  }
  lblWishUnit.setCaption(crop ? "" : isOfPlan() ? "crops" : isOfField() ? "inches" : "acres");
}

std::string WishesCard::enteredText() const {
  std::string of = cboWishOf.text() + " ";
  if (isOfField()) of.front() = 'f';
  if (isOfPlan()) of.clear();
  const std::string& unit = lblWishUnit.caption();
  return of + cboWishHow.text() + " " + cboWishWhat.text() + (unit.empty() ? "" : " " + unit);
}

void WishesCard::add() {
  try {
    addWish(pane_.wishes, readWish(enteredText(), wishContextOf(pane_)));
    refresh();
    lblWishFault.setCaption("");
  } catch (const RunTimeError& error) {  // no land split
    lblWishFault.setCaption(error.what());
  } catch (const std::invalid_argument& error) {
    lblWishFault.setCaption(error.what());
  }
}

void WishesCard::remove(std::size_t index) {
  if (index >= pane_.wishes.size()) return;
  pane_.wishes.erase(pane_.wishes.begin() + static_cast<std::ptrdiff_t>(index));
  refresh();
}

}  // namespace verdalis
