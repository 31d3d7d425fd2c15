#pragma once

#include <QTableWidget>
#include <QWidget>

#include "desktop/Page.h"
#include "screens/CustomCropPane.h"

namespace verdalis::desktop {

/// The yield grid: works like a spreadsheet, and shades each cell by its value.
class YieldTableWidget : public QTableWidget {
  Q_OBJECT

 public:
  YieldTableWidget(Grid& grid, Binder& binder);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void shade();

  Grid& grid_;
};

/// The custom crop editor.
[[nodiscard]] QWidget* customCropView(CustomCropPane& pane, Binder& binder);

}  // namespace verdalis::desktop
