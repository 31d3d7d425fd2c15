#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "charts/Drawing.h"
#include "controls/Control.h"

namespace verdalis {

/// Shows the pages of a report, one at a time, as they will be on paper.
class PageBox : public Control {
 public:
  using Pages = std::shared_ptr<const std::vector<Drawing>>;

  PageBox(Frame& container, std::string name) : Control(ControlKind::PageBox, container, std::move(name)) {}

  /// The pages; nullptr for none.
  [[nodiscard]] const Pages& pages() const { return pages_; }
  [[nodiscard]] std::size_t count() const { return pages_ ? pages_->size() : 0; }

  /// Replaces the pages. The page on show stays, or becomes the last.
  void setPages(Pages pages) {
    pages_ = std::move(pages);
    page_ = std::min(page_, std::max<std::size_t>(count(), 1) - 1);
    changed();
  }

  /// The page on show, from 0.
  [[nodiscard]] std::size_t page() const { return page_; }

  /// Shows a page; one that does not exist is ignored.
  void setPage(std::size_t page) {
    if (page >= count() || page == page_) return;
    page_ = page;
    changed();
  }

 private:
  Pages pages_;
  std::size_t page_ = 0;
};

}  // namespace verdalis
