#include "desktop/ChartView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QStandardPaths>
#include <QToolTip>
#include <array>
#include <utility>

#include "data/writeFile.h"
#include "desktop/Binder.h"
#include "desktop/Page.h"
#include "desktop/svg/svgPicture.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"

namespace verdalis::desktop {
namespace {

/// The kinds of files that a chart is saved as: ending and name.
using FileKinds = std::vector<std::pair<const char*, const char*>>;

FileKinds fileKinds() {
  FileKinds kinds{{"png", QT_TRANSLATE_NOOP("ChartView", "Picture (*.png)")}};
  if (savesSvg()) kinds.emplace_back("svg", QT_TRANSLATE_NOOP("ChartView", "Scalable picture (*.svg)"));
  kinds.emplace_back("pdf", QT_TRANSLATE_NOOP("ChartView", "PDF page (*.pdf)"));
  return kinds;
}

bool isSame(const std::optional<Target>& a, const Target* b) {
  if (!a || b == nullptr) return !a && b == nullptr;
  return a->kind == b->kind && a->row == b->row && a->column == b->column;
}

/// Tells a reader that does not see a chart that it is one.
QAccessibleInterface* readChart(const QString& name, QObject* object) {
  auto* chart =
      name == QLatin1String("verdalis::desktop::ChartView") ? qobject_cast<ChartView*>(object) : nullptr;
  return chart == nullptr ? nullptr
                          : new QAccessibleWidget(chart, QAccessible::Chart);  // the toolkit owns it
}

/// A title as the name of a file.
QString fileName(const QString& title) {
  QString name;
  for (const QChar letter : title)
    name += letter.isLetterOrNumber() || letter == QLatin1Char(' ') ? letter : QLatin1Char('-');
  return name.isEmpty() ? QStringLiteral("chart") : name.left(80).trimmed();
}

}  // namespace

ChartView::ChartView(QWidget* parent) : QWidget(parent) {
  static const bool isInstalled = (QAccessible::installFactory(readChart), true);
  static_cast<void>(isInstalled);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartView::setChart(const std::optional<Chart>& chart) {
  chart_ = chart;
  current_.reset();
  pressed_.reset();
  if (underMouse() || hasFocus()) QToolTip::hideText();
  unsetCursor();
  setAccessibleDescription(chart ? qText(chart->summary) : QString());
  forget();
}

const Drawing& ChartView::drawing() {
  if (!drawing_) {
    drawing_ = chart_ ? layOut(*chart_, width(), height(), FontMeasure(font())) : Drawing{};
  }
  return *drawing_;
}

void ChartView::forget() {
  drawing_.reset();
  picture_ = {};
  update();
}

QSize ChartView::sizeHint() const {
  return {scaled(320), scaled(150)};  // it takes what is left, and pages scroll below this height
}

QSize ChartView::minimumSizeHint() const {
  return {scaled(160), scaled(110)};
}

QColor ChartView::ground() const {
  return accents(schemeOf(palette())).card;
}

void ChartView::paintEvent(QPaintEvent* /*event*/) {
  const double scale = devicePixelRatioF();
  if (picture_.isNull() || picture_.devicePixelRatio() != scale) {
    picture_ = QPixmap(size() * scale);
    picture_.setDevicePixelRatio(scale);
    picture_.fill(Qt::transparent);
    QPainter painter(&picture_);
    paintDrawing(painter, drawing(), FontMeasure(font()), schemeOf(palette()), ground());
  }
  QPainter painter(this);
  painter.drawPixmap(0, 0, picture_);
  paintCurrent(painter);
  if (hasFocus() && !current_) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(accents(schemeOf(palette())).brand, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
  }
}

void ChartView::paintCurrent(QPainter& painter) const {
  if (!current_) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
  if (current_->kind == Target::Kind::point) {
    constexpr double radius = 7;
    painter.drawEllipse(QPointF(current_->at.x, current_->at.y), radius, radius);
    return;
  }
  const Rect& reach = current_->reach;
  painter.drawRect(QRectF(QPointF(reach.left, reach.top), QPointF(reach.right, reach.bottom)));
}

void ChartView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  current_.reset();
  forget();
}

void ChartView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
    case QEvent::FontChange:
      current_.reset();
      forget();
      break;
    default:
      break;
  }
}

bool ChartView::event(QEvent* event) {
  // The tip of a value stands already where the pointer is.
  if (event->type() == QEvent::ToolTip) {
    showTip();
    return true;
  }
  return QWidget::event(event);
}

void ChartView::moveTo(const Target* target) {
  if (isSame(current_, target)) return;
  current_ = target == nullptr ? std::nullopt : std::optional<Target>(*target);
  if (current_ && current_->pick && isEnabled()) {
    setCursor(Qt::PointingHandCursor);
  } else {
    unsetCursor();
  }
  showTip();
  update();
}

void ChartView::showTip() {
  if (!current_ || !chart_) {
    QToolTip::hideText();
    return;
  }
  const QString tip = qText(tipOf(*chart_, *current_));
  // Names are plain text, whatever characters are in them.
  const QString shown =
      QLatin1String("<div style=\"white-space:pre\">") + tip.toHtmlEscaped() + QLatin1String("</div>");
  const QPointF place(current_->at.x + 12, current_->at.y + 8);
  QToolTip::showText(mapToGlobal(place.toPoint()), shown, this);
  if (!hasFocus()) return;
  setAccessibleDescription(tip + QLatin1Char('\n') + qText(chart_->summary));
  QAccessibleEvent told(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&told);
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
  moveTo(targetAt(drawing(), {event->position().x(), event->position().y()}));
}

void ChartView::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  moveTo(nullptr);
}

void ChartView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  if (!underMouse() && event->reason() != Qt::PopupFocusReason) moveTo(nullptr);
  update();
}

void ChartView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  mouseMoveEvent(event);
  pressed_ = current_;
}

void ChartView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mouseReleaseEvent(event);
  mouseMoveEvent(event);
  const std::optional<Target> pressed = std::exchange(pressed_, std::nullopt);
  if (pressed && isSame(pressed, current())) pickCurrent();
}

void ChartView::pickCurrent() {
  if (!current_ || !current_->pick) return;
  QToolTip::hideText();
  emit picked(*current_->pick);  // may show another chart, or none
}

void ChartView::moveByKey(Direction direction) {
  if (drawing().targets.empty()) return;
  if (!current_) {
    moveTo(&drawing().targets.front());
    return;
  }
  const Target target = targetBeside(drawing(), *current_, direction);
  moveTo(&target);
}

void ChartView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return copyData();
  switch (event->key()) {
    case Qt::Key_Left:
      return moveByKey(Direction::left);
    case Qt::Key_Right:
      return moveByKey(Direction::right);
    case Qt::Key_Up:
      return moveByKey(Direction::up);
    case Qt::Key_Down:
      return moveByKey(Direction::down);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (current_ && current_->pick) return pickCurrent();
      break;
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

void ChartView::contextMenuEvent(QContextMenuEvent* event) {
  if (!chart_) return;
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("chartMenu"));
  connect(menu.addAction(tr("Copy &Picture")), &QAction::triggered, this, &ChartView::copyPicture);
  connect(menu.addAction(tr("Copy &Data")), &QAction::triggered, this, &ChartView::copyData);
  menu.addSeparator();
  connect(menu.addAction(tr("&Save As...")), &QAction::triggered, this, &ChartView::save);
  menu.exec(event->globalPos());
}

void ChartView::copyPicture() {
  if (!chart_) return;
  constexpr double scale = 2;
  QApplication::clipboard()->setImage(ChartPrint(*chart_, font(), size()).picture(scale));
}

void ChartView::copyData() {
  if (!chart_) return;
  QString text;
  for (const std::vector<std::string>& row : chart_->table) {
    QStringList cells;
    for (const std::string& cell : row)
      cells << qText(cell)
                   .replace(QLatin1Char('\t'), QLatin1Char(' '))
                   .replace(QLatin1Char('\n'), QLatin1Char(' '));
    text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
  }
  QApplication::clipboard()->setText(text);
}

void ChartView::save() {
  if (!chart_) return;
  QFileDialog dialog(window(), tr("Save Chart"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  QStringList filters;
  const FileKinds kinds = fileKinds();
  for (const auto& [ending, filter] : kinds)
    filters << tr(filter);
  dialog.setNameFilters(filters);
  dialog.setDefaultSuffix(QLatin1String(kinds[0].first));
  connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
    dialog.setDefaultSuffix(QLatin1String(kinds.at(static_cast<std::size_t>(filters.indexOf(filter))).first));
  });
  dialog.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dialog.selectFile(fileName(qText(chart_->title)));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const QString path = dialog.selectedFiles().constFirst();
  const QByteArray bytes = ChartPrint(*chart_, font(), size()).file(QFileInfo(path).suffix().toLower());
  const auto fail = [&](const QString& reason) { QMessageBox::warning(window(), tr("Save Chart"), reason); };
  if (bytes.isEmpty())
    return fail(savesSvg() ? tr("A chart is saved as a .png, .svg or .pdf file.")
                           : tr("A chart is saved as a .png or .pdf file."));
  try {
    writeFile(pathOf(programText(path)),
              std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
  } catch (const RunTimeError& error) {
    fail(QString::fromUtf8(error.what()));
  }
}

}  // namespace verdalis::desktop
