#pragma once

#include <QTimer>
#include <QWidget>
#include <vector>

#include "desktop/FieldMarks.h"
#include "desktop/Page.h"
#include "desktop/Theme.h"
#include "screens/MainPane.h"
#include "screens/WishesCard.h"

class QButtonGroup;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QScrollBar;

namespace verdalis::desktop {

/// The main pane in the order a farmer thinks: the farm and its water, the land split, the crops, the pumping
/// plant, and the button that starts the evaluation, which stays in sight below.
class MainPaneView : public QWidget {
  Q_OBJECT

 public:
  MainPaneView(MainPane& pane, WishesCard& wishes, Binder& binder);

 protected:
  void changeEvent(QEvent* event) override;

  /// The keys that go through the crop rows.
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  [[nodiscard]] QWidget* farmCard();
  [[nodiscard]] QWidget* landCard();
  [[nodiscard]] QWidget* cropCard();
  [[nodiscard]] QWidget* plantCard(WishesCard& wishes);
  void fillFooter(QHBoxLayout* line);
  void rebuildRows();
  [[nodiscard]] QLabel* unitLabel(Label& control, int column);
  void orderRows();
  [[nodiscard]] bool goThroughRows(const QObject* from, int key);
  void placeScroll();
  void drawPictures();
  void tellRange(const Control& control, QWidget* field);

  MainPane& pane_;
  Binder& binder_;
  Connection rowChanges_;
  Connection hintChanges_;
  QTimer hints_;
  FieldMarks* marks_;
  QGridLayout* heads_ = nullptr;
  QWidget* beforeRows_ = nullptr;  ///< The last one that Tab stops at before the crop rows
  QScrollArea* rowsArea_ = nullptr;
  QWidget* rows_ = nullptr;
  QScrollBar* rowsBar_ = nullptr;
  std::vector<QRadioButton*> landSplits_;
};

}  // namespace verdalis::desktop
