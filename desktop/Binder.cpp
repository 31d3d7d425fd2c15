#include "desktop/Binder.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>
#include <QTableWidget>
#include <QTimer>
#include <algorithm>

#include "desktop/ChartView.h"
#include "desktop/Keys.h"
#include "desktop/PageView.h"
#include "desktop/TableView.h"

namespace verdalis::desktop {
namespace {

/// Marks a field that has failed its test, until its text changes or it is left.
void markFailed(QLineEdit* field, bool failed) {
  if (field->property("failed").toBool() == failed) return;
  field->setProperty("failed", failed);
  field->style()->unpolish(field);
  field->style()->polish(field);
}

/// Brings the list and the text of a combo box in line with its control.
void show(const ComboBox& control, QComboBox* widget) {
  const QSignalBlocker quiet(widget);
  QStringList items;
  for (const std::string& item : control.items())
    items << qText(item);
  QStringList shown;
  for (int i = 0; i < widget->count(); ++i)
    shown << widget->itemText(i);
  if (items != shown) {
    widget->clear();
    widget->addItems(items);
  }
  if (widget->currentIndex() != control.index()) widget->setCurrentIndex(control.index());
  const QString text = qText(control.text());
  if (widget->isEditable() && widget->currentText() != text) widget->setEditText(text);
  if (!widget->isEditable() && control.index() < 0) widget->setPlaceholderText(text);
}

void show(const OptionButton& control, QRadioButton* widget) {
  const QSignalBlocker quiet(widget);
  QButtonGroup* group = widget->group();
  // A group of which one button must be on would not let the last one go off.
  if (group != nullptr) group->setExclusive(false);
  widget->setChecked(control.checked());
  if (group != nullptr) group->setExclusive(true);
  showCaption(widget, control.caption());
}

/// The line that is typed in when a widget has the focus; nullptr if there is none.
QLineEdit* lineOf(QObject* object) {
  const auto* list = qobject_cast<QComboBox*>(object);
  return list != nullptr ? list->lineEdit() : qobject_cast<QLineEdit*>(object);
}

/// Forgets what was typed before, so that the line takes back only what is typed from now on.
void beginTyping(QLineEdit* line) {
  const QSignalBlocker quiet(line);
  line->setText(line->text());
}

/// Whether a line cannot do what a key asks for, because nothing was typed in it, or nothing taken back.
bool hasNothingFor(const QKeyEvent& key, const QLineEdit& line) {
  if (key.matches(QKeySequence::Undo)) return !line.isUndoAvailable();
  return key.matches(QKeySequence::Redo) && !line.isRedoAvailable();
}

bool movesWithTheClick(const QObject* object) {
  return qobject_cast<const QAbstractButton*>(object) != nullptr ||
         qobject_cast<const QTableWidget*>(object) != nullptr ||
         qobject_cast<const TableView*>(object) != nullptr;
}

bool isPersonsMove(Qt::FocusReason reason) {
  return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
         reason != Qt::MenuBarFocusReason;
}

}  // namespace

QString qText(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string programText(const QString& text) {
  return text.toStdString();
}

QString widgetCaption(const std::string& caption) {
  return qText(shownCaption(caption)).replace(QLatin1Char('&'), QLatin1String("&&"));
}

Binder::Binder(Desk& desk, QObject* parent) : QObject(parent), desk_(desk) {
  focusMoves_ = desk_.onMoveFocus.connectScoped([this](Control& control) {
    QWidget* target = widget(control);
    if (target == nullptr) return;
    target->setFocus(Qt::OtherFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(target)) {
      // The program gives a field the focus only after its test has failed.
      line->selectAll();
      markFailed(line, true);
    }
  });
}

void Binder::name(Control& control, QWidget* widget, const QString& label) {
  widget->setObjectName(qText(control.path()));
  if (!label.isEmpty()) widget->setAccessibleName(label);
  widgets_.insert(&control, widget);
  controls_.insert(widget, &control);
  widget->installEventFilter(this);
  connect(widget, &QObject::destroyed, this,
          [this, key = static_cast<const Control*>(&control)](QObject* gone) {
            controls_.remove(gone);
            windows_.remove(gone);
            // By now another control may live at the same place, with a widget of its own.
            if (widgets_.value(key) != gone) return;
            widgets_.remove(key);
            watches_.erase(key);
          });
}

void Binder::watch(Control& control, std::function<void()> update) {
  update();
  // A control that is shown anew has a new widget, and the one before may be gone.
  std::vector<Connection>& watches = watches_[&control];
  watches.clear();
  watches.push_back(control.onStateChange.connectScoped(std::move(update)));
}

void Binder::alsoWatch(Control& control, const std::function<void()>& watcher) {
  watches_[&control].push_back(control.onStateChange.connectScoped(watcher));
  watcher();
}

namespace {

/// What every control has: whether it is there, and whether it can be used.
void showState(const Control& control, QWidget* widget) {
  // A widget that is told to show itself before it has a place would open as a window.
  if (widget->parentWidget() != nullptr || !control.visible()) widget->setVisible(control.visible());
  widget->setEnabled(control.enabled());
}

}  // namespace

QLineEdit* Binder::bind(TextBox& control, QLineEdit* widget, const QString& label) {
  name(control, widget, label);
  watch(control, [&control, widget] {
    showState(control, widget);
    const QString text = qText(control.text());
    if (widget->text() != text) widget->setText(text);
  });
  connect(widget, &QLineEdit::textEdited, this, [&control, widget](const QString& text) {
    markFailed(widget, false);
    control.type(programText(text));
  });
  return widget;
}

QPlainTextEdit* Binder::bind(TextBox& control, QPlainTextEdit* widget, const QString& label) {
  name(control, widget, label);
  watch(control, [&control, widget] {
    showState(control, widget);
    const QString text = qText(control.text());
    if (widget->toPlainText() == text) return;
    const QSignalBlocker quiet(widget);
    widget->setPlainText(text);
  });
  connect(widget, &QPlainTextEdit::textChanged, this, [&control, widget] {
    const std::string text = programText(widget->toPlainText());
    if (text != control.text()) control.type(text);  // composing a character changes no text yet
  });
  return widget;
}

QComboBox* Binder::bind(ComboBox& control, QComboBox* widget, const QString& label) {
  name(control, widget, label);
  widget->setEditable(control.style() == ComboBox::Style::freeText);
  widget->setInsertPolicy(QComboBox::NoInsert);
  widget->setFocusPolicy(Qt::StrongFocus);  // the wheel would give it the focus, and then turn its value
  if (widget->isEditable()) {
    widget->setCompleter(nullptr);  // it would change the case of what is typed
    widget->lineEdit()->setAccessibleName(label);
    widget->lineEdit()->setFocusPolicy(Qt::StrongFocus);
    widget->lineEdit()->installEventFilter(this);
    connect(widget->lineEdit(), &QLineEdit::textEdited, this,
            [&control](const QString& text) { control.type(programText(text)); });
  }
  watch(control, [&control, widget] {
    showState(control, widget);
    show(control, widget);
  });
  connect(widget, &QComboBox::activated, this, [&control](int index) { control.pick(index); });
  return widget;
}

QCheckBox* Binder::bind(CheckBox& control, QCheckBox* widget) {
  name(control, widget, qText(shownCaption(control.caption())));
  watch(control, [&control, widget] {
    const QSignalBlocker quiet(widget);
    showState(control, widget);
    showCaption(widget, control.caption());
    widget->setAccessibleName(qText(shownCaption(control.caption())));
    widget->setChecked(control.checked());
  });
  connect(widget, &QCheckBox::clicked, this, [&control, widget] {
    control.click();
    const QSignalBlocker quiet(widget);
    widget->setChecked(control.checked());
  });
  return widget;
}

QRadioButton* Binder::bind(OptionButton& control, QRadioButton* widget) {
  name(control, widget, qText(shownCaption(control.caption())));
  watch(control, [&control, widget] {
    showState(control, widget);
    show(control, widget);
  });
  connect(widget, &QRadioButton::clicked, this, [&control, widget] {
    control.click();
    show(control, widget);
  });
  return widget;
}

QPushButton* Binder::bind(Button& control, QPushButton* widget, const QString& label) {
  name(control, widget, label.isEmpty() ? qText(shownCaption(control.caption())) : label);
  widget->setAutoDefault(false);
  watch(control, [&control, widget] {
    showState(control, widget);
    if (widget->property("ownCaption").toBool()) return;  // the layout shows it in its own way
    showCaption(widget, control.caption());
  });
  connect(widget, &QPushButton::clicked, this, [&control] { control.click(); });
  return widget;
}

QLabel* Binder::bind(Label& control, QLabel* widget, const QString& label) {
  name(control, widget, label);
  widget->setTextFormat(Qt::PlainText);
  watch(control, [&control, widget] {
    showState(control, widget);
    widget->setText(qText(shownCaption(control.caption())));
  });
  return widget;
}

QAction* Binder::bind(MenuEntry& control, QAction* action) {
  action->setObjectName(qText(control.path()));
  actions_.insert(&control, action);
  watch(control, [&control, action] {
    action->setVisible(control.visible());
    action->setEnabled(control.enabled());
    action->setCheckable(control.checked() || action->isCheckable());
    action->setChecked(control.checked());
  });
  connect(action, &QAction::triggered, this, [&control, action] {
    control.click();
    action->setChecked(control.checked());
  });
  return action;
}

QMenu* Binder::bind(MenuEntry& control, QMenu* menu) {
  name(control, menu, qText(shownCaption(control.caption())));
  watch(control, [&control, menu] {
    menu->menuAction()->setVisible(control.visible());
    menu->menuAction()->setEnabled(control.enabled());
  });
  return menu;
}

QTableWidget* Binder::bind(Grid& control, QTableWidget* widget, const QString& label) {
  name(control, widget, label);
  watch(control, [&control, widget] {
    const QSignalBlocker quiet(widget);
    showState(control, widget);
    widget->setRowCount(control.rows());
    widget->setColumnCount(control.columns());
    for (int row = 0; row < control.rows(); ++row) {
      for (int column = 0; column < control.columns(); ++column) {
        QTableWidgetItem* item = widget->item(row, column);
        if (item == nullptr) {
          item = new QTableWidgetItem;
          widget->setItem(row, column, item);
        }
        item->setText(qText(control.cell(row, column)));
        const auto color = control.color(row, column);
        item->setData(Qt::UserRole, color ? QVariant(*color) : QVariant());
      }
    }
    widget->setCurrentCell(control.row(), control.column());
  });
  connect(widget, &QTableWidget::cellClicked, this,
          [&control](int row, int column) { control.clickCell(row, column); });
  return widget;
}

TableView* Binder::bind(Table& control, TableView* widget, const QString& label) {
  name(control, widget, label);
  widget->setTable(control);
  watch(control, [&control, widget] {
    showState(control, widget);
    widget->follow();
  });
  return widget;
}

QScrollBar* Binder::bind(ScrollBar& control, QScrollBar* widget, const QString& label) {
  bindBar(control, widget, label);
  return widget;
}

QSlider* Binder::bind(ScrollBar& control, QSlider* widget, const QString& label) {
  bindBar(control, widget, label);
  return widget;
}

void Binder::bindBar(ScrollBar& control, QAbstractSlider* widget, const QString& label) {
  name(control, widget, label);
  watch(control, [&control, widget] {
    const QSignalBlocker quiet(widget);
    showState(control, widget);
    widget->setRange(0, control.maximum());
    widget->setSingleStep(control.smallStep);
    widget->setPageStep(control.largeStep);
    widget->setValue(control.value());
  });
  connect(widget, &QAbstractSlider::valueChanged, this, [&control](int value) { control.scroll(value); });
}

QWidget* Binder::bind(Image& control, QWidget* widget) {
  name(control, widget, {});
  widget->setAttribute(Qt::WA_TransparentForMouseEvents);
  watch(control, [&control, widget] { showState(control, widget); });
  return widget;
}

ChartView* Binder::bind(ChartBox& control, ChartView* widget, const QString& label) {
  name(control, widget, label);
  watch(control, [&control, widget, label] {
    showState(control, widget);
    const std::optional<Chart>& chart = control.chart();
    widget->setChart(chart);
    widget->setAccessibleName(chart && !chart->title.empty() ? qText(chart->title) : label);
  });
  connect(widget, &ChartView::picked, this, [&control](std::size_t index) { control.pick(index); });
  return widget;
}

PageView* Binder::bind(PageBox& control, PageView* widget, const QString& label) {
  name(control, widget, label);
  watch(control, [&control, widget] {
    showState(control, widget);
    widget->setPage(control.pages(), control.page());
  });
  return widget;
}

QWidget* Binder::bind(Frame& control, QWidget* widget) {
  name(control, widget, qText(shownCaption(control.caption())));
  watch(control, [&control, widget] { showState(control, widget); });
  return widget;
}

void Binder::bindWindow(Window& control, QWidget* widget) {
  name(control, widget, {});
  windows_.insert(widget, &control);
  watch(control, [this, &control, widget] {
    // The toolkit would put its own mark in this place.
    widget->setWindowTitle(qText(control.caption()).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
    if (widget->isVisible() == control.isOpen()) return;
    if (!control.isOpen()) {
      widget->close();  // and not hidden alone: a closed window keeps its place
      // Another window may be on its way. The help viewer alone does not keep the program running.
      QTimer::singleShot(0, this, [this] {
        const auto& windows = desk_.windows();
        if (std::none_of(windows.begin(), windows.end(), [](const Window* one) { return one->isOpen(); }))
          QCoreApplication::quit();
      });
      return;
    }
    widget->show();
    widget->raise();
    widget->activateWindow();
  });
}

bool Binder::windowEvent(Window& window, QWidget* widget, QEvent* event) {
  switch (event->type()) {
    case QEvent::Close:
      if (window.isOpen()) window.closeByUser();
      if (window.isOpen()) {
        event->ignore();
        return true;
      }
      return false;
    case QEvent::WindowActivate:
      desk_.activate(&window);
      return false;
    case QEvent::WindowDeactivate:
      // Which window comes next is known only afterwards; a window of the program tells it by itself.
      QTimer::singleShot(0, widget, [this] {
        if (QApplication::activeWindow() == nullptr) desk_.activate(nullptr);
      });
      return false;
    case QEvent::MouseButtonPress:
      window.click();
      return false;
    default:
      return false;
  }
}

bool Binder::eventFilter(QObject* object, QEvent* event) {
  if (Window* window = windows_.value(object)) {
    return windowEvent(*window, qobject_cast<QWidget*>(object), event);
  }
  if (event->type() == QEvent::Wheel) {
    auto* target = qobject_cast<QWidget*>(object);
    if (qobject_cast<QComboBox*>(object) != nullptr && !target->hasFocus()) {
      event->ignore();  // the page scrolls; the field keeps its value
      return true;
    }
  }
  if (event->type() == QEvent::ShortcutOverride) {
    const QLineEdit* line = lineOf(object);
    if (line != nullptr && hasNothingFor(*static_cast<QKeyEvent*>(event), *line)) {
      event->ignore();  // the menu takes the key
      return true;
    }
  }
  if (event->type() == QEvent::DragEnter) {
    if (lineOf(object) != nullptr && static_cast<QDragEnterEvent*>(event)->mimeData()->hasUrls()) {
      event->ignore();  // a file is opened by the window, and is no text for a field
      return true;
    }
  }
  if (event->type() == QEvent::FocusOut) {
    if (auto* field = qobject_cast<QLineEdit*>(object)) markFailed(field, false);
  }
  if (event->type() == QEvent::FocusIn) {
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    Control* control = controls_.value(object);
    if (QLineEdit* line = lineOf(object); line != nullptr && isPersonsMove(reason)) beginTyping(line);
    // A press moves the focus by its click, when the press can still be carried out after a message.
    const bool comesWithClick = reason == Qt::MouseFocusReason && movesWithTheClick(object);
    if (control != nullptr && isPersonsMove(reason) && !comesWithClick) {
      // Not inside the event: the test of the field left behind may show a message.
      QTimer::singleShot(0, object, [this, object] {
        auto* target = qobject_cast<QWidget*>(object);
        if (Control* entered = controls_.value(object); entered != nullptr && target->hasFocus())
          entered->enter();
      });
    }
  }
  return QObject::eventFilter(object, event);
}

}  // namespace verdalis::desktop
