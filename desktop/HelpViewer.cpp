#include "desktop/HelpViewer.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>
#include <QUrl>

namespace verdalis::desktop {
namespace {

constexpr const char* homeTopic = "index.htm";
constexpr int snippetBefore = 50;  // characters shown before and after a match
constexpr int snippetAfter = 110;

QString readPage(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// One search result: the title of the topic, and the text around the first match.
QString resultEntry(const QString& file, const QString& title, const QString& text, qsizetype match,
                    int length) {
  const qsizetype start = std::max<qsizetype>(0, match - snippetBefore);
  const QString before = text.mid(start, match - start).toHtmlEscaped();
  const QString found = text.mid(match, length).toHtmlEscaped();
  const QString after = text.mid(match + length, snippetAfter).toHtmlEscaped();
  return QStringLiteral("<p><a href=\"%1\">%2</a><br>… %3<b>%4</b>%5 …</p>")
      .arg(file, title.toHtmlEscaped(), before, found, after);
}

}  // namespace

HelpViewer::HelpViewer(const QString& folder) : folder_(folder) {
  setObjectName(QStringLiteral("helpViewer"));
  setWindowTitle(tr("Verdalis Help"));
  resize(820, 680);

  browser_ = new QTextBrowser(this);
  browser_->setObjectName(QStringLiteral("helpBrowser"));
  browser_->setAccessibleName(tr("Help topic"));
  browser_->setSearchPaths({folder_});
  browser_->setOpenExternalLinks(true);
  browser_->document()->setDocumentMargin(20);
  browser_->setFrameShape(QFrame::NoFrame);
  setCentralWidget(browser_);

  auto* bar = addToolBar(tr("Help"));
  bar->setMovable(false);
  const auto add = [&](const QString& text, const QKeySequence& keys) {
    QAction* action = bar->addAction(text);
    action->setShortcut(keys);
    action->setToolTip(text + QStringLiteral(" (") + keys.toString(QKeySequence::NativeText) +
                       QStringLiteral(")"));
    return action;
  };
  QAction* back = add(tr("Back"), QKeySequence::Back);
  QAction* forward = add(tr("Forward"), QKeySequence::Forward);
  QAction* home = add(tr("Home"), QKeySequence(QStringLiteral("Alt+Home")));
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
  connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  connect(home, &QAction::triggered, this, [this] { showTopic(QLatin1String(homeTopic)); });

  searchText_ = new QLineEdit(this);
  searchText_->setObjectName(QStringLiteral("helpSearch"));
  searchText_->setAccessibleName(tr("Search the help"));
  searchText_->setPlaceholderText(tr("Search the help"));
  searchText_->setClearButtonEnabled(true);
  searchText_->setMaximumWidth(280);
  auto* gap = new QWidget(bar);
  gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(gap);
  bar->addWidget(searchText_);
  connect(searchText_, &QLineEdit::returnPressed, this, &HelpViewer::search);
  auto* find = new QAction(this);
  find->setShortcut(QKeySequence::Find);
  addAction(find);
  connect(find, &QAction::triggered, searchText_, qOverload<>(&QWidget::setFocus));
  auto* close = new QAction(this);
  close->setShortcut(QKeySequence(Qt::Key_Escape));
  addAction(close);
  connect(close, &QAction::triggered, this, &QWidget::close);
}

QString HelpViewer::fileOf(const QString& topic) const {
  const QString wanted = topic.section(QLatin1Char('#'), 0, 0);
  const QStringList files =
      QDir(folder_).entryList({QStringLiteral("*.htm"), QStringLiteral("*.html")}, QDir::Files);
  for (const QString& file : files) {
    if (file.compare(wanted, Qt::CaseInsensitive) == 0) return file;
  }
  return {};
}

void HelpViewer::showTopic(const QString& topic) {
  const QString file = fileOf(topic);
  if (file.isEmpty()) return;
  QUrl url = QUrl::fromLocalFile(QDir(folder_).absoluteFilePath(file));
  url.setFragment(topic.section(QLatin1Char('#'), 1));
  browser_->setSource(url);
  show();
  raise();
  activateWindow();
}

void HelpViewer::search() {
  const QString wanted = searchText_->text().trimmed();
  if (wanted.isEmpty()) return;
  QString results;
  for (const QString& file : QDir(folder_).entryList({QStringLiteral("*.htm")}, QDir::Files, QDir::Name)) {
    QTextDocument page;
    page.setHtml(readPage(QDir(folder_).absoluteFilePath(file)));
    const QString text = page.toPlainText();
    const qsizetype match = text.indexOf(wanted, 0, Qt::CaseInsensitive);
    if (match < 0) continue;
    const QString title = page.metaInformation(QTextDocument::DocumentTitle);
    results +=
        resultEntry(file, title.isEmpty() ? file : title, text, match, static_cast<int>(wanted.size()));
  }
  if (results.isEmpty()) results = tr("<p>No topic mentions this.</p>");
  browser_->setHtml(
      QStringLiteral("<h2>%1</h2>%2").arg(tr("Topics with “%1”").arg(wanted.toHtmlEscaped()), results));
  // Resolves links in the result list relative to the help folder.
  browser_->document()->setBaseUrl(QUrl::fromLocalFile(QDir(folder_).absolutePath() + QLatin1Char('/')));
}

}  // namespace verdalis::desktop
