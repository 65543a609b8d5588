#include "packaging/PublishDriver.h"

#include <algorithm>

#include "descriptor/DescriptorDocument.h"
#include "framework/MessageBoxes.h"
#include "packaging/DeviceBridge.h"
#include "packaging/DocumentDescriptor.h"
#include "packaging/PackagerCommand.h"
#include "packaging/PackagerResult.h"
#include "packaging/PackagerWorker.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "settings_ui/ProgressDlg.h"
#include "settings_ui/TimestampRetryDlg.h"
#include "support/RegistryStore.h"
#include "support/RuntimeVersion.h"
#include "win/DocumentData.h"
#include "win/ExtensionCache.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {

std::vector<std::u16string> MissingIncludedFiles;

namespace {

constexpr char16_t kDefaultTimestampOption[] = u"-tsa https://timestamp.zenvoka.example/tsa";

std::u16string ListOfMissingFiles() {
  constexpr std::size_t kShownNames = 10;
  std::u16string list;
  const std::size_t shown = std::min(MissingIncludedFiles.size(), kShownNames);
  for (std::size_t i = 0; i < shown; ++i) list += MissingIncludedFiles[i] + u"\n";
  if (MissingIncludedFiles.size() > kShownNames) {
    list += MissingIncludedFiles[kShownNames] + u"\n...\n";
  }
  return list;
}

std::uint32_t SuccessText(PublishTarget target) {
  switch (target) {
    case PublishTargetIpa:
      return messages::kIpaCreated;
    case PublishTargetExe:
      return messages::kExeCreated;
    case PublishTargetApk:
      break;
  }
  return messages::kApkCreated;
}

void ForgetPasswords() {
  if (!SettingsEquals(keys::kRememberPassword, u"true")) {
    SettingsRemove(keys::kCertificatePassword);
  }
  if (!SettingsEquals(keys::kIpaRememberPassword, u"true")) {
    SettingsRemove(keys::kIpaCertificatePassword);
  }
}

// One run of the driver. Each phase that can stop the run returns whether it goes on, and has told
// the user what there is to tell.
class PublishRun {
 public:
  PublishRun(PublishTarget target, bool exportFirst) : exportFirst_(exportFirst) {
    inputs_.target = target;
  }

  int Run() {
    if (!CheckDevices()) return 0;
    ReadPublishTypes();
    if (!ExportMovie() || !CheckMovie()) return 0;
    ReadSigningSettings();
    if (LoadDocumentDescriptor(true) != kLoaded) return 0;
    if (!ReadApplicationName() || !CheckDebugPermission() || !CheckIcons()) return 0;
    if (!AssembleCommand()) return 0;
    AppendExtensions();
    RunAttempts();
    Report();
    ForgetPasswords();
    RemoveExtensions();
    return job_.exitCode == 0 && job_.postPublishOk == 1 ? 1 : 0;
  }

 private:
  bool CheckDevices() {
    std::u16string text;
    if (inputs_.target != PublishTargetApk || CheckSelectedDevices(text) == 1) return true;
    ShowInformation(text);
    return false;
  }

  void ReadPublishTypes() {
    owner_ = TheServices().frontEnd->FocusWindow();
    publishType_ = SettingsGet(keys::kPublishType);
    inputs_.runtimeType = SettingsGet(keys::kRuntimeType);
    if (RuntimeIsAtLeast(u"TAV26.0")) inputs_.runtimeType = u"embed";
  }

  bool ExportMovie() {
    if (!exportFirst_ && !SettingsEquals(keys::kForceExport, u"true")) return true;
    const bool switchDebug = publishType_ == u"debug" && GetDebugForMovie() == 0;
    if (switchDebug) SetDebugForMovie(true);
    // Every way out of here leaves the debug flag switched on.
    const std::int32_t result = ExportMovieForPublish();
    if (result < 1) return Stop(messages::kExportFailed);
    if (result == 3) return false;
    const bool debugs = publishType_ == u"debug" || publishType_ == u"debuginterpreter";
    if (result == 2 && debugs) return Stop(messages::kNoScriptToDebug);
    if (switchDebug) SetDebugForMovie(false);
    return true;
  }

  bool CheckMovie() {
    folder_ = SettingsGet(keys::kMovieFolder);
    const std::u16string baseName = SettingsGet(keys::kMovieBaseName);
    extensionFolder_ = SettingsGet(keys::kExtensionFolder);
    const bool found = !folder_.empty() && !baseName.empty() &&
                       TheServices().files->Exists(folder_ + baseName + u".qmv");
    return found || Stop(messages::kMovieMissing);
  }

  void ReadSigningSettings() {
    GetRegistryString(u"DigitalSign", inputs_.digitalSign);
    inputs_.password =
        SettingsGet(inputs_.target == PublishTargetIpa ? keys::kIpaCertificatePassword
                                                       : keys::kCertificatePassword);
  }

  bool ReadApplicationName() {
    return CurrentDescriptor.GetText("name", applicationName_) == 0 ||
           Stop(messages::kApplicationNameMissing);
  }

  // Looks at the publish type alone, so a stale "debug" stops an iOS run too.
  bool CheckDebugPermission() {
    if (publishType_ != u"debug" || CurrentDescriptor.HasInternetPermission()) return true;
    return Warn(Message(messages::kInternetPermissionNeeded));
  }

  bool CheckIcons() {
    CurrentDescriptor.CollectPackagedImages(images_);
    std::u16string missing;
    for (const std::u16string& image : images_) {
      const std::u16string path = ReplaceAll(image, u"%20", u" ");
      if (!TheServices().files->Exists(folder_ + path)) missing += u"\n" + path;
    }
    return missing.empty() || Warn(Message(messages::kIconMissing) + missing);
  }

  bool AssembleCommand() {
    const bool profileMissing =
        inputs_.target == PublishTargetIpa && SettingsGet(keys::kIpaProvisioningProfile).empty();
    if (profileMissing) return Warn(Message(messages::kProvisioningProfileMissing));
    command_ = PackagerHead() + TargetAndSigning(inputs_);
    const auto destination = PackageDestination(inputs_.target, applicationName_);
    if (!destination) {
      return Warn(Message(messages::kErrorCreatingFiles) +
                  Message(messages::kDestinationNotWritable));
    }
    MissingIncludedFiles.clear();
    command_ += PackagedContent(*destination, images_) + IncludedItems(MissingIncludedFiles);
    return MissingIncludedFiles.empty() || AskWithoutMissingFiles();
  }

  bool AskWithoutMissingFiles() const {
    return AskQuestion(Message(messages::kMissingFilesHeading) + u"\n" + ListOfMissingFiles() +
                           Message(messages::kMissingFilesQuestion),
                       owner_);
  }

  void AppendExtensions() {
    if (extensionFolder_.empty()) return;
    command_ += ExtensionOption(extensionFolder_);
    CopyExtensionsToPackagingFolder();
  }

  void RunAttempts() {
    do {
      RunAttempt();
    } while (ClassifyAttempt());
  }

  void RunAttempt() {
    job_.finished.store(0, std::memory_order_relaxed);
    job_.exitCode = 0;
    job_.postPublishOk = 0;
    job_.output.clear();
    job_.folder = folder_;
    job_.parentWindow = owner_;
    job_.commandLine = command_;
    CProgressDlg dialog(owner_);
    dialog.SetDoneFlag(&job_.finished);
    const auto worker = StartWorker();
    dialog.DoModal();
    if (worker != nullptr) worker->Join();
  }

  // A new thread has a language of its own; what the worker tells of devices is for this one's
  // user.
  std::unique_ptr<WorkerThread> StartWorker() {
    Language& language = *TheServices().language;
    const LanguageId spoken = language.ThreadInterfaceLanguage();
    return TheServices().threads->Start([this, &language, spoken] {
      language.SetThreadInterfaceLanguage(spoken);
      PackagerWorker(job_);
    });
  }

  // Whether there is to be another attempt.
  bool ClassifyAttempt() {
    result_ = ClassifyPackagerOutput(job_.exitCode, job_.output);
    if (job_.exitCode == kTimestampServerUnreachable) return AskToRetry();
    if (job_.exitCode == 0 && job_.output.empty()) {
      ShowInformation(Message(SuccessText(inputs_.target)), owner_);
    }
    return false;
  }

  bool AskToRetry() {
    CTimestampRetryDlg dialog(TheServices().frontEnd->FocusWindow());
    const int answer = dialog.DoModal();
    if (answer == kDisableTimestamping) {
      command_ = ReplaceAll(command_, kDefaultTimestampOption, u"-tsa none");
    }
    return answer == kRetry || answer == kDisableTimestamping;
  }

  void Report() const {
    if (result_.head.empty()) return;
    ShowWarning(PackagerReport(job_.exitCode, job_.postPublishOk == 1, result_), owner_);
  }

  // The copies made for other targets stay in the temporary folder.
  void RemoveExtensions() const {
    if (!extensionFolder_.empty() && inputs_.target == PublishTargetApk) {
      RemoveExtensionsFromPackagingFolder();
    }
  }

  bool Stop(std::uint32_t message) const {
    ShowInformation(Message(message), owner_);
    return false;
  }

  bool Warn(const std::u16string& text) const {
    ShowWarning(text, owner_);
    return false;
  }

  bool exportFirst_;
  PackagerInputs inputs_;
  WindowHandle owner_ = nullptr;
  std::u16string publishType_;
  std::u16string folder_;
  std::u16string extensionFolder_;
  std::u16string applicationName_;
  std::vector<std::u16string> images_;
  std::u16string command_;
  PackagerJob job_;
  PackagerResult result_;
};

}  // namespace

int PublishDriver(int target, bool exportFirst) {
  return PublishRun(static_cast<PublishTarget>(target), exportFirst).Run();
}

}  // namespace qutav
