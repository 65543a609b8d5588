// One dialog unit is one pixel here, and every character four wide.
#include <algorithm>
#include <memory>

#include "FakeMeasure.h"
#include "RectangleEdges.h"
#include "framework/CStretchBitmapButton.h"
#include "framework/CheckList.h"
#include "framework/ComboBox.h"
#include "framework/ListBox.h"
#include "framework/Picture.h"
#include "framework/layout/Parts.h"

namespace qutav::test {
namespace {

using namespace layout;
using ::testing::ElementsAre;

class LayoutTest : public ::testing::Test {
 protected:
  template <typename Kind>
  Kind& Make(const std::u16string& text = u"") {
    auto made = std::make_unique<Kind>();
    Kind& control = *made;
    control.text = text;
    controls_.push_back(std::move(made));
    return control;
  }
  Edit& MakeEdit(const std::u16string& caption) {
    Edit& edit = Make<Edit>();
    edit.caption = caption;
    return edit;
  }

  void Show(const Layout& layout, int moreWidth = 0, int moreHeight = 0) {
    const Size natural = layout.NaturalSize(measure_);
    size = {natural.width + moreWidth, natural.height + moreHeight};
    placed_ = layout.Arrange(measure_, size);
  }
  std::vector<int> Place(const Control& control) const { return EdgesOf(Find(control).place); }
  std::vector<int> Caption(const Control& control) const { return EdgesOf(Find(control).caption); }
  std::size_t Count() const { return placed_.size(); }

  Size size;

 private:
  const PlacedControl& Find(const Control& control) const {
    return *std::find_if(placed_.begin(), placed_.end(),
                         [&](const auto& one) { return one.control == &control; });
  }

  FakeMeasure measure_{4, 8};
  std::vector<std::unique_ptr<Control>> controls_;
  std::vector<PlacedControl> placed_;
};

TEST_F(LayoutTest, ALayoutOfNothingIsItsMargins) {
  Show(Layout());

  EXPECT_EQ(size.width, 14);
  EXPECT_EQ(size.height, 14);
  EXPECT_EQ(Count(), 0U);
}

TEST_F(LayoutTest, AButtonIsFiftyUnitsWideOrAsItsTextNeeds) {
  auto& ok = Make<Button>(u"OK");
  auto& disable = Make<Button>(u"Disable Timestamping");

  Show(Row({ok, disable}));

  EXPECT_THAT(Place(ok), ElementsAre(7, 7, 57, 21));
  EXPECT_THAT(Place(disable), ElementsAre(61, 7, 151, 21));
}

TEST_F(LayoutTest, ButtonsAreEquallyWideAndStandAtTheRight) {
  auto& ok = Make<Button>(u"OK");
  auto& again = Make<Button>(u"Try once more, please");

  Show(Buttons({ok, again}), 100);

  EXPECT_THAT(Place(ok), ElementsAre(111, 7, 205, 21));
  EXPECT_THAT(Place(again), ElementsAre(209, 7, 303, 21));
  EXPECT_EQ(size.width, 310);
}

TEST_F(LayoutTest, CaptionsMakeOneColumnAndFieldsStretchBehindIt) {
  auto& name = MakeEdit(u"Name:");
  auto& description = MakeEdit(u"Description:");

  Show(Form({Line(name), Line(description)}), 50);

  EXPECT_THAT(Caption(name), ElementsAre(7, 9, 55, 17));
  EXPECT_THAT(Place(name), ElementsAre(59, 7, 209, 19));
  EXPECT_THAT(Caption(description), ElementsAre(7, 25, 55, 33));
  EXPECT_THAT(Place(description), ElementsAre(59, 23, 209, 35));
}

TEST_F(LayoutTest, ALabelCanStandAmongTheCaptions) {
  auto& heading = Make<Label>(u"Processor:");
  auto& radio = Make<RadioButton>(u"ARMv7");

  Show(Form({Line(heading, radio)}));

  EXPECT_THAT(Place(heading), ElementsAre(7, 8, 47, 16));
  EXPECT_THAT(Place(radio), ElementsAre(51, 7, 85, 17));
}

TEST_F(LayoutTest, WhatHasNoCaptionStandsInLineWithTheFields) {
  auto& name = MakeEdit(u"Name:");
  auto& remember = Make<CheckBox>(u"Remember");

  Show(Form({Line(name), Indented(remember)}));

  EXPECT_THAT(Place(remember), ElementsAre(31, 23, 77, 33));
}

TEST_F(LayoutTest, AButtonBehindAFieldHasItsMiddleInLineAndTakesNoMoreThanItNeeds) {
  auto& path = MakeEdit(u"Path:");
  auto& browse = Make<Button>(u"Browse...");

  Show(Form({Line(path, Row({path, browse}))}), 20);

  EXPECT_THAT(Caption(path), ElementsAre(7, 10, 27, 18));
  EXPECT_THAT(Place(path), ElementsAre(31, 8, 151, 20));
  EXPECT_THAT(Place(browse), ElementsAre(155, 7, 205, 21));
}

TEST_F(LayoutTest, AnImageButtonIsASquareAsHighAsAField) {
  auto& path = Make<Edit>();
  auto& browse = Make<CStretchBitmapButton>();

  Show(Row({path, browse}));

  EXPECT_THAT(Place(browse), ElementsAre(111, 7, 123, 19));
}

TEST_F(LayoutTest, AFieldForANumberStaysShort) {
  auto& years = Make<Edit>();
  auto& unit = Make<Label>(u"years");

  Show(Row({Number(years), unit}), 100);

  EXPECT_THAT(Place(years), ElementsAre(7, 7, 39, 19));
  EXPECT_THAT(Place(unit), ElementsAre(43, 9, 63, 17));
}

TEST_F(LayoutTest, ALongLabelWrapsAtItsWidth) {
  auto& label = Make<Label>(u"four and twenty blackbirds");

  Show(Wrapped(label, 64));

  EXPECT_THAT(Place(label), ElementsAre(7, 7, 71, 23));
}

TEST_F(LayoutTest, AWordThatIsWiderThanTheWidthOfItsLabelIsNotCut) {
  auto& label = Make<Label>(u"a Donaudampfschifffahrtsgesellschaft");

  Show(Wrapped(label, 64));

  EXPECT_THAT(Place(label), ElementsAre(7, 7, 143, 23));
}

TEST_F(LayoutTest, EastAsianTextWrapsBehindAnyCharacter) {
  auto& label = Make<Label>(u"指定された証明書が存在しません");

  Show(Wrapped(label, 64));

  EXPECT_THAT(Place(label), ElementsAre(7, 7, 71, 23));
}

TEST_F(LayoutTest, AWrappedTextNeedsLessHeightOnceThereIsMoreWidth) {
  auto& box = Make<CheckBox>(u"four and twenty blackbirds");
  auto& list = Make<ListBox>();

  Show(Column({Wrapped(box, 64), List(list, 2, 78)}), 100);

  EXPECT_THAT(Place(box), ElementsAre(7, 7, 125, 17));
  EXPECT_THAT(Place(list), ElementsAre(7, 21, 185, 49));
}

TEST_F(LayoutTest, AListTakesTheHeightThatNobodyNeeds) {
  auto& list = Make<CheckList>();
  auto& ok = Make<Button>(u"OK");

  Show(Column({List(list, 3, 90), Buttons({ok})}, kUnrelated), 0, 30);

  EXPECT_THAT(Place(list), ElementsAre(7, 7, 97, 85));
  EXPECT_THAT(Place(ok), ElementsAre(47, 92, 97, 106));
}

TEST_F(LayoutTest, TwoListsShareTheHeightThatNobodyNeeds) {
  auto& first = Make<ListBox>();
  auto& second = Make<ListBox>();

  Show(Column({List(first, 1, 50), List(second, 1, 50)}), 0, 31);

  EXPECT_THAT(Place(first), ElementsAre(7, 7, 57, 34));
  EXPECT_THAT(Place(second), ElementsAre(7, 38, 57, 66));
}

TEST_F(LayoutTest, WithoutAListTheHeightThatNobodyNeedsStaysAtTheBottom) {
  auto& box = Make<CheckBox>(u"Resizable");

  Show(Column({box}), 0, 50);

  EXPECT_THAT(Place(box), ElementsAre(7, 7, 57, 17));
}

TEST_F(LayoutTest, AFieldOfSeveralLinesHasItsCaptionInLineWithTheFirst) {
  auto& text = MakeEdit(u"Text:");

  Show(Form({Line(text, Lines(text, 3))}));

  EXPECT_THAT(Caption(text), ElementsAre(7, 9, 27, 17));
  EXPECT_THAT(Place(text), ElementsAre(31, 7, 131, 35));
}

TEST_F(LayoutTest, AFrameLeavesRoomForItsHeadingAndAroundItsContent) {
  auto& frame = Make<GroupBox>(u"Type");
  auto& box = Make<CheckBox>(u"Resizable");

  Show(Group(frame, box));

  EXPECT_THAT(Place(frame), ElementsAre(7, 7, 71, 35));
  EXPECT_THAT(Place(box), ElementsAre(14, 18, 64, 28));
}

TEST_F(LayoutTest, AFrameIsAsWideAsItsHeadingNeeds) {
  auto& frame = Make<GroupBox>(u"Android deployment type");
  auto& box = Make<CheckBox>(u"Debug");

  Show(Group(frame, box));

  EXPECT_THAT(Place(frame), ElementsAre(7, 7, 113, 35));
}

TEST_F(LayoutTest, FramesBelowEachOtherAreEquallyWide) {
  auto& narrow = Make<GroupBox>(u"Type");
  auto& wide = Make<GroupBox>(u"Runtime of the application");

  Show(Column({Group(narrow, Layout()), Group(wide, Layout())}, kUnrelated));

  EXPECT_THAT(Place(narrow), ElementsAre(7, 7, 125, 25));
  EXPECT_THAT(Place(wide), ElementsAre(7, 32, 125, 50));
}

TEST_F(LayoutTest, ColumnsShareTheWidthEvenly) {
  auto& left = Make<CheckBox>(u"Maximizable");
  auto& right = Make<CheckBox>(u"On");

  Show(Columns({left, right}), 20);

  EXPECT_THAT(Place(left), ElementsAre(7, 7, 65, 17));
  EXPECT_THAT(Place(right), ElementsAre(82, 7, 104, 17));
}

TEST_F(LayoutTest, ACaptionCanStandAbove) {
  auto& list = Make<ListBox>();
  list.caption = u"Sizes:";

  Show(Above(list, List(list, 2, 60)));

  EXPECT_THAT(Caption(list), ElementsAre(7, 7, 67, 15));
  EXPECT_THAT(Place(list), ElementsAre(7, 18, 67, 38));
}

TEST_F(LayoutTest, PicturesStandOnOneLineAboveTheirCaptions) {
  auto& large = Make<Picture>();
  large.caption = u"48x48";
  large.width = large.height = 52;
  auto& small = Make<Picture>();
  small.caption = u"16x16";
  small.width = 12;
  small.height = 21;

  Show(Gallery({&large, &small}));

  EXPECT_THAT(Place(large), ElementsAre(7, 7, 59, 59));
  EXPECT_THAT(Caption(large), ElementsAre(23, 62, 43, 70));
  EXPECT_THAT(Place(small), ElementsAre(70, 38, 82, 59));
  EXPECT_THAT(Caption(small), ElementsAre(66, 62, 86, 70));
}

TEST_F(LayoutTest, APictureGrowsWithTheResolutionAndNotWithTheFont) {
  auto& picture = Make<Picture>();
  picture.width = 192;
  picture.height = 100;
  const Layout layout(picture);

  const Size natural = layout.NaturalSize(FakeMeasure(4, 8, 150));

  EXPECT_EQ(natural.width, 14 + 288);
  EXPECT_EQ(natural.height, 14 + 150);
}

TEST_F(LayoutTest, ASizeBelowTheNaturalOneCountsAsTheNaturalOne) {
  auto& ok = Make<Button>(u"OK");

  Show(Layout(ok), -40, -10);

  EXPECT_THAT(Place(ok), ElementsAre(7, 7, 57, 21));
}

TEST_F(LayoutTest, ATextIsReadWhenTheLayoutIsAsked) {
  auto& box = Make<CheckBox>(u"On");
  const Layout layout(box);
  box.text = u"Switched on";

  Show(layout);

  EXPECT_THAT(Place(box), ElementsAre(7, 7, 65, 17));
}

TEST_F(LayoutTest, AFieldWithoutACaptionInItsLineHasNone) {
  auto& radio = Make<RadioButton>(u"From:");
  auto& market = Make<ComboBox>();
  market.caption = u"From:";

  Show(Row({radio, market}));

  EXPECT_THAT(Caption(market), ElementsAre(0, 0, 0, 0));
}

}  // namespace
}  // namespace qutav::test
