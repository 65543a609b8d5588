package tav.kob.apk;

/** The attributes of the manifest that we write, with the resource ids that the framework gives them. */
enum ManifestAttribute {
    THEME("theme", 0x01010000),
    LABEL("label", 0x01010001),
    ICON("icon", 0x01010002),
    NAME("name", 0x01010003),
    DEBUGGABLE("debuggable", 0x0101000f),
    EXPORTED("exported", 0x01010010),
    SCREEN_ORIENTATION("screenOrientation", 0x0101001e),
    VALUE("value", 0x01010024),
    MIN_SDK_VERSION("minSdkVersion", 0x0101020c),
    VERSION_CODE("versionCode", 0x0101021b),
    VERSION_NAME("versionName", 0x0101021c),
    TARGET_SDK_VERSION("targetSdkVersion", 0x01010270);

    private final String text;
    private final int resourceId;

    ManifestAttribute(String text, int resourceId) {
        this.text = text;
        this.resourceId = resourceId;
    }

    String text() {
        return text;
    }

    int resourceId() {
        return resourceId;
    }
}
