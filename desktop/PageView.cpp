#include "desktop/PageView.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/Page.h"

namespace verdalis::desktop {

PageView::PageView(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PageView::setPage(PageBox::Pages pages, std::size_t page) {
  pages_ = std::move(pages);
  page_ = page;
  update();
}

QSize PageView::sizeHint() const {
  return {scaled(560), scaled(720)};
}

QSize PageView::minimumSizeHint() const {
  return {scaled(300), scaled(380)};
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
  if (!pages_ || page_ >= pages_->size()) return;
  const Drawing& page = (*pages_)[page_];
  constexpr double around = 6;
  const double factor = std::min((width() - 2 * around) / page.width, (height() - 2 * around) / page.height);
  if (factor <= 0) return;
  const QSizeF paper(page.width * factor, page.height * factor);
  const QPointF corner(std::round((width() - paper.width()) / 2),
                       std::round((height() - paper.height()) / 2));
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(QRectF(corner + QPointF(2, 3), paper), QColor(0, 0, 0, 60));
  painter.fillRect(QRectF(corner, paper), Qt::white);
  painter.setClipRect(QRectF(corner, paper));
  painter.translate(corner);
  painter.scale(factor, factor);
  paintPage(painter, page, measure_);
}

}  // namespace verdalis::desktop
