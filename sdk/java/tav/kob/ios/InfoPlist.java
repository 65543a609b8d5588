package tav.kob.ios;

import tav.kob.descriptor.Descriptor;

/** The property list by which an application bundle names itself. */
final class InfoPlist {
    private InfoPlist() {
    }

    static String write(Descriptor descriptor) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
                + entry("CFBundleIdentifier", descriptor.id())
                + entry("CFBundleDisplayName", descriptor.label())
                + entry("CFBundleName", descriptor.filename())
                + entry("CFBundlePackageType", "APPL")
                + entry("CFBundleShortVersionString", descriptor.versionNumber())
                + entry("CFBundleVersion", descriptor.versionNumber())
                + "</dict>\n</plist>\n";
    }

    private static String entry(String key, String value) {
        String escaped = value.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;");
        return "  <key>" + key + "</key>\n  <string>" + escaped + "</string>\n";
    }
}
