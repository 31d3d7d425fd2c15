#include <gmock/gmock.h>

#include <cerrno>

#include "screens/modHelp.h"
#include "tests/support/Errors.h"
#include "tests/trend/TrendTest.h"
#include "trend/saveExport.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class SaveExportTest : public TrendTest {
 protected:
  void save(const std::optional<std::filesystem::path>& path,
            const FileWriter& writer = &verdalis::writeFile) {
    fakes.fileChooser.answers.push_back(path);
    exportForSpreadsheet(
        desk, fakes.services, host.home(), [](std::string& text) { text += "page\r\n"; }, writer);
  }
};

TEST_F(SaveExportTest, ReportsASuccess) {
  fakes.messageBox.answers = {MessageAnswer::no};
  folder.write("a.xls", "a file that is there already, and longer");
  save(folder / "a.xls");
  EXPECT_EQ(folder.read("a.xls"), "page\r\n");
  const FileQuestion& question = fakes.fileChooser.saveLog.at(0);
  EXPECT_EQ(question.filter, "Microsoft Excel (*.xls) | *.xls");
  EXPECT_EQ(question.defaultExtension, "xls");
  const Message message = theMessage();
  EXPECT_EQ(message.title, "Export Complete");
  EXPECT_EQ(message.text, "The Microsoft Excel worksheet '" + (folder / "a.xls").string() +
                              "' has been created successfully!\nDo you want to open this file now?");
  EXPECT_EQ(message.icon, MessageIcon::information);
  EXPECT_EQ(message.buttons, MessageButtons::yesNo);
  EXPECT_TRUE(fakes.openFile.opened.empty());
}

TEST_F(SaveExportTest, AnsweringYesOpensTheFile) {
  fakes.messageBox.answers = {MessageAnswer::yes};
  save(folder / "a");
  EXPECT_EQ(folder.read("a.xls"), "page\r\n");
  EXPECT_THAT(fakes.openFile.opened, ::testing::ElementsAre(folder / "a.xls"));
  EXPECT_EQ(fakes.messageBox.log.size(), 1U);
}

TEST_F(SaveExportTest, AFileThatCannotBeOpenedIsReported) {
  fakes.openFile.works = false;
  openWithShell(desk, fakes.services, "/tmp/a.xls");
  const Message message = theMessage();
  EXPECT_EQ(message.title, "Verdalis");
  EXPECT_EQ(
      message.text,
      "The file /tmp/a.xls could not be opened by the Verdalis.  Please open the file manually by finding it "
      "on your hard drive.");
  EXPECT_EQ(message.icon, MessageIcon::none);
  EXPECT_EQ(message.buttons, MessageButtons::ok);
}

TEST_F(SaveExportTest, ACancelledChooserDoesNothing) {
  save(std::nullopt);
  EXPECT_TRUE(fakes.messageBox.log.empty());
  EXPECT_TRUE(folder.names().empty());
}

TEST_F(SaveExportTest, AnErrorOfTheSystemIsReported) {
  save(folder / "missing" / "a.xls");
  Message message = theMessage();
  EXPECT_EQ(message.title, "File Error");
  EXPECT_EQ(message.text, "The file '" + (folder / "missing" / "a.xls").string() +
                              "' is either currently open by another program or is unaccessible at the "
                              "moment.\nPlease check the file and try again.  Error #" +
                              std::to_string(ENOENT) + " -> No such file or directory");
  EXPECT_EQ(message.icon, MessageIcon::exclamation);
  EXPECT_EQ(message.buttons, MessageButtons::ok);
  std::filesystem::create_directory(folder / "folder.xls");
  save(folder / "folder.xls");
  message = theMessage();
  EXPECT_THAT(message.text, HasSubstr("Error #" + std::to_string(EISDIR) + " -> Is a directory"));
}

TEST_F(SaveExportTest, AFullDiskIsReportedAndKeepsTheOldFile) {
  folder.write("a.xls", "old");
  save(folder / "a.xls", [](const auto&, auto) {
    errno = ENOSPC;
    throw RunTimeError(ErrorNumber::fileNotFound, "cannot be written");
  });
  EXPECT_THAT(theMessage().text,
              HasSubstr("Error #" + std::to_string(ENOSPC) + " -> No space left on device"));
  EXPECT_EQ(folder.read("a.xls"), "old");
}

TEST_F(SaveExportTest, AFailureLeavesNoEmptyFile) {
  save(folder / "new.xls", [](const auto&, auto) {
    errno = ENOSPC;
    throw RunTimeError(ErrorNumber::fileNotFound, "cannot be written");
  });
  EXPECT_THAT(theMessage().text,
              HasSubstr("Error #" + std::to_string(ENOSPC) + " -> No space left on device"));
  EXPECT_TRUE(folder.names().empty());
}

TEST_F(SaveExportTest, NoFileIsCreatedBeforeTheTextIsComplete) {
  fakes.messageBox.answers = {MessageAnswer::no};
  fakes.fileChooser.answers.emplace_back(folder / "new.xls");
  std::vector<std::string> during{"unknown"};
  exportForSpreadsheet(desk, fakes.services, host.home(), [&](std::string& text) {
    during = folder.names();
    text += "page\r\n";
  });
  EXPECT_TRUE(during.empty());
  EXPECT_EQ(folder.names(), std::vector<std::string>{"new.xls"});
  EXPECT_EQ(folder.read("new.xls"), "page\r\n");
}

}  // namespace
}  // namespace verdalis
