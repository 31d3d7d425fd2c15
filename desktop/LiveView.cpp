#include "desktop/LiveView.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/ChartView.h"
#include "desktop/Keys.h"
#include "desktop/Page.h"
#include "desktop/TableView.h"
#include "desktop/Theme.h"

namespace verdalis::desktop {
namespace {

constexpr int slidersWidth = 380;
constexpr int planLines = 5;  // with the headings
constexpr int fewestFields = 2;
constexpr int lineHeight = 24;
constexpr int leastMap = 200;

/// A slider with a mark at the present value.
class MarkedSlider : public QSlider {
 public:
  explicit MarkedSlider(int mark) : QSlider(Qt::Horizontal), mark_(mark) {
    setFocusPolicy(Qt::StrongFocus);
    setMinimumHeight(scaled(22));
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const int span = width() - handle.width();
    const int x = handle.width() / 2 + QStyle::sliderPositionFromValue(minimum(), maximum(), mark_, span);
    QPainter painter(this);
    painter.setPen(QPen(accents(schemeOf(palette())).water, 2));
    painter.drawLine(x, 1, x, height() - 2);
    painter.end();
    QSlider::paintEvent(event);
  }

 private:
  int mark_;
};

class LiveView : public QWidget {
 public:
  LiveView(LivePane& pane, Binder& binder) : pane_(pane), binder_(binder) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    const PageWithButtons view = pageWithButtons();
    layout->addWidget(view.widget);
    view.body->addWidget(sizedLabel(fixedLabel(plain(pane_.caption()), "heading")));
    view.body->addWidget(wrapped(binder_, pane_.lblLiveAbout, "muted"));
    auto* columns = new QHBoxLayout;
    columns->setSpacing(12);
    const Card left = card(tr("What if"));
    sliders_ = left.body;
    ground_ = new QWidget;
    sliders_->addWidget(ground_);
    sliders_->addWidget(fixedLabel(tr("The blue mark is your farm now."), "muted"));
    sliders_->addStretch();
    left.frame->setFixedWidth(scaled(slidersWidth));
    columns->addWidget(left.frame);
    auto* right = new QVBoxLayout;
    right->setSpacing(12);
    right->addWidget(planCard());
    const Card map = card();
    auto* chart = new ChartView;
    chart->setMinimumHeight(scaled(leastMap));
    map.body->addWidget(binder_.bind(pane_.chtLive, chart, tr("Which mix wins")), 1);
    right->addWidget(map.frame, 1);
    columns->addLayout(right, 1);
    view.body->addLayout(columns, 1);
    back_ = binder_.bind(pane_.cmdBack, new QPushButton);
    reset_ = binder_.bind(pane_.cmdReset, new QPushButton);
    takeOver_ = new QPushButton;
    setRole(takeOver_, "main");
    binder_.bind(pane_.cmdTakeOver, takeOver_);
    takeOver_->setToolTip(tr("Put these values into the main page; Undo takes them back"));
    view.buttons->addWidget(back_);
    view.buttons->addStretch();
    view.buttons->addWidget(reset_);
    view.buttons->addWidget(takeOver_);
    addShortcut(binder_, this, QKeySequence(Qt::Key_Escape), pane_.cmdBack);
    changes_ = pane_.onSliders.connectScoped([this] { rebuildSliders(); });
    binder_.alsoWatch(pane_.lblLiveDistance, [this] { showLoss(); });
    rebuildSliders();
  }

 private:
  QWidget* planCard() {
    const Card plan = card(tr("Best plan"));
    auto* table = binder_.bind(pane_.tblLive, new TableView, tr("Best plan"));
    table->setFixedHeight(planLines * scaled(lineHeight));
    // Other farms have fewer fields, and the map takes the room.
    binder_.alsoWatch(pane_.tblLive, [this, table] {
      const auto fields = static_cast<int>(pane_.tblLive.places());
      if (fields > 0) table->setFixedHeight((std::max(fields, fewestFields) + 1) * scaled(lineHeight));
    });
    plan.body->addWidget(table);
    plan.body->addWidget(wrapped(binder_, pane_.lblLiveFault, "caution"));
    auto* total = new QHBoxLayout;
    total->addStretch();
    total->addWidget(
        binder_.bind(pane_.lblLiveProfit, sizedLabel(figureLabel("figure"), 1.8), tr("Net return per acre")));
    total->addSpacing(12);
    total->addWidget(binder_.bind(pane_.lblLiveFarm, fixedLabel({}, "muted"), tr("Net return of the farm")));
    plan.body->addLayout(total);
    auto* against = new QHBoxLayout;
    against->addStretch();
    distance_ = binder_.bind(pane_.lblLiveDistance, fixedLabel({}, "title"), tr("Against now"));
    against->addWidget(distance_);
    against->addSpacing(12);
    against->addWidget(binder_.bind(pane_.lblLiveNow, fixedLabel({}, "muted")));
    plan.body->addLayout(against);
    plan.body->addStretch();
    return plan.frame;
  }

  void rebuildSliders() {
    sliders_->removeWidget(ground_);
    delete ground_;  // the controls of its sliders may be gone by now
    ground_ = new QWidget;
    sliders_->insertWidget(1, ground_);
    auto* grid = new QGridLayout(ground_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(2);
    QWidget* before = nullptr;
    int line = 0;
    for (const auto& slider : pane_.sliders) {
      grid->addWidget(binder_.bind(slider->lblInput, fixedLabel({})), line, 0);
      auto* value = figureLabel("figure");
      grid->addWidget(binder_.bind(slider->lblValue, value), line, 1);
      auto* bar =
          binder_.bind(slider->bar, new MarkedSlider(slider->mark), plain(slider->lblInput.caption()));
      grid->addWidget(bar, line + 1, 0, 1, 2);
      grid->setRowMinimumHeight(line + 2, scaled(4));
      line += 3;
      if (before != nullptr) setTabOrder(before, bar);
      before = bar;
    }
    if (before != nullptr) {
      setTabOrder(before, back_);
      setTabOrder(back_, reset_);
      setTabOrder(reset_, takeOver_);
    }
  }

  void showLoss() {
    setRole(distance_, pane_.isLoss() ? "loss" : "gain");
    distance_->style()->unpolish(distance_);
    distance_->style()->polish(distance_);
  }

  LivePane& pane_;
  Binder& binder_;
  QVBoxLayout* sliders_ = nullptr;
  QWidget* ground_ = nullptr;
  QLabel* distance_ = nullptr;
  QPushButton* back_ = nullptr;
  QPushButton* reset_ = nullptr;
  QPushButton* takeOver_ = nullptr;
  Connection changes_;
};

}  // namespace

QWidget* liveView(LivePane& pane, Binder& binder) {
  return new LiveView(pane, binder);
}

}  // namespace verdalis::desktop
