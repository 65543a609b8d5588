// The settings keys: the vocabulary that commands, pages and the document share.
#pragma once

namespace qutav::keys {

// Identity and paths.
inline constexpr char16_t kLaunchPath[] = u"quorl.launch.path";
inline constexpr char16_t kMovieFolder[] = u"qmv.folder.path";
inline constexpr char16_t kMovieBaseName[] = u"quorl.qmv.basename";
inline constexpr char16_t kDocumentPath[] = u"quorl.brd.filepath";
inline constexpr char16_t kRuntimeKit[] = u"moresh.ysk.path";
inline constexpr char16_t kExtensionFolder[] = u"moresh.ysk.zux.folder";
inline constexpr char16_t kSdkPath[] = u"com.tav.sdk.path";

// Publish target.
inline constexpr char16_t kPublishTav[] = u"com.tav.moresh.pubtav";
inline constexpr char16_t kPublishIpa[] = u"com.tav.moresh.pubipa";
inline constexpr char16_t kPublishExe[] = u"com.tav.moresh.pubexe";
inline constexpr char16_t kOldTargetPlatform[] = u"com.tav.oldTargetPlatform";
inline constexpr char16_t kPublishType[] = u"com.tav.pelund.publishtype";
inline constexpr char16_t kRuntimeType[] = u"com.tav.pelund.runtimetype";
inline constexpr char16_t kAdbOption[] = u"com.tav.pelund.adbopt";
inline constexpr char16_t kProcessorType[] = u"com.tav.pelund.proctype";
inline constexpr char16_t kIpaOption[] = u"com.tav.moresh.ipaopt";
inline constexpr char16_t kHostAddress[] = u"com.tav.pelund.hostip";
inline constexpr char16_t kMarketUrl[] = u"com.tav.pelund.marketURL";
inline constexpr char16_t kIgnoreManifestAdditions[] = u"com.zenvoka.android.ignore_cdata";

// Output and descriptor.
inline constexpr char16_t kTavDestination[] = u"com.tav.moresh.tavdest";
inline constexpr char16_t kIpaDestination[] = u"com.tav.moresh.ipadest";
inline constexpr char16_t kCustomDescriptorPath[] = u"com.tav.moresh.xmlpath";
inline constexpr char16_t kUseCustomDescriptor[] = u"com.tav.moresh.usecust";
inline constexpr char16_t kWindowType[] = u"com.tav.moresh.wintype";
inline constexpr char16_t kApplicationId[] = u"com.tav.moresh.appid";
inline constexpr char16_t kApplicationName[] = u"com.tav.moresh.appname";
inline constexpr char16_t kShortName[] = u"com.tav.moresh.shortname";
inline constexpr char16_t kVersion[] = u"com.tav.moresh.version";
inline constexpr char16_t kDescription[] = u"com.tav.moresh.description";
inline constexpr char16_t kCopyright[] = u"com.tav.moresh.copyright";
inline constexpr char16_t kProgramMenu[] = u"com.tav.moresh.prgmenu";
inline constexpr char16_t kIncludedCount[] = u"com.tav.moresh.included.count";
inline constexpr char16_t kIncludedItem[] = u"com.tav.moresh.included.item";  // + index

// Signing.
inline constexpr char16_t kCertificatePath[] = u"com.tav.moresh.certpath";
inline constexpr char16_t kCertificatePassword[] = u"com.tav.moresh.certpwd";
inline constexpr char16_t kRememberPassword[] = u"com.tav.moresh.rempwd";
inline constexpr char16_t kIpaCertificatePath[] = u"com.tav.moresh.ipacertpath";
inline constexpr char16_t kIpaCertificatePassword[] = u"com.tav.moresh.ipacertpwd";
inline constexpr char16_t kIpaRememberPassword[] = u"com.tav.moresh.iparempwd";
inline constexpr char16_t kIpaProvisioningProfile[] = u"com.tav.moresh.ipaprovision";
inline constexpr char16_t kTimestamp[] = u"com.tav.moresh.timestamp";
inline constexpr char16_t kUrl[] = u"com.tav.moresh.url";
inline constexpr char16_t kServerUrl[] = u"com.tav.moresh.serverurl";

// Devices.
inline constexpr char16_t kDeviceSerials[] = u"android.device.serials";
inline constexpr char16_t kDeviceStates[] = u"android.device.states";
inline constexpr char16_t kInstallDevices[] = u"ipa.install.devices";
inline constexpr char16_t kAdbPath[] = u"com.tav.pelund.adb.path";

// Flags of one command.
inline constexpr char16_t kExitOk[] = u"com.tav.moresh.exitok";
inline constexpr char16_t kForceExport[] = u"com.tav.moresh.forceQMVPublish";
inline constexpr char16_t kTestOnDevice[] = u"com.tav.pelund.testOnDevice";
inline constexpr char16_t kDebugOnDevice[] = u"com.tav.pelund.debugOnDevice";

// Kept in the document only.
inline constexpr char16_t kOutputType[] = u"com.zenvoka.quorl.lorvath.output.type";
inline constexpr char16_t kExtensionIdPrefix[] = u"zux.id.";  // + package file name
inline constexpr char16_t kUnzippedExtensions[] = u"zux.tmp.unzipped.folder";

}  // namespace qutav::keys
