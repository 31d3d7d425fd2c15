#include "desktop/CustomCropView.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "desktop/Keys.h"
#include "desktop/Theme.h"
#include "text/numbers.h"

namespace verdalis::desktop {
namespace {

const CustomCropField& fieldOf(std::string_view control) {
  for (const CustomCropField& field : CustomCropPane::fields()) {
    if (field.control == control) return field;
  }
  static const CustomCropField none{};
  return none;
}

/// The number in a cell; nothing if it has none.
std::optional<double> numberOf(const std::string& cell) {
  if (!isNumeric(cell)) return std::nullopt;
  return toDouble(cell);
}

}  // namespace

YieldTableWidget::YieldTableWidget(Grid& grid, Binder& binder) : grid_(grid) {
  horizontalHeader()->hide();
  verticalHeader()->hide();
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  horizontalHeader()->setDefaultSectionSize(64);
  verticalHeader()->setDefaultSectionSize(26);
  binder.bind(grid, this, tr("Yields by net irrigation and rainfall"));
  binder.alsoWatch(grid, [this] { shade(); });
  connect(this, &QTableWidget::currentCellChanged, this, [this](int row, int column) {
    if (row >= 0 && column >= 0 && (row != grid_.row() || column != grid_.column()))
      grid_.setCurrent(row, column);
  });
}

void YieldTableWidget::shade() {
  const QSignalBlocker quiet(this);
  const bool dark = schemeOf(palette()) == Scheme::dark;
  double least = 0;
  double most = 0;
  for (int row = 1; row < grid_.rows(); ++row) {
    for (int column = 1; column < grid_.columns(); ++column) {
      const double value = numberOf(grid_.cell(row, column)).value_or(0);
      least = std::min(least, value);
      most = std::max(most, value);
    }
  }
  for (int row = 0; row < grid_.rows(); ++row) {
    for (int column = 0; column < grid_.columns(); ++column) {
      QTableWidgetItem* cell = item(row, column);
      if (cell == nullptr) continue;
      cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      if (row == 0 || column == 0) {
        cell->setBackground(desktop::palette(schemeOf(palette())).color(QPalette::Window));
        continue;
      }
      const auto value = numberOf(grid_.cell(row, column));
      if (!value || most <= least) {
        cell->setBackground(QBrush());
        continue;
      }
      const double share = (*value - least) / (most - least);
      // From straw to green; in the dark scheme from brown to green, so that the text stays readable.
      cell->setBackground(dark ? QColor::fromHsvF(static_cast<float>(0.10 + 0.24 * share), 0.55F,
                                                  static_cast<float>(0.20 + 0.20 * share))
                               : QColor::fromHsvF(static_cast<float>(0.12 + 0.21 * share),
                                                  static_cast<float>(0.10 + 0.26 * share),
                                                  static_cast<float>(0.98 - 0.12 * share)));
    }
  }
}

void YieldTableWidget::changeEvent(QEvent* event) {
  QTableWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) shade();
}

void YieldTableWidget::keyPressEvent(QKeyEvent* event) {
  const auto press = [&](GridKey key) {
    grid_.pressKey(key);
    event->accept();
  };
  if (event->matches(QKeySequence::Copy)) return press(GridKey::copy);
  if (event->matches(QKeySequence::Paste)) return press(GridKey::paste);
  if (event->matches(QKeySequence::Cut)) return press(GridKey::cut);
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return press(GridKey::enter);
    case Qt::Key_Backspace:
      return press(GridKey::backspace);
    case Qt::Key_Delete:
      return press(GridKey::erase);
    default:
      break;
  }
  const QString typed = event->text();
  const bool command = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  // A character may take two UTF-16 units.
  if (!command && !typed.isEmpty() && (typed[0].isPrint() || typed[0].isSurrogate())) {
    grid_.typeCharacter(programText(typed));
    event->accept();
    return;
  }
  QTableWidget::keyPressEvent(event);  // arrow keys move the current cell, Tab leaves the grid
}

namespace {

/// The fields above the grid: the crop on the left, the table size on the right.
class CropForm {
 public:
  CropForm(CustomCropPane& pane, Binder& binder) : pane_(pane), binder_(binder), card_(card()) {
    grid_ = new QGridLayout;
    grid_->setHorizontalSpacing(10);
    grid_->setVerticalSpacing(6);
    card_.body->addLayout(grid_);
    addCrop();
    addSize();
    addNotes();
    grid_->setColumnMinimumWidth(3, 24);
    grid_->setColumnStretch(6, 1);
  }

  [[nodiscard]] QWidget* frame() const { return card_.frame; }

 private:
  void addCrop() {
    auto* crops = list(0, 220);
    label("cboCustomGrid(0)", crops, 0, 0);
    grid_->addWidget(crops, 0, 1);
    grid_->addWidget(binder_.bind(pane_.cmdCustomGrid6, new QPushButton), 0, 2);
    auto* name = binder_.bind(pane_.txtCustom, new QLineEdit, plain(fieldOf("txtCustom(0)").label));
    name->setPlaceholderText(plain(fieldOf("txtCustom(0)").note));
    name->setToolTip(name->placeholderText());
    label("txtCustom(0)", name, 1, 0);
    grid_->addWidget(name, 1, 1);
    auto* units = list(4, 140);
    label("cboCustomGrid(4)", units, 2, 0);
    grid_->addWidget(units, 2, 1);
  }

  void addSize() {
    auto* rain = line();
    auto* from = list(1, 70);
    rain->addWidget(from);
    auto* to = list(2, 70);
    rain->addWidget(fixedLabel(plain(fieldOf("cboCustomGrid(2)").label)));
    rain->addWidget(to);
    rain->addStretch();
    label("cboCustomGrid(1)", from, 0, 4);
    grid_->addLayout(rain, 0, 5);

    auto* water = line();
    auto* most = list(3, 70);
    water->addWidget(most);
    water->addWidget(fixedLabel(plain(fieldOf("cboCustomGrid(3)").unit), "muted"));
    water->addSpacing(12);
    water->addWidget(binder_.bind(pane_.cmdCustomGrid0, new QPushButton));
    water->addStretch();
    label("cboCustomGrid(3)", most, 1, 4);
    grid_->addLayout(water, 1, 5);

    auto* defaults = list(5, 190);
    label("cboCustomGrid(5)", defaults, 2, 4);
    grid_->addWidget(defaults, 2, 5);
  }

  void addNotes() {
    auto* notes = new QGridLayout;
    notes->setHorizontalSpacing(24);
    notes->setVerticalSpacing(2);
    constexpr std::array<std::string_view, 4> noted{"cboCustomGrid(4)", "cboCustomGrid(1)",
                                                    "cmdCustomGrid(0)", "cboCustomGrid(3)"};
    for (std::size_t i = 0; i < noted.size(); ++i) {
      auto* text = fixedLabel(plain(fieldOf(noted.at(i)).note), "muted");
      text->setWordWrap(true);
      notes->addWidget(text, static_cast<int>(i / 2), static_cast<int>(i % 2));
    }
    card_.body->addLayout(notes);
  }

  static QHBoxLayout* line() {
    auto* made = new QHBoxLayout;
    made->setSpacing(8);
    return made;
  }

  void label(std::string_view control, QWidget* field, int row, int column) {
    auto* text = fixedLabel(plain(fieldOf(control).label));
    text->setBuddy(field);
    grid_->addWidget(text, row, column);
  }

  QComboBox* list(std::size_t index, int width) {
    ComboBox& control = pane_.cboCustomGrid.at(index);
    auto* widget = binder_.bind(control, new QComboBox, plain(fieldOf(control.name()).label));
    widget->setMinimumWidth(scaled(width));
    return widget;
  }

  CustomCropPane& pane_;
  Binder& binder_;
  Card card_;
  QGridLayout* grid_ = nullptr;
};

}  // namespace

QWidget* customCropView(CustomCropPane& pane, Binder& binder) {
  constexpr int anyWidth = QWIDGETSIZE_MAX / 2;  // the grid takes all available width
  const PageWithButtons view = pageWithButtons(anyWidth);
  setHelp(view.widget, pane.cmdHelp, 27);
  QVBoxLayout* body = view.body;
  body->setSpacing(10);
  auto* title = new QHBoxLayout;
  title->addWidget(sizedLabel(fixedLabel(plain(CustomCropPane::title), "heading")));
  title->addWidget(helpButton(binder, pane.cmdHelp, 27, plain(CustomCropPane::title)));
  title->addStretch();
  body->addLayout(title);
  body->addWidget(CropForm(pane, binder).frame());
  body->addWidget(fixedLabel(plain(fieldOf("dgCustom").label), "title"));
  auto* table = new YieldTableWidget(pane.dgCustom, binder);
  table->setMinimumHeight(scaled(220));
  body->addWidget(table, 1);
  body->addWidget(fixedLabel(plain(CustomCropPane::notice), "muted"));

  view.buttons->addWidget(binder.bind(pane.cmdCustomGrid5, new QPushButton));
  view.buttons->addStretch();
  view.buttons->addWidget(binder.bind(pane.cmdCustomGrid3, new QPushButton));
  view.buttons->addWidget(binder.bind(pane.cmdCustomGrid4, new QPushButton));
  auto* save = new QPushButton;
  setRole(save, "main");
  view.buttons->addWidget(binder.bind(pane.cmdCustomGrid2, save));
  addShortcut(binder, view.widget, QKeySequence(Qt::Key_Escape), pane.cmdCustomGrid5);
  return view.widget;
}

}  // namespace verdalis::desktop
