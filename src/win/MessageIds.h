// Ids of the catalogue's rows that the system shows, by what they say.
#pragma once

#include <cstdint>

namespace qutav::messages {

inline constexpr std::uint32_t kCertificateRequired = 8001;
inline constexpr std::uint32_t kCertificateMissing = 8003;
inline constexpr std::uint32_t kPasswordEmpty = 8005;
inline constexpr std::uint32_t kPasswordsDiffer = 8006;
inline constexpr std::uint32_t kOverwriteCertificate = 8008;
inline constexpr std::uint32_t kAllFieldsRequired = 8009;
inline constexpr std::uint32_t kMovieMissing = 8011;
inline constexpr std::uint32_t kCreatingCertificateFailed = 8016;
inline constexpr std::uint32_t kCertificateCreated = 8018;
inline constexpr std::uint32_t kIpaCreated = 8107;
inline constexpr std::uint32_t kExeCreated = 8108;
inline constexpr std::uint32_t kApkCreated = 8109;
inline constexpr std::uint32_t kNoDeviceFound = 8111;
inline constexpr std::uint32_t kDescriptorCannotBeParsed = 8031;
inline constexpr std::uint32_t kNamespaceMissing = 8032;
inline constexpr std::uint32_t kNamespaceInvalid = 8033;
inline constexpr std::uint32_t kUnexpectedElement = 8034;
inline constexpr std::uint32_t kRequiredElementMissing = 8035;
inline constexpr std::uint32_t kInvalidValue = 8036;
inline constexpr std::uint32_t kIllegalWindow = 8037;
inline constexpr std::uint32_t kMinSizeAboveMaxSize = 8038;
inline constexpr std::uint32_t kIconCannotBeOpened = 8039;
inline constexpr std::uint32_t kIconDimensions = 8040;
inline constexpr std::uint32_t kIconFormat = 8041;
inline constexpr std::uint32_t kFileMissing = 8042;
inline constexpr std::uint32_t kDescriptorMissing = 8043;
inline constexpr std::uint32_t kRootContentMissing = 8044;
inline constexpr std::uint32_t kIconMissing = 8045;
inline constexpr std::uint32_t kKeystorePassword = 8046;
inline constexpr std::uint32_t kUsageError = 8054;
inline constexpr std::uint32_t kUnknownError = 8055;
inline constexpr std::uint32_t kDestinationNotWritable = 8056;
inline constexpr std::uint32_t kCertificateInaccessible = 8057;
inline constexpr std::uint32_t kCertificateInvalid = 8058;
inline constexpr std::uint32_t kSigningFailed = 8059;
inline constexpr std::uint32_t kMissingFilesQuestion = 8072;
inline constexpr std::uint32_t kMissingFilesHeading = 8073;
inline constexpr std::uint32_t kP12File = 8077;
inline constexpr std::uint32_t kPfxFile = 8078;
inline constexpr std::uint32_t kMovieInvalid = 8082;
inline constexpr std::uint32_t kMovieVersionTooHigh = 8083;
inline constexpr std::uint32_t kErrorCreatingCertificate = 8084;
inline constexpr std::uint32_t kPublishButton = 8086;
inline constexpr std::uint32_t kAndroidSettingsTitle = 8087;
inline constexpr std::uint32_t kIosFilesNotInstalled = 8088;
inline constexpr std::uint32_t kErrorCreatingFiles = 8089;
inline constexpr std::uint32_t kIosSettingsTitle = 8095;
inline constexpr std::uint32_t kProvisioningProfileMissing = 8098;
inline constexpr std::uint32_t kApplicationNameMissing = 8099;
inline constexpr std::uint32_t kJavaMissing = 8100;
inline constexpr std::uint32_t kSelectDestination = 8102;
inline constexpr std::uint32_t kMovieFolderMissing = 8103;
inline constexpr std::uint32_t kExportFailed = 8105;
inline constexpr std::uint32_t kDanish = 8110;
inline constexpr std::uint32_t kPermissionName = 8112;
inline constexpr std::uint32_t kSelectRowForDescription = 8113;
inline constexpr std::uint32_t kPermissionFoundInDescriptor = 8114;
inline constexpr std::uint32_t kPackagedWithWarning = 8119;
inline constexpr std::uint32_t kInternetPermissionNeeded = 8122;
inline constexpr std::uint32_t kHebrew = 8124;
inline constexpr std::uint32_t kNorwegian = 8125;
inline constexpr std::uint32_t kSupportedLanguages = 8127;
inline constexpr std::uint32_t kEnglishName = 8128;
inline constexpr std::uint32_t kChinese = 8129;
inline constexpr std::uint32_t kCzech = 8130;
inline constexpr std::uint32_t kDutch = 8131;
inline constexpr std::uint32_t kFrench = 8132;
inline constexpr std::uint32_t kGerman = 8133;
inline constexpr std::uint32_t kItalian = 8134;
inline constexpr std::uint32_t kJapanese = 8135;
inline constexpr std::uint32_t kKorean = 8136;
inline constexpr std::uint32_t kPolish = 8137;
inline constexpr std::uint32_t kPortuguese = 8138;
inline constexpr std::uint32_t kRussian = 8139;
inline constexpr std::uint32_t kSpanish = 8140;
inline constexpr std::uint32_t kSwedish = 8141;
inline constexpr std::uint32_t kTurkish = 8142;
inline constexpr std::uint32_t kDeviceSerialNumber = 8143;
inline constexpr std::uint32_t kNoDeviceSelected = 8144;
inline constexpr std::uint32_t kDevicesNotConnected = 8145;
inline constexpr std::uint32_t kInstallUnexpectedError = 8146;
inline constexpr std::uint32_t kConnectionFailure = 8147;
inline constexpr std::uint32_t kDeviceUnexpectedError = 8148;
inline constexpr std::uint32_t kDefaultChoice = 8150;
inline constexpr std::uint32_t kCertificateFile = 8202;
inline constexpr std::uint32_t kJksFile = 8205;
inline constexpr std::uint32_t kNetworkLocation = 8206;
inline constexpr std::uint32_t kNoScriptToDebug = 8207;

}  // namespace qutav::messages
