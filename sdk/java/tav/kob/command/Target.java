package tav.kob.command;

import java.util.Arrays;
import java.util.Optional;

/** What can be asked for behind -target. */
public enum Target {
    APK("apk", Format.ANDROID, false),
    APK_CAPTIVE_RUNTIME("apk-captive-runtime", Format.ANDROID, false),
    APK_EMULATOR("apk-emulator", Format.ANDROID, false),
    APK_DEBUG("apk-debug", Format.ANDROID, true),
    IPA_TEST("ipa-test", Format.IOS, false),
    IPA_DEBUG("ipa-debug", Format.IOS, true),
    IPA_AD_HOC("ipa-ad-hoc", Format.IOS, false),
    IPA_APP_STORE("ipa-app-store", Format.IOS, false),
    NATIVE("native", Format.NATIVE, false);

    /** The kind of file that a target makes. */
    public enum Format { ANDROID, IOS, NATIVE }

    private final String text;
    private final Format format;
    private final boolean debug;

    Target(String text, Format format, boolean debug) {
        this.text = text;
        this.format = format;
        this.debug = debug;
    }

    public static Optional<Target> named(String text) {
        return Arrays.stream(values()).filter(target -> target.text.equals(text)).findFirst();
    }

    public String text() {
        return text;
    }

    public Format format() {
        return format;
    }

    public boolean isDebug() {
        return debug;
    }
}
