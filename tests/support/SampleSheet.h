// A property sheet and pages that write down what happens to them.
#pragma once

#include <string>
#include <vector>

#include "framework/CPropertySheet.h"

namespace qutav::test {

class SamplePage : public CPropertyPage {
 public:
  SamplePage(const std::u16string& label, std::vector<std::u16string>& events)
      : CPropertyPage(u"CSamplePage" + label, label, 0), events_(events) {}
  using CPropertyPage::Add;

 protected:
  bool OnInitDialog() override {
    events_.push_back(u"create " + EnglishTitle());
    return CPropertyPage::OnInitDialog();
  }
  void OnDestroy() override { events_.push_back(u"destroy " + EnglishTitle()); }

 private:
  std::vector<std::u16string>& events_;
};

class SampleSheet : public CPropertySheet {
 public:
  explicit SampleSheet(int startPage = 0) : CPropertySheet(u"CSampleSheet", 0, startPage) {
    Add<Button>(u"Publish").onClick = [this] { events.push_back(u"Publish"); };
  }
  using CPropertySheet::GetButton;

  void OnOK() override {
    events.push_back(u"OK");
    CPropertySheet::OnOK();
  }
  void OnCancel() override {
    events.push_back(u"Cancel");
    CPropertySheet::OnCancel();
  }
  void OnHelp() override { events.push_back(u"Help"); }

  std::vector<std::u16string> events;
};

}  // namespace qutav::test
