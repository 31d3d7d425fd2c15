#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "data/RecoveryFolder.h"
#include "data/farmFile.h"
#include "tests/data/AnotherProgram.h"
#include "tests/data/Failure.h"
#include "tests/data/RecoveryFixture.h"
#include "tests/support/PosixFiles.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

TEST_F(Recovery, MakesNothingBeforeTheFirstCopy) {
  RecoveryFolder recovery(state() / "deep");
  EXPECT_TRUE(recovery.orphans().empty());
  EXPECT_FALSE(recovery.leave());
  recovery.remove();
  EXPECT_TRUE(folder_.names().empty());
  recovery.write("farm");
  expectMode(state(), 0700U);
  expectMode(state() / "deep", 0700U);
}

TEST_F(Recovery, KeepsOneCopyAndItsLock) {
  auto recovery = std::make_unique<RecoveryFolder>(state());
  for (const char* text : {"one", "two", ""}) {
    recovery->write(text);
    EXPECT_EQ(copies(), Texts{text});
    ASSERT_EQ(names().size(), 2U);
    const std::string copy = namesWith(".verdalis").at(0);
    EXPECT_TRUE(copy.starts_with("recovery-")) << copy;
    EXPECT_EQ(namesWith(".lock"), Names{fs::path(copy).stem().string() + ".lock"});
    EXPECT_EQ(fs::file_size(state() / namesWith(".lock").at(0)), 0U);
    expectMode(state() / copy, 0600U);
  }
  EXPECT_TRUE(recovery->orphans().empty()) << "its program is running";
  EXPECT_TRUE(orphanTexts().empty()) << "its program is running";
  recovery->remove();
  EXPECT_TRUE(copies().empty());
  recovery->write("three");
  recovery->remove();
  recovery->remove();
  recovery.reset();
  EXPECT_TRUE(names().empty());
}

TEST_F(Recovery, ACopyThatIsNotRemovedIsAnOrphan) {
  { RecoveryFolder(state()).write("ended"); }
  EXPECT_EQ(orphanTexts(), Texts{"ended"});
  leaveOrphan("killed");
  Texts texts = orphanTexts();
  if (!hasPosixFiles)
    std::sort(texts.begin(), texts.end());  // both may be of the same second, the unit there
  EXPECT_EQ(texts, (Texts{"ended", "killed"}));
  EXPECT_EQ(namesWith(".verdalis").size(), 2U) << "offering deletes none";
}

TEST_F(Recovery, OrphansComeOldestFirst) {
  const std::vector<std::pair<const char*, int>> hours{{"three", 3}, {"one", 1}, {"four", 4}, {"two", 2}};
  for (const auto& [text, hour] : hours) {
    leaveOrphan(text);
    for (const std::string& name : namesWith(".verdalis")) {
      if (folder_.read("state/" + name) != text) continue;
      const std::chrono::sys_seconds time{std::chrono::hours(hour)};
      fs::last_write_time(state() / name, std::chrono::file_clock::from_sys(time));
    }
  }
  EXPECT_EQ(orphanTexts(), (Texts{"one", "two", "three", "four"}));
  RecoveryFolder recovery(state());
  EXPECT_EQ(recovery.orphans().at(2).written, std::chrono::system_clock::time_point(std::chrono::hours(3)));
}

TEST_F(Recovery, AnyFarmFileInTheFolderIsACopy) {
  folder_.write("state/farm.verdalis", "sent by mail");
  folder_.write("state/recovery-1234.verdalis", "{ damaged \xFF");
  folder_.write("state/.hidden.verdalis", "hidden");
  folder_.write("state/notes.txt", "notes");
  folder_.write("state/recent/farms", "/a\n");
  fs::create_directory(state() / "folder.verdalis");
  if (hasPosixFiles) fs::create_symlink("farm.verdalis", state() / "link.verdalis");
  RecoveryFolder recovery(state());
  EXPECT_EQ(recovery.orphans().size(), 2U);
  for (const OrphanCopy& orphan : recovery.orphans()) {
    ASSERT_TRUE(recovery.claim(orphan));
    recovery.discard(orphan);
  }
  Names others{".hidden.verdalis", "folder.verdalis", "notes.txt", "recent"};
  if (hasPosixFiles) others.insert(others.begin() + 2, "link.verdalis");
  EXPECT_EQ(names(), others);
}

TEST_F(Recovery, AClaimedOrphanIsOfferedToNoOther) {
  leaveOrphan("farm");
  auto first = std::make_unique<RecoveryFolder>(state());
  RecoveryFolder second(state());
  const OrphanCopy orphan = onlyOrphan(*first);
  ASSERT_EQ(second.orphans().size(), 1U) << "nobody has claimed it";
  EXPECT_TRUE(first->claim(orphan));
  EXPECT_TRUE(first->claim(orphan)) << "claiming it twice";
  EXPECT_FALSE(second.claim(orphan));
  EXPECT_TRUE(second.orphans().empty());
  EXPECT_TRUE(anotherProgram(Deed::findNoOrphans, state(), orphan.path.string()));
  first.reset();
  EXPECT_EQ(orphanTexts(), Texts{"farm"}) << "a program that ends without an answer";
  EXPECT_TRUE(second.claim(orphan));
  second.discard(orphan);
  EXPECT_FALSE(RecoveryFolder(state()).claim(orphan)) << "it is gone";
  EXPECT_TRUE(names().empty());
}

TEST_F(Recovery, AnAdoptedOrphanGoesWhenTheFarmIsSaved) {
  leaveOrphan("farm");
  RecoveryFolder recovery(state());
  const OrphanCopy orphan = onlyOrphan(recovery);
  ASSERT_TRUE(recovery.claim(orphan));
  recovery.adopt(orphan);
  recovery.remove();
  EXPECT_TRUE(names().empty());
}

TEST_F(Recovery, TheOwnCopyCanStayWhenAnotherFarmIsOpened) {
  auto recovery = std::make_unique<RecoveryFolder>(state());
  recovery->write("former");
  const auto former = recovery->leave();
  ASSERT_TRUE(former);
  EXPECT_EQ(readFarmFile(former->path).text, "former");
  EXPECT_FALSE(recovery->leave());
  EXPECT_TRUE(orphanTexts().empty()) << "this program still offers it";
  recovery->write("next");
  EXPECT_EQ(copies().size(), 2U);
  recovery->remove();
  EXPECT_EQ(copies(), Texts{"former"});
  ASSERT_TRUE(recovery->claim(*former));
  recovery.reset();
  EXPECT_EQ(orphanTexts(), Texts{"former"});
}

TEST_F(Recovery, LocksWithoutACopyAreCleared) {
  RecoveryFolder living(state());
  living.write("x");
  living.remove();
  EXPECT_FALSE(anotherProgram(Deed::removeCopyAndBeKilled, state()));
  folder_.write("state/recovery-1.lock", "");
  folder_.write("state/recovery-2.lock", std::string(40, 'x'));
  folder_.write("state/large.lock", std::string(41, 'x'));
  folder_.write("state/recovery-3.lock", "123");
  folder_.write("state/recovery-3.verdalis", "farm");
  EXPECT_EQ(namesWith(".lock").size(), hasPosixFiles ? 6U : 5U)
      << "Windows has removed that of the killed one";
  EXPECT_EQ(orphanTexts(), Texts{"farm"});
  EXPECT_EQ(namesWith(".lock").size(), 3U) << "of the living program, the orphan, and no lock file";
  living.write("farm of the living");
  EXPECT_EQ(orphanTexts(), Texts{"farm"});
}

TEST_F(Recovery, SaysWhyTheFolderCannotBeUsed) {
  folder_.write("state", "a file");
  RecoveryFolder recovery(state());
  EXPECT_NE(failureOf(ErrorNumber::fileNotFound, [&] { recovery.write("x"); }).find(state().string()),
            std::string::npos);
  EXPECT_NE(failureOf(ErrorNumber::fileNotFound, [&] { static_cast<void>(recovery.orphans()); })
                .find(state().string()),
            std::string::npos);
  EXPECT_FALSE(recovery.claim({state() / "a.verdalis", {}}));
  fs::remove(state());
  recovery.write("now it works");
  EXPECT_EQ(copies(), Texts{"now it works"});
}

TEST_F(Recovery, ManyProgramsThatStartAtOnceShareTheOrphans) {
  constexpr int orphans = 12;
  for (int i = 0; i < orphans; ++i)
    folder_.write("state/recovery-" + std::to_string(i) + ".verdalis", "farm " + std::to_string(i));
  EXPECT_TRUE(severalPrograms(Deed::restoreAll, state(), {"one", "two", "three", "four"}));
  EXPECT_EQ(folder_.names("restored").size(), static_cast<std::size_t>(orphans)) << "each is restored once";
  EXPECT_TRUE(orphanTexts().empty());
  EXPECT_TRUE(names().empty());
}

}  // namespace
}  // namespace verdalis::testing
