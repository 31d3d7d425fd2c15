#pragma once

#include <QHash>
#include <string_view>
#include <vector>

#include "desktop/Page.h"

namespace verdalis::desktop {

/// Whether a card takes the whole width of its pane.
enum class CardWidth { narrow, wide };

/// A field of a form: its row, and the controls of the pane that belong to it.
struct FormField {
  const FieldRow* row = nullptr;
  TextBox* box = nullptr;    ///< The field itself, or
  ComboBox* list = nullptr;  ///< the list that it is
  Label* unit = nullptr;     ///< Behind it, where the unit is not fixed
  CheckBox* tick = nullptr;  ///< Behind the fields of its line; nullptr for none
};

/// A group of a form: its fixed texts, and the controls of the pane that belong to it.
struct FormGroup {
  std::string_view heading;
  std::string_view labelColumn;
  std::string_view resultLabel;
  std::string_view note;
  int helpIndex = -1;
  Label* headingLabel = nullptr;  ///< Its heading, where that is not fixed
  Label* result = nullptr;        ///< Its figure; nullptr for none
};

/// A group of a pane as one of its form.
template <class Pane>
[[nodiscard]] FormGroup formGroup(Pane& pane, const FieldGroup<Pane>& group) {
  const auto label = [&](Label Pane::*member) { return member == nullptr ? nullptr : &(pane.*member); };
  return {group.heading,   group.labelColumn,           group.resultLabel,         group.note,
          group.helpIndex, label(group.headingControl), label(group.resultControl)};
}

/// Lays the fields of a pane out from the rows that declare them: a card for each group, a line for each
/// label, its fields in columns under their heads, units behind them, "?" buttons at the end.
class FieldForm {
 public:
  FieldForm(Binder& binder, HelpButtons& help, std::vector<FormField> fields)
      : binder_(binder), help_(help), fields_(std::move(fields)) {}

  /// A card with the fields of a group. `index` is the one by which the rows name it.
  [[nodiscard]] Card group(const FormGroup& group, int index, CardWidth width = CardWidth::narrow);

 private:
  using Line = std::vector<const FormField*>;

  /// The fields of a group by the lines in which they stand.
  [[nodiscard]] std::vector<Line> linesOf(int group) const;

  /// For each column head of a group, the place in its line of the fields under it.
  [[nodiscard]] QHash<QString, int> columnsOfHeads(int group) const;

  [[nodiscard]] QWidget* widget(const FormField& field, int place);
  [[nodiscard]] QWidget* unit(const FormField& field);
  void addLine(const Line& fields, const QHash<QString, int>& heads, QGridLayout* grid, int line);
  void showOptimal(const FormField& field);
  void addResult(const FormGroup& group, QVBoxLayout* body);

  Binder& binder_;
  HelpButtons& help_;
  std::vector<FormField> fields_;
};

}  // namespace verdalis::desktop
