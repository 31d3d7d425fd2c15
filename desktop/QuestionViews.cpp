#include "desktop/QuestionViews.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>
#include <array>

#include "desktop/ChartView.h"
#include "desktop/Keys.h"
#include "desktop/TableView.h"

namespace verdalis::desktop {
namespace {

constexpr int widest = 1500;  // pixels at the default font size, as all lengths here
constexpr int leastChart = 220;
constexpr int progressWidth = 180;
constexpr int inputListWidth = 220;
constexpr int seasonNameWidth = 115;
constexpr int seasonsInALine = 3;
constexpr double amountScale = 1.25;
constexpr int betweenTicks = 100;  // milliseconds

/// The room of the chart beside that of the figures and the table.
struct Shares {
  int chart;
  int table;
};
constexpr Shares narrowTable{5, 3};
constexpr Shares wideTable{4, 5};
constexpr Shares longNames{1, 1};
constexpr Shares manyColumns{4, 7};

/// What all pages have. The fields of the page are added to `fields`.
class QuestionView : public QWidget {
 public:
  QuestionView(QuestionPane& pane, Binder& binder, Shares shares) : pane_(pane), binder_(binder) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    const PageWithButtons view = pageWithButtons(widest);
    layout->addWidget(view.widget);
    auto* head = new QVBoxLayout;
    head->setSpacing(2);
    auto* top = new QHBoxLayout;
    top->setSpacing(24);
    top->addWidget(sizedLabel(fixedLabel(plain(pane_.caption()), "heading")));
    top->addWidget(statusLine(), 1);
    head->addLayout(top);
    head->addWidget(wrapped(binder_, pane_.lblAbout, "muted"));
    view.body->addLayout(head);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(12);
    middle->addWidget(chartCard(), shares.chart);
    auto* right = new QVBoxLayout;
    right->setSpacing(12);
    right->addWidget(figuresCard());
    right->addWidget(tableCard(), 1);
    middle->addLayout(right, shares.table);
    view.body->addLayout(middle, 1);
    view.body->addWidget(fieldsCard());
    view.buttons->addWidget(binder_.bind(pane_.cmdBack, new QPushButton));
    view.buttons->addStretch();
    view.buttons->addWidget(binder_.bind(pane_.cmdExport, new QPushButton));
    view.buttons->addWidget(binder_.bind(pane_.cmdCopy, new QPushButton));
    view.buttons->addWidget(binder_.bind(pane_.cmdPrint, new QPushButton));
    addShortcut(binder_, this, QKeySequence(Qt::Key_Escape), pane_.cmdBack);
    binder_.name(pane_, this);
    ticks_.setInterval(betweenTicks);
    connect(&ticks_, &QTimer::timeout, this, [this] { pane_.tick(); });
    running_ = pane_.onRunningChange.connectScoped([this] {
      if (pane_.isRunning()) {
        ticks_.start();
      } else {
        ticks_.stop();
      }
    });
  }

  [[nodiscard]] QHBoxLayout* fields() { return fields_; }

  /// Adds a field with its name before it and its unit behind it.
  void addField(TextBox& box, const QString& name, const QString& unit = {}, const QString& axis = {}) {
    auto* field = binder_.bind(box, numberField(7), axis + name);
    addNamed(name, field);
    if (!unit.isEmpty()) fields_->addWidget(fixedLabel(unit, "muted"));
  }

  void addList(ComboBox& box, const QString& name) {
    auto* list = new QComboBox;
    list->setFixedWidth(scaled(inputListWidth));
    addNamed(name, binder_.bind(box, list, name));
  }

  void addStretch() { fields_->addStretch(); }

  /// Begins another line of fields.
  void addLine() {
    fields_->addStretch();
    beginLine();
  }

 private:
  void addNamed(const QString& name, QWidget* field) {
    auto* label = fixedLabel(name, "title");
    label->setBuddy(field);
    fields_->addWidget(label);
    fields_->addWidget(field);
    if (!hasFirst_) field->setProperty(firstFocus, true);
    hasFirst_ = true;
  }

  QWidget* fieldsCard() {
    const Card fields = card();
    lines_ = fields.body;
    beginLine();
    return fields.frame;
  }

  void beginLine() {
    fields_ = new QHBoxLayout;
    fields_->setSpacing(8);
    lines_->addLayout(fields_);
  }

  /// Why there is no answer, or that it is for another farm, or how far it is.
  QWidget* statusLine() {
    auto* status = new QWidget;
    auto* line = new QHBoxLayout(status);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(10);
    auto* fault = wrapped(binder_, pane_.lblFault, "caution");
    fault->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    line->addWidget(fault, 1);
    line->addWidget(binder_.bind(pane_.lblOutdated, fixedLabel({}, "caution")));
    line->addWidget(binder_.bind(pane_.cmdUpdate, new QPushButton));
    auto* bar = new QProgressBar;
    bar->setTextVisible(false);
    bar->setFixedWidth(scaled(progressWidth));
    binder_.name(pane_.prgQuestion, bar, tr("Progress"));
    binder_.alsoWatch(pane_.prgQuestion, [this, bar] {
      const ProgressBar& state = pane_.prgQuestion;
      bar->setMaximum(static_cast<int>(state.maximum()));  // 0 moves without an end
      bar->setValue(static_cast<int>(state.value()));
      if (bar->parentWidget() != nullptr || !state.visible()) bar->setVisible(state.visible());
      bar->setEnabled(state.enabled());
    });
    line->addWidget(bar);
    line->addWidget(binder_.bind(pane_.cmdCancel, new QPushButton));
    // The page keeps its height while a question runs.
    status->setMinimumHeight(numberFieldSize().height() + scaled(2));
    return status;
  }

  QWidget* chartCard() {
    const Card chart = card();
    auto* view = new ChartView;
    view->setMinimumHeight(scaled(leastChart));
    chart.body->addWidget(binder_.bind(pane_.chart, view, plain(pane_.caption())), 1);
    return chart.frame;
  }

  QWidget* figuresCard() {
    const Card figures = card();
    binder_.bind(pane_.lblFigures, fixedLabel({}, "heading"));
    figures.body->addWidget(binder_.widget(pane_.lblFigures));
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(0, 1);
    int line = 0;
    for (const auto& figure : pane_.figures) {
      auto* amount = figureLabel("figure");
      binder_.bind(figure->amount, amount);
      if (line == 0) sizedLabel(amount, amountScale);
      grid->addWidget(wrapped(binder_, figure->what), line, 0);
      grid->addWidget(amount, line, 1);
      ++line;
    }
    figures.body->addLayout(grid);
    figures.body->addWidget(wrapped(binder_, pane_.lblNote, "muted"));
    return figures.frame;
  }

  QWidget* tableCard() {
    const Card table = card();
    table.body->addWidget(
        binder_.bind(pane_.table, new TableView, tr("%1, table").arg(plain(pane_.caption()))), 1);
    return table.frame;
  }

  QuestionPane& pane_;
  Binder& binder_;
  QVBoxLayout* lines_ = nullptr;   ///< Of fields
  QHBoxLayout* fields_ = nullptr;  ///< The last of them
  bool hasFirst_ = false;          ///< There is a field that the page opens with
  QTimer ticks_;
  Connection running_;
};

}  // namespace

QWidget* mixesView(MixesPane& pane, Binder& binder) {
  auto* view = new QuestionView(pane, binder, longNames);
  view->addField(pane.txtMixes, QObject::tr("The best"), QObject::tr("mixes"));
  view->addStretch();
  return view;
}

QWidget* waterView(WaterPane& pane, Binder& binder) {
  auto* view = new QuestionView(pane, binder, narrowTable);
  view->addField(pane.txtFrom, QObject::tr("From"), QObject::tr("in"));
  view->addField(pane.txtTo, QObject::tr("to"), QObject::tr("in"));
  view->addField(pane.txtPoints, QObject::tr("in"), QObject::tr("points"));
  view->addStretch();
  return view;
}

QWidget* switchView(SwitchPane& pane, Binder& binder) {
  auto* view = new QuestionView(pane, binder, wideTable);
  view->addList(pane.cboInput, QObject::tr("Input"));
  view->addField(pane.txtFrom, QObject::tr("from"));
  view->addField(pane.txtTo, QObject::tr("to"));
  view->fields()->addWidget(binder.bind(pane.lblUnit, fixedLabel({}, "muted")));
  view->addStretch();
  return view;
}

QWidget* seasonsView(SeasonsPane& pane, Binder& binder) {
  auto* view = new QuestionView(pane, binder, manyColumns);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(4);
  constexpr int columns = 4;  // three fields, and a gap
  const std::array<QString, 3> heads{QObject::tr("Season"), QObject::tr("Rain, in."), QObject::tr("Weight")};
  for (int i = 0; i < seasonsInALine; ++i) {
    for (int head = 0; head < 3; ++head)
      grid->addWidget(fixedLabel(heads.at(static_cast<std::size_t>(head)), "column"), 0, i * columns + head);
    grid->setColumnMinimumWidth(i * columns + 3, scaled(14));
  }
  int place = 0;
  for (const auto& line : pane.lines) {
    const int row = place / seasonsInALine + 1;
    const int column = place % seasonsInALine * columns;
    const QString which = QObject::tr("Season %1").arg(++place);
    auto* name = binder.bind(line->txtSeason, new QLineEdit, which);
    name->setFixedWidth(scaled(seasonNameWidth));
    if (place == 1) name->setProperty(firstFocus, true);
    grid->addWidget(name, row, column);
    grid->addWidget(binder.bind(line->txtRain, numberField(4), QObject::tr("%1, rain").arg(which)), row,
                    column + 1);
    grid->addWidget(binder.bind(line->txtWeight, numberField(4), QObject::tr("%1, weight").arg(which)), row,
                    column + 2);
  }
  view->fields()->addLayout(grid);
  view->addStretch();
  auto* buttons = new QVBoxLayout;
  buttons->addWidget(binder.bind(pane.cmdAddSeason, new QPushButton));
  buttons->addWidget(binder.bind(pane.cmdRemoveSeason, new QPushButton));
  buttons->addStretch();
  view->fields()->addLayout(buttons);
  return view;
}

QWidget* inputsView(InputsPane& pane, Binder& binder) {
  auto* view = new QuestionView(pane, binder, manyColumns);
  view->addField(pane.txtPercent, QObject::tr("Lower and higher by"), QObject::tr("%"));
  view->addStretch();
  return view;
}

QWidget* mapView(MapPane& pane, Binder& binder) {
  auto* view = new QuestionView(pane, binder, narrowTable);
  const auto addAxis = [&](MapPane::Axis& axis, const QString& name) {
    const QString of = name + QLatin1String(", ");
    view->addList(axis.cboInput, name);
    view->addField(axis.txtFrom, QObject::tr("from"), {}, of);
    view->addField(axis.txtTo, QObject::tr("to"), {}, of);
    view->addField(axis.txtPoints, QObject::tr("in"), QObject::tr("points"), of);
  };
  addAxis(pane.x, QObject::tr("Across"));
  view->addLine();
  addAxis(pane.y, QObject::tr("Upwards"));
  view->addStretch();
  return view;
}

}  // namespace verdalis::desktop
