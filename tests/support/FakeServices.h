// Services for tests: nothing here sleeps, draws, starts a process or touches the disk.
#pragma once

#include <atomic>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "framework/CPropertySheet.h"
#include "framework/scripted/UserActions.h"
#include "platform/Services.h"
#include "platform/Text.h"

namespace qutav::test {

/// Lets time pass without spending it.
class FakeClock : public Clock {
 public:
  void Sleep(std::chrono::milliseconds duration) override;
  std::vector<std::chrono::milliseconds> Sleeps() const;
  /// Runs at every sleep, on the sleeping thread.
  std::function<void()> onSleep;

 private:
  mutable std::mutex mutex_;
  std::vector<std::chrono::milliseconds> sleeps_;
};

/// A file system in memory. Paths are exact but for the kind of slashes; "C:/m" and "/m" are roots.
class MemoryFiles : public Files {
 public:
  std::optional<FoundFile> Find(const std::u16string& path) override;
  bool Copy(const std::u16string& from, const std::u16string& to) override;
  bool Delete(const std::u16string& path) override;
  bool CreateFolder(const std::u16string& path) override;
  bool RemoveFolder(const std::u16string& path) override;
  std::optional<std::string> Read(const std::u16string& path) override;
  bool Write(const std::u16string& path, std::string_view bytes) override;
  bool IsRooted(const std::u16string& path) const override;
  std::string_view LineEnd() const override { return lineEnd; }

  /// Puts a file there, with all folders above it.
  void Put(const std::u16string& path, std::string_view bytes = "x");
  void PutFolder(const std::u16string& path);
  bool HasFile(const std::u16string& path) const;
  std::string BytesOf(const std::u16string& path) const;

  std::string lineEnd = "\n";
  /// The folder for paths without a root.
  std::u16string currentFolder = u"C:/current";
  /// Paths (forward slashes) that cannot be written.
  std::set<std::u16string> readOnly;
  /// Every operation that changes something, as "write C:/m/x".
  std::vector<std::u16string> changes;

 private:
  std::u16string Normal(const std::u16string& path) const;
  std::map<std::u16string, std::string> files_;
  std::set<std::u16string> folders_;
};

/// A registry in memory.
class MemoryRegistry : public Registry {
 public:
  using Values = std::vector<std::pair<std::u16string, std::u16string>>;
  std::unique_ptr<RegistryKey> OpenOrCreate(const std::u16string& path) override;
  std::map<std::u16string, Values> keys;
  bool refuses = false;  ///< no key can be opened
  int opened = 0;
  int closed = 0;
};

/// What a fake child does.
struct PlayedAnswer {
  std::string output;
  std::uint32_t exitCode = 0;
  bool hangs = false;     ///< runs until a taskkill line names it
  int roundsRunning = 0;  ///< looks at it that find it running
};

/// Records the command lines and plays answers.
class FakeProcesses : public Processes {
 public:
  std::unique_ptr<OutputPipe> CreateOutputPipe() override;
  std::unique_ptr<ChildProcess> Start(const std::u16string& commandLine,
                                      OutputPipe* output) override;
  SystemError LastError() override { return lastError; }
  /// Throws `ProcessEnded`, as nothing else can take the place of not returning.
  [[noreturn]] void EndThisProcess(std::uint32_t exitCode) override;
  std::u16string ProgramSuffix() const override { return suffix; }
  char16_t HeadSeparator() const override { return separator; }

  struct ProcessEnded {
    std::uint32_t exitCode;
  };

  std::vector<std::u16string> CommandLines() const;
  /// The answer to a command line; by default silence and exit code 0.
  std::function<PlayedAnswer(const std::u16string& commandLine)> play;
  std::u16string suffix = u".exe";
  char16_t separator = u'\\';
  bool pipesFail = false;
  bool closeFails = false;
  bool startFails = false;
  SystemError lastError;

  struct ChildState;
  struct PipeState;

 private:
  mutable std::mutex mutex_;
  std::vector<std::u16string> commandLines_;
  std::map<std::uint32_t, std::shared_ptr<ChildState>> children_;
  std::uint32_t nextId_ = 1000;
};

/// Fixed folders.
class FakeFolders : public Folders {
 public:
  std::u16string HostExecutable() override { return hostExecutable; }
  std::u16string Temporary() override { return temporary; }
  std::u16string CommonProgramFiles() override { return commonProgramFiles; }
  unsigned MajorVersion() override { return majorVersion; }
  std::u16string hostExecutable = u"C:\\host\\Quorl.exe";
  std::u16string temporary = u"C:\\temp\\";
  std::u16string commonProgramFiles = u"C:\\Common";
  unsigned majorVersion = 10;
};

/// The real catalogue, with what the library asked for written down.
class RecordingLanguage : public Language {
 public:
  RecordingLanguage();
  std::uint32_t ThreadLocale() override { return locale; }
  LanguageId ThreadInterfaceLanguage() override;
  LanguageId SetThreadInterfaceLanguage(LanguageId id) override;
  int LoadString(const std::u16string& module, std::uint32_t id, char16_t* buffer,
                 int capacity) override;
  std::uint32_t locale = 0x10409;  ///< high bits as a sort order has them
  std::set<LanguageId> refused;    ///< the system goes on in the old language for these
  std::map<std::uint32_t, std::u16string> texts;  ///< texts that stand before the catalogue's
  std::vector<LanguageId> switches;               ///< every language asked for
  std::vector<int> capacities;                    ///< of every load
  LanguageId current = kEnglish;
};

/// Runs the procedure on a real thread, or has no thread to give.
class FakeThreads : public Threads {
 public:
  std::unique_ptr<WorkerThread> Start(std::function<void()> procedure) override;
  bool refuses = false;
};

/// The tables that a test has laid out.
class FakeNetworkTables : public NetworkTables {
 public:
  NetworkTable<InterfaceAddress> Addresses() override { return addresses; }
  NetworkTable<NetworkAdapter> Adapters() override { return adapters; }
  NetworkTable<InterfaceAddress> addresses;
  NetworkTable<NetworkAdapter> adapters;
};

/// The one colour of fake images.
inline constexpr std::uint32_t kFakePixel = 0xFF336699;

/// Images by path, as a test puts them there; a file that is none has no image.
class FakeImages : public Images {
 public:
  std::shared_ptr<const Image> Load(const std::u16string& path) override;
  void Put(const std::u16string& path, int width, int height);
  std::vector<std::u16string> loaded;  ///< every path asked for

 private:
  std::map<std::u16string, std::shared_ptr<const Image>> images_;
};

/// A sheet's window: figures as a test sets them, and what the sheet did to it.
class FakeSheetWindow : public SheetWindow {
 public:
  Rectangle WorkArea() override { return workArea; }
  Rectangle WindowRectangle() override { return window; }
  int ScrollBarWidth() override { return 17; }
  Rectangle ButtonRectangle(int commandId) override;
  void Resize(int width, int height) override;
  void ShowScrollBar(const ScrollInfo& info) override { scrollBar = info; }
  void SetScrollPosition(int position, bool redraw) override;
  void ScrollContents(int distance) override { scrolled.push_back(distance); }
  void ShowPage(int index) override;

  Rectangle workArea{0, 0, 1920, 1040};
  Rectangle window{100, 100, 600, 700};
  std::map<int, Rectangle> buttons;
  std::optional<std::pair<int, int>> resizedTo;
  std::optional<ScrollInfo> scrollBar;
  std::vector<std::pair<int, bool>> scrollPositions;  ///< with whether they were redrawn
  std::vector<int> scrolled;
  std::vector<int> shownPages;
  /// Runs whenever a page has come to the front.
  std::function<void(int index)> onShowPage;
};

struct ShownMessage {
  std::u16string title;
  std::u16string text;
  MessageIcon icon;
  MessageButtons buttons;
  WindowHandle owner;
};

/// Writes down what is shown and answers as told.
class FakeFrontEnd : public FrontEnd {
 public:
  WindowHandle FocusWindow() override { return focus; }
  WindowHandle MainWindow() override { return mainWindow; }
  int ShowMessage(const MessageBoxRequest& request) override;
  int RunModal(CDialog& dialog) override;
  int RunModal(CPropertySheet& sheet) override;
  Rectangle ActiveWindowRectangle() override { return active; }
  Rectangle DesktopRectangle() override { return desktop; }
  Rectangle DialogRectangle(const CDialog&) override { return dialogSize; }
  std::optional<std::u16string> ChooseFile(const FileDialogRequest& request) override;
  std::optional<std::u16string> ChooseFolder(const FolderDialogRequest& request) override;
  void OpenLink(const std::u16string& url) override { links.push_back(url); }
  int TextWidth(const Control& control, const std::u16string& text) override;
  int AverageCharacterWidth(const Control&) override { return 7; }
  void Repaint(CDialog& dialog) override { repainted.push_back(dialog.ClassName()); }

  std::vector<std::u16string> Texts() const;

  int focusWindow = 0;  // its address serves as a handle
  WindowHandle focus = &focusWindow;
  WindowHandle mainWindow = nullptr;
  Rectangle active{0, 0, 1000, 800};
  Rectangle desktop{0, 0, 1920, 1080};
  Rectangle dialogSize{0, 0, 300, 100};
  std::vector<ShownMessage> messages;
  std::vector<std::u16string> dialogs;  ///< class names, in the order of showing
  std::vector<FileDialogRequest> fileDialogs;
  std::vector<FolderDialogRequest> folderDialogs;
  std::vector<std::u16string> links;
  std::vector<std::u16string> repainted;  ///< class names, in the order of repainting
  /// What file and folder dialogs give; nothing when they are cancelled.
  std::optional<std::u16string> chosenFile;
  std::optional<std::u16string> chosenFolder;
  FakeSheetWindow sheetWindow;
  /// The answer to a message with OK and Cancel.
  int answer = kIdOk;
  std::function<void(const MessageBoxRequest&)> onMessage;
  /// Drives a dialog that has been created; by default its timer ticks until it ends.
  std::function<void(CDialog&)> onDialog;
  /// Drives the sheet; by default Cancel is pressed.
  std::function<void(CPropertySheet&)> onSheet;
};

/// Presses a button of a dialog by its English label; false when there is none.
bool PressButton(CDialog& dialog, const std::u16string& label);

/// A dialog's control of a kind by its English label, "#2" behind a repeated one. Fails the test
/// and throws without one.
template <typename Kind>
Kind& Find(const CDialog& dialog, const std::u16string& label) {
  auto* control = dynamic_cast<Kind*>(FindControl(dialog, label));
  if (control == nullptr) throw std::runtime_error("no such control: " + ToUtf8(label));
  return *control;
}

/// Lets the dialog's timer tick until it ends.
void TickUntilEnded(CDialog& dialog);

}  // namespace qutav::test
