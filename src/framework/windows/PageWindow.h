// A page of a property sheet of the system.
#pragma once

#include <functional>
#include <optional>

#include "framework/CPropertyPage.h"
#include "framework/windows/ControlHost.h"
#include "framework/windows/DialogTemplate.h"

namespace qutav {

class PageWindow {
 public:
  /// `onActivated` runs when the page comes to the front. The size is in dialog units.
  PageWindow(CPropertyPage& page, unsigned dpi, const Size& size,
             std::function<void()> onActivated);
  PageWindow(const PageWindow&) = delete;
  PageWindow& operator=(const PageWindow&) = delete;

  /// For `PropertySheetW`; it refers to this object, which must stay where it is.
  PROPSHEETPAGEW Description();

 private:
  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static UINT CALLBACK OnLifecycle(HWND window, UINT message, PROPSHEETPAGEW* page);
  void OnInitDialog(HWND window);
  INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR OnSheetNotification(const NMHDR& notification);
  void FillWindow();

  CPropertyPage& page_;
  unsigned dpi_;
  DialogTemplate template_;
  std::function<void()> onActivated_;
  std::optional<ControlHost> controls_;
};

}  // namespace qutav
