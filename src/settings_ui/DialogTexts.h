// Ids of the dialogs' titles and labels in the catalogue.
#pragma once

#include <cstdint>

namespace qutav::texts {

inline constexpr std::uint32_t kProgressText = 9001;
inline constexpr std::uint32_t kProgressCancel = 9002;

inline constexpr std::uint32_t kTimestampTitle = 9010;
inline constexpr std::uint32_t kTimestampError = 9011;
inline constexpr std::uint32_t kTimestampConsequence = 9012;
inline constexpr std::uint32_t kTimestampDisable = 9013;
inline constexpr std::uint32_t kTimestampRetry = 9014;
inline constexpr std::uint32_t kTimestampCancel = 9015;

inline constexpr std::uint32_t kPasswordTitle = 9020;
inline constexpr std::uint32_t kPasswordLabel = 9021;
inline constexpr std::uint32_t kPasswordRemember = 9022;
inline constexpr std::uint32_t kPasswordOk = 9023;
inline constexpr std::uint32_t kPasswordCancel = 9024;

inline constexpr std::uint32_t kSheetOk = 9030;
inline constexpr std::uint32_t kSheetCancel = 9031;
inline constexpr std::uint32_t kSheetHelp = 9032;

inline constexpr std::uint32_t kMobileTitle = 9100;
inline constexpr std::uint32_t kMobileOutputFile = 9101;
inline constexpr std::uint32_t kMobileBrowse = 9102;
inline constexpr std::uint32_t kMobileAppName = 9103;
inline constexpr std::uint32_t kMobileIdPrefix = 9104;
inline constexpr std::uint32_t kMobileAppId = 9105;
inline constexpr std::uint32_t kMobileIdExample = 9106;
inline constexpr std::uint32_t kMobileVersion = 9107;
inline constexpr std::uint32_t kMobileVersionLabel = 9108;
inline constexpr std::uint32_t kMobileAspectRatio = 9109;
inline constexpr std::uint32_t kMobileFullScreen = 9110;
inline constexpr std::uint32_t kMobileAutoOrientation = 9111;
inline constexpr std::uint32_t kMobileRenderMode = 9112;
inline constexpr std::uint32_t kMobileProcessor = 9113;
inline constexpr std::uint32_t kMobileArmV7 = 9114;
inline constexpr std::uint32_t kMobileIntel = 9115;
inline constexpr std::uint32_t kMobileArmV8 = 9116;
inline constexpr std::uint32_t kMobileIncludedFiles = 9117;
inline constexpr std::uint32_t kMobileAddFile = 9118;
inline constexpr std::uint32_t kMobileDelete = 9119;
inline constexpr std::uint32_t kMobileAddFolder = 9120;

inline constexpr std::uint32_t kDeployTitle = 9150;
inline constexpr std::uint32_t kDeployCertificate = 9151;
inline constexpr std::uint32_t kDeployBrowse = 9152;
inline constexpr std::uint32_t kDeployCreate = 9153;
inline constexpr std::uint32_t kDeployPassword = 9154;
inline constexpr std::uint32_t kDeployRemember = 9155;
inline constexpr std::uint32_t kDeployType = 9156;
inline constexpr std::uint32_t kDeployDeviceRelease = 9157;
inline constexpr std::uint32_t kDeployEmulatorRelease = 9158;
inline constexpr std::uint32_t kDeployDebug = 9159;
inline constexpr std::uint32_t kDeployNetwork = 9160;
inline constexpr std::uint32_t kDeployRuntime = 9161;
inline constexpr std::uint32_t kDeployEmbed = 9162;
inline constexpr std::uint32_t kDeployGetFrom = 9163;
inline constexpr std::uint32_t kDeployAfter = 9164;
inline constexpr std::uint32_t kDeployInstall = 9165;
inline constexpr std::uint32_t kDeployLaunch = 9166;
inline constexpr std::uint32_t kDeployRefresh = 9167;

inline constexpr std::uint32_t kIosDeploymentTitle = 9200;
inline constexpr std::uint32_t kIosSignatureGroup = 9201;
inline constexpr std::uint32_t kIosCertificateHint = 9202;
inline constexpr std::uint32_t kIosMoreInfo = 9203;
inline constexpr std::uint32_t kIosCertificate = 9204;
inline constexpr std::uint32_t kIosBrowse = 9205;
inline constexpr std::uint32_t kIosPassword = 9206;
inline constexpr std::uint32_t kIosRemember = 9207;
inline constexpr std::uint32_t kIosProfile = 9208;
inline constexpr std::uint32_t kIosApplicationId = 9209;
inline constexpr std::uint32_t kIosDeployTypeGroup = 9210;
inline constexpr std::uint32_t kIosDeployTest = 9211;
inline constexpr std::uint32_t kIosDeployDebug = 9212;
inline constexpr std::uint32_t kIosDeployAdHoc = 9213;
inline constexpr std::uint32_t kIosDeployStore = 9214;

inline constexpr std::uint32_t kIconsTitle = 9240;
inline constexpr std::uint32_t kIconsSizes = 9241;
inline constexpr std::uint32_t kIconsFirstSize = 9242;
inline constexpr std::uint32_t kIconsPath = 9243;
inline constexpr std::uint32_t kIconsBrowse = 9244;
inline constexpr std::uint32_t kIconsRemove = 9245;
inline constexpr std::uint32_t kIconsPreview = 9246;

inline constexpr std::uint32_t kPermissionsTitle = 9260;
inline constexpr std::uint32_t kPermissionsManual = 9261;
inline constexpr std::uint32_t kPermissionsInvitation = 9262;
inline constexpr std::uint32_t kPermissionsDescription = 9263;

inline constexpr std::uint32_t kLanguagesTitle = 9270;
inline constexpr std::uint32_t kLanguagesInvitation = 9271;

inline constexpr std::uint32_t kCertificateTitle = 9280;
inline constexpr std::uint32_t kCertificatePublisher = 9281;
inline constexpr std::uint32_t kCertificateUnit = 9282;
inline constexpr std::uint32_t kCertificateOrganization = 9283;
inline constexpr std::uint32_t kCertificateCountry = 9284;
inline constexpr std::uint32_t kCertificatePassword = 9285;
inline constexpr std::uint32_t kCertificateConfirmation = 9286;
inline constexpr std::uint32_t kCertificateType = 9287;
inline constexpr std::uint32_t kCertificateValidity = 9288;
inline constexpr std::uint32_t kCertificateYears = 9289;
inline constexpr std::uint32_t kCertificateSaveAs = 9290;
inline constexpr std::uint32_t kCertificateBrowse = 9291;
inline constexpr std::uint32_t kCertificateHelp = 9292;
inline constexpr std::uint32_t kCertificateOk = 9293;
inline constexpr std::uint32_t kCertificateCancel = 9294;

inline constexpr std::uint32_t kDesktopTitle = 9310;
inline constexpr std::uint32_t kDesktopOutputFile = 9311;
inline constexpr std::uint32_t kDesktopBrowse = 9312;
inline constexpr std::uint32_t kDesktopInstaller = 9313;
inline constexpr std::uint32_t kDesktopFileName = 9314;
inline constexpr std::uint32_t kDesktopAppName = 9315;
inline constexpr std::uint32_t kDesktopVersion = 9316;
inline constexpr std::uint32_t kDesktopAppId = 9317;
inline constexpr std::uint32_t kDesktopIdExample = 9318;
inline constexpr std::uint32_t kDesktopDescription = 9319;
inline constexpr std::uint32_t kDesktopCopyright = 9320;
inline constexpr std::uint32_t kDesktopWindowStyle = 9321;
inline constexpr std::uint32_t kDesktopProfiles = 9322;
inline constexpr std::uint32_t kDesktopProfileDesktop = 9323;
inline constexpr std::uint32_t kDesktopProfileMobile = 9324;
inline constexpr std::uint32_t kDesktopProfileExtended = 9325;
inline constexpr std::uint32_t kDesktopProfileExtendedMobile = 9326;
inline constexpr std::uint32_t kDesktopIncludedFiles = 9327;
inline constexpr std::uint32_t kDesktopAddFile = 9328;
inline constexpr std::uint32_t kDesktopDelete = 9329;
inline constexpr std::uint32_t kDesktopAddFolder = 9330;

inline constexpr std::uint32_t kAdvancedTitle = 9350;
inline constexpr std::uint32_t kAdvancedFileTypesGroup = 9351;
inline constexpr std::uint32_t kAdvancedFileTypes = 9352;
inline constexpr std::uint32_t kAdvancedAdd = 9353;
inline constexpr std::uint32_t kAdvancedDelete = 9354;
inline constexpr std::uint32_t kAdvancedEdit = 9355;
inline constexpr std::uint32_t kAdvancedWindowGroup = 9356;
inline constexpr std::uint32_t kAdvancedWidth = 9357;
inline constexpr std::uint32_t kAdvancedHeight = 9358;
inline constexpr std::uint32_t kAdvancedX = 9359;
inline constexpr std::uint32_t kAdvancedY = 9360;
inline constexpr std::uint32_t kAdvancedMaximumWidth = 9361;
inline constexpr std::uint32_t kAdvancedMaximumHeight = 9362;
inline constexpr std::uint32_t kAdvancedMinimumWidth = 9363;
inline constexpr std::uint32_t kAdvancedMinimumHeight = 9364;
inline constexpr std::uint32_t kAdvancedMaximizable = 9365;
inline constexpr std::uint32_t kAdvancedMinimizable = 9366;
inline constexpr std::uint32_t kAdvancedResizable = 9367;
inline constexpr std::uint32_t kAdvancedVisible = 9368;
inline constexpr std::uint32_t kAdvancedOtherGroup = 9369;
inline constexpr std::uint32_t kAdvancedInstallFolder = 9370;
inline constexpr std::uint32_t kAdvancedProgramMenuFolder = 9371;
inline constexpr std::uint32_t kAdvancedCustomUpdate = 9372;

inline constexpr std::uint32_t kFileTypeTitle = 9390;
inline constexpr std::uint32_t kFileTypeSettingsGroup = 9391;
inline constexpr std::uint32_t kFileTypeName = 9392;
inline constexpr std::uint32_t kFileTypeExtension = 9393;
inline constexpr std::uint32_t kFileTypeDescription = 9394;
inline constexpr std::uint32_t kFileTypeContentType = 9395;
inline constexpr std::uint32_t kFileTypeIconsGroup = 9396;
inline constexpr std::uint32_t kFileTypeFirstPreview = 9397;
inline constexpr std::uint32_t kFileTypeFirstPath = 9401;
inline constexpr std::uint32_t kFileTypeFirstBrowse = 9405;
inline constexpr std::uint32_t kFileTypeFirstRemove = 9409;
inline constexpr std::uint32_t kFileTypeHelp = 9413;
inline constexpr std::uint32_t kFileTypeOk = 9414;
inline constexpr std::uint32_t kFileTypeCancel = 9415;

}  // namespace qutav::texts
