#include "desktop/Theme.h"

#include <QApplication>
#include <QStyleFactory>

#include "desktop/icons.h"

namespace verdalis::desktop {
namespace {

QString styleSheet(Scheme scheme) {
  const Accents colours = accents(scheme);
  const QPalette base = palette(scheme);
  QString sheet = QStringLiteral(R"(
    QToolTip { color: @text; background: @card; border: 1px solid @line; padding: 4px; }
    QFrame[role="card"] { background: @card; border: 1px solid @line; border-radius: 8px; }
    QLabel[role="heading"] { font-weight: 600; color: @brand; }
    QLabel[role="title"] { font-weight: 600; }
    QLabel[role="column"] { color: @muted; font-weight: 600; }
    QLabel[role="muted"] { color: @muted; }
    QLabel[role="figure"] { font-weight: 600; }
    QLabel[role="band"] { color: @muted; }
    QFrame#band { background: @card; border: none; border-bottom: 1px solid @line; }
    QLineEdit, QComboBox { background: @base; border: 1px solid @line; border-radius: 4px; padding: 4px 6px;
                           min-height: 1.3em; selection-background-color: @brand; selection-color: @brandText; }
    QLineEdit:focus, QComboBox:focus { border: 2px solid @brand; padding: 3px 5px; }
    QLineEdit:disabled, QComboBox:disabled { background: @window; color: @disabled; border-color: @line; }
    QPlainTextEdit { background: @base; border: 1px solid @line; border-radius: 4px; padding: 3px 4px;
                     selection-background-color: @brand; selection-color: @brandText; }
    QPlainTextEdit:focus { border: 2px solid @brand; padding: 2px 3px; }
    QLineEdit[failed="true"] { border: 2px solid @warning; padding: 3px 5px; }
    QComboBox::drop-down { border: none; width: 24px; }
    QComboBox::down-arrow { image: url(:/icons/arrow-@scheme.@ending); width: 12px; height: 8px; }
    QCheckBox::indicator, QRadioButton::indicator { width: 14px; height: 14px; background: @base;
                                                    border: 1px solid @muted; }
    QCheckBox::indicator { border-radius: 3px; }
    QRadioButton::indicator { border-radius: 8px; }
    QCheckBox::indicator:hover, QRadioButton::indicator:hover { border: 1px solid @brand; }
    QCheckBox::indicator:focus, QRadioButton::indicator:focus { border: 2px solid @brand; width: 12px;
                                                                height: 12px; }
    QCheckBox::indicator:checked { background: @brand; border-color: @brand;
                                   image: url(:/icons/check-@scheme.@ending); }
    QRadioButton::indicator:checked { background: @brand; border-color: @brand;
                                      image: url(:/icons/dot-@scheme.@ending); }
    QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { border-color: @line;
                                                                      background: @window; }
    QCheckBox::indicator:checked:disabled, QRadioButton::indicator:checked:disabled { background: @disabled;
                                                                                      border-color: @disabled; }
    QCheckBox:disabled, QRadioButton:disabled { color: @disabled; }
    QPushButton { background: @button; border: 1px solid @line; border-radius: 5px; padding: 6px 14px; }
    QPushButton:hover { border-color: @brand; }
    QPushButton:focus { border: 2px solid @brand; padding: 5px 13px; }
    QPushButton:pressed { background: @line; }
    QPushButton:disabled { color: @disabled; }
    QPushButton[role="main"] { background: @brand; color: @brandText; border: 2px solid @brand; font-weight: 600;
                               padding: 9px 26px; }
    QPushButton[role="main"]:focus { border: 2px solid @text; }
    QPushButton[role="main"]:disabled { background: @line; border-color: @line; color: @disabled; }
    QPushButton[role="help"] { border-radius: 10px; min-width: 18px; max-width: 18px; min-height: 18px;
                               max-height: 18px; padding: 0; color: @muted; }
    QPushButton[role="help"]:focus { padding: 0; color: @brand; }
    QFrame[role="tint"] { background: @activeRow; border-radius: 4px; }
    QFrame[role="notice"] { background: @caution; border: none; border-bottom: 1px solid @cautionLine; }
    QFrame[role="recovery"] { background: @activeRow; border: none; border-bottom: 1px solid @line; }
    QPushButton[role="close"] { background: transparent; border: 1px solid transparent; border-radius: 5px;
                                padding: 4px 9px; }
    QPushButton[role="close"]:hover { border-color: @cautionLine; }
    QPushButton[role="close"]:focus { border: 2px solid @brand; padding: 3px 8px; }
    QPushButton[role="link"] { background: transparent; border: 1px solid transparent; color: @brand;
                               text-decoration: underline; padding: 6px 8px; }
    QPushButton[role="link"]:focus { border: 2px solid @brand; border-radius: 5px; padding: 5px 7px; }
    QPushButton[role="link"]:disabled { color: @muted; text-decoration: none; }
    QLabel[role="caution"] { color: @cautionText; }
    QLabel[role="loss"] { color: @warning; font-weight: 600; }
    QLabel[role="gain"] { color: @brand; font-weight: 600; }
    QSlider::groove:horizontal { background: @line; height: 4px; border-radius: 2px; }
    QSlider::sub-page:horizontal { background: @brand; height: 4px; border-radius: 2px; }
    QSlider::handle:horizontal { background: @card; border: 2px solid @brand; width: 12px; height: 12px;
                                 margin: -6px 0; border-radius: 8px; }
    QSlider::handle:horizontal:focus { background: @brand; }
    QLineEdit[caution="true"], QComboBox[caution="true"] { border: 1px solid @cautionText; }
    QLineEdit[caution="true"]:focus, QComboBox[caution="true"]:focus { border: 2px solid @cautionText; }
    QLineEdit[changed="true"], QComboBox[changed="true"] { background: @changed; border-left: 4px solid @water;
                                                           padding-left: 3px; }
    QCheckBox[changed="true"], QRadioButton[changed="true"] { background: @changed; border-radius: 4px; }
    QPushButton[changed="true"] { background: @changed; border-left: 4px solid @water; padding-left: 11px; }
    QFrame#footer { background: @card; border: none; border-top: 1px solid @line; }
    QTableWidget { background: @base; gridline-color: @line; border: 1px solid @line; border-radius: 4px;
                   selection-background-color: @brand; selection-color: @brandText; }
    QTableView[role="records"] { background: @card; border: none; }
    QTableView[role="records"] QHeaderView { background: @card; }
    QTableView[role="records"] QHeaderView::section { background: @card; color: @muted; font-weight: 600;
                                                      border: none; border-bottom: 1px solid @line;
                                                      padding: 4px 8px; }
    QTableView[role="records"] QHeaderView::section:hover { color: @brand; }
    QScrollArea { border: none; background: transparent; }
    QMenuBar { background: @window; }
    QMenuBar::item { background: transparent; padding: 4px 9px; border-radius: 4px; }
    QMenuBar::item:selected { background: @line; }
    QMenuBar::item:disabled { color: @disabled; }
    QScrollBar { background: transparent; border: none; margin: 0; }
    QScrollBar:vertical { width: 12px; }
    QScrollBar:horizontal { height: 12px; }
    QScrollBar::handle { background: @scroll; border-radius: 4px; margin: 2px; }
    QScrollBar::handle:vertical { min-height: 28px; }
    QScrollBar::handle:horizontal { min-width: 28px; }
    QScrollBar::handle:hover { background: @muted; }
    QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; border: none; background: none; }
    QScrollBar::add-page, QScrollBar::sub-page { background: none; }
    QHeaderView { background: @card; border: none; }
    QHeaderView::section { background: @card; color: @muted; border: none; border-bottom: 1px solid @line;
                           padding: 4px 8px; font-weight: 600; }
    QTableCornerButton::section { background: @card; border: none; border-bottom: 1px solid @line; }
    QProgressBar { background: @line; color: @text; border: none; border-radius: 4px; text-align: center; }
    QProgressBar::chunk { background: @brand; border-radius: 4px; }
    QComboBox QAbstractItemView { background: @card; border: 1px solid @line; outline: 0;
                                  selection-background-color: @brand; selection-color: @brandText; }
    QAbstractItemView, QCheckBox, QRadioButton, QPushButton { outline: 0; }
    QMenu::separator { height: 1px; background: @line; margin: 4px 8px; }
  )");
  const auto put = [&](const char* name, const QColor& colour) {
    sheet.replace(QLatin1Char('@') + QLatin1String(name) + QLatin1Char(';'),
                  colour.name() + QLatin1Char(';'));
  };
  sheet.replace(QLatin1String("@scheme"), QLatin1String(scheme == Scheme::dark ? "dark" : "light"));
  sheet.replace(QLatin1String("@ending"), QLatin1String(iconEnding));
  put("text", base.color(QPalette::WindowText));
  put("window", base.color(QPalette::Window));
  put("base", base.color(QPalette::Base));
  put("button", base.color(QPalette::Button));
  put("disabled", base.color(QPalette::Disabled, QPalette::Text));
  put("brand", colours.brand);
  put("brandText", colours.brandText);
  put("card", colours.card);
  put("line", colours.line);
  put("muted", colours.muted);
  put("scroll", colours.scroll);
  put("warning", colours.warning);
  put("activeRow", colours.activeRow);
  put("water", colours.water);
  put("changed", colours.changed);
  put("caution", colours.caution);
  put("cautionLine", colours.cautionLine);
  put("cautionText", colours.cautionText);
  return sheet;
}

}  // namespace

Scheme schemeOf(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness()
             ? Scheme::dark
             : Scheme::light;
}

QPalette palette(Scheme scheme) {
  const bool dark = scheme == Scheme::dark;
  const Accents colours = accents(scheme);
  const QColor text = dark ? QColor(0xE6E9E4) : QColor(0x1D2420);
  const QColor window = dark ? QColor(0x1B1F1D) : QColor(0xF5F6F2);
  const QColor base = dark ? QColor(0x151917) : QColor(0xFFFFFF);
  const QColor button = dark ? QColor(0x2C332F) : QColor(0xFFFFFF);
  const QColor disabled = dark ? QColor(0x77807A) : QColor(0x8A928C);
  QPalette result;
  result.setColor(QPalette::Window, window);
  result.setColor(QPalette::WindowText, text);
  result.setColor(QPalette::Base, base);
  result.setColor(QPalette::AlternateBase, colours.card);
  result.setColor(QPalette::Text, text);
  result.setColor(QPalette::Button, button);
  result.setColor(QPalette::ButtonText, text);
  result.setColor(QPalette::BrightText, colours.warning);
  result.setColor(QPalette::Highlight, colours.brand);
  result.setColor(QPalette::HighlightedText, colours.brandText);
  result.setColor(QPalette::Link, colours.brand);
  result.setColor(QPalette::LinkVisited, colours.brand);
  result.setColor(QPalette::PlaceholderText, colours.muted);
  result.setColor(QPalette::ToolTipBase, colours.card);
  result.setColor(QPalette::ToolTipText, text);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    result.setColor(QPalette::Disabled, role, disabled);
  }
  // Menus draw the text of a disabled entry in this colour too, one pixel aside. It is to be invisible.
  result.setColor(QPalette::Disabled, QPalette::Light, base);
  return result;
}

Accents accents(Scheme scheme) {
  if (scheme == Scheme::dark) {
    return {QColor(0x7CC48A), QColor(0x10210F), QColor(0x232926), QColor(0x3D4641), QColor(0xA3ADA6),
            QColor(0xFF8A70), QColor(0x2B332E), QColor(0x5E8F5A), QColor(0x6FB3D9), QColor(0x1C3342),
            QColor(0x3A3219), QColor(0x66572A), QColor(0xE3B341), QColor(0x59645D)};
  }
  return {QColor(0x2E6B3A), QColor(0xFFFFFF), QColor(0xFFFFFF), QColor(0xD3D9D2), QColor(0x5C665F),
          QColor(0xC0392B), QColor(0xF3F3F3), QColor(0x8DB87C), QColor(0x2F7FB0), QColor(0xE4F0F8),
          QColor(0xFDF3D8), QColor(0xE6CF94), QColor(0x8A5A00), QColor(0xBCC5BD)};
}

QColor textColor(QRgb color, Scheme scheme) {
  const QColor own(color);
  return scheme == Scheme::dark ? QColor::fromHslF(own.hslHueF(), 0.6F, 0.72F) : own;
}

void applyTheme(QApplication& application, Scheme scheme) {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(palette(scheme));
  application.setStyleSheet(styleSheet(scheme));
}

}  // namespace verdalis::desktop
