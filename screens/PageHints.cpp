#include "screens/PageHints.h"

#include <utility>

namespace verdalis {

PageHints::PageHints(Frame& page, Label& label) : page_(page), label_(label) {
  acts_ = page_.desk().onSettled.connectScoped([this] {
    if (page_.visible()) refresh();
  });
}

void PageHints::add(const TextBox& box, const std::string& what, bool isWhole) {
  fields_.push_back({&box, what, isWhole, {}, {}});
}

void PageHints::refresh() {
  std::vector<FieldHint> hints;
  for (Followed& field : fields_) {
    if (field.text != field.box->text()) {
      field.text = field.box->text();
      field.hint = readingHint(field.what, field.text, field.isWhole);
    }
    if (field.hint && field.box->isShown()) hints.push_back({field.box, *field.hint});
  }
  if (hints == hints_) return;
  hints_ = std::move(hints);
  label_.setCaption(hints_.empty() ? std::string() : hints_.front().text);
  onHints();
}

}  // namespace verdalis
