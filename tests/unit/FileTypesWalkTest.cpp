// A user's walk through the file types, as a script gives it to a sheet that shows the page alone.

#include "ScriptedTest.h"
#include "descriptor/DescriptorDocument.h"
#include "framework/CPropertySheet.h"
#include "settings_ui/AdvancedSettingsDlg.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The dialog's user names the type and takes the icon from elsewhere.
constexpr char kMovieWithIcon[] = R"(
    {"to": "dialog", "class": "CFileTypeDlg", "press": ["Browse 48x48 icon", "OK"],
     "set": {"Name:": "Movie", "Extension:": "mov", "Content type:": "video/x"}},
    {"to": "file", "choose": "C:/other/icon.png"},)";
constexpr char kAdd[] = R"({"to": "sheet", "press": "Add file type"})";

class FileTypesWalkTest : public ScriptedTest {
 protected:
  FileTypesWalkTest() {
    SettingsSet(keys::kMovieFolder, u"C:/m/");
    files.PutFolder(u"C:/m");
    files.Put(u"C:/other/icon.png");
    imageFiles.Put(u"C:\\other\\icon.png", 48, 48);
    files.Put(u"C:/m/Game-app.xml", "<application><id>a</id></application>");
    CurrentDescriptor.InitParser();
    CurrentDescriptor.Load(u"C:\\m\\Game-app.xml");
  }

  void Walk(const std::string& answers) {
    Answers(answers);
    CPropertySheet sheet(u"CAlone", 0, 0);
    sheet.AddPage(page);
    sheet.DoModal();
    EXPECT_THAT(Mistakes(), IsEmpty());
  }
  std::vector<std::string> Messages() const {
    std::vector<std::string> texts;
    for (const auto& event : Events("message")) texts.push_back(event.at("text"));
    return texts;
  }
  std::vector<std::u16string> Rows() const { return Find<ListBox>(page, u"File types:").Rows(); }

  static constexpr char kCopyQuestion[] =
      "The icon must be copied to a folder relative to the root content folder so that it can be "
      "published. Do you want to proceed?";

  CAdvancedSettingsDlg page;
};

TEST_F(FileTypesWalkTest, ATypeIsAddedEditedAndDeleted) {
  Walk(kMovieWithIcon + std::string(R"json(
      {"to": "message", "contains": "must be copied", "press": "OK"},
      {"to": "dialog", "class": "CFileTypeDlg", "set": {"Extension:": "mp4"}, "press": "OK"},
      {"to": "sheet", "press": "Add file type", "steps": [
          {"select": {"File types:": "Movie(mov)"}, "press": "Edit file type", "show": true},
          {"select": {"File types:": "Movie(mp4)"}, "press": "Delete file type"}]})json"));

  const auto edited = Events("controls").at(0).at("controls");
  EXPECT_EQ(edited.at(1).at("rows"), nlohmann::json::array({"Movie(mp4)"}));
  EXPECT_THAT(Rows(), ElementsAre(u"<None>"));
  const FileTypeRecord& record = page.fileTypes.at(u"Movie");
  EXPECT_FALSE(record.live);
  EXPECT_EQ(record.extension, "mp4");
  EXPECT_EQ(record.image48x48, u"FileTypeIconsForTAVPublish/icon.png");
}

TEST_F(FileTypesWalkTest, AnIconFromElsewhereIsCopiedAfterTheQuestion) {
  Walk(kMovieWithIcon + std::string(R"(
      {"to": "message", "contains": "must be copied", "press": "OK"},)") +
       kAdd);

  EXPECT_TRUE(files.HasFile(u"C:/m/FileTypeIconsForTAVPublish/icon.png"));
  EXPECT_EQ(page.fileTypes.at(u"Movie").image48x48, u"FileTypeIconsForTAVPublish/icon.png");
  EXPECT_THAT(Messages(), ElementsAre(kCopyQuestion));
}

TEST_F(FileTypesWalkTest, AnIconThatIsDeclinedIsNotTakenAndNothingIsCopied) {
  Walk(kMovieWithIcon + std::string(kAdd));

  EXPECT_FALSE(files.HasFile(u"C:/m/FileTypeIconsForTAVPublish/icon.png"));
  EXPECT_EQ(page.fileTypes.at(u"Movie").image48x48, u"");
  EXPECT_THAT(Rows(), ElementsAre(u"Movie(mov)"));
}

TEST_F(FileTypesWalkTest, ACopyThatFailsShowsAtOkAndTheTypeIsNotAdded) {
  files.readOnly.insert(u"C:/m/FileTypeIconsForTAVPublish/icon.png");

  Walk(kMovieWithIcon + std::string(R"(
      {"to": "message", "contains": "must be copied", "press": "OK"},)") +
       kAdd);

  EXPECT_THAT(Messages(),
              ElementsAre(kCopyQuestion,
                          "Icon file cannot be opened.\nC:/m/FileTypeIconsForTAVPublish/icon.png"));
  EXPECT_THAT(Rows(), ElementsAre(u"<None>"));
}

}  // namespace
}  // namespace qutav::test
