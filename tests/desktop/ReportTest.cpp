#include <QImage>

#include "charts/inkColors.h"
#include "desktop/PagePainter.h"
#include "desktop/PageView.h"
#include "main/frmReport.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

using desktop::PageView;

class ReportWindow : public RunningDesktop {
 protected:
  void open() {
    start();
    typeFarm();
    choose(program().main().menus.mnuReport);
    QTest::qWait(0);
  }
  [[nodiscard]] frmReport& window() { return program().windows.report(); }
};

TEST_F(ReportWindow, ShowsThePagesOnWhitePaper) {
  open();
  auto* view = widget<PageView>("frmReport.pages");
  ASSERT_NE(view, nullptr);
  const QImage image = view->grab().toImage();
  const QColor middle = image.pixelColor(image.width() / 2, image.height() * 9 / 10);
  EXPECT_EQ(middle.name(), QStringLiteral("#ffffff"));
}

TEST_F(ReportWindow, MakesAPdfFileOfThePages) {
  open();
  const desktop::PageMeasure measure;
  const QByteArray bytes =
      desktop::pdfOfPages({window().pages.pages(), "Irrigation plan", "Ann Lee"}, measure);
  EXPECT_TRUE(bytes.startsWith("%PDF-"));
  EXPECT_TRUE(bytes.trimmed().endsWith("%%EOF"));
  EXPECT_EQ(bytes.count("/Type /Page\n"), static_cast<qsizetype>(window().pages.count()));
}

TEST(PaperInk, IsThatOfTheLightScheme) {
  for (int ink = 0; ink <= static_cast<int>(Ink::ground); ++ink) {
    for (std::size_t index = 0; index < 12; ++index) {
      const Paint paint{static_cast<Ink>(ink), index, static_cast<double>(index) / 11};
      const InkParts parts = paperInk(paint);
      const QColor color = desktop::chartColor(paint, desktop::Scheme::light, Qt::white);
      EXPECT_NEAR(parts.red, color.redF(), 0.01) << ink;
      EXPECT_NEAR(parts.green, color.greenF(), 0.01) << ink;
      EXPECT_NEAR(parts.blue, color.blueF(), 0.01) << ink;
      EXPECT_NEAR(parts.alpha, color.alphaF(), 0.01) << ink;
    }
  }
}

}  // namespace
}  // namespace verdalis::testing
