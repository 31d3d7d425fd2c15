#pragma once

#include <QWidget>

#include "controls/PageBox.h"
#include "desktop/PagePainter.h"

namespace verdalis::desktop {

/// Shows a page of a report on white paper, as large as there is room.
class PageView : public QWidget {
  Q_OBJECT

 public:
  explicit PageView(QWidget* parent = nullptr);

  /// Shows a page; nothing if there is no such page.
  void setPage(PageBox::Pages pages, std::size_t page);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PageMeasure measure_;
  PageBox::Pages pages_;
  std::size_t page_ = 0;
};

}  // namespace verdalis::desktop
