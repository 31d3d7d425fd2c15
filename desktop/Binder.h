#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <functional>
#include <unordered_map>
#include <vector>

#include "controls/ChartBox.h"
#include "controls/Event.h"
#include "controls/Grid.h"
#include "controls/PageBox.h"
#include "controls/Table.h"
#include "controls/displays.h"
#include "controls/inputs.h"

class QAbstractButton;
class QAbstractSlider;
class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;
class QScrollBar;
class QSlider;
class QTableWidget;
class QWidget;

namespace verdalis::desktop {

class ChartView;
class PageView;
class TableView;

/// UTF-8 of the program as text of the toolkit, and back.
[[nodiscard]] QString qText(const std::string& text);
[[nodiscard]] std::string programText(const QString& text);

/// A caption with its mnemonic characters doubled, so that the toolkit shows it as it stands.
[[nodiscard]] QString widgetCaption(const std::string& caption);

/// Ties controls to the widgets that show them, both ways: a change of the control's state reaches the
/// widget, what a person does with the widget reaches the control. One operation for each kind; none knows
/// what a control is for.
///
/// A field takes back by itself what a person has typed since it got the focus; with nothing typed, the keys
/// for undo and redo go to the menu.
///
/// Every widget takes its object name from its control, and its accessible name from the caption or from
/// `label`.
class Binder : public QObject {
  Q_OBJECT

 public:
  explicit Binder(Desk& desk, QObject* parent = nullptr);

  QLineEdit* bind(TextBox& control, QLineEdit* widget, const QString& label);
  QPlainTextEdit* bind(TextBox& control, QPlainTextEdit* widget, const QString& label);
  QComboBox* bind(ComboBox& control, QComboBox* widget, const QString& label);
  QCheckBox* bind(CheckBox& control, QCheckBox* widget);
  QRadioButton* bind(OptionButton& control, QRadioButton* widget);
  QPushButton* bind(Button& control, QPushButton* widget, const QString& label = {});
  QLabel* bind(Label& control, QLabel* widget, const QString& label = {});
  QAction* bind(MenuEntry& control, QAction* action);
  QMenu* bind(MenuEntry& control, QMenu* menu);
  QTableWidget* bind(Grid& control, QTableWidget* widget, const QString& label);
  TableView* bind(Table& control, TableView* widget, const QString& label);
  QScrollBar* bind(ScrollBar& control, QScrollBar* widget, const QString& label);
  QSlider* bind(ScrollBar& control, QSlider* widget, const QString& label);
  QWidget* bind(Image& control, QWidget* widget);

  /// The name of a chart is its title, or `label` while it shows none.
  ChartView* bind(ChartBox& control, ChartView* widget, const QString& label);

  PageView* bind(PageBox& control, PageView* widget, const QString& label);

  /// A frame or composite control: its visibility and whether it is enabled.
  QWidget* bind(Frame& control, QWidget* widget);

  /// A window: it is shown while it is open, and what a person does to its frame reaches the control.
  void bindWindow(Window& control, QWidget* widget);

  /// Gives a widget its names and the control's focus, without its state: for what shows that in its own way,
  /// such as a pane, whose page the main window puts in front.
  void name(Control& control, QWidget* widget, const QString& label = {});

  /// The widget of a control; nullptr without one.
  [[nodiscard]] QWidget* widget(const Control& control) const { return widgets_.value(&control); }
  [[nodiscard]] QAction* action(const Control& control) const { return actions_.value(&control); }

  /// Runs now and after each change of a control, behind what its binding does, until the control is bound
  /// anew or its widget goes.
  void alsoWatch(Control& control, const std::function<void()>& watcher);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void watch(Control& control, std::function<void()> update);
  void bindBar(ScrollBar& control, QAbstractSlider* widget, const QString& label);
  bool windowEvent(Window& window, QWidget* widget, QEvent* event);

  Desk& desk_;
  Connection focusMoves_;
  std::unordered_map<const Control*, std::vector<Connection>> watches_;
  QHash<const Control*, QWidget*> widgets_;
  QHash<const Control*, QAction*> actions_;
  QHash<const QObject*, Control*> controls_;
  QHash<const QObject*, Window*> windows_;
};

}  // namespace verdalis::desktop
