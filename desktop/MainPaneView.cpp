#include "desktop/MainPaneView.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/Keys.h"
#include "desktop/LandSplitPicture.h"
#include "desktop/Theme.h"
#include "desktop/WishesView.h"
#include "model/LandDivision.h"

namespace verdalis::desktop {
namespace {

constexpr int rowHeight = 31;
constexpr int visibleRows = cropFrameHolderHeight / cropRowHeight;

/// Columns of the crop table.
enum Column {
  nameColumn,
  priceColumn,
  priceUnitColumn,
  yieldColumn,
  yieldUnitColumn,
  costsColumn,
  endColumn
};
constexpr std::array<int, endColumn> columnWidths{200, 116, 84, 116, 104, 208};

void setColumns(QGridLayout* grid) {
  grid->setContentsMargins(8, 0, 8, 0);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(0);
  holdColumns(grid, 1, columnWidths);
  grid->setColumnStretch(nameColumn, 1);
}

constexpr int hintDelay = 120;  // milliseconds from a change to the marks of the fields

constexpr const char* ownTip = "ownTip";  // the tool tip of a field without a hint

/// The hint beside the heading of a card. It takes no room from the page. Its label is in no layout, so that
/// another text does not lay the page out again with each key.
class HintLine : public QWidget {
 public:
  HintLine(Binder& binder, Label& control) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    label_ = fixedLabel({}, "caution");
    label_->setParent(this);
    binder.bind(control, label_, QObject::tr("Hint"));
  }

  [[nodiscard]] QSize sizeHint() const override { return {scaled(300), fontMetrics().lineSpacing()}; }

 protected:
  void resizeEvent(QResizeEvent*) override { label_->setGeometry(rect()); }

 private:
  QLabel* label_;
};

const FieldRow* rowOf(std::string_view control) {
  for (const FieldRow& row : MainPane::fields()) {
    if (row.control == control) return &row;
  }
  return nullptr;
}

}  // namespace

MainPaneView::MainPaneView(MainPane& pane, WishesCard& wishes, Binder& binder)
    : pane_(pane), binder_(binder) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  const PageWithButtons view = pageWithButtons();
  layout->addWidget(view.widget);
  auto* top = new QHBoxLayout;
  top->setSpacing(12);
  top->addWidget(farmCard(), 5);
  top->addWidget(landCard(), 4);
  view.body->addLayout(top);
  view.body->addWidget(cropCard());
  view.body->addWidget(wishesView(wishes, binder_));
  view.body->addWidget(plantCard(wishes));
  view.body->addStretch();
  fillFooter(view.buttons);
  rowChanges_ = pane_.onRowsChanged.connectScoped([this] { rebuildRows(); });
  rebuildRows();
  drawPictures();
  // Marking takes longer than a key may.
  hints_.setSingleShot(true);
  hints_.setInterval(hintDelay);
  connect(&hints_, &QTimer::timeout, this, [this] { showHints(); });
  hintChanges_ = pane_.onHints.connectScoped([this] { hints_.start(); });
  showHints();
}

QWidget* MainPaneView::farmCard() {
  const Card farm = card(tr("Farm and water"), new HintLine(binder_, pane_.lblFarmHint));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(5);
  grid->setColumnStretch(0, 1);
  int line = 0;
  const auto place = [&](std::string_view control, QWidget* field, const QString& unit) {
    const FieldRow& row = *rowOf(control);
    auto* label = fixedLabel(plain(row.label));
    label->setBuddy(field);
    setHelp(field, pane_.cmdHelp, row.helpIndex);
    grid->addWidget(label, line, 0);
    grid->addWidget(field, line, 1);
    grid->addWidget(fixedLabel(unit, "muted"), line, 2);
    grid->addWidget(helpButton(binder_, pane_.cmdHelp, row.helpIndex, plain(row.label)), line, 3);
    ++line;
  };
  const auto number = [&](TextBox& box) {
    return binder_.bind(box, numberField(), plain(rowOf(box.name())->label));
  };
  const auto combo = [&](ComboBox& box) {
    auto* widget = new QComboBox;
    binder_.bind(box, widget, plain(rowOf(box.name())->label));
    widget->setFixedWidth(numberFieldSize().width());
    return widget;
  };
  place("txtArea", number(pane_.txtArea), tr("acres"));
  place("txtMax", number(pane_.txtMax), tr("inches"));
  auto* volume = figureLabel("figure");
  binder_.bind(pane_.lblVolume, volume, plain(rowOf("lblVolume")->label));
  // It changes with each key in two fields: a fixed size spares the layout of the page, unless it is longer.
  binder_.alsoWatch(pane_.lblVolume, [volume, size = numberFieldSize()] {
    constexpr int fitting = 10;  // characters
    volume->setMinimumSize(size);
    volume->setMaximumSize(volume->text().size() <= fitting ? size : QSize(QWIDGETSIZE_MAX, size.height()));
  });
  place("lblVolume", volume, tr("ac-in"));
  auto* rain = combo(pane_.txtAnnRain);
  rain->lineEdit()->setAlignment(Qt::AlignRight);
  place("txtAnnRain", rain, tr("inches"));
  place("txtEff", number(pane_.txtEff), tr("%"));
  QWidget* soil = combo(pane_.txtSoil);
  soil->setToolTip(tr("Takes no part in the evaluation"));
  place("txtSoil", soil, tr("no effect"));
  farm.body->addLayout(grid);
  farm.body->addStretch();
  return farm.frame;
}

QWidget* MainPaneView::landCard() {
  const FieldRow& row = *rowOf("Option1");
  const Card land =
      card(plain(row.label), helpButton(binder_, pane_.cmdHelp, row.helpIndex, plain(row.label)));
  setHelp(land.frame, pane_.cmdHelp, row.helpIndex);
  auto* group = new QButtonGroup(this);
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(8);
  grid->setHorizontalSpacing(16);
  for (std::size_t i = 0; i < pane_.Option1.size(); ++i) {
    auto* button = new QRadioButton;
    group->addButton(button);
    binder_.bind(*pane_.Option1[i], button);
    button->setIconSize(landSplitPictureSize);
    landSplits_.push_back(button);
    const int place = static_cast<int>(i);
    grid->addWidget(button, place % 3, place / 3);
  }
  land.body->addLayout(grid);
  land.body->addSpacing(4);
  land.body->addWidget(binder_.bind(pane_.chkNoSplit, new QCheckBox));
  auto* fallow = binder_.bind(pane_.Check1, new QCheckBox);
  fallow->setToolTip(tr("Takes no part in the evaluation"));
  auto* fallowLine = new QHBoxLayout;
  fallowLine->setSpacing(8);
  fallowLine->addWidget(fallow);
  fallowLine->addWidget(fixedLabel(tr("no effect"), "muted"));
  fallowLine->addStretch();
  land.body->addLayout(fallowLine);
  land.body->addStretch();
  return land.frame;
}

QWidget* MainPaneView::cropCard() {
  const Card crops = card(plain(pane_.cropBox.caption()), new HintLine(binder_, pane_.lblCropsHint));
  binder_.bind(pane_.cropBox, crops.frame);
  auto* heads = new QGridLayout;
  setColumns(heads);
  heads_ = heads;
  heads->addWidget(fixedLabel(tr("Crop"), "column"), 0, nameColumn);
  const std::array<int, 3> headColumns{priceColumn, costsColumn, yieldColumn};
  for (std::size_t i = 0; i < cropColumns.size(); ++i) {
    const CropColumn& column = cropColumns.at(i);
    auto* head = new QHBoxLayout;
    head->setSpacing(6);
    head->addWidget(fixedLabel(plain(column.caption), "column"));
    beforeRows_ = helpButton(binder_, pane_.cmdHelp, column.helpIndex, plain(column.caption));
    head->addWidget(beforeRows_);
    head->addStretch();
    const int span = headColumns.at(i) == costsColumn ? 1 : 2;
    heads->addLayout(head, 0, headColumns.at(i), 1, span);
  }
  crops.body->addLayout(heads);

  auto* line = new QHBoxLayout;
  line->setSpacing(0);
  rowsArea_ = new QScrollArea;
  rowsArea_->setFrameShape(QFrame::NoFrame);
  rowsArea_->setFocusPolicy(Qt::NoFocus);
  rowsArea_->setWidgetResizable(true);
  rowsArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  rowsArea_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  binder_.bind(pane_.cropFrameHolder, rowsArea_);
  rowsBar_ = new QScrollBar(Qt::Vertical);
  binder_.bind(pane_.cropScroll, rowsBar_, tr("Crop list"));
  line->addWidget(rowsArea_, 1);
  line->addWidget(rowsBar_);
  crops.body->addLayout(line);
  binder_.alsoWatch(pane_.cropScroll, [this] { placeScroll(); });
  // A row that the keyboard brings into sight moves the list, and the bar follows without a person's act.
  connect(rowsArea_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
    const int range = rowsArea_->verticalScrollBar()->maximum();
    if (range <= 0 || rowsBar_->isSliderDown()) return;
    const QSignalBlocker quiet(rowsBar_);
    rowsBar_->setValue(value * rowsBar_->maximum() / range);
  });
  return crops.frame;
}

QWidget* MainPaneView::plantCard(WishesCard& wishes) {
  const Card plant = card();
  auto* line = new QHBoxLayout;
  line->setSpacing(12);
  line->addWidget(fixedLabel(QString::fromLatin1(irrigationHeading), "heading"));
  auto* open = binder_.bind(pane_.Command8, new QPushButton);
  setHelp(open, pane_.cmdHelp, 1);
  line->addWidget(open);
  line->addWidget(helpButton(binder_, pane_.cmdHelp, 1, QString::fromLatin1(irrigationHeading)));
  auto* instruction = fixedLabel(QString::fromLatin1(batchInstructions[2]), "muted");
  instruction->setWordWrap(true);
  line->addWidget(instruction, 1);
  line->addWidget(wishesButton(wishes, binder_));
  line->addWidget(binder_.bind(pane_.Command7, new QPushButton));
  plant.body->addLayout(line);

  auto* trends = new QWidget;
  auto* instructions = new QHBoxLayout(trends);
  instructions->setContentsMargins(0, 0, 0, 0);
  instructions->setSpacing(24);
  instructions->addWidget(fixedLabel(QString::fromLatin1(batchInstructions[0]), "muted"));
  instructions->addWidget(fixedLabel(QString::fromLatin1(batchInstructions[1]), "muted"));
  instructions->addStretch();
  plant.body->addWidget(trends);
  binder_.bind(pane_.pnlBatchInstructions, trends);
  return plant.frame;
}

void MainPaneView::fillFooter(QHBoxLayout* line) {
  const QString keepCaption = QString::fromLatin1(MainPane::keepCaption);
  auto* keep = fixedLabel(keepCaption + QLatin1Char(':'));
  auto* keepField = binder_.bind(pane_.txtArraySize, numberField(5), keepCaption);
  keep->setBuddy(keepField);
  line->addWidget(keep);
  line->addWidget(keepField);
  auto* size = binder_.bind(pane_.txtSize, numberField(5), tr("Size"));
  auto* sorting = binder_.bind(pane_.cmdReturn, new QPushButton);
  for (QWidget* inert : {static_cast<QWidget*>(size), static_cast<QWidget*>(sorting)}) {
    inert->setToolTip(tr("Takes no part in the evaluation"));
    line->addWidget(inert);
  }
  line->addStretch();
  auto* number = fixedLabel({}, "muted");
  binder_.bind(pane_.lblNumber, number);
  line->addWidget(number);
  auto* status = new QPushButton;
  setRole(status, "link");
  binder_.bind(pane_.cmdStatus, status, tr("Ready to evaluate?"));
  line->addWidget(status);
  auto* run = new QPushButton;
  setRole(run, "main");
  binder_.bind(pane_.Command1, run);
  auto* runKey = new QShortcut(QKeySequence(Qt::Key_F5), this);
  connect(runKey, &QShortcut::activated, this, [this] { pane_.Command1.click(); });
  run->setToolTip(tr("Evaluate all combinations (F5)"));
  run->setAccessibleDescription(runKey->key().toString());
  line->addWidget(run);
}

void MainPaneView::rebuildRows() {
  delete rowsArea_->takeWidget();  // the controls of its rows may be gone by now
  rows_ = new QWidget;
  auto* lines = new QVBoxLayout(rows_);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(0);
  binder_.bind(pane_.cropFrame, rows_);
  for (const auto& record : pane_.cr) {
    auto* line = new QWidget;
    line->setFixedHeight(scaled(rowHeight));
    lines->addWidget(line);
    binder_.bind(*record, line);
    auto* grid = new QGridLayout(line);
    setColumns(grid);
    auto* tint = new QFrame;
    setRole(tint, "tint");
    grid->addWidget(binder_.bind(record->background, tint), 0, 0, 1, endColumn);
    const QString crop = plain(record->GetCrop());
    const auto place = [&](QWidget* field, Column column, int help = -1) {
      grid->addWidget(field, 0, column);
      field->installEventFilter(this);  // the arrows
      setHelp(field, pane_.cmdHelp, help);
    };
    place(binder_.bind(record->chkCrop, new QCheckBox), nameColumn);
    place(binder_.bind(record->txtPrice, numberField(), tr("Price of %1").arg(crop)), priceColumn,
          cropColumns[0].helpIndex);
    grid->addWidget(binder_.bind(record->lblPriceUnits, fixedLabel({}, "muted")), 0, priceUnitColumn);
    place(binder_.bind(record->txtMaxYield, numberField(), tr("Maximum yield of %1").arg(crop)), yieldColumn,
          cropColumns[2].helpIndex);
    grid->addWidget(binder_.bind(record->lblYieldUnits, fixedLabel({}, "muted")), 0, yieldUnitColumn);
    place(binder_.bind(record->cmdInputCosts, new QPushButton, tr("Costs and returns of %1").arg(crop)),
          costsColumn, cropColumns[1].helpIndex);
  }
  lines->addStretch();
  rowsArea_->setWidget(rows_);
  rows_->setAutoFillBackground(false);  // the card is the ground
  rowsArea_->viewport()->setAutoFillBackground(false);
  const int shown = std::min(visibleRows, static_cast<int>(pane_.cr.size()));
  rowsArea_->setFixedHeight(shown * scaled(rowHeight));
  placeScroll();
  orderRows();
}

void MainPaneView::orderRows() {
  // Tab goes by the order of making, and the rows are made last.
  QWidget* before = beforeRows_;
  for (const auto& record : pane_.cr) {
    for (const Control* control : record->controls()) {
      QWidget* widget = binder_.widget(*control);
      if (widget->focusPolicy() == Qt::NoFocus) continue;
      setTabOrder(before, widget);
      before = widget;
    }
  }
}

bool MainPaneView::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool plainKey = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plainKey && goThroughRows(object, key->key())) return true;
  }
  return QWidget::eventFilter(object, event);
}

bool MainPaneView::goThroughRows(const QObject* from, int key) {
  const int pageStep = visibleRows - 1;
  const int step = key == Qt::Key_Up         ? -1
                   : key == Qt::Key_Down     ? 1
                   : key == Qt::Key_PageUp   ? -pageStep
                   : key == Qt::Key_PageDown ? pageStep
                                             : 0;
  if (step == 0) return false;
  const auto columns = [](CropRecord& row) {
    return std::array<Control*, 4>{&row.chkCrop, &row.txtPrice, &row.txtMaxYield, &row.cmdInputCosts};
  };
  const int last = static_cast<int>(pane_.cr.size()) - 1;
  for (int i = 0; i <= last; ++i) {
    const auto places = columns(*pane_.cr[static_cast<std::size_t>(i)]);
    for (std::size_t column = 0; column < places.size(); ++column) {
      if (binder_.widget(*places.at(column)) != from) continue;
      CropRecord& row = *pane_.cr[static_cast<std::size_t>(std::clamp(i + step, 0, last))];
      Control* target = columns(row).at(column);
      // An unticked row takes the focus on its tick alone.
      QWidget* widget = binder_.widget(target->isReachable() ? *target : row.chkCrop);
      widget->setFocus(Qt::TabFocusReason);
      return true;
    }
  }
  return false;
}

void MainPaneView::placeScroll() {
  const ScrollBar& bar = pane_.cropScroll;
  // Out of sight while all rows fit, without being hidden.
  const int width = bar.maximum() > 0 ? rowsBar_->sizeHint().width() : 0;
  rowsBar_->setFixedWidth(width);
  heads_->setContentsMargins(8, 0, 8 + width, 0);
  QScrollBar* inner = rowsArea_->verticalScrollBar();
  if (bar.maximum() > 0)
    inner->setValue(static_cast<int>(static_cast<qint64>(bar.value()) * inner->maximum() / bar.maximum()));
}

void MainPaneView::drawPictures() {
  const Scheme scheme = schemeOf(QWidget::palette());
  for (std::size_t i = 0; i < landSplits_.size(); ++i) {
    landSplits_[i]->setIcon(landSplitPicture(landDivisions().at(i).percentages, scheme));
  }
}

/// Marks the fields that have hints and puts these into their tool tips.
void MainPaneView::showHints() {
  const auto mark = [](QWidget* field, bool on) {
    field->setProperty("caution", on);
    field->style()->unpolish(field);
    field->style()->polish(field);
  };
  for (const QPointer<QWidget>& field : hinted_) {
    if (!field) continue;
    field->setToolTip(field->property(ownTip).toString());
    mark(field, false);
  }
  hinted_.clear();
  for (const FieldHint& hint : pane_.hints()) {
    QWidget* field = binder_.widget(*hint.field);
    if (field == nullptr) continue;
    const bool first = std::find(hinted_.begin(), hinted_.end(), field) == hinted_.end();
    if (first) {
      field->setProperty(ownTip, field->toolTip());
      hinted_.emplace_back(field);
      mark(field, true);
    }
    field->setToolTip(first ? qText(hint.text) : field->toolTip() + QLatin1Char('\n') + qText(hint.text));
  }
}

void MainPaneView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) drawPictures();
}

}  // namespace verdalis::desktop
