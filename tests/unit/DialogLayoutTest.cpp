// Every dialog, in every language, on screens of three resolutions: nothing is cut and nothing
// overlaps.
#include <map>

#include "AllDialogs.h"
#include "FakeMeasure.h"
#include "RectangleEdges.h"
#include "ServicesTest.h"
#include "framework/ControlVisitor.h"
#include "framework/Picture.h"
#include "platform/Text.h"
#include "settings_ui/SettingsPages.h"
#include "win/InterfaceLanguage.h"

namespace qutav::test {
namespace {

using ::testing::Le;

enum class Look { kText, kFrame, kButton, kChoice, kField, kList, kImageButton };

class LookOf : public ControlVisitor {
 public:
  explicit LookOf(const Control& control) { const_cast<Control&>(control).Accept(*this); }
  bool operator==(Look other) const { return look_ == other; }

  void Visit(Label&) override { look_ = Look::kText; }
  void Visit(GroupBox&) override { look_ = Look::kFrame; }
  void Visit(Edit&) override { look_ = Look::kField; }
  void Visit(Button&) override { look_ = Look::kButton; }
  void Visit(CheckBox&) override { look_ = Look::kChoice; }
  void Visit(RadioButton&) override { look_ = Look::kChoice; }
  void Visit(ProgressBar&) override { look_ = Look::kField; }
  void Visit(ComboBox&) override { look_ = Look::kField; }
  void Visit(ListBox&) override { look_ = Look::kField; }
  void Visit(CheckList&) override { look_ = Look::kList; }
  void Visit(CStretchBitmapButton&) override { look_ = Look::kImageButton; }
  void Visit(Picture&) override { look_ = Look::kField; }

 private:
  Look look_ = Look::kText;
};

bool IsFrame(const Control& control) { return LookOf(control) == Look::kFrame; }

bool IsEmpty(const Rectangle& r) { return r.Width() <= 0 || r.Height() <= 0; }

bool Overlap(const Rectangle& a, const Rectangle& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool Contains(const Rectangle& outer, const Rectangle& inner) {
  return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
         outer.bottom >= inner.bottom;
}

// A dialog as it is arranged at some size.
struct Shown {
  const CDialog& dialog;
  const FakeMeasure& measure;
  Size size;
  std::vector<PlacedControl> placed;

  // Nowhere for a control that was forgotten.
  PlacedControl Of(const Control& control) const {
    const auto found = std::find_if(placed.begin(), placed.end(),
                                    [&](const auto& one) { return one.control == &control; });
    return found == placed.end() ? PlacedControl{} : *found;
  }
  Rectangle PlaceOf(const std::unique_ptr<Control>& control) const { return Of(*control).place; }
  // Places and captions, without frames.
  std::vector<std::pair<std::u16string, Rectangle>> Areas() const {
    std::vector<std::pair<std::u16string, Rectangle>> areas;
    for (const PlacedControl& one : placed) {
      if (!IsFrame(*one.control)) areas.emplace_back(one.control->label, one.place);
      if (!IsEmpty(one.caption)) areas.emplace_back(one.control->label, one.caption);
    }
    return areas;
  }
};

// The buttons at the bottom of a dialog belong to no frame.
bool IsCommand(const Control& control) {
  return LookOf(control) == Look::kButton &&
         (control.label == u"Help" || control.label == u"OK" || control.label == u"Cancel");
}

bool HasRoom(const Shown& shown, const PlacedControl& one) {
  const LookOf look(*one.control);
  const int width = one.place.Width();
  const int height = one.place.Height();
  const std::u16string& text = one.control->text;
  const FakeMeasure& measure = shown.measure;
  if (look == Look::kText) return measure.Fits(text, width, height);
  if (look == Look::kChoice) return measure.Fits(text, width - measure.Horizontal(12), height);
  if (look == Look::kButton) return measure.TextWidth(text) + measure.Horizontal(8) <= width;
  if (look == Look::kFrame) return measure.TextWidth(text) + measure.Horizontal(12) <= width;
  return true;
}

class DialogLayoutTest : public ServicesTest,
                         public ::testing::WithParamInterface<const char16_t*> {
 protected:
  DialogLayoutTest() {
    host.languageCode = GetParam();
    EnterInterfaceLanguage(call);
  }

  // At the natural size and above it.
  template <typename Check>
  static void ForEachLayout(Check check) {
    for (const auto& dialog : DialogsAndPages()) {
      for (const FakeMeasure& measure :
           {FakeMeasure(6, 13), FakeMeasure(7, 15, 150), FakeMeasure(13, 30, 200)}) {
        const Size natural = dialog->GetLayout().NaturalSize(measure);
        for (const int more : {0, 131}) {
          const Size size{natural.width + more, natural.height + more};
          SCOPED_TRACE(ToUtf8(dialog->ClassName()) + ", " + std::to_string(size.width) + " by " +
                       std::to_string(size.height));
          check(Shown{*dialog, measure, size, dialog->GetLayout().Arrange(measure, size)});
        }
      }
    }
  }

  HostCallContext call;
};

TEST_P(DialogLayoutTest, EveryControlStandsOnce) {
  ForEachLayout([](const Shown& shown) {
    std::map<const Control*, int> count;
    for (const PlacedControl& one : shown.placed) {
      ++count[one.control];
      EXPECT_FALSE(IsEmpty(one.place)) << ToUtf8(one.control->label);
    }
    for (const auto& control : shown.dialog.Controls()) {
      EXPECT_EQ(count[control.get()], 1) << ToUtf8(control->label);
    }
    EXPECT_EQ(count.size(), shown.dialog.Controls().size());
  });
}

TEST_P(DialogLayoutTest, NothingStandsOnTheMargin) {
  ForEachLayout([](const Shown& shown) {
    const int horizontal = shown.measure.Horizontal(7);
    const int vertical = shown.measure.Vertical(7);
    const Rectangle inside{horizontal, vertical, shown.size.width - horizontal,
                           shown.size.height - vertical};
    for (const PlacedControl& one : shown.placed) {
      EXPECT_TRUE(Contains(inside, one.place)) << ToUtf8(one.control->label);
      EXPECT_TRUE(IsEmpty(one.caption) || Contains(inside, one.caption))
          << ToUtf8(one.control->label);
    }
  });
}

TEST_P(DialogLayoutTest, NothingOverlaps) {
  ForEachLayout([](const Shown& shown) {
    const auto areas = shown.Areas();
    for (std::size_t i = 0; i < areas.size(); ++i) {
      for (std::size_t j = i + 1; j < areas.size(); ++j) {
        EXPECT_FALSE(Overlap(areas[i].second, areas[j].second))
            << ToUtf8(areas[i].first) << " and " << ToUtf8(areas[j].first);
      }
    }
  });
}

TEST_P(DialogLayoutTest, EveryTextHasRoom) {
  ForEachLayout([](const Shown& shown) {
    for (const PlacedControl& one : shown.placed) {
      EXPECT_TRUE(HasRoom(shown, one)) << ToUtf8(one.control->text);
      EXPECT_TRUE(
          IsEmpty(one.caption) ||
          shown.measure.Fits(one.control->caption, one.caption.Width(), one.caption.Height()))
          << ToUtf8(one.control->caption);
    }
  });
}

// A list has its caption as the heading of its column; a button shows it when the mouse is over it.
TEST_P(DialogLayoutTest, EveryFieldHasItsCaptionBesideItOrAbove) {
  ForEachLayout([](const Shown& shown) {
    for (const auto& control : shown.dialog.Controls()) {
      const bool behindRadio = control->label == u"Get TAV runtime from:";
      const bool expected =
          LookOf(*control) == Look::kField && !control->caption.empty() && !behindRadio;
      EXPECT_EQ(!IsEmpty(shown.Of(*control).caption), expected) << ToUtf8(control->label);
    }
  });
}

TEST_P(DialogLayoutTest, AFrameEnclosesTheControlsBehindItAndNoOther) {
  ForEachLayout([](const Shown& shown) {
    for (const auto& frame : shown.dialog.Controls()) {
      if (!IsFrame(*frame)) continue;
      const Control* current = nullptr;
      for (const auto& control : shown.dialog.Controls()) {
        if (IsFrame(*control)) current = control.get();
        if (control == frame) continue;
        const PlacedControl one = shown.Of(*control);
        const Rectangle border = shown.PlaceOf(frame);
        const bool belongs = current == frame.get() && !IsCommand(*control);
        EXPECT_EQ(Contains(border, one.place), belongs) << ToUtf8(control->label);
        EXPECT_EQ(Overlap(border, one.place), belongs) << ToUtf8(control->label);
        EXPECT_TRUE(IsEmpty(one.caption) || Contains(border, one.caption) == belongs)
            << ToUtf8(control->label);
      }
    }
  });
}

TEST_P(DialogLayoutTest, TheTabKeyGoesDownAndToTheRight) {
  ForEachLayout([](const Shown& shown) {
    const Control* previous = nullptr;
    for (const auto& control : shown.dialog.Controls()) {
      const Rectangle next = shown.PlaceOf(control);
      if (previous != nullptr) {
        const Rectangle last = shown.Of(*previous).place;
        const bool goesIn = IsFrame(*previous) && Contains(last, next);
        EXPECT_TRUE(goesIn || next.top >= last.bottom || next.left >= last.right)
            << ToUtf8(previous->label) << " to " << ToUtf8(control->label);
      }
      previous = control.get();
    }
  });
}

TEST_P(DialogLayoutTest, NoDialogIsWiderThanASmallScreen) {
  const FakeMeasure measure;

  for (const auto& dialog : DialogsAndPages()) {
    EXPECT_THAT(dialog->GetLayout().NaturalSize(measure).width, Le(measure.Horizontal(400)))
        << ToUtf8(dialog->ClassName());
  }
}

INSTANTIATE_TEST_SUITE_P(InEveryLanguage, DialogLayoutTest,
                         ::testing::Values(u"cs_CZ", u"de_DE", u"en_US", u"es_ES", u"fr_FR",
                                           u"it_IT", u"ja_JP", u"ko_KR", u"nl_NL", u"pl_PL",
                                           u"pt_BR", u"ru_RU", u"su_DO", u"sv_SE", u"tr_TR",
                                           u"zh_CN", u"zh_TW"),
                         [](const auto& code) { return ToUtf8(code.param); });

class PageSizeTest : public ServicesTest {};

TEST_F(PageSizeTest, AnEnglishPageIsNoLargerThanPagesUsuallyAre) {
  const FakeMeasure measure;
  SettingsPages pages;

  for (const CPropertyPage* page : std::initializer_list<const CPropertyPage*>{
           &pages.general, &pages.androidDeployment, &pages.iosDeployment, &pages.icons,
           &pages.permissions, &pages.languages, &pages.desktopGeneral, &pages.desktopAdvanced}) {
    const Size size = page->GetLayout().NaturalSize(measure);
    EXPECT_THAT(size.width, Le(measure.Horizontal(300))) << ToUtf8(page->ClassName());
    EXPECT_THAT(size.height, Le(measure.Vertical(265))) << ToUtf8(page->ClassName());
  }
}

}  // namespace
}  // namespace qutav::test
