#include "win/MoreshJSExtension.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "framework/MessageBoxes.h"
#include "win/DebugMovie.h"
#include "win/DeviceListCommand.h"
#include "win/HostEnvironment.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"
#include "win/PublishCommand.h"
#include "win/SettingsCommand.h"
#include "win/TestMovie.h"

namespace qutav {
namespace {

CQuTavApp theApp;

using Body = std::int32_t (*)(const HostCallContext& call, const HostValue* arguments);

std::int32_t RunPublish(const HostCallContext& call, const HostValue* arguments) {
  return RunPublishCommand(call, arguments, u"publish");
}

std::int32_t RunTestOnDevice(const HostCallContext& call, const HostValue* arguments) {
  return RunPublishCommand(call, arguments, u"testOnDevice");
}

std::int32_t RunDebugOnDevice(const HostCallContext& call, const HostValue* arguments) {
  return RunPublishCommand(call, arguments, u"debugOnDevice");
}

void TellUnforeseenError() noexcept {
  try {
    ShowWarning(Message(messages::kUnknownError));
  } catch (...) {  // no memory left even for the message; the host must not suffer for it
  }
}

// What every script function runs inside. The status after an exception is the one that the
// function's failures have.
template <Body body, std::int32_t statusAfterException>
std::int32_t Wrapped(void* context, void* object, std::uint32_t, const HostValue* arguments,
                     HostValue*) {
  HostContext = {context, object};
  std::int32_t status = statusAfterException;
  try {
    EnterInterfaceLanguage(HostContext);
    status = body(HostContext, arguments);
  } catch (...) {
    TellUnforeseenError();
  }
  LeaveInterfaceLanguage();
  return status;
}

struct FunctionDefinition {
  const char16_t* name;
  std::uint32_t argumentCount;
  ScriptFunction function;
};

constexpr std::array<FunctionDefinition, 7> kFunctions = {{
    {u"Publish", 3, &Wrapped<RunPublish, 1>},
    {u"TestMovie", 4, &Wrapped<RunTestMovie, 0>},
    {u"DebugMovie", 4, &Wrapped<RunDebugMovie, 0>},
    {u"TestOnDevice", 3, &Wrapped<RunTestOnDevice, 1>},
    {u"DebugOnDevice", 3, &Wrapped<RunDebugOnDevice, 1>},
    {u"OpenSettingDialog", 3, &Wrapped<RunSettingsCommand, 1>},
    {u"GetConnectedDevices", 3, &Wrapped<RunDeviceListCommand, 1>},
}};

// A longer table is cut, a shorter one leaves the rest zero; a word of which only a part is there
// counts as there, as the host's tables are made of whole words.
void CopyHostTable(const void* table, std::uint32_t size) {
  HostEnvironment = HostTable();
  if (table == nullptr) return;
  constexpr std::size_t kWord = sizeof(std::uintptr_t);
  const std::size_t words = std::min((size + kWord - 1) / kWord, HostTable::kWordCount);
  std::memcpy(HostEnvironment.words.data(), table, words * kWord);
}

std::int32_t DefineFunctions() {
  std::int32_t result = 0;
  for (const FunctionDefinition& definition : kFunctions) {
    const auto define = HostEnvironment.DefineFunction();
    if (define == nullptr) return 0;
    result = define(HostEnvironment.LibraryObject(), definition.name, definition.function,
                    definition.argumentCount);
  }
  return result;
}

}  // namespace

bool CQuTavApp::InitInstance() {
  CWinApp::InitInstance();
  return true;
}

}  // namespace qutav

std::int32_t KR_InitWrapper(const void* table, std::uint32_t size) {
  using namespace qutav;
  try {
    theApp.InitInstance();
    CopyHostTable(table, size);
    DebugPort = kFirstDebugPort;
    return DefineFunctions();
  } catch (...) {
    return 0;
  }
}
