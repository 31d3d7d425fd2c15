#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>
#include <optional>

#include "charts/Drawing.h"
#include "desktop/ChartPainter.h"

namespace verdalis::desktop {

/// Shows a chart. The pointer and the arrow keys go from value to value and tell each; a click or Enter
/// picks. The context menu copies and saves the chart.
class ChartView : public QWidget {
  Q_OBJECT

 public:
  explicit ChartView(QWidget* parent = nullptr);

  /// Replaces the chart; nothing for none. The name tells a reader that does not see it what it shows.
  void setChart(const std::optional<Chart>& chart);

  /// The chart in its place, as it is drawn now.
  [[nodiscard]] const Drawing& drawing();

  /// The value that the pointer or the keys have come to; nullptr if there is none.
  [[nodiscard]] const Target* current() const { return current_ ? &*current_ : nullptr; }

  /// The chart on white as a picture, and its numbers as a spreadsheet takes them, to the clipboard.
  void copyPicture();
  void copyData();

  /// Asks for a file and saves the chart there as a picture or a page.
  void save();

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 signals:
  /// What the user chose by a click or by Enter.
  void picked(std::size_t index);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void forget();
  void moveTo(const Target* target);
  void showTip();
  void moveByKey(Direction direction);
  void pickCurrent();
  [[nodiscard]] QColor ground() const;
  void paintCurrent(QPainter& painter) const;

  std::optional<Chart> chart_;
  std::optional<Drawing> drawing_;  ///< Nothing until it is needed
  QPixmap picture_;                 ///< The drawing, so that the pointer can move over it quickly
  std::optional<Target> current_;
  std::optional<Target> pressed_;
};

}  // namespace verdalis::desktop
