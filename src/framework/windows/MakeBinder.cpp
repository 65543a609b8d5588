#include "framework/ControlVisitor.h"
#include "framework/windows/ButtonBinders.h"
#include "framework/windows/CheckListBinder.h"
#include "framework/windows/ControlBinder.h"
#include "framework/windows/ListBinders.h"
#include "framework/windows/PictureBinders.h"
#include "framework/windows/TextBinders.h"

namespace qutav {
namespace {

class BinderMaker final : public ControlVisitor {
 public:
  explicit BinderMaker(const WindowPlace& place) : place_(place) {}

  std::unique_ptr<ControlBinder> Make(Control& control) {
    control.Accept(*this);
    return std::move(made_);
  }
  void Visit(Label& label) override { Bind<LabelBinder>(label); }
  void Visit(GroupBox& box) override { Bind<GroupBoxBinder>(box); }
  void Visit(Edit& edit) override { Bind<EditBinder>(edit); }
  void Visit(Button& button) override { Bind<ButtonBinder>(button); }
  void Visit(CheckBox& box) override { Bind<CheckBoxBinder>(box); }
  void Visit(RadioButton& button) override { Bind<RadioButtonBinder>(button); }
  void Visit(ProgressBar& bar) override { Bind<ProgressBarBinder>(bar); }
  void Visit(ComboBox& combo) override { Bind<ComboBoxBinder>(combo); }
  void Visit(ListBox& list) override { Bind<ListBoxBinder>(list); }
  void Visit(CheckList& list) override { Bind<CheckListBinder>(list); }
  void Visit(CStretchBitmapButton& button) override { Bind<ImageButtonBinder>(button); }
  void Visit(Picture& picture) override { Bind<PictureBinder>(picture); }

 private:
  template <typename Binder, typename Kind>
  void Bind(Kind& control) {
    made_ = std::make_unique<Binder>(control, place_);
  }

  const WindowPlace& place_;
  std::unique_ptr<ControlBinder> made_;
};

}  // namespace

std::unique_ptr<ControlBinder> MakeBinder(Control& control, const WindowPlace& place) {
  return BinderMaker(place).Make(control);
}

std::unique_ptr<ControlBinder> AdoptButton(Button& button, HWND window) {
  return std::make_unique<ButtonBinder>(button, window);
}

}  // namespace qutav
