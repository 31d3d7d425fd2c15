#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <thread>

#include "data/RecoveryFolder.h"
#include "data/farmFile.h"
#include "tests/data/Failure.h"
#include "tests/data/FullDisk.h"
#include "tests/data/KilledAtEachCall.h"
#include "tests/data/NoUnnamedFiles.h"
#include "tests/data/OrdinaryUser.h"
#include "tests/data/RecoveryFixture.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

TEST_F(Recovery, AnAdoptedOrphanGoesWhenItsContentsAreWritten) {
  leaveOrphan("farm");
  RecoveryFolder recovery(state());
  recovery.write("mine");
  const OrphanCopy orphan = onlyOrphan(recovery);
  ASSERT_TRUE(recovery.claim(orphan));
  recovery.write("still mine");
  EXPECT_TRUE(fs::exists(orphan.path)) << "only claimed";
  recovery.adopt(orphan);
  EXPECT_TRUE(fs::exists(orphan.path)) << "not written yet";
  {
    const FullDisk full(2);
    failureOf(ErrorNumber::fileNotFound, [&] { recovery.write("farm"); });
  }
  EXPECT_TRUE(fs::exists(orphan.path)) << "could not be written";
  recovery.write("farm");
  EXPECT_FALSE(fs::exists(orphan.path));
  EXPECT_EQ(copies(), Texts{"farm"});
  EXPECT_EQ(names().size(), 2U);
}

TEST_F(Recovery, TheNumberOfAProgramMeansNothing) {
  folder_.write("state/recovery-1.lock", std::to_string(::getpid()) + "\n");
  folder_.write("state/recovery-1.verdalis", "its program has ended");
  EXPECT_EQ(orphanTexts(), Texts{"its program has ended"});
}

TEST_F(Recovery, GoesOnIfSomeoneRemovesItsFiles) {
  RecoveryFolder recovery(state());
  recovery.write("one");
  fs::remove(state() / namesWith(".lock").at(0));
  recovery.write("two");
  EXPECT_EQ(copies(), Texts{"two"});
  EXPECT_TRUE(orphanTexts().empty());
  fs::remove_all(state());
  recovery.remove();
  recovery.write("three");
  EXPECT_EQ(copies(), Texts{"three"});
  EXPECT_TRUE(orphanTexts().empty());
  EXPECT_EQ(names().size(), 2U);
}

TEST_F(Recovery, SaysThatTheFolderIsReadOnly) {
  folder_.write("state/recovery-1.verdalis", "farm");
  openToAll(folder_);
  fs::permissions(state(), static_cast<fs::perms>(0555));
  const auto refused = asOrdinaryUser([&] {
    RecoveryFolder recovery(state());
    const auto fails = [](const std::function<void()>& action) {
      return failureOf(ErrorNumber::fileNotFound, action).ends_with(": Permission denied.");
    };
    return fails([&] { recovery.write("x"); }) && recovery.orphans().size() == 1 &&
           fails([&] { static_cast<void>(recovery.claim(recovery.orphans().at(0))); });
  });
  if (!refused) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*refused);
  EXPECT_EQ(names(), Names{"recovery-1.verdalis"});
}

TEST_F(Recovery, KeepsTheFormerCopyIfTheDiskIsFull) {
  RecoveryFolder recovery(state());
  recovery.write("old");
  {
    const FullDisk full(4);
    EXPECT_TRUE(failureOf(ErrorNumber::fileNotFound, [&] {
                  recovery.write("new text");
                }).ends_with(" cannot be written: File too large."));
    EXPECT_EQ(copies(), Texts{"old"});
    EXPECT_EQ(names().size(), 2U);
  }
  recovery.write("new text");
  EXPECT_EQ(copies(), Texts{"new text"});
}

TEST_F(Recovery, ByRootIsTheUsers) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can write for another user";
  constexpr unsigned nobody = 65534;
  ASSERT_EQ(::chown(folder_.path().c_str(), nobody, nobody), 0);
  leaveOrphan("farm");
  for (const auto& entry : fs::recursive_directory_iterator(folder_.path())) {
    struct stat status {};
    ASSERT_EQ(::lstat(entry.path().c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, nobody) << entry.path();
  }
  const auto discarded = asOrdinaryUser([&] {
    RecoveryFolder recovery(state());
    const OrphanCopy orphan = onlyOrphan(recovery);
    const bool isRead = readFarmFile(orphan.path).text == "farm" && recovery.claim(orphan);
    recovery.discard(orphan);
    return isRead;
  });
  if (!discarded) GTEST_SKIP() << "no other user at hand";
  EXPECT_TRUE(*discarded);
  EXPECT_TRUE(names().empty());
}

/// Every text that a test writes while it is killed.
std::string versionOfText(int version) {
  return std::string(static_cast<std::size_t>(5'000 + 1'000 * version), static_cast<char>('a' + version));
}

bool isWhole(const std::string& text) {
  const int version = text.empty() ? -1 : text.front() - 'a';
  return version >= 0 && text == versionOfText(version);
}

class RecoveryAfterAKill : public Recovery {
 protected:
  /// Fails unless there are only whole copies and lock files.
  void expectWholeCopies(int call) const {
    for (const std::string& name : names()) {
      if (fs::path(name).extension() == ".lock") {
        EXPECT_LE(fs::file_size(state() / name), 40U);
      } else {
        EXPECT_EQ(fs::path(name).extension(), ".verdalis") << name << " after call " << call;
        EXPECT_TRUE(isWhole(folder_.read("state/" + name))) << name << " after call " << call;
      }
    }
  }

  /// A program from its start to its end: restores the only orphan, if there is one.
  void run() const {
    RecoveryFolder recovery(state());
    recovery.write(versionOfText(1));
    recovery.write(versionOfText(2));
    for (const OrphanCopy& orphan : recovery.orphans()) {
      if (!recovery.claim(orphan)) continue;
      const std::string text = readFarmFile(orphan.path).text;
      recovery.adopt(orphan);
      recovery.write(text);
    }
  }

  /// Removes all copies in the way of a user.
  void discardAll() const {
    RecoveryFolder recovery(state());
    for (const OrphanCopy& orphan : recovery.orphans()) {
      ASSERT_TRUE(recovery.claim(orphan));
      recovery.discard(orphan);
    }
  }
};

TEST_F(RecoveryAfterAKill, OnlyWholeCopiesAndLocksRemain) {
  const int kills = killAtEachCall(
      [&] {
        leaveOrphan(versionOfText(7));
        ASSERT_EQ(copies().size(), 1U);
      },
      [&] { run(); },
      [&](int call) {
        expectWholeCopies(call);
        const Texts texts = orphanTexts();
        EXPECT_NE(std::find(texts.begin(), texts.end(), versionOfText(7)), texts.end()) << call;
        EXPECT_LE(texts.size(), 2U) << call;
        EXPECT_EQ(copies().size(), texts.size()) << "a replacement is completed after call " << call;
        EXPECT_TRUE(isWhole(texts.front()) && isWhole(texts.back())) << call;
        discardAll();
        EXPECT_TRUE(names().empty()) << call;
      });
  if (kills == 0) GTEST_SKIP() << "processes cannot be traced";
  EXPECT_GT(kills, 30);
}

TEST_F(RecoveryAfterAKill, TheNextStartClearsWhatIsNotWhole) {
  const int kills = killAtEachCall([&] {},
                                   [&] {
                                     if (!forbidUnnamedFiles()) ::_exit(1);
                                     run();
                                   },
                                   [&](int call) {
                                     for (const std::string& text : orphanTexts())
                                       EXPECT_TRUE(isWhole(text)) << call;
                                     expectWholeCopies(call);
                                     discardAll();
                                     EXPECT_TRUE(names().empty()) << call;
                                   });
  if (kills == 0) GTEST_SKIP() << "processes cannot be traced or restricted";
  EXPECT_GT(kills, 20);
}

TEST_F(RecoveryAfterAKill, AtRandomTheLastCopyIsWhole) {
  std::mt19937 random(11);
  for (int round = 0; round < 30; ++round) {
    const pid_t child = ::fork();
    if (child == 0) {
      RecoveryFolder recovery(state());
      for (int version = 0;; version = (version + 1) % 20)
        recovery.write(versionOfText(version));
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 8'000));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    expectWholeCopies(round);
    for (const std::string& text : orphanTexts())
      EXPECT_TRUE(isWhole(text));
  }
  discardAll();
  EXPECT_TRUE(names().empty());
}

}  // namespace
}  // namespace verdalis::testing
