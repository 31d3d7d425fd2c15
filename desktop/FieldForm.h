#pragma once

#include <QHash>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "desktop/Page.h"

namespace verdalis::desktop {

/// Whether a card takes the whole width of its pane.
enum class CardWidth { narrow, wide };

/// Lays the fields of a pane out from the rows that declare them: a card for each group, a line for each
/// label, its fields in columns under their heads, units behind them, "?" buttons at the end.
class FieldForm {
 public:
  FieldForm(Frame& pane, Binder& binder, HelpButtons& help) : pane_(pane), binder_(binder), help_(help) {}

  /// What stands behind the fields of a line, such as a switch; nullptr for nothing.
  std::function<QWidget*(const FieldRow&)> extra;

  /// A card with the fields of a group. `rows` are all rows of the pane.
  [[nodiscard]] Card group(const FieldGroup& group, int index, const std::vector<const FieldRow*>& rows,
                           CardWidth width = CardWidth::narrow);

 private:
  [[nodiscard]] Control* find(std::string_view name) const;
  [[nodiscard]] QWidget* field(const FieldRow& row);
  [[nodiscard]] QWidget* unit(const FieldRow& row);
  void addLine(const std::vector<const FieldRow*>& fields, const QHash<QString, int>& heads,
               QGridLayout* grid, int line);
  void addResult(const FieldGroup& group, QVBoxLayout* body);

  Frame& pane_;
  Binder& binder_;
  HelpButtons& help_;
};

}  // namespace verdalis::desktop
