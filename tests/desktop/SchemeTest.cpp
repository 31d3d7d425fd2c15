#include <QImage>
#include <QRadioButton>
#include <cmath>

#include "desktop/LandSplitPicture.h"
#include "desktop/Theme.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::desktop {

/// Prints a scheme in test output.
void PrintTo(Scheme scheme, std::ostream* out) {
  *out << (scheme == Scheme::dark ? "dark" : "light");
}

}  // namespace verdalis::desktop

namespace verdalis::testing {
namespace {

using desktop::Accents;
using desktop::accents;
using desktop::Scheme;
using desktop::schemeOf;

constexpr double readable = 4.5;  // minimum contrast of text of ordinary size
constexpr double visible = 3.0;   // minimum contrast of a mark or border with a meaning

/// Relative luminance of a colour, from 0 for black to 1 for white.
double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const double a = luminance(one) + 0.05;
  const double b = luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

class Schemes : public ::testing::TestWithParam<Scheme> {};
INSTANTIATE_TEST_SUITE_P(Both, Schemes, ::testing::Values(Scheme::light, Scheme::dark),
                         [](const auto& one) { return one.param == Scheme::dark ? "dark" : "light"; });

TEST_P(Schemes, EveryTextIsReadableOnItsBackground) {
  const QPalette palette = desktop::palette(GetParam());
  const auto ratio = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
    return contrast(palette.color(text), palette.color(ground));
  };
  EXPECT_GE(ratio(QPalette::WindowText, QPalette::Window), readable);
  EXPECT_GE(ratio(QPalette::Text, QPalette::Base), readable);
  EXPECT_GE(ratio(QPalette::Text, QPalette::AlternateBase), readable);
  EXPECT_GE(ratio(QPalette::ButtonText, QPalette::Button), readable);
  EXPECT_GE(ratio(QPalette::PlaceholderText, QPalette::Base), readable);
  EXPECT_GE(ratio(QPalette::HighlightedText, QPalette::Highlight), readable);
  EXPECT_GE(ratio(QPalette::ToolTipText, QPalette::ToolTipBase), readable);
  EXPECT_GE(ratio(QPalette::Link, QPalette::Base), readable);
}

TEST_P(Schemes, EveryAccentIsReadableOnItsBackground) {
  const QPalette palette = desktop::palette(GetParam());
  const Accents colours = accents(GetParam());
  EXPECT_GE(contrast(colours.brandText, colours.brand), readable);
  EXPECT_GE(contrast(palette.color(QPalette::WindowText), colours.activeRow), readable);
  for (const QColor& ground : {palette.color(QPalette::Window), colours.card}) {
    EXPECT_GE(contrast(colours.brand, ground), readable);
    EXPECT_GE(contrast(colours.muted, ground), readable);
  }
  EXPECT_GE(contrast(colours.muted, colours.activeRow), readable);
  EXPECT_GE(contrast(palette.color(QPalette::WindowText), colours.caution), readable);
  EXPECT_GE(contrast(colours.muted, colours.caution), readable);
  EXPECT_GE(contrast(colours.warning, palette.color(QPalette::Base)), visible);
}

TEST_P(Schemes, SchemeOfAPaletteIsRecognized) {
  EXPECT_EQ(schemeOf(desktop::palette(GetParam())), GetParam());
}

TEST_P(Schemes, TheProgramUsesTheColours) {
  desktop::applyTheme(*qApp, GetParam());
  EXPECT_EQ(schemeOf(QApplication::palette()), GetParam());
  EXPECT_FALSE(qApp->styleSheet().contains(QLatin1Char('@'))) << "a colour has no value";
  EXPECT_TRUE(qApp->styleSheet().contains(accents(GetParam()).brand.name()));
  desktop::applyTheme(*qApp, Scheme::light);
}

/// The horizontal centres of the lines in the brand colour, from 0 to 1 across the picture.
std::vector<double> linesOf(const QImage& picture, const QColor& colour) {
  std::vector<double> lines;
  const int row = picture.height() / 2;
  int first = -1;
  for (int x = 0; x <= picture.width(); ++x) {
    const bool line = x < picture.width() && picture.pixelColor(x, row).rgb() == colour.rgb();
    if (line && first < 0) first = x;
    if (!line && first >= 0) {
      lines.push_back((first + x) / 2.0 / picture.width());
      first = -1;
    }
  }
  return lines;
}

std::vector<double> numbersOf(const QString& caption) {
  std::vector<double> numbers;
  for (const QString& part : caption.split(QLatin1Char('-')))
    numbers.push_back(QString(part).remove(QLatin1Char('&')).trimmed().toDouble());
  return numbers;
}

using Pictures = RunningDesktop;

TEST_F(Pictures, EveryLandSplitIsDrawnToScale) {
  start();
  constexpr int scale = 3;
  for (int i = 0; i < 6; ++i) {
    auto* button = widget<QRadioButton>("Option1(" + std::to_string(i) + ")");
    const std::vector<double> percentages = numbersOf(button->text());
    const QImage picture = button->icon().pixmap(desktop::landSplitPictureSize, scale).toImage();
    ASSERT_EQ(picture.width(), desktop::landSplitPictureSize.width() * scale);
    const std::vector<double> lines = linesOf(picture, accents(Scheme::light).brand);
    // Two outer edges, and a line between every two parts.
    ASSERT_EQ(lines.size(), percentages.size() + 1) << button->text().toStdString();
    double total = 0;
    for (const double percent : percentages)
      total += percent;
    double before = 0;
    for (std::size_t part = 0; part < percentages.size(); ++part) {
      const double place = lines.front() + (lines.back() - lines.front()) * before / total;
      EXPECT_NEAR(lines[part], place, 1.5 / picture.width()) << button->text().toStdString() << ", " << part;
      before += percentages[part];
    }
  }
}

TEST_F(Pictures, ThePartsOfASplitHaveDifferentColours) {
  for (const Scheme scheme : {Scheme::light, Scheme::dark}) {
    const QImage picture =
        desktop::landSplitPicture({25, 25, 25, 25}, scheme).pixmap(desktop::landSplitPictureSize).toImage();
    std::vector<QRgb> shades;
    for (const double place : {0.14, 0.38, 0.62, 0.86}) {
      shades.push_back(picture.pixel(static_cast<int>(place * picture.width()), picture.height() / 2));
    }
    std::sort(shades.begin(), shades.end());
    EXPECT_EQ(std::unique(shades.begin(), shades.end()), shades.end());
  }
}

}  // namespace
}  // namespace verdalis::testing
