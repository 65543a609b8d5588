#include "SampleSheet.h"
#include "ServicesTest.h"
#include "framework/CPropertySheet.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CPropertySheetTest : public ServicesTest {
 protected:
  CPropertySheetTest() {
    for (SamplePage* page : {&general, &deployment, &icons}) sheet.AddPage(*page);
  }
  // As a front end does.
  void Show() {
    sheet.Attach(&window);
    sheet.Create();
  }

  SampleSheet sheet{0};
  SamplePage general{u"General", sheet.events};
  SamplePage deployment{u"Deployment", sheet.events};
  SamplePage icons{u"Icons", sheet.events};
  FakeSheetWindow window;
};

TEST_F(CPropertySheetTest, PagesStandInTheOrderInWhichTheyWereAdded) {
  EXPECT_THAT(sheet.Pages(), ElementsAre(&general, &deployment, &icons));
  EXPECT_EQ(deployment.EnglishTitle(), u"Deployment");
}

TEST_F(CPropertySheetTest, OnlyThePageInFrontIsCreated) {
  Show();

  EXPECT_THAT(sheet.events, ElementsAre(u"create General"));
  EXPECT_THAT(window.shownPages, ElementsAre(0));
  EXPECT_FALSE(deployment.IsCreated());
}

TEST_F(CPropertySheetTest, OpensOnItsStartPage) {
  SampleSheet second(1);
  second.AddPage(general);
  second.AddPage(deployment);
  second.Attach(&window);

  second.Create();

  EXPECT_EQ(second.GetActiveIndex(), 1);
  EXPECT_THAT(window.shownPages, ElementsAre(1));
  EXPECT_TRUE(deployment.IsCreated());
  EXPECT_FALSE(general.IsCreated());
}

TEST_F(CPropertySheetTest, APageIsCreatedWhenItIsFirstShownAndNotAgain) {
  Show();

  sheet.SetActivePage(2);
  sheet.SetActivePage(0);
  sheet.SetActivePage(2);

  EXPECT_THAT(sheet.events, ElementsAre(u"create General", u"create Icons"));
  EXPECT_THAT(window.shownPages, ElementsAre(0, 2, 0, 2));
  EXPECT_EQ(sheet.GetActiveIndex(), 2);
}

TEST_F(CPropertySheetTest, APageIsCreatedBeforeItsWindowComesToTheFront) {
  struct CheckingWindow : FakeSheetWindow {
    void ShowPage(int) override { createdAtShowing = page->IsCreated(); }
    const CPropertyPage* page = nullptr;
    bool createdAtShowing = false;
  } checking;
  checking.page = &general;
  sheet.Attach(&checking);

  sheet.Create();

  EXPECT_TRUE(checking.createdAtShowing);
}

TEST_F(CPropertySheetTest, AnActivePageThatIsSetBeforeTheSheetIsShownIsTheFirstOneCreated) {
  sheet.SetActivePage(1);
  EXPECT_THAT(sheet.events, IsEmpty());
  EXPECT_EQ(sheet.GetActiveIndex(), 1);

  Show();

  EXPECT_THAT(sheet.events, ElementsAre(u"create Deployment"));
}

TEST_F(CPropertySheetTest, AnIndexWithoutAPageChangesNothing) {
  Show();

  sheet.SetActivePage(-1);
  sheet.SetActivePage(3);

  EXPECT_EQ(sheet.GetActiveIndex(), 0);
  EXPECT_THAT(window.shownPages, ElementsAre(0));
}

TEST_F(CPropertySheetTest, AStartPageThatThereIsNotOpensTheFirstPage) {
  for (const int missing : {-1, 2}) {
    SampleSheet second(missing);
    SamplePage first(u"First", second.events);
    SamplePage last(u"Last", second.events);
    second.AddPage(first);
    second.AddPage(last);
    second.Attach(&window);

    second.Create();

    EXPECT_EQ(second.GetActiveIndex(), 0);
    EXPECT_THAT(second.events, ElementsAre(u"create First"));
  }
  EXPECT_THAT(window.shownPages, ElementsAre(0, 0));
}

TEST_F(CPropertySheetTest, ASheetWithoutPagesCanBeShown) {
  SampleSheet empty(3);
  empty.Attach(&window);

  empty.Create();

  EXPECT_THAT(window.shownPages, IsEmpty());
}

TEST_F(CPropertySheetTest, ItsEndDestroysThePagesThatWereShown) {
  Show();
  sheet.SetActivePage(2);
  sheet.events.clear();

  sheet.Destroy();

  EXPECT_THAT(sheet.events, ElementsAre(u"destroy General", u"destroy Icons"));
  EXPECT_FALSE(general.IsCreated());
  EXPECT_FALSE(sheet.IsCreated());
}

TEST_F(CPropertySheetTest, AfterItsEndAnActivePageIsOnlyRemembered) {
  Show();
  sheet.Destroy();
  sheet.events.clear();

  sheet.SetActivePage(1);

  EXPECT_EQ(sheet.GetActiveIndex(), 1);
  EXPECT_THAT(sheet.events, IsEmpty());
}

TEST_F(CPropertySheetTest, HasThePlatformsButtonsByTheirCommands) {
  EXPECT_EQ(sheet.GetButton(1)->label, u"OK");
  EXPECT_EQ(sheet.GetButton(2)->label, u"Cancel");
  EXPECT_EQ(sheet.GetButton(12321)->label, u"Apply");
  EXPECT_EQ(sheet.GetButton(9)->label, u"Help");
  EXPECT_EQ(sheet.GetButton(4711), nullptr);
  EXPECT_TRUE(sheet.GetButton(1)->isDefault);
  EXPECT_FALSE(sheet.GetButton(2)->isDefault);
  EXPECT_FALSE(sheet.GetButton(12321)->enabled);
}

TEST_F(CPropertySheetTest, EachButtonRunsItsCommand) {
  Show();
  sheet.events.clear();

  sheet.GetButton(9)->Click();
  EXPECT_FALSE(sheet.HasEnded());

  sheet.GetButton(2)->Click();
  EXPECT_EQ(sheet.Result(), kIdCancel);

  sheet.GetButton(1)->Click();
  EXPECT_EQ(sheet.Result(), kIdOk);
  EXPECT_THAT(sheet.events, ElementsAre(u"Help", u"Cancel", u"OK"));
}

TEST_F(CPropertySheetTest, IsRunAsASheetByItsFrontEnd) {
  frontEnd.onSheet = [](CPropertySheet& shown) { shown.SetActivePage(1); };

  EXPECT_EQ(sheet.DoModal(), kIdCancel);

  EXPECT_THAT(frontEnd.dialogs, ElementsAre(u"CSampleSheet"));
  EXPECT_THAT(frontEnd.sheetWindow.shownPages, ElementsAre(0, 1));
  EXPECT_THAT(sheet.events, ElementsAre(u"create General", u"create Deployment", u"Cancel",
                                        u"destroy General", u"destroy Deployment"));
}

}  // namespace
}  // namespace qutav::test
