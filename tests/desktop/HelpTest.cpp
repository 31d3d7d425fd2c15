#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>

#include "desktop/HelpViewer.h"
#include "screens/modHelp.h"

namespace verdalis::testing {
namespace {

const QString helpFolder = QStringLiteral(VERDALIS_SOURCE_DIR "/help/HTML");

QString readPage(const QString& file) {
  QFile page(helpFolder + QLatin1Char('/') + file);
  return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

QStringList pages() {
  return QDir(helpFolder).entryList({QStringLiteral("*.htm")}, QDir::Files, QDir::Name);
}

/// The values of an attribute in a page, such as href.
QStringList valuesOf(const QString& page, const QString& attribute) {
  QStringList values;
  const QRegularExpression wanted(QStringLiteral("\\b%1=\"([^\"]*)\"").arg(attribute));
  auto found = wanted.globalMatch(page);
  while (found.hasNext())
    values += found.next().captured(1);
  return values;
}

QSet<QString> anchorsOf(const QString& page) {
  const QStringList names = valuesOf(page, QStringLiteral("name")) + valuesOf(page, QStringLiteral("id"));
  return {names.begin(), names.end()};
}

/// Every topic that a button or a menu entry opens.
QStringList topicsOfTheProgram() {
  QStringList topics{QStringLiteral("batchoption.htm"), QStringLiteral("index.htm"),
                     QStringLiteral("mainInput.htm#SplitFactor"),
                     QStringLiteral("batchoption.htm#BatchFixed")};
  for (const HelpAction& action : helpActions()) {
    if (!action.topic.empty()) topics += QString::fromStdString(action.topic);
  }
  return topics;
}

class Help : public ::testing::Test {
 protected:
  [[nodiscard]] QTextBrowser* browser() const {
    return help_.findChild<QTextBrowser*>(QStringLiteral("helpBrowser"));
  }
  [[nodiscard]] QString shownFile() const { return browser()->source().fileName(); }
  [[nodiscard]] QString shownText() const { return browser()->toPlainText(); }

  QAction* action(const char* text) {
    for (QAction* one : help_.findChild<QToolBar*>()->actions()) {
      if (one->text() == QLatin1String(text)) return one;
    }
    ADD_FAILURE() << "no action " << text;
    return nullptr;
  }

  void searchFor(const char* text) {
    auto* field = help_.findChild<QLineEdit*>(QStringLiteral("helpSearch"));
    field->clear();
    QTest::keyClicks(field, QString::fromUtf8(text));
    QTest::keyClick(field, Qt::Key_Return);
  }

  desktop::HelpViewer help_{helpFolder};
};

TEST_F(Help, EveryTopicOpensWhateverTheCaseOfItsFileName) {
  const QStringList files = pages();
  for (const QString& topic : topicsOfTheProgram()) {
    const QString file = topic.section(QLatin1Char('#'), 0, 0);
    const QString anchor = topic.section(QLatin1Char('#'), 1);
    for (const QString& written : {file, file.toUpper(), file.toLower()}) {
      help_.close();
      browser()->clear();
      help_.showTopic(anchor.isEmpty() ? written : written + QLatin1Char('#') + anchor);
      EXPECT_TRUE(help_.isVisible()) << topic.toStdString();
      EXPECT_TRUE(files.contains(shownFile())) << shownFile().toStdString();
      EXPECT_EQ(shownFile().compare(file, Qt::CaseInsensitive), 0) << topic.toStdString();
      EXPECT_EQ(browser()->source().fragment(), anchor);
      EXPECT_FALSE(browser()->document()->isEmpty()) << topic.toStdString();
    }
  }
}

TEST_F(Help, EveryAnchorExistsInItsFileInTheSameCase) {
  for (const QString& topic : topicsOfTheProgram()) {
    const QString anchor = topic.section(QLatin1Char('#'), 1);
    if (anchor.isEmpty()) continue;
    help_.showTopic(topic);
    EXPECT_TRUE(anchorsOf(readPage(shownFile())).contains(anchor)) << topic.toStdString();
  }
}

TEST_F(Help, EveryLinkAndPictureExists) {
  ASSERT_GT(pages().size(), 10);
  for (const QString& file : pages()) {
    const QString page = readPage(file);
    for (const QString& link : valuesOf(page, QStringLiteral("href"))) {
      if (link.contains(QLatin1String("://"))) continue;
      const QString target = link.startsWith(QLatin1Char('#')) ? file : link.section(QLatin1Char('#'), 0, 0);
      EXPECT_TRUE(pages().contains(target)) << file.toStdString() << ": " << link.toStdString();
      const QString anchor = link.section(QLatin1Char('#'), 1);
      if (!anchor.isEmpty()) {
        EXPECT_TRUE(anchorsOf(readPage(target)).contains(anchor))
            << file.toStdString() << ": " << link.toStdString();
      }
    }
    for (const QString& picture : valuesOf(page, QStringLiteral("src"))) {
      EXPECT_FALSE(QImage(helpFolder + QLatin1Char('/') + picture).isNull())
          << file.toStdString() << ": " << picture.toStdString();
    }
  }
}

TEST_F(Help, EveryPageHasItsOwnTitle) {
  QSet<QString> titles;
  for (const QString& file : pages()) {
    QTextDocument page;
    page.setHtml(readPage(file));
    const QString title = page.metaInformation(QTextDocument::DocumentTitle);
    EXPECT_FALSE(title.trimmed().isEmpty()) << file.toStdString();
    EXPECT_FALSE(titles.contains(title)) << title.toStdString();
    titles.insert(title);
  }
}

TEST_F(Help, EveryPageCanBeReachedFromTheFirst) {
  QSet<QString> reached;
  QStringList open{QStringLiteral("index.htm")};
  while (!open.isEmpty()) {
    const QString file = open.takeLast();
    if (file.isEmpty() || reached.contains(file)) continue;
    reached.insert(file);
    for (const QString& link : valuesOf(readPage(file), QStringLiteral("href")))
      open += link.section(QLatin1Char('#'), 0, 0);
  }
  for (const QString& file : pages())
    EXPECT_TRUE(reached.contains(file)) << file.toStdString();
}

TEST_F(Help, AMissingTopicHasNoEffect) {
  for (const char* missing :
       {"nowhere.htm", "", "#", "../../README.md", "/etc/passwd", "nowhere.htm#TotalAcres"}) {
    help_.showTopic(QString::fromUtf8(missing));
    EXPECT_FALSE(help_.isVisible()) << missing;
  }
  help_.showTopic(QStringLiteral("results.htm"));
  help_.showTopic(QStringLiteral("nowhere.htm"));
  EXPECT_EQ(shownFile(), QStringLiteral("results.htm"));
  help_.showTopic(QStringLiteral("results.htm#nowhere"));
  EXPECT_EQ(shownFile(), QStringLiteral("results.htm"));
  EXPECT_FALSE(shownText().isEmpty());
}

TEST_F(Help, BackForwardAndHomeWork) {
  EXPECT_FALSE(action("Back")->isEnabled());
  EXPECT_FALSE(action("Forward")->isEnabled());
  help_.showTopic(QStringLiteral("results.htm"));
  help_.showTopic(QStringLiteral("details.htm"));
  ASSERT_TRUE(action("Back")->isEnabled());
  action("Back")->trigger();
  EXPECT_EQ(shownFile(), QStringLiteral("results.htm"));
  ASSERT_TRUE(action("Forward")->isEnabled());
  action("Forward")->trigger();
  EXPECT_EQ(shownFile(), QStringLiteral("details.htm"));
  EXPECT_FALSE(action("Forward")->isEnabled());
  action("Home")->trigger();
  EXPECT_EQ(shownFile(), QStringLiteral("index.htm"));
}

TEST_F(Help, EscapeClosesIt) {
  help_.showTopic(QStringLiteral("index.htm"));
  ASSERT_TRUE(QTest::qWaitForWindowActive(&help_));
  QTest::keyClick(&help_, Qt::Key_Escape);
  EXPECT_FALSE(help_.isVisible());
}

TEST_F(Help, ASearchListsTheTopicsThatContainTheWord) {
  help_.showTopic(QStringLiteral("index.htm"));
  searchFor("FALLOW");
  EXPECT_TRUE(shownText().contains(QStringLiteral("Topics with “FALLOW”")));
  EXPECT_FALSE(shownText().contains(QLatin1String("No topic mentions this.")));
  const QStringList found = valuesOf(browser()->toHtml(), QStringLiteral("href"));
  EXPECT_TRUE(found.contains(QLatin1String("mainInput.htm")));
  EXPECT_LT(found.size(), pages().size());
}

TEST_F(Help, ASearchResultOpensByItsLinkAndBackReturnsToTheList) {
  help_.showTopic(QStringLiteral("index.htm"));
  searchFor("horsepower");
  searchFor("fallow");
  const QStringList found = valuesOf(browser()->toHtml(), QStringLiteral("href"));
  ASSERT_FALSE(found.isEmpty());
  // From the search field to the first link, and open it.
  browser()->setFocus();
  QTest::keyClick(browser(), Qt::Key_Tab);
  QTest::keyClick(browser(), Qt::Key_Return);
  EXPECT_EQ(shownFile(), found.front());
  EXPECT_FALSE(shownText().contains(QLatin1String("Topics with")));
}

TEST_F(Help, ASearchWithoutResultsSaysSo) {
  help_.showTopic(QStringLiteral("index.htm"));
  searchFor("zeppelin");
  EXPECT_TRUE(shownText().contains(QLatin1String("No topic mentions this.")));
  searchFor("<b>&\"");
  EXPECT_TRUE(shownText().contains(QStringLiteral("Topics with “<b>&\"”")));
  EXPECT_TRUE(shownText().contains(QLatin1String("No topic mentions this.")));
  const QString before = shownText();
  searchFor("   ");
  EXPECT_EQ(shownText(), before);
}

TEST_F(Help, HomeWorksAfterASearchOnTheHomeTopic) {
  help_.showTopic(QStringLiteral("index.htm"));
  const QString home = shownText();
  searchFor("zeppelin");
  action("Home")->trigger();
  EXPECT_EQ(shownText(), home);
}

TEST(HelpWithoutItsFolder, ShowsNothing) {
  desktop::HelpViewer help(QStringLiteral("/nonexistent/help"));
  help.showTopic(QStringLiteral("index.htm"));
  EXPECT_FALSE(help.isVisible());
}

}  // namespace
}  // namespace verdalis::testing
