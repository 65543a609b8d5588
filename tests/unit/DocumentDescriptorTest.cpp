#include "ServicesTest.h"
#include "descriptor/DescriptorDocument.h"
#include "packaging/DocumentDescriptor.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

constexpr char kMilestone[] =
    "<application xmlns=\"http://ns.zenvoka.example/tav/application/1.0.M6\"><name>Early</name>"
    "</application>";

std::string Descriptor(const std::string& name) {
  return "<application xmlns=\"http://ns.zenvoka.example/tav/application/26.0\"><name>" + name +
         "</name></application>";
}

class DocumentDescriptorTest : public ServicesTest {
 protected:
  DocumentDescriptorTest() {
    files.PutFolder(u"C:/m");
    SettingsSet(keys::kMovieFolder, u"C:/m/");
    SettingsSet(keys::kMovieBaseName, u"Game");
  }

  static std::u16string Name() {
    std::u16string name;
    CurrentDescriptor.GetText("name", name);
    return name;
  }
  void ExpectParseWarning() const {
    ASSERT_EQ(frontEnd.messages.size(), 1u);
    const ShownMessage& box = frontEnd.messages.front();
    EXPECT_EQ(box.text, u"Application descriptor file cannot be parsed.");
    EXPECT_EQ(box.title, u"Zenvoka Kestrow");
    EXPECT_EQ(box.icon, MessageIcon::kWarning);
    EXPECT_EQ(box.buttons, MessageButtons::kOk);
  }

  const std::u16string path = u"C:/m/Game-app.xml";
};

TEST_F(DocumentDescriptorTest, TheFileBesideTheMovieIsLoadedFromAPathWithBackslashes) {
  files.Put(path, Descriptor("One"));

  EXPECT_EQ(LoadDocumentDescriptor(false), 0);

  EXPECT_EQ(Name(), u"One");
  EXPECT_TRUE(CurrentDescriptor.IsLoadedFrom(u"C:\\m\\Game-app.xml"));
}

TEST_F(DocumentDescriptorTest, AMissingFileIsGeneratedFirst) {
  EXPECT_EQ(LoadDocumentDescriptor(false), 0);

  EXPECT_TRUE(files.HasFile(path));
  EXPECT_EQ(Name(), u"Game");
}

TEST_F(DocumentDescriptorTest, AMissingFileIsGeneratedAlsoWhenTheDescriptorIsInMemory) {
  files.Put(path, Descriptor("One"));
  LoadDocumentDescriptor(false);
  files.Delete(path);

  EXPECT_EQ(LoadDocumentDescriptor(false), 0);

  EXPECT_TRUE(files.HasFile(path));
  EXPECT_EQ(Name(), u"One");
}

TEST_F(DocumentDescriptorTest, WithoutForceUnsavedEditsStay) {
  files.Put(path, Descriptor("One"));
  LoadDocumentDescriptor(false);
  CurrentDescriptor.SetText("name", u"Edited");

  EXPECT_EQ(LoadDocumentDescriptor(false), 0);

  EXPECT_EQ(Name(), u"Edited");
}

TEST_F(DocumentDescriptorTest, WithForceTheFileOnDiskReplacesUnsavedEdits) {
  files.Put(path, Descriptor("One"));
  LoadDocumentDescriptor(false);
  CurrentDescriptor.SetText("name", u"Edited");

  EXPECT_EQ(LoadDocumentDescriptor(true), 0);

  EXPECT_EQ(Name(), u"One");
}

TEST_F(DocumentDescriptorTest, TheDescriptorOfAnotherMovieIsLoadedWithoutForce) {
  files.Put(path, Descriptor("One"));
  files.Put(u"C:/m/Other-app.xml", Descriptor("Two"));
  LoadDocumentDescriptor(false);
  SettingsSet(keys::kMovieBaseName, u"Other");

  EXPECT_EQ(LoadDocumentDescriptor(false), 0);

  EXPECT_EQ(Name(), u"Two");
}

TEST_F(DocumentDescriptorTest, AnEarlyMilestoneIsReplacedFromTheSettings) {
  files.Put(path, kMilestone);

  EXPECT_EQ(LoadDocumentDescriptor(true), 0);

  EXPECT_EQ(Name(), u"Game");
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(DocumentDescriptorTest, AnEarlyMilestoneIsReplacedOnce) {
  files.Put(path, kMilestone);

  EXPECT_EQ(LoadDocumentDescriptor(false), 0);

  EXPECT_EQ(files.changes, std::vector<std::u16string>{u"write C:/m/Game-app.xml"});
}

TEST_F(DocumentDescriptorTest, AnEarlyMilestoneThatCannotBeReplacedIsToldOnce) {
  files.Put(path, kMilestone);
  files.readOnly.insert(path);

  EXPECT_EQ(LoadDocumentDescriptor(true), 5);

  ExpectParseWarning();
}

TEST_F(DocumentDescriptorTest, AFileThatIsNoDescriptorIsToldAndItsResultGiven) {
  files.Put(path, "<other/>");

  EXPECT_EQ(LoadDocumentDescriptor(false), kNoApplication);

  ExpectParseWarning();
  EXPECT_EQ(files.BytesOf(path), "<other/>");
}

TEST_F(DocumentDescriptorTest, AFileThatCannotBeGeneratedIsTold) {
  files.readOnly.insert(path);

  EXPECT_NE(LoadDocumentDescriptor(false), 0);

  ExpectParseWarning();
}

TEST_F(DocumentDescriptorTest, SavingWritesTheDescriptorBesideTheMovie) {
  files.Put(path, Descriptor("One"));
  LoadDocumentDescriptor(false);
  CurrentDescriptor.SetText("name", u"Edited");

  EXPECT_EQ(SaveDocumentDescriptor(), 0);

  LoadDocumentDescriptor(true);
  EXPECT_EQ(Name(), u"Edited");
}

TEST_F(DocumentDescriptorTest, SavingWithoutADescriptorGivesItsFailure) {
  EXPECT_EQ(SaveDocumentDescriptor(), -1);
}

TEST_F(DocumentDescriptorTest, AFileThatCannotBeParsedIsToldInOneBoxOverTheFocusWindow) {
  files.Put(path, "<other/>");

  EXPECT_NE(LoadDocumentDescriptor(true), 0);

  ExpectParseWarning();
  EXPECT_EQ(frontEnd.messages.front().owner, frontEnd.focus);
}

}  // namespace
}  // namespace qutav::test
