#include <QAccessible>
#include <QTableWidget>
#include <cstdlib>
#include <iostream>
#include <map>

#include "desktop/ChartView.h"
#include "desktop/TableView.h"
#include "tests/desktop/EachPane.h"

namespace verdalis::testing {
namespace {

/// Reads the pages as a screen reader does.
class Accessible : public EachPane {
 protected:
  struct Read {
    std::string control;
    std::string role;
    std::string name;
    std::string description;
    bool isPicture = false;  ///< A chart or a table, which a name alone does not tell
  };

  static std::string nameOf(QAccessible::Role role) {
    switch (role) {
      case QAccessible::EditableText:
        return "field";
      case QAccessible::Button:
        return "button";
      case QAccessible::CheckBox:
        return "check box";
      case QAccessible::RadioButton:
        return "option";
      case QAccessible::ComboBox:
        return "list";
      case QAccessible::Slider:
      case QAccessible::ScrollBar:
        return "slider";
      case QAccessible::Table:
        return "table";
      case QAccessible::Graphic:
      case QAccessible::Chart:
        return "chart";
      case QAccessible::Client:  // a page that the keys scroll
        return "area";
      default:
        return "";
    }
  }

  /// What Tab stops at on the page on show.
  [[nodiscard]] std::vector<Read> page() {
    std::vector<Read> all;
    const QWidget* page = desktop().mainWindow()->currentPage();
    for (QWidget* child : page->findChildren<QWidget*>()) {
      if (!child->isVisible() || !child->isEnabled() || child->focusProxy() != nullptr ||
          (child->focusPolicy() & Qt::TabFocus) == 0) {
        continue;
      }
      // The line of a list is a part of it.
      if (qobject_cast<QComboBox*>(child->parentWidget()) != nullptr) continue;
      QAccessibleInterface* told = QAccessible::queryAccessibleInterface(child);
      if (told == nullptr) {
        ADD_FAILURE() << child->objectName().toStdString();
        continue;
      }
      const bool isPicture = qobject_cast<desktop::ChartView*>(child) != nullptr ||
                             qobject_cast<desktop::TableView*>(child) != nullptr ||
                             qobject_cast<QTableWidget*>(child) != nullptr;
      // The toolkit tells the text of a list as its name, and the name by the label beside it.
      const QString name = qobject_cast<QComboBox*>(child) != nullptr ? child->accessibleName()
                                                                      : told->text(QAccessible::Name);
      const bool isArea = qobject_cast<QScrollArea*>(child) != nullptr;
      all.push_back({child->objectName().toStdString(),
                     told->role() == QAccessible::Client && !isArea ? "" : nameOf(told->role()),
                     name.toStdString(), told->text(QAccessible::Description).toStdString(), isPicture});
    }
    return all;
  }
};

TEST_F(Accessible, EachPageCanBeRead) {
  forEachPane({1366, 768}, [this](const std::string& pane) {
    std::map<std::string, std::string> known;
    for (const Read& read : page()) {
      if (std::getenv("VERDALIS_READ") != nullptr) {
        std::cout << pane << ": " << read.role << " \"" << read.name << "\" (" << read.description << ") "
                  << read.control << '\n';
      }
      const std::string where = pane + ' ' + read.control;
      EXPECT_NE(read.role, "") << where;
      EXPECT_NE(read.name, "") << where;
      if (read.isPicture) {
        EXPECT_NE(read.description, "") << where;
      }
      const auto [other, isNew] = known.try_emplace(read.role + ' ' + read.name, read.control);
      EXPECT_TRUE(isNew) << where << " is named as " << other->second << ": " << read.name;
    }
    EXPECT_GT(known.size(), 3U) << pane;
  });
}

}  // namespace
}  // namespace verdalis::testing
