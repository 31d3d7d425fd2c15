#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <fstream>
#include <iterator>

#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

class LongNames : public RunningDesktop {
 protected:
  /// A custom crop with the yield table of Corn, in the row behind Fallow.
  void startWith(const std::string& name, const std::string& units = "bu.,bushels") {
    std::ifstream corn(home() / "crops" / "corn.txt", std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(corn), {}};
    text.replace(0, text.find('\r'), "CROP=" + name);
    const std::size_t unit = text.find("UNITS=");
    text.replace(unit, text.find('\r', unit) - unit, "UNITS=" + units);
    std::filesystem::create_directories(home() / "crops" / "custom");
    std::ofstream(home() / "crops" / "custom" / "long.txt", std::ios::binary) << text;
    restart();
    start();
  }

  [[nodiscard]] QRect placeOf(const std::string& control) {
    const QWidget* shown = widget(control);
    return {shown->mapTo(window(), QPoint()).x(), 0, shown->width(), 1};
  }

  /// The row of the long name comes to stand below another one, column by column.
  void expectAligned() {
    for (const char* column :
         {"chkCrop", "txtPrice", "lblPriceUnits", "txtMaxYield", "lblYieldUnits", "cmdInputCosts"}) {
      EXPECT_TRUE(comes([&] {
        return placeOf(std::string("cr(7).") + column) == placeOf(std::string("cr(1).") + column);
      })) << column;
    }
  }
};

TEST_F(LongNames, KeepToTheColumnsOfTheCropTable) {
  for (const std::size_t length : {60U, 100U, 255U}) {
    const std::string name = "Corn & " + std::string(length - 7, 'w');
    startWith(name);
    expectAligned();
    const auto* box = widget<QCheckBox>("cr(7).chkCrop");
    EXPECT_TRUE(comes([&] { return box->text().endsWith(QChar(0x2026)); })) << box->text().toStdString();
    EXPECT_TRUE(box->text().startsWith(QStringLiteral("Corn && ww")));
    EXPECT_EQ(box->accessibleName().toStdString(), name);
    EXPECT_TRUE(box->toolTip().contains(QString::fromStdString(name).toHtmlEscaped()));
    tick("cr(7).chkCrop");
    EXPECT_TRUE(box->text().endsWith(QChar(0x2026))) << "after a change";
    window()->resize(window()->width() + 100, window()->height());
    expectAligned();
  }
}

TEST_F(LongNames, AShortNameIsShownWhole) {
  startWith("Oats");
  expectAligned();
  EXPECT_TRUE(comes([&] { return widget<QCheckBox>("cr(7).chkCrop")->text() == QStringLiteral("Oats"); }));
  EXPECT_EQ(widget<QCheckBox>("cr(7).chkCrop")->toolTip(), QString());
}

TEST_F(LongNames, LongUnitsKeepToTheirColumns) {
  startWith("Oats", std::string(120, 'u') + "," + std::string(120, 'v'));
  expectAligned();
  const auto* units = widget<QLabel>("cr(7).lblPriceUnits");
  EXPECT_TRUE(units->text().endsWith(QChar(0x2026)));
  EXPECT_EQ(units->accessibleName().toStdString(), "$/" + std::string(120, 'u'));
}

}  // namespace
}  // namespace verdalis::testing
