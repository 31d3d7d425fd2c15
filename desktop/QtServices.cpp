#include "desktop/QtServices.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QFileDialog>
#include <QIcon>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>

#include "desktop/Binder.h"
#include "desktop/HelpViewer.h"
#include "desktop/icons.h"
#include "platform/paths.h"

namespace verdalis::desktop {
namespace {

constexpr int pictureSize = 40;  // of a message box, pixels

QMessageBox::Icon boxIcon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::critical:
      return QMessageBox::Critical;
    case MessageIcon::question:
      return QMessageBox::Question;
    case MessageIcon::exclamation:
      return QMessageBox::Warning;
    case MessageIcon::information:
      return QMessageBox::Information;
    case MessageIcon::none:
      break;
  }
  return QMessageBox::NoIcon;
}

/// The picture of a box; empty for none.
QString boxPicture(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::critical:
      return iconFile(QStringLiteral("message-failure"));
    case MessageIcon::question:
      return iconFile(QStringLiteral("message-question"));
    case MessageIcon::exclamation:
      return iconFile(QStringLiteral("message-caution"));
    case MessageIcon::information:
      return iconFile(QStringLiteral("message-notice"));
    case MessageIcon::none:
      break;
  }
  return {};
}

QMessageBox::StandardButtons boxButtons(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::yesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::yesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MessageButtons::saveDiscardCancel:
      return QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
    case MessageButtons::ok:
      break;
  }
  return QMessageBox::Ok;
}

QString nameFilter(const std::string& filter) {
  // Converts filters such as "Excel Worksheet (*.xls)|*.xls" and "Comma Separated Values|csv" to Qt's format.
  const QStringList parts = qText(filter).split(QLatin1Char('|'));
  if (parts.size() < 2) return {};
  const QString pattern = parts[1].contains(QLatin1Char('*')) ? parts[1] : QLatin1String("*.") + parts[1];
  return parts[0].section(QLatin1String(" ("), 0, 0) + QLatin1String(" (") + pattern + QLatin1String(")");
}

std::optional<std::filesystem::path> chosen(QFileDialog& dialog, const FileQuestion& question) {
  if (!question.folder.empty()) dialog.setDirectory(qText(question.folder.string()));
  if (!question.filter.empty()) dialog.setNameFilter(nameFilter(question.filter));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return pathOf(programText(dialog.selectedFiles().constFirst()));
}

}  // namespace

QtServices::QtServices(const QString& helpFolder) : helpFolder_(helpFolder) {}

QtServices::~QtServices() = default;

HelpViewer& QtServices::help() {
  if (!help_) help_ = std::make_unique<HelpViewer>(helpFolder_);
  return *help_;
}

MessageAnswer QtServices::show(const Message& message) {
  QMessageBox box(boxIcon(message.icon), qText(message.title), qText(message.text),
                  boxButtons(message.buttons), QApplication::activeWindow());
  box.setObjectName(QStringLiteral("messageBox"));
  if (const QString picture = boxPicture(message.icon); !picture.isEmpty())
    box.setIconPixmap(QIcon(picture).pixmap(QSize(pictureSize, pictureSize), box.devicePixelRatioF()));
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  if (message.buttons == MessageButtons::saveDiscardCancel) {
    box.setStyleSheet(QStringLiteral("QDialogButtonBox { button-layout: 0; }"));  // in this order everywhere
    box.button(QMessageBox::Save)->setText(QObject::tr("&Save"));
    box.button(QMessageBox::Discard)->setText(QObject::tr("&Discard"));
    box.setDefaultButton(QMessageBox::Save);
    box.setEscapeButton(QMessageBox::Cancel);
  }
  switch (box.exec()) {
    case QMessageBox::Yes:
      return MessageAnswer::yes;
    case QMessageBox::No:
      return MessageAnswer::no;
    case QMessageBox::Cancel:
      return MessageAnswer::cancel;
    case QMessageBox::Save:
      return MessageAnswer::save;
    case QMessageBox::Discard:
      return MessageAnswer::discard;
    default:
      // Closing a message without a Cancel button means No if it has a No button.
      return message.buttons == MessageButtons::ok ? MessageAnswer::ok : MessageAnswer::no;
  }
}

std::optional<std::filesystem::path> QtServices::chooseOpen(const FileQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow(), qText(question.title));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return chosen(dialog, question);
}

std::optional<std::filesystem::path> QtServices::chooseSave(const FileQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow(), qText(question.title));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(qText(question.defaultExtension));
  if (!question.suggestedName.empty()) {
    if (question.folder.empty())
      dialog.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog.selectFile(qText(question.suggestedName));
  }
  return chosen(dialog, question);
}

void QtServices::clear() {
  QApplication::clipboard()->clear();
}

void QtServices::setText(const std::string& text) {
  QApplication::clipboard()->setText(qText(text));
}

std::string QtServices::text() const {
  return programText(QApplication::clipboard()->text());
}

void QtServices::showTopic(const std::string& topic) {
  help().showTopic(qText(topic));
}

bool QtServices::open(const std::filesystem::path& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(qText(path.string())));
}

ClockTime QtServices::now() const {
  const QDateTime moment = QDateTime::currentDateTime();
  return {moment.date().year(), moment.date().month(),  moment.date().day(),
          moment.time().hour(), moment.time().minute(), moment.time().second()};
}

void QtServices::pump() {
  QCoreApplication::processEvents();
}

std::optional<int> QtServices::askCopies() {
  return printing_.askCopies();
}

std::string QtServices::pdfOf(const PlacedPages& pages) {
  return pdfOfPages(pages, printing_.pageMeasure()).toStdString();
}

std::unique_ptr<PageSurface> QtServices::beginDocument() {
  return printing_.beginDocument();
}

}  // namespace verdalis::desktop
