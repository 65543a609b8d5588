#include "win/PublishCommand.h"

#include "packaging/DescriptorGenerator.h"
#include "packaging/DeviceBridge.h"
#include "platform/Text.h"
#include "settings_ui/PublishEntry.h"
#include "support/RegistryStore.h"
#include "win/DocumentChecks.h"
#include "win/DocumentContext.h"
#include "win/DocumentData.h"
#include "win/HostScript.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav {

std::int32_t DebugPort = 0;

namespace {

constexpr std::int32_t kLastDebugPort = 7946;
constexpr char16_t kDebugPortValue[] = u"usbPort";

enum class Command { kPublish, kTestOnDevice, kDebugOnDevice };

Command CommandOf(const std::u16string& name) {
  if (EqualsIgnoringCase(name, u"testOnDevice")) return Command::kTestOnDevice;
  if (EqualsIgnoringCase(name, u"debugOnDevice")) return Command::kDebugOnDevice;
  return Command::kPublish;
}

// Without an answer the run goes to no device in particular, not to that of the run before.
void FetchSelectedDevice(const HostCallContext& call) {
  DebugDeviceSerial =
      EvaluateToPresentText(call, u"qu.getDocumentDOM().getSelectedDevice(\"android\");")
          .value_or(u"");
}

// False when no descriptor could be provided.
bool ProvideDescriptor(const HostCallContext& call) {
  if (HasOrRelocatesDescriptor(call)) return true;
  if (DocumentHasNoStoredFolder(call)) DetectOutputType(call);
  return GenerateDefaultDescriptor() != 0;
}

void AdvanceDebugPort() {
  if (DebugPort > kLastDebugPort) DebugPort = kFirstDebugPort;
  SetRegistryString(kDebugPortValue, ToDecimal(DebugPort));
  ++DebugPort;
}

void EndHostDebugSession(const HostCallContext& call) {
  EvaluateHostScript(call, u"qu.endDebugSession(true)");
}

void BeginHostDebugSession(const HostCallContext& call) {
  std::u16string port;
  GetRegistryString(kDebugPortValue, port);
  EvaluateHostScript(call, u"qu.beginPortDebugSession(" + ToDecimal(ParseDecimal(port)) + u");");
}

void SetRunFlags(Command command) {
  SettingsSet(keys::kForceExport, u"true");
  SettingsSet(command == Command::kDebugOnDevice ? keys::kDebugOnDevice : keys::kTestOnDevice,
              u"true");
}

void ClearRunFlags() {
  SettingsSet(keys::kDebugOnDevice, u"");
  SettingsSet(keys::kTestOnDevice, u"");
  SettingsSet(keys::kForceExport, u"");
}

// The settings that a run on a device borrows. Only the publish type is given back, and only if
// nobody changed it meanwhile; "launch" stays for the publishes that follow.
class BorrowedSettings {
 public:
  explicit BorrowedSettings(Command command) : command_(command) {
    if (command_ == Command::kPublish) return;
    if (command_ == Command::kDebugOnDevice) {
      publishType_ = SettingsGet(keys::kPublishType);
      SettingsSet(keys::kPublishType, u"debug");
    }
    SettingsSet(keys::kAdbOption, u"launch");
  }

  void GiveBack() const {
    if (command_ != Command::kDebugOnDevice) return;
    if (SettingsEquals(keys::kPublishType, u"debug")) {
      SettingsSet(keys::kPublishType, publishType_);
    }
  }

 private:
  Command command_;
  std::u16string publishType_;
};

// True when the document, its settings and its descriptor are fit for packaging.
bool PrepareForPackaging(const HostCallContext& call, const HostValue* arguments, Command command) {
  if (!PrepareDocumentContext(call, arguments[0], arguments[1], arguments[2])) return false;
  if (command != Command::kPublish) FetchSelectedDevice(call);
  DetectPlayerTarget(call);
  if (!ProvideDescriptor(call)) return false;
  UpdateExtensionIds();
  return OpenDescriptor();
}

// Whether something was published.
bool Publish(const HostCallContext& call, const HostValue* arguments, Command command) {
  if (!PrepareForPackaging(call, arguments, command)) return false;
  if (command != Command::kPublish) SetRunFlags(command);
  SettingsSet(keys::kExitOk, u"false");
  const BorrowedSettings borrowed(command);
  AdvanceDebugPort();
  const bool published = PublishEntry() != 0;
  borrowed.GiveBack();
  ClearRunFlags();
  if (SettingsEquals(keys::kExitOk, u"true")) SaveDocumentSettings(call);
  return published;
}

// The host waits in its debug session until the session begins or ends, so it is released also by
// an error that nobody foresaw.
void PublishForDebugSession(const HostCallContext& call, const HostValue* arguments) {
  bool published = false;
  try {
    published = Publish(call, arguments, Command::kDebugOnDevice);
  } catch (...) {
    EndHostDebugSession(call);
    throw;
  }
  published ? BeginHostDebugSession(call) : EndHostDebugSession(call);
}

}  // namespace

std::int32_t RunPublishCommand(const HostCallContext& call, const HostValue* arguments,
                               const std::u16string& CommandName) {
  const Command command = CommandOf(CommandName);
  if (command == Command::kDebugOnDevice) {
    PublishForDebugSession(call, arguments);
  } else {
    Publish(call, arguments, command);
  }
  return 1;
}

}  // namespace qutav
