package tav.kob.apk;

import static tav.kob.apk.ManifestAttribute.DEBUGGABLE;
import static tav.kob.apk.ManifestAttribute.EXPORTED;
import static tav.kob.apk.ManifestAttribute.ICON;
import static tav.kob.apk.ManifestAttribute.LABEL;
import static tav.kob.apk.ManifestAttribute.MIN_SDK_VERSION;
import static tav.kob.apk.ManifestAttribute.NAME;
import static tav.kob.apk.ManifestAttribute.SCREEN_ORIENTATION;
import static tav.kob.apk.ManifestAttribute.TARGET_SDK_VERSION;
import static tav.kob.apk.ManifestAttribute.THEME;
import static tav.kob.apk.ManifestAttribute.VALUE;
import static tav.kob.apk.ManifestAttribute.VERSION_CODE;
import static tav.kob.apk.ManifestAttribute.VERSION_NAME;

import java.util.Map;
import tav.kob.command.PackageRequest;
import tav.kob.descriptor.Descriptor;

/** Puts the manifest of an application together. */
final class AndroidManifest {
    static final int MIN_SDK = 21;

    private static final int TARGET_SDK = 33;
    private static final int THEME_NO_TITLE_BAR = 0x01030006;
    private static final int THEME_FULL_SCREEN = 0x01030007;
    private static final Map<String, Integer> ORIENTATIONS = Map.of("landscape", 0, "portrait", 1);
    private static final int UNSPECIFIED_ORIENTATION = -1;

    private AndroidManifest() {
    }

    static byte[] write(Descriptor descriptor, PackageRequest request, String packageName, boolean hasIcon) {
        ManifestElement manifest = new ManifestElement("manifest")
                .plainText("package", packageName)
                .number(VERSION_CODE, AndroidIdentity.versionCode(descriptor.versionNumber()))
                .text(VERSION_NAME, descriptor.versionNumber())
                .child(new ManifestElement("uses-sdk")
                        .number(MIN_SDK_VERSION, MIN_SDK).number(TARGET_SDK_VERSION, TARGET_SDK));
        for (String permission : descriptor.permissions()) {
            manifest.child(new ManifestElement("uses-permission").text(NAME, permission));
        }
        return BinaryXml.write(manifest.child(application(descriptor, request, hasIcon)));
    }

    private static ManifestElement application(Descriptor descriptor, PackageRequest request, boolean hasIcon) {
        ManifestElement application = new ManifestElement("application")
                .reference(LABEL, ResourceTable.LABEL_ID);
        if (hasIcon) {
            application.reference(ICON, ResourceTable.ICON_ID);
        }
        if (request.target().isDebug()) {
            application.flag(DEBUGGABLE, true);
        }
        request.processor().ifPresent(processor -> application.child(
                new ManifestElement("meta-data").text(NAME, "tav.arch").text(VALUE, processor)));
        return application.child(activity(descriptor));
    }

    private static ManifestElement activity(Descriptor descriptor) {
        return new ManifestElement("activity")
                .reference(THEME, descriptor.isFullScreen() ? THEME_FULL_SCREEN : THEME_NO_TITLE_BAR)
                .reference(LABEL, ResourceTable.LABEL_ID)
                .text(NAME, AndroidIdentity.ACTIVITY)
                .flag(EXPORTED, true)
                .number(SCREEN_ORIENTATION,
                        ORIENTATIONS.getOrDefault(descriptor.aspectRatio(), UNSPECIFIED_ORIENTATION))
                .child(new ManifestElement("intent-filter")
                        .child(new ManifestElement("action").text(NAME, "android.intent.action.MAIN"))
                        .child(new ManifestElement("category").text(NAME, "android.intent.category.LAUNCHER")));
    }
}
