#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include "desktop/settings.h"

namespace verdalis::testing {
namespace {

const QString place = QStringLiteral("place");

class Settings : public ::testing::Test {
 protected:
  Settings() {
    nameless().clear();
    QCoreApplication::setOrganizationName(QStringLiteral("Verdalis"));
    QSettings().clear();
  }
  ~Settings() override { QSettings().clear(); }

  /// Settings of a version without an organisation.
  static QSettings& nameless() {
    static QSettings settings(QStringLiteral("Unknown Organization"), QCoreApplication::applicationName());
    return settings;
  }

  static void keepNameless(const QString& value) {
    nameless().setValue(place, value);
    nameless().sync();
  }
};

TEST_F(Settings, BelongToTheProgramsOrganisation) {
  desktop::claimSettings();
  EXPECT_TRUE(QSettings().fileName().endsWith(QStringLiteral("/Verdalis/verdalis-tests.conf")));
}

TEST_F(Settings, OfAnEarlierVersionMove) {
  keepNameless(QStringLiteral("left"));
  const QFileInfo file(nameless().fileName());
  ASSERT_TRUE(QFile::exists(file.filePath()));
  desktop::claimSettings();
  EXPECT_EQ(QSettings().value(place).toString(), QStringLiteral("left"));
  EXPECT_FALSE(QFile::exists(file.filePath()));
  EXPECT_FALSE(QFile::exists(file.path())) << "the folder, which is empty";
}

TEST_F(Settings, MoveOnlyOnce) {
  QSettings().setValue(place, QStringLiteral("right"));
  keepNameless(QStringLiteral("left"));
  desktop::claimSettings();
  EXPECT_EQ(QSettings().value(place).toString(), QStringLiteral("right"));
  EXPECT_TRUE(QFile::exists(nameless().fileName())) << "that of an earlier version, still in use";
}

TEST_F(Settings, OfOtherProgramsStay) {
  keepNameless(QStringLiteral("left"));
  QFile other(QFileInfo(nameless().fileName()).path() + QStringLiteral("/other.conf"));
  ASSERT_TRUE(other.open(QFile::WriteOnly));
  other.write("[General]\n");
  other.close();
  desktop::claimSettings();
  EXPECT_EQ(QSettings().value(place).toString(), QStringLiteral("left"));
  EXPECT_FALSE(QFile::exists(nameless().fileName()));
  EXPECT_TRUE(other.exists());
  other.remove();
}

}  // namespace
}  // namespace verdalis::testing
