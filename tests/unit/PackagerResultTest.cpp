#include "ServicesTest.h"
#include "packaging/PackagerResult.h"
#include "platform/Text.h"

namespace qutav::test {
namespace {

class PackagerResultTest : public ServicesTest {
 protected:
  static PackagerResult Classify(std::int32_t exitCode, const std::u16string& output) {
    return ClassifyPackagerOutput(exitCode, output);
  }
  static void ExpectResult(const PackagerResult& result, const std::u16string& head,
                           const std::u16string& detail = u"") {
    EXPECT_EQ(result.head, head);
    EXPECT_EQ(result.detail, detail);
  }
};

TEST_F(PackagerResultTest, ASuccessWithoutOutputHasNothingToTell) {
  ExpectResult(Classify(0, u""), u"");
}

TEST_F(PackagerResultTest, AFailureWithoutOutputAndWithoutATextHasNothingToTell) {
  for (const std::int32_t exitCode : {1, 3, 4, 11, -1}) ExpectResult(Classify(exitCode, u""), u"");
}

TEST_F(PackagerResultTest, TheTimestampCodeHasNothingToTell) {
  ExpectResult(Classify(10, u"could not reach error 300"), u"");
}

TEST_F(PackagerResultTest, FiveExitCodesHaveTextsOfTheirOwnWithTheOutputBelow) {
  ExpectResult(Classify(5, u"out"), u"Unknown error.", u"\nout");
  ExpectResult(Classify(6, u"out"), u"Could not write to the destination directory.", u"\nout");
  ExpectResult(Classify(7, u"out"), u"Could not access the digital certificate.", u"\nout");
  ExpectResult(Classify(8, u"out"), u"The digital certificate is invalid.", u"\nout");
  ExpectResult(Classify(9, u"out"), u"Could not sign the TAV file.", u"\nout");
}

TEST_F(PackagerResultTest, AnExitCodeWithATextOfItsOwnDoesNotLookForPatterns) {
  ExpectResult(Classify(6, u"an error 300"), u"Could not write to the destination directory.",
               u"\nan error 300");
}

TEST_F(PackagerResultTest, EveryPatternHasItsText) {
  const std::vector<std::pair<std::u16string, std::u16string>> texts = {
      {u"error 100", u"Application descriptor file cannot be parsed."},
      {u"error 101", u"Namespace is missing in the application descriptor file."},
      {u"error 102", u"Namespace is invalid in the application descriptor file."},
      {u"error 104",
       u"Missing a required attribute or element in the application descriptor file."},
      {u"error 105",
       u"An attribute or element contains an invalid value in the application descriptor file."},
      {u"error 106", u"Illegal window attribute combination in the application descriptor file."},
      {u"error 107",
       u"application.initialWindow.minSize is greater than application.initialWindow.maxSize "},
      {u"error 200", u"Icon file cannot be opened."},
      {u"error 201", u"One of the specified icons does not have the correct dimensions."},
      {u"error 202", u"Icon file is unsupported format.  Icon must be a PNG file."},
      {u"error 300", u"File is missing or cannot be opened."},
      {u"error 301", u"Application descriptor file is missing or cannot be opened."},
      {u"error 302", u"The QMV file specified as the root content is missing."},
      {u"error 303", u"Icon file is missing."},
      {u"error 304", u"The QMV file is not valid."},
      {u"error 305",
       u"The TAV version set in the Publish Settings of the initial content QMV exceeds that "
       u"allowed for the descriptor namespace."},
      {u"password may be incorrect", u"Could not load keystore file (password may be incorrect)"}};

  for (const auto& [pattern, head] : texts) {
    ExpectResult(Classify(1, u"x" + pattern + u" and more"), head);
  }
}

TEST_F(PackagerResultTest, EveryOtherExitCodeLooksForPatterns) {
  for (const std::int32_t exitCode : {-1, 0, 1, 3, 4, 11, 12, 300}) {
    ExpectResult(Classify(exitCode, u"an error 300"), u"File is missing or cannot be opened.");
  }
}

TEST_F(PackagerResultTest, APatternAtTheVeryStartOfTheOutputDoesNotCount) {
  ExpectResult(Classify(1, u"error 100: bad"), u"error 100: bad");
}

TEST_F(PackagerResultTest, OnlyTheFirstOccurrenceOfAPatternIsLookedAt) {
  ExpectResult(Classify(1, u"error 100 and error 100"), u"error 100 and error 100");
}

TEST_F(PackagerResultTest, APatternAtTheVeryStartLeavesItsTurnToTheOthers) {
  ExpectResult(Classify(1, u"error 100 error 300"), u"File is missing or cannot be opened.");
}

TEST_F(PackagerResultTest, PatternsAreCaseSensitive) {
  ExpectResult(Classify(1, u"an Error 100"), u"an Error 100");
}

TEST_F(PackagerResultTest, TheOrderOfTheTableDecidesBetweenTwoPatterns) {
  ExpectResult(Classify(1, u"an error 300, then an error 100"),
               u"Application descriptor file cannot be parsed.");
}

TEST_F(PackagerResultTest, APatternBeyondTheFirst2000CharactersIsNotFound) {
  const std::u16string filler(1991, u'x');

  ExpectResult(Classify(1, filler + u"error 100"),
               u"Application descriptor file cannot be parsed.");
  ExpectResult(Classify(1, filler + u"xerror 100"), filler + u"xerror 10");
}

TEST_F(PackagerResultTest, TheOutputBelowATextIsCutTo2000Characters) {
  ExpectResult(Classify(5, std::u16string(3000, u'x')), u"Unknown error.",
               u"\n" + std::u16string(2000, u'x'));
}

TEST_F(PackagerResultTest, AnUnexpectedElementIsFollowedByTheOutputBehindItsCode) {
  ExpectResult(Classify(1, u"x.xml: error 103: bogus is unexpected"),
               u"Unexpected or unknown element or attribute in the application descriptor file.",
               u"\n bogus is unexpected");
}

TEST_F(PackagerResultTest, AnUnexpectedElementWithNothingBehindItsCodeGivesALineFeedAlone) {
  for (const char16_t* output : {u" error 103", u" error 103:"}) {
    ExpectResult(Classify(1, output),
                 u"Unexpected or unknown element or attribute in the application descriptor file.",
                 u"\n");
  }
}

constexpr char16_t kInvalidValue[] =
    u"An attribute or element contains an invalid value in the application descriptor file.";

TEST_F(PackagerResultTest, AnInvalidValueIsFollowedByTheNameOfItsElement) {
  ExpectResult(Classify(1, u"x.xml: error 105: application.id contains an invalid value"),
               kInvalidValue, u"\n(application.id)");
}

TEST_F(PackagerResultTest, AnInvalidValueWithoutANameStandsAlone) {
  ExpectResult(Classify(1, u" error 105: nothing of the kind"), kInvalidValue);
  ExpectResult(Classify(1, u" error 105 id contains an invalid value"), kInvalidValue);
  ExpectResult(Classify(1, u"contains error 105: id"), kInvalidValue);
}

TEST_F(PackagerResultTest, ANameNeedsAtLeastOneCharacterBeforeTheWordContains) {
  ExpectResult(Classify(1, u" error 105: contains"), kInvalidValue);
  ExpectResult(Classify(1, u" error 105:  contains"), kInvalidValue);
  ExpectResult(Classify(1, u" error 105: a contains"), kInvalidValue, u"\n(a)");
}

TEST_F(PackagerResultTest, AUsageErrorNamesTheFileThatIsMissing) {
  ExpectResult(Classify(2, u"no such file C:/a.png\r\nusage: ..."),
               u"File is missing or cannot be opened.", u"\n(C:/a.png)");
}

TEST_F(PackagerResultTest, AUsageErrorNamesTheFileBehindOtherOutputToo) {
  ExpectResult(Classify(2, u"oh: no such file a b.png\r\nusage: tool"),
               u"File is missing or cannot be opened.", u"\n(a b.png)");
}

TEST_F(PackagerResultTest, AUsageErrorWithoutAFileShowsTheOutputBeforeTheUsage) {
  ExpectResult(Classify(2, u"unknown option -x\r\nusage: tool ..."),
               u"Usage error (incorrect arguments).", u"\nunknown option -x\r\n");
  ExpectResult(Classify(2, u"no such file C:/a.png"), u"Usage error (incorrect arguments).",
               u"\nno such file C:/a.png");
  ExpectResult(Classify(2, u"\nusage: tool no such file a"), u"Usage error (incorrect arguments).",
               u"\n\n");
}

TEST_F(PackagerResultTest, AUsageErrorWithNothingBetweenFileAndUsageNamesNone) {
  ExpectResult(Classify(2, u"no such file \nusage: tool"), u"Usage error (incorrect arguments).",
               u"\nno such file \n");
  ExpectResult(Classify(2, u"no such file \r\nusage: tool"),
               u"File is missing or cannot be opened.", u"\n()");
}

TEST_F(PackagerResultTest, AUsageErrorDoesNotLookForPatterns) {
  ExpectResult(Classify(2, u"an error 300"), u"Usage error (incorrect arguments).",
               u"\nan error 300");
}

TEST_F(PackagerResultTest, AnInaccessibleCertificateWithAWrongPasswordSaysSoInsteadOfTheOutput) {
  ExpectResult(Classify(7, u"keystore: password may be incorrect (java.io)"),
               u"Could not access the digital certificate.",
               u"\nCould not load keystore file (password may be incorrect)");
}

TEST_F(PackagerResultTest, AWrongPasswordAtTheStartOfTheOutputIsSeenByTheCleanUp) {
  ExpectResult(Classify(8, u"password may be incorrect"), u"The digital certificate is invalid.",
               u"\nCould not load keystore file (password may be incorrect)");
}

TEST_F(PackagerResultTest, TheToolsUsageTextNeverReachesTheUser) {
  ExpectResult(Classify(5, u"oops\nusage: tool -package"), u"Unknown error.", u"\noops\n");
  ExpectResult(Classify(5, u"usage: tool"), u"Unknown error.", u"\n");
}

TEST_F(PackagerResultTest, AWrongPasswordBehindTheUsageTextIsCutAwayWithIt) {
  ExpectResult(Classify(7, u"usage: password may be incorrect"),
               u"Could not access the digital certificate.", u"\n");
}

TEST_F(PackagerResultTest, AHeadIsNotCleanedUp) {
  ExpectResult(Classify(1, u"oops usage: tool"), u"oops usage: tool");
}

TEST_F(PackagerResultTest, AFailureOfTheToolIsReportedBehindAPrefix) {
  EXPECT_EQ(PackagerReport(1, true, {u"Head.", u"\nDetail"}),
            u"Error creating files.\n\nHead.\nDetail");
}

TEST_F(PackagerResultTest, AFailureToInstallStandsByItself) {
  EXPECT_EQ(PackagerReport(-1, false, {u"Head.", u"\nDetail"}), u"Head.\nDetail");
}

TEST_F(PackagerResultTest, ASuccessWithOutputIsReportedAsAWarning) {
  EXPECT_EQ(PackagerReport(0, true, {u"Head.", u"\nDetail"}),
            u"The APK was packaged successfully, but a warning occurred.\n\nHead.\nDetail");
}

TEST_F(PackagerResultTest, TheUsageTextIsCutFromTheDetailOfAnUnexpectedElement) {
  ExpectResult(Classify(1, u"x.xml: error 103: bogus\nusage: tool -x"),
               u"Unexpected or unknown element or attribute in the application descriptor file.",
               u"\n bogus\n");
}

TEST_F(PackagerResultTest, AWrongPasswordTakesThePlaceOfTheDetailOfAnUnexpectedElement) {
  ExpectResult(Classify(1, u"x.xml: error 103: bogus, password may be incorrect"),
               u"Unexpected or unknown element or attribute in the application descriptor file.",
               u"\nCould not load keystore file (password may be incorrect)");
}

}  // namespace
}  // namespace qutav::test
