#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "controls/Control.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "engine/Wish.h"
#include "screens/wishText.h"

namespace verdalis {

class MainPane;

/// The wishes of a farm on the main pane: a line for each, and fields for another one. It is folded at first.
class WishesCard : public Frame {
 public:
  explicit WishesCard(MainPane& pane);

  Button cmdWishes{*this, "cmdWishes", "Wishes"};  ///< Unfolds the card and folds it again
  Frame wishesBox{*this, "wishesBox"};             ///< Visible if the card is unfolded

  struct Line {
    Line(Frame& box, std::size_t index)
        : lblWish(box, "lblWish(" + std::to_string(index) + ")"),
          cmdRemoveWish(box, "cmdRemoveWish(" + std::to_string(index) + ")", "Remove") {}
    Label lblWish;
    Button cmdRemoveWish;
  };
  std::vector<std::unique_ptr<Line>> lines;  ///< Those of wishes are visible

  // Another wish
  ComboBox cboWishOf{wishesBox, "cboWishOf", ComboBox::Style::list};  ///< A crop, a field or the plan
  ComboBox cboWishHow{wishesBox, "cboWishHow", ComboBox::Style::list};
  ComboBox cboWishWhat{wishesBox, "cboWishWhat", ComboBox::Style::freeText};  ///< A number or a crop
  Label lblWishUnit{wishesBox, "lblWishUnit"};
  Button cmdAddWish{wishesBox, "cmdAddWish", "Add wish"};

  Label lblWishFault{wishesBox, "lblWishFault"};  ///< Why a wish is refused, or what to give up

  [[nodiscard]] bool isUnfolded() const { return wishesBox.visible(); }

  /// Shows the wishes, crops and fields of the pane as they are now.
  void refresh();

  /// Tells why no plan meets all wishes, until they change. Unfolds the card.
  void tell(const std::string& text);

  /// The wish in the fields, as readWish() takes it.
  [[nodiscard]] std::string enteredText() const;

 private:
  [[nodiscard]] bool isOfField() const;
  [[nodiscard]] bool isOfPlan() const;
  [[nodiscard]] bool isOfCrop() const { return !isOfField() && !isOfPlan(); }
  [[nodiscard]] bool asksForCrop() const;
  void fillHow();
  void fillWhat();
  void add();
  void remove(std::size_t index);

  MainPane& pane_;
  std::vector<Wish> shown_;
  std::vector<std::string> chosen_;  ///< The crops in the lists
  std::size_t fields_ = 0;           ///< The fields in the list
};

}  // namespace verdalis
