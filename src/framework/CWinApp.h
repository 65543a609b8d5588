#pragma once

namespace qutav {

/// The application object of the library; one static instance derives from it.
class CWinApp {
 public:
  CWinApp() = default;
  virtual ~CWinApp() = default;
  CWinApp(const CWinApp&) = delete;
  CWinApp& operator=(const CWinApp&) = delete;

  /// Puts the machine's services and the front end of this system in force, unless somebody has
  /// done so before. True.
  virtual bool InitInstance();
};

}  // namespace qutav
