#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <stdexcept>

#include "tests/xlsx/WorkbookFile.h"
#include "tests/xlsx/handouts.h"
#include "text/RunTimeError.h"
#include "xlsx/ArchiveCopy.h"
#include "xlsx/writeWorkbook.h"

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;

const std::string sheet = "xl/worksheets/sheet1.xml";
const std::string texts = "xl/sharedStrings.xml";

const ArchiveCopy::Change same = [](std::string_view piece, std::string& out) { out += piece; };

/// A function fails as a workbook does that cannot be made.
template <class Function>
void expectNotMade(Function function) {
  try {
    function();
    FAIL() << "nothing failed";
  } catch (const RunTimeError& error) {
    EXPECT_THAT(error.what(), HasSubstr("The workbook cannot be made: "));
    EXPECT_THAT(error.what(), HasSubstr(". Check that the disk has room."));
  }
}

/// No file may grow beyond this, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(::rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const ::rlimit now{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &now);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signal_);
  }

 private:
  ::rlimit before_{};
  void (*signal_)(int);
};

/// A workbook whose parts are longer than what is read at once, and some of their pieces too.
Handout longHandout() {
  constexpr int count = 4000;
  std::vector<HandoutRow> rows;
  rows.reserve(count);
  for (int i = 0; i < count; ++i)
    rows.push_back(rowOf({i / 7.0, std::string(i % 1000 == 0 ? 30000 : 5, 'x') + std::to_string(i)}));
  return tableOf({{"a", "", true, plain}, {"b", "", false, {}}}, std::move(rows));
}

struct ArchiveCopies : ::testing::Test {
  TemporaryFolder folder{"archive"};

  [[nodiscard]] std::filesystem::path original(const Handout& handout) const {
    return folder.write("original.xlsx", writeWorkbook(handout));
  }
  [[nodiscard]] WorkbookFile written(ArchiveCopy& copy) const {
    copy.write(folder / "copy.xlsx");
    return WorkbookFile(folder.read("copy.xlsx"));
  }
};

TEST_F(ArchiveCopies, HaveTheSameBytesIfNothingIsChanged) {
  ArchiveCopy copy(original(longHandout()), folder.path());
  EXPECT_TRUE(written(copy).sound());
  EXPECT_TRUE(folder.read("copy.xlsx") == folder.read("original.xlsx"));
}

TEST_F(ArchiveCopies, PackAChangedPartLikeTheOthers) {
  ArchiveCopy copy(original(longHandout()), folder.path());
  copy.change(sheet, same);
  copy.change(texts, same);
  const WorkbookFile after = written(copy);
  ASSERT_TRUE(after.sound());
  EXPECT_EQ(after.listing("-vqq"), WorkbookFile(folder.read("original.xlsx")).listing("-vqq"));
}

TEST_F(ArchiveCopies, GiveWholePieces) {
  ArchiveCopy copy(original(longHandout()), folder.path());
  std::string all;
  std::size_t bad = 0;
  copy.change(texts, [&](std::string_view piece, std::string& out) {
    all += piece;
    bad += piece.find('>') == piece.size() - 1 ? 0 : 1;
    out += piece == "</sst>" ? "<!--end--></sst>" : piece;
  });
  EXPECT_EQ(bad, 0U);
  const WorkbookFile before(folder.read("original.xlsx"));
  EXPECT_EQ(all, before.part(texts));
  const WorkbookFile after = written(copy);
  ASSERT_TRUE(after.sound());
  EXPECT_TRUE(after.part(texts).ends_with("<!--end--></sst>"));
  EXPECT_EQ(after.part(sheet), before.part(sheet));
}

TEST_F(ArchiveCopies, AreNotMadeFromWhatIsNoArchive) {
  expectNotMade([&] { ArchiveCopy(folder / "missing.xlsx", folder.path()); });
  expectNotMade([&] { ArchiveCopy(folder.write("text.xlsx", "no archive"), folder.path()); });
}

TEST_F(ArchiveCopies, NeedThePartThatChanges) {
  ArchiveCopy copy(original(longHandout()), folder.path());
  expectNotMade([&] { copy.change("xl/worksheets/sheet2.xml", same); });
}

TEST_F(ArchiveCopies, NeedFoldersForTheirFiles) {
  const std::filesystem::path file = original(longHandout());
  ArchiveCopy copy(file, folder / "missing");
  expectNotMade([&] { copy.change(sheet, same); });
  expectNotMade([&] { copy.write(folder / "missing" / "copy.xlsx"); });
}

TEST_F(ArchiveCopies, FindDamage) {
  std::string bytes = writeWorkbook(longHandout());
  const std::size_t at = bytes.find(sheet) + sheet.size() + 5000;
  bytes.replace(at, 20, 20, '\0');
  ArchiveCopy copy(folder.write("original.xlsx", bytes), folder.path());
  expectNotMade([&] { copy.change(sheet, same); });
}

TEST_F(ArchiveCopies, PassOnWhatAChangeThrows) {
  ArchiveCopy copy(original(longHandout()), folder.path());
  EXPECT_THROW(copy.change(sheet, [](std::string_view, std::string&) { throw std::domain_error("no"); }),
               std::domain_error);
}

TEST_F(ArchiveCopies, TellAFullDisk) {
  ArchiveCopy copy(original(longHandout()), folder.path());
  const FullDisk full(10000);
  expectNotMade([&] { copy.change(texts, same); });
  expectNotMade([&] { copy.write(folder / "copy.xlsx"); });
}

TEST(FullDisks, LeaveNoWorkbook) {
  const Handout handout = longHandout();
  for (const ::rlim_t bytes : {100U, 5000U, 20000U, 100000U}) {
    const FullDisk full(bytes);
    expectNotMade([&] { static_cast<void>(writeWorkbook(handout)); });
  }
}

}  // namespace
}  // namespace verdalis::testing
