// What OK stores, in which order, and what it reports as a change.

#include "SheetTest.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class SettingsSheetOkTest : public SheetTest {
 protected:
  /// What stands in `com.tav.moresh.exitok` after OK.
  std::u16string Reported(const std::function<void(CPropertySheet&)>& act) {
    Open([&](CPropertySheet& sheet) {
      act(sheet);
      PressButton(sheet, u"OK");
    });
    return SettingsGet(keys::kExitOk);
  }
  // Presses OK as a front end does; expects one box that tells the cause, and nothing stored.
  void ExpectToldAndOpen(const std::u16string& cause,
                         const std::function<void(CPropertySheet&)>& act) {
    const std::string before = DescriptorOnDisk();
    Open([&](CPropertySheet& sheet) {
      act(sheet);
      CDialog::Dispatch([&] { PressButton(sheet, u"OK"); });
      EXPECT_FALSE(sheet.HasEnded());
    });
    EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"Unknown error.\n\n" + cause));
    EXPECT_EQ(SettingsGet(keys::kExitOk), u"(as before)");
    EXPECT_EQ(DescriptorOnDisk(), before);
  }
};

TEST_F(SettingsSheetOkTest, WithoutAChangeNothingIsReported) {
  EXPECT_EQ(Reported([](CPropertySheet& sheet) {
              Find<Edit>(TurnTo(sheet, u"General"), u"Output file:").Type(u"Game.apk");
              SettingsSet(keys::kTavDestination, u"Game.apk");
            }),
            u"false");
}

TEST_F(SettingsSheetOkTest, OkEndsTheSheetWithOne) {
  int result = 0;

  Open([&](CPropertySheet& sheet) {
    PressButton(sheet, u"OK");
    EXPECT_TRUE(sheet.HasEnded());
    result = sheet.Result();
  });

  EXPECT_EQ(result, 1);
}

TEST_F(SettingsSheetOkTest, LanguagesAloneReachTheFileButAreNotReported) {
  SettingsSet(keys::kTavDestination, u"Game.apk");

  EXPECT_EQ(Reported([](CPropertySheet& sheet) { ToggleLanguage(sheet, u"French"); }), u"false");

  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<supportedLanguages>fr</supportedLanguages>"));
}

TEST_F(SettingsSheetOkTest, AChangeOfTheGeneralPageIsReported) {
  EXPECT_EQ(Reported([](CPropertySheet& sheet) {
              Find<Edit>(TurnTo(sheet, u"General"), u"Output file:").Type(u"Other.apk");
            }),
            u"true");
}

TEST_F(SettingsSheetOkTest, AChangeOfTheDeploymentPageIsReported) {
  SettingsSet(keys::kTavDestination, u"Game.apk");

  EXPECT_EQ(Reported([](CPropertySheet& sheet) {
              Find<RadioButton>(TurnTo(sheet, u"Deployment"), u"Debug").Click();
            }),
            u"true");
}

TEST_F(SettingsSheetOkTest, ACheckedPermissionIsReportedAndReachesTheFile) {
  SettingsSet(keys::kTavDestination, u"Game.apk");

  EXPECT_EQ(Reported([](CPropertySheet& sheet) {
              auto& list = Find<CheckList>(TurnTo(sheet, u"Permissions"), u"Permission Name");
              list.ToggleByUser(list.FindRow(u"CAMERA"));
            }),
            u"true");

  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("android.permission.CAMERA"));
}

TEST_F(SettingsSheetOkTest, ARemovedIconIsReported) {
  SettingsSet(keys::kTavDestination, u"Game.apk");

  EXPECT_EQ(Reported([](CPropertySheet& sheet) {
              CPropertyPage& page = TurnTo(sheet, u"Icons");
              for (const auto& control : page.Controls()) {
                auto* button = dynamic_cast<CStretchBitmapButton*>(control.get());
                if (button != nullptr && button->image == ButtonImage::kDelete) button->Click();
              }
            }),
            u"true");
}

TEST_F(SettingsSheetOkTest, TheDeploymentPageIsStoredWithoutValidation) {
  Reported([](CPropertySheet& sheet) {
    CPropertyPage& page = TurnTo(sheet, u"Deployment");
    Find<ComboBox>(page, u"Certificate:").Type(u"");
  });

  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"");
}

TEST_F(SettingsSheetOkTest, APageThatWasNeverShownStoresNothing) {
  SettingsSet(keys::kCertificatePath, u"C:/elsewhere/old.p12");

  Reported([](CPropertySheet&) {});

  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"C:/elsewhere/old.p12");
  EXPECT_EQ(RegistryValue(registry, u"DigitalSign"), u"");
}

TEST_F(SettingsSheetOkTest, ARefusedIdKeepsTheSheetOpenWithTheOtherPagesStored) {
  Open([&](CPropertySheet& sheet) {
    Find<Edit>(TurnTo(sheet, u"Deployment"), u"Password:").Type(u"typed");
    Find<Edit>(TurnTo(sheet, u"General"), u"App ID:").Type(u"no blanks");

    PressButton(sheet, u"OK");

    EXPECT_FALSE(sheet.HasEnded());
    EXPECT_EQ(SettingsGet(keys::kExitOk), u"(as before)");
    EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"typed");
  });

  EXPECT_EQ(frontEnd.messages.size(), 1u);
}

TEST_F(SettingsSheetOkTest, WithoutAVisitToGeneralTheEditsOfTheOtherPagesAreLost) {
  const std::string before = DescriptorOnDisk();

  Open(
      [](CPropertySheet& sheet) {
        ToggleLanguage(sheet, u"French");
        PressButton(sheet, u"OK");
        EXPECT_TRUE(sheet.HasEnded());
      },
      1);

  EXPECT_EQ(DescriptorOnDisk(), before);
  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_EQ(SettingsGet(keys::kExitOk), u"false");
}

TEST_F(SettingsSheetOkTest, LanguagesThatWereNotVisitedStandInTheFileAsTheAuthorWroteThem) {
  PutLanguages("zz fr");

  Reported([](CPropertySheet&) {});

  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<supportedLanguages>zz fr</supportedLanguages>"));
  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<versionLabel"));  // the file was written
}

TEST_F(SettingsSheetOkTest, OnIosTheLanguagesAreNotStored) {
  UseIosForm();

  Reported([](CPropertySheet& sheet) { ToggleLanguage(sheet, u"French"); });

  EXPECT_THAT(DescriptorOnDisk(), Not(HasSubstr("supportedLanguages")));
  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<versionLabel"));  // the file was written
}

TEST_F(SettingsSheetOkTest, OnIosADeploymentPageThatWasNeverShownStoresNothing) {
  UseIosForm();
  SettingsSet(keys::kIpaOption, u"store");
  const auto before = registry.keys;

  Reported([](CPropertySheet&) {});

  EXPECT_EQ(SettingsGet(keys::kIpaRememberPassword), u"true");
  EXPECT_EQ(SettingsGet(keys::kIpaOption), u"store");
  EXPECT_EQ(registry.keys, before);
}

TEST_F(SettingsSheetOkTest, OnIosAChangeOfTheDeploymentPageIsReported) {
  UseIosForm();
  SettingsSet(keys::kTavDestination, u"Game.apk");

  EXPECT_EQ(Reported([](CPropertySheet& sheet) {
              Find<RadioButton>(TurnTo(sheet, u"Deployment"), u"Deployment - Ad hoc").Click();
            }),
            u"true");
}

TEST_F(SettingsSheetOkTest, OnIosTheGeneralPagesIdWinsOverTheDeploymentPages) {
  UseIosForm();

  Reported([](CPropertySheet& sheet) {
    Find<Edit>(TurnTo(sheet, u"General"), u"App ID:").Type(u"com.general");
    Find<Edit>(TurnTo(sheet, u"Deployment"), u"App ID:").Type(u"com.deployment");
  });

  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<id>com.general</id>"));
  EXPECT_THAT(DescriptorOnDisk(), Not(HasSubstr("com.deployment")));
}

// --- What the descriptor cannot take ------------------------------------------------------------

TEST_F(SettingsSheetOkTest, ANameThatNoFileCanHoldIsToldAndKeepsTheSheetOpen) {
  ExpectToldAndOpen(u"invalid or illegal XML character", [](CPropertySheet& sheet) {
    Find<Edit>(TurnTo(sheet, u"General"), u"App name:").Type(u"a\u0001b");
  });
}

TEST_F(SettingsSheetOkTest, LanguagesThatStandTooDeepToBeRemovedAreToldAndKeepTheSheetOpen) {
  files.Put(descriptorPath,
            DescriptorText("26.0", "<x><supportedLanguages>fr</supportedLanguages></x>"));

  ExpectToldAndOpen(u"attempt is made to reference a node in a context where it does not exist",
                    [](CPropertySheet& sheet) { ToggleLanguage(sheet, u"French"); });
}

}  // namespace
}  // namespace qutav::test
