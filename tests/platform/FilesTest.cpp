#include <gmock/gmock.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <string>
#include <system_error>

#include "platform/InputFile.h"
#include "platform/LockFile.h"
#include "platform/OpenTarget.h"
#include "platform/TemporaryFile.h"
#include "platform/TemporaryFolder.h"
#include "platform/errors.h"
#include "platform/fileAccess.h"
#include "platform/paths.h"
#include "platform/scratchFile.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using Folder = testing::TemporaryFolder;

constexpr std::array names{"plan", "Ferme d'été & fils", "农场", "Поле 100 %", "🌽 corn"};

TEST(Paths, KeepNamesInAllLetters) {
  const Folder folder;
  for (const char* const name : names) {
    const fs::path path = folder.path() / pathOf(name);
    EXPECT_EQ(path.filename().string(), name);
    EXPECT_EQ(pathOf(path.string()), path);
    folder.write(path, name);
    EXPECT_EQ(folder.read(path), name);
    EXPECT_THAT(folder.names(), ElementsAre(name));
    fs::remove(path);
  }
}

TEST(TemporaryFiles, ReplaceAFileWhole) {
  const Folder folder;
  for (const char* const name : names) {
    const fs::path target = folder.path() / pathOf(name);
    for (const std::string text : {"first", "the second, which is longer", ""}) {
      TemporaryFile file(folder.path());
      ASSERT_TRUE(file.isOpen());
      ASSERT_TRUE(file.write(text));
      ASSERT_TRUE(file.moveTo(target, permissionsFor(target))) << errno;
      EXPECT_EQ(folder.read(target), text);
    }
    EXPECT_THAT(folder.names(), ElementsAre(name));
    fs::remove(target);
  }
}

TEST(TemporaryFiles, GoIfTheyAreNotMoved) {
  const Folder folder;
  for (const auto naming : {TemporaryFile::Naming::atOnce, TemporaryFile::Naming::whenComplete}) {
    TemporaryFile file(folder.path(), naming);
    ASSERT_TRUE(file.write("half"));
  }
  EXPECT_THAT(folder.names(), IsEmpty());
  const TemporaryFile none(folder / "missing");
  EXPECT_EQ(errno, ENOENT);
  EXPECT_FALSE(none.isOpen());
}

TEST(TemporaryFiles, AreRemovedWhenAbandonedOnly) {
  const Folder folder;
  folder.write(".saving-abc123", "of a killed program");
  folder.write(".saving-abc12", "not such a name");
  folder.write(".saving-abc-23", "not such a name");
  {
    TemporaryFile file(folder.path());
    removeAbandonedFiles(folder.path());
    EXPECT_EQ(folder.names().size(), 3U) << "the open one stays";
    ASSERT_TRUE(file.write("whole"));
    EXPECT_TRUE(file.moveTo(folder / "target", fs::perms::owner_all));
  }
  EXPECT_THAT(folder.names(), ElementsAre(".saving-abc-23", ".saving-abc12", "target"));
}

TEST(TemporaryFolders, AreRemovedWithTheirContents) {
  const Folder parent;
  fs::create_directories(parent / ".crops.abc123" / "crops");
  parent.write(".crops.abc123/crops/Corn.txt", "of a killed program");
  {
    const TemporaryFolder folder(parent.path(), ".crops.");
    std::ofstream(folder.path() / "Wheat.txt") << "half";
    removeAbandonedFolders(parent.path(), ".crops.");
    EXPECT_EQ(parent.names(), std::vector{folder.path().filename().string()}) << "the one in use stays";
    EXPECT_TRUE(fs::exists(folder.path() / "Wheat.txt"));
  }
  EXPECT_THAT(parent.names(), IsEmpty());
  EXPECT_THROW(TemporaryFolder(parent / "missing", "x"), fs::filesystem_error);
}

TEST(LockFiles, AreHeldByOneAtATime) {
  const Folder folder;
  const fs::path path = folder.path() / pathOf("农场.lock");
  EXPECT_FALSE(isHeldByAnyone(path));
  {
    const LockFile first(path);
    EXPECT_TRUE(first.isHeld());
    EXPECT_TRUE(isHeldByAnyone(path));
    const LockFile second(path);
    EXPECT_EQ(errno, EWOULDBLOCK);
    EXPECT_FALSE(second.isHeld());
    EXPECT_TRUE(first.isHeld());
  }
  EXPECT_FALSE(isHeldByAnyone(path));
  EXPECT_THAT(folder.names(), IsEmpty());
  folder.write("left.lock", "");
  EXPECT_FALSE(isHeldByAnyone(folder / "left.lock")) << "a file alone is no lock";
  EXPECT_TRUE(LockFile(folder / "left.lock").isHeld());
}

TEST(InputFiles, TellTheirKindAndSize) {
  const Folder folder;
  const fs::path path = folder.write("farm", std::string("a\r\nb\x1A\0c", 7));
  InputFile file(path);
  EXPECT_EQ(file.kind(), InputFile::Kind::regular);
  EXPECT_EQ(file.size(), 7U);
  EXPECT_TRUE(file.isReadyWithin(std::chrono::milliseconds(0)));
  std::array<char, 20> bytes{};
  EXPECT_EQ(file.read(bytes.data(), 4), 4U);
  EXPECT_EQ(file.read(bytes.data() + 4, 16), 3U);
  EXPECT_EQ(file.read(bytes.data(), 16), 0U);
  EXPECT_EQ(std::string(bytes.data(), 7), std::string("a\r\nb\x1A\0c", 7));
  EXPECT_EQ(kindOf(path), InputFile::Kind::regular);
  EXPECT_EQ(kindOf(folder.path()), InputFile::Kind::folder);
  EXPECT_EQ(InputFile(folder.path()).kind(), InputFile::Kind::folder);
}

TEST(InputFiles, SayWhyTheyCannotBeOpened) {
  const Folder folder;
  try {
    const InputFile file(folder / "missing");
    FAIL();
  } catch (const std::system_error& error) {
    EXPECT_EQ(reasonText(error.code()), "No such file or directory");
  }
  EXPECT_THROW(static_cast<void>(kindOf(folder / "missing")), std::system_error);
  std::error_code error;
  fs::directory_iterator(folder / "missing", error);
  EXPECT_EQ(reasonText(error), "No such file or directory") << "also of an error of the system";
}

TEST(FileAccess, TellsWhatMayBeWritten) {
  const Folder folder;
  const fs::path file = folder.write("plan", "x");
  EXPECT_EQ(errorOfCreatingIn(folder.path()), 0);
  EXPECT_NE(errorOfCreatingIn(folder / "missing"), 0);
  EXPECT_EQ(errorOfReplacing(file), 0);
  EXPECT_EQ(errorOfOpening(file), 0);
  EXPECT_EQ(errorOfOpening(folder / "missing"), ENOENT);
  EXPECT_TRUE(mayRead(file));
  EXPECT_FALSE(mayRead(folder / "missing"));
  EXPECT_EQ(folder.read("plan"), "x");
  EXPECT_THAT(folder.names(), ElementsAre("plan"));
}

TEST(FileAccess, MakesAndRemovesFolders) {
  const Folder folder;
  EXPECT_TRUE(makeFolder(folder / "one", FolderUse::onlyTheUser));
  EXPECT_FALSE(makeFolder(folder / "one"));
  EXPECT_EQ(errno, EEXIST);
  EXPECT_FALSE(makeFolder(folder / "missing" / "two"));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_TRUE(canRenameBetween(folder / "one", folder.path()));
  EXPECT_FALSE(canRenameBetween(folder / "missing", folder.path()));
  EXPECT_EQ(errno, ENOENT);
  folder.write("one/file", "x");
  removeEmptyFolder(folder / "one");
  EXPECT_TRUE(fs::exists(folder / "one" / "file"));
  removeEmptyFolder(folder / "one" / "file");
  EXPECT_TRUE(fs::exists(folder / "one" / "file"));
  fs::remove(folder / "one" / "file");
  removeEmptyFolder(folder / "one");
  EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(OpenTargets, AreNoOrdinaryFiles) {
  const Folder folder;
  EXPECT_FALSE(isOpenTarget(folder.write("plan", "x")));
  EXPECT_FALSE(isOpenTarget(folder / "missing"));
}

TEST(ScratchFiles, KeepBytesAsTheyAre) {
  std::FILE* const file = openScratchFile();
  ASSERT_NE(file, nullptr);
  const std::string text("a\r\nb\n\x1A\0c", 8);
  ASSERT_EQ(std::fwrite(text.data(), text.size(), 1, file), 1U);
  std::rewind(file);
  std::string found(text.size(), '\0');
  EXPECT_EQ(std::fread(found.data(), found.size(), 1, file), 1U);
  EXPECT_EQ(found, text);
  std::fclose(file);
}

TEST(LibraryNames, LeadToTheFile) {
  const Folder folder;
  const fs::path path = folder.write("plan", "x");
  std::FILE* const file = std::fopen(libraryName(path).c_str(), "rb");
  ASSERT_NE(file, nullptr);
  std::fclose(file);
}

}  // namespace
}  // namespace verdalis
