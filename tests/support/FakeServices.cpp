#include "FakeServices.h"

#include <algorithm>
#include <filesystem>
#include <thread>

#include "framework/CPropertySheet.h"
#include "platform/Text.h"
#include "platform/catalogue/CatalogueLanguages.h"
#include "platform/standard/StandardServices.h"

namespace qutav::test {

void FakeClock::Sleep(std::chrono::milliseconds duration) {
  {
    const std::lock_guard lock(mutex_);
    sleeps_.push_back(duration);
  }
  if (onSleep) onSleep();
  std::this_thread::yield();
}

std::vector<std::chrono::milliseconds> FakeClock::Sleeps() const {
  const std::lock_guard lock(mutex_);
  return sleeps_;
}

namespace {

bool EndsInSeparator(const std::u16string& path) {
  return path.empty() || path.back() == u'/' || path.back() == u'\\';
}

std::u16string ParentOf(const std::u16string& path) {
  const std::size_t slash = path.rfind(u'/');
  return slash == path.npos ? std::u16string() : path.substr(0, slash);
}

}  // namespace

std::u16string MemoryFiles::Normal(const std::u16string& path) const {
  std::u16string forward = path;
  std::replace(forward.begin(), forward.end(), u'\\', u'/');
  if (!IsRooted(forward)) forward = currentFolder + u"/" + forward;
  const auto normal = std::filesystem::path(ToUtf8(forward)).lexically_normal();
  std::u16string text = FromUtf8(normal.generic_string());
  while (text.size() > 1 && text.back() == u'/') text.pop_back();
  return text;
}

bool MemoryFiles::IsRooted(const std::u16string& path) const {
  return path.find(u':') != path.npos || path.starts_with(u'/') || path.starts_with(u'\\');
}

std::optional<FoundFile> MemoryFiles::Find(const std::u16string& path) {
  const std::u16string normal = Normal(path);
  const bool known = files_.contains(normal) || folders_.contains(normal);
  if (EndsInSeparator(path) || !known) return {};
  std::u16string root = ParentOf(normal) + u"/";
  std::replace(root.begin(), root.end(), u'/', u'\\');
  return FoundFile{normal.substr(normal.rfind(u'/') + 1), root};
}

bool MemoryFiles::Copy(const std::u16string& from, const std::u16string& to) {
  const auto bytes = Read(from);
  return bytes && Write(to, *bytes);
}

bool MemoryFiles::Delete(const std::u16string& path) {
  changes.push_back(u"delete " + Normal(path));
  return files_.erase(Normal(path)) > 0;
}

bool MemoryFiles::CreateFolder(const std::u16string& path) {
  changes.push_back(u"create " + Normal(path));
  return folders_.insert(Normal(path)).second;
}

bool MemoryFiles::RemoveFolder(const std::u16string& path) {
  changes.push_back(u"remove " + Normal(path));
  const std::u16string prefix = Normal(path) + u"/";
  for (const auto& [name, bytes] : files_) {
    if (name.starts_with(prefix)) return false;
  }
  return folders_.erase(Normal(path)) > 0;
}

std::optional<std::string> MemoryFiles::Read(const std::u16string& path) {
  const auto file = files_.find(Normal(path));
  if (file == files_.end()) return {};
  return file->second;
}

bool MemoryFiles::Write(const std::u16string& path, std::string_view bytes) {
  const std::u16string normal = Normal(path);
  if (readOnly.contains(normal) || !folders_.contains(ParentOf(normal))) return false;
  changes.push_back(u"write " + normal);
  files_[normal] = bytes;
  return true;
}

void MemoryFiles::Put(const std::u16string& path, std::string_view bytes) {
  const std::u16string normal = Normal(path);
  PutFolder(ParentOf(normal));
  files_[normal] = bytes;
}

void MemoryFiles::PutFolder(const std::u16string& path) {
  for (std::u16string folder = Normal(path); !folder.empty(); folder = ParentOf(folder)) {
    if (!folders_.insert(folder).second) return;
  }
}

bool MemoryFiles::HasFile(const std::u16string& path) const {
  return files_.contains(Normal(path));
}

std::string MemoryFiles::BytesOf(const std::u16string& path) const {
  const auto file = files_.find(Normal(path));
  return file == files_.end() ? std::string() : file->second;
}

namespace {

std::optional<std::u16string> Within(const std::u16string& value, std::size_t capacity) {
  if ((value.size() + 1) * sizeof(char16_t) > capacity) return {};
  return value;
}

class MemoryKey : public RegistryKey {
 public:
  MemoryKey(MemoryRegistry::Values& values, int& closed) : values_(values), closed_(closed) {}
  ~MemoryKey() override { ++closed_; }
  MemoryKey(const MemoryKey&) = delete;
  MemoryKey& operator=(const MemoryKey&) = delete;

  std::optional<std::u16string> Query(const std::u16string& name, std::size_t capacity) override {
    const auto value = Lookup(name);
    if (value == values_.end()) return {};
    return Within(value->second, capacity);
  }
  std::optional<std::u16string> Enumerate(std::size_t index, std::size_t capacity) override {
    if (index >= values_.size()) return {};
    return Within(values_[index].second, capacity);
  }
  void Set(const std::u16string& name, const std::u16string& value) override {
    const auto old = Lookup(name);
    if (old != values_.end()) {
      old->second = value;
    } else {
      values_.emplace_back(name, value);
    }
  }

 private:
  MemoryRegistry::Values::iterator Lookup(const std::u16string& name) {
    return std::find_if(values_.begin(), values_.end(),
                        [&](const auto& value) { return value.first == name; });
  }
  MemoryRegistry::Values& values_;
  int& closed_;
};

}  // namespace

std::unique_ptr<RegistryKey> MemoryRegistry::OpenOrCreate(const std::u16string& path) {
  if (refuses) return nullptr;
  ++opened;
  return std::make_unique<MemoryKey>(keys[path], closed);
}

struct FakeProcesses::ChildState {
  PlayedAnswer answer;
  std::uint32_t id = 0;
  std::atomic<bool> killed{false};
};

struct FakeProcesses::PipeState {
  std::string bytes;
};

namespace {

constexpr std::uint32_t kExitCodeOfKilled = 1;

class FakePipe : public OutputPipe {
 public:
  FakePipe(bool closeFails) : closeFails_(closeFails) {}
  bool CloseWriteEnd() override { return !closeFails_; }
  std::optional<std::size_t> BytesWaiting() override { return bytes.size() - read_; }
  std::size_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = std::min(size, bytes.size() - read_);
    bytes.copy(buffer, count, read_);
    read_ += count;
    return count;
  }
  std::string bytes;

 private:
  bool closeFails_;
  std::size_t read_ = 0;
};

class FakeChild : public ChildProcess {
 public:
  explicit FakeChild(std::shared_ptr<FakeProcesses::ChildState> state) : state_(std::move(state)) {}
  std::uint32_t Id() const override { return state_->id; }
  std::uint32_t ExitCode() override {
    if (state_->killed) return kExitCodeOfKilled;
    if (state_->answer.hangs || state_->answer.roundsRunning-- > 0) return kStillActive;
    return state_->answer.exitCode;
  }
  void Wait() override {}

 private:
  std::shared_ptr<FakeProcesses::ChildState> state_;
};

}  // namespace

std::unique_ptr<OutputPipe> FakeProcesses::CreateOutputPipe() {
  if (pipesFail) return nullptr;
  return std::make_unique<FakePipe>(closeFails);
}

std::unique_ptr<ChildProcess> FakeProcesses::Start(const std::u16string& commandLine,
                                                   OutputPipe* output) {
  const std::lock_guard lock(mutex_);
  commandLines_.push_back(commandLine);
  if (startFails) return nullptr;
  auto state = std::make_shared<ChildState>();
  state->id = nextId_++;
  if (commandLine.starts_with(u"taskkill /PID ")) {
    const auto victim =
        children_.find(static_cast<std::uint32_t>(ParseDecimal(commandLine.substr(14))));
    if (victim != children_.end()) victim->second->killed = true;
  } else if (play) {
    state->answer = play(commandLine);
  }
  children_[state->id] = state;
  if (output != nullptr) static_cast<FakePipe*>(output)->bytes += state->answer.output;
  return std::make_unique<FakeChild>(state);
}

void FakeProcesses::EndThisProcess(std::uint32_t exitCode) { throw ProcessEnded{exitCode}; }

std::vector<std::u16string> FakeProcesses::CommandLines() const {
  const std::lock_guard lock(mutex_);
  return commandLines_;
}

RecordingLanguage::RecordingLanguage() = default;

LanguageId RecordingLanguage::ThreadInterfaceLanguage() {
  return CatalogueLanguageService().ThreadInterfaceLanguage();
}

LanguageId RecordingLanguage::SetThreadInterfaceLanguage(LanguageId id) {
  switches.push_back(id);
  if (refused.contains(id)) return current;
  current = CatalogueLanguageService().SetThreadInterfaceLanguage(id);
  return current;
}

int RecordingLanguage::LoadString(const std::u16string& module, std::uint32_t id, char16_t* buffer,
                                  int capacity) {
  capacities.push_back(capacity);
  const auto own = texts.find(id);
  if (own == texts.end())
    return CatalogueLanguageService().LoadString(module, id, buffer, capacity);
  const std::size_t length = std::min(own->second.size(), static_cast<std::size_t>(capacity) - 1);
  std::copy_n(own->second.begin(), length, buffer);
  buffer[length] = u'\0';
  return static_cast<int>(length);
}

std::unique_ptr<WorkerThread> FakeThreads::Start(std::function<void()> procedure) {
  if (refuses) return nullptr;
  return StandardThreads().Start(std::move(procedure));
}

std::shared_ptr<const Image> FakeImages::Load(const std::u16string& path) {
  loaded.push_back(path);
  const auto found = images_.find(path);
  return found == images_.end() ? nullptr : found->second;
}

void FakeImages::Put(const std::u16string& path, int width, int height) {
  auto image = std::make_shared<Image>();
  image->width = width;
  image->height = height;
  image->pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                       kFakePixel);
  images_[path] = std::move(image);
}

Rectangle FakeSheetWindow::ButtonRectangle(int commandId) {
  const auto found = buttons.find(commandId);
  return found == buttons.end() ? Rectangle{} : found->second;
}

void FakeSheetWindow::Resize(int width, int height) { resizedTo = {width, height}; }

void FakeSheetWindow::SetScrollPosition(int position, bool redraw) {
  scrollPositions.emplace_back(position, redraw);
}

void FakeSheetWindow::ShowPage(int index) {
  shownPages.push_back(index);
  if (onShowPage) onShowPage(index);
}

std::optional<std::u16string> FakeFrontEnd::ChooseFile(const FileDialogRequest& request) {
  fileDialogs.push_back(request);
  return chosenFile;
}

std::optional<std::u16string> FakeFrontEnd::ChooseFolder(const FolderDialogRequest& request) {
  folderDialogs.push_back(request);
  return chosenFolder;
}

int FakeFrontEnd::TextWidth(const Control& control, const std::u16string& text) {
  return static_cast<int>(text.size()) * AverageCharacterWidth(control);
}

int FakeFrontEnd::ShowMessage(const MessageBoxRequest& request) {
  messages.push_back({request.title, request.text, request.icon, request.buttons, request.owner});
  if (onMessage) onMessage(request);
  return request.buttons == MessageButtons::kOk ? kIdOk : answer;
}

int FakeFrontEnd::RunModal(CDialog& dialog) {
  dialogs.push_back(dialog.ClassName());
  dialog.Create();
  if (onDialog) {
    onDialog(dialog);
  } else {
    TickUntilEnded(dialog);
  }
  dialog.Destroy();
  return dialog.Result();
}

int FakeFrontEnd::RunModal(CPropertySheet& sheet) {
  dialogs.push_back(sheet.ClassName());
  sheet.Attach(&sheetWindow);
  sheet.Create();
  if (onSheet) onSheet(sheet);
  if (!sheet.HasEnded()) sheet.OnCancel();
  sheet.Destroy();
  sheet.Attach(nullptr);
  return sheet.Result();
}

std::vector<std::u16string> FakeFrontEnd::Texts() const {
  std::vector<std::u16string> texts;
  for (const ShownMessage& message : messages) texts.push_back(message.text);
  return texts;
}

bool PressButton(CDialog& dialog, const std::u16string& label) {
  Clickable* button = FindButton(dialog, label);
  if (button != nullptr) button->Click();
  return button != nullptr;
}

void TickUntilEnded(CDialog& dialog) {
  while (!dialog.HasEnded() && !dialog.Timers().empty()) {
    const auto [id, period] = *dialog.Timers().begin();
    TheServices().clock->Sleep(period);
    dialog.OnTimer(id);
  }
}

}  // namespace qutav::test
