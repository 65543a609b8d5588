package tav.kob.descriptor;

import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.regex.Pattern;

/** Which elements a descriptor may hold, and what their text must look like. */
final class DescriptorSchema {
    static final String ROOT = "application";

    private static final Pattern IMAGE = Pattern.compile("image([1-9]\\d{0,3})x\\1");
    private static final String FLAG = "(?i)true|false";
    private static final String SIZE_PAIR = "\\d{1,5}\\s+\\d{1,5}";

    private static final Map<String, Set<String>> CHILDREN = Map.ofEntries(
            Map.entry("application", Set.of("id", "name", "filename", "versionNumber", "versionLabel", "version",
                    "description", "copyright", "initialWindow", "icon", "fileTypes", "android", "extensions",
                    "supportedProfiles", "supportedLanguages", "installFolder", "programMenuFolder",
                    "customUpdateUI", "allowBrowserInvocation")),
            Map.entry("application.name", Set.of("text")),
            Map.entry("application.description", Set.of("text")),
            Map.entry("application.initialWindow", Set.of("content", "systemChrome", "transparent", "visible",
                    "fullScreen", "aspectRatio", "renderMode", "autoOrients", "maximizable", "minimizable",
                    "resizable", "width", "height", "x", "y", "minSize", "maxSize")),
            Map.entry("application.extensions", Set.of("extensionID")),
            Map.entry("application.android", Set.of("manifestAdditions")),
            Map.entry("application.fileTypes", Set.of("fileType")),
            Map.entry("application.fileTypes.fileType",
                    Set.of("name", "extension", "description", "contentType", "icon")));

    private static final Set<String> IMAGE_PARENTS = Set.of("application.icon",
            "application.fileTypes.fileType", "application.fileTypes.fileType.icon");

    private static final Set<String> LANGUAGE_ATTRIBUTE_OWNERS =
            Set.of("application.name.text", "application.description.text");

    private static final List<String> REQUIRED =
            List.of("id", "filename", "versionNumber", "initialWindow", "initialWindow.content");

    /** An optional element may be empty; these may not. */
    private static final Map<String, Pattern> REQUIRED_VALUES = Map.of(
            "application.id", Pattern.compile("[A-Za-z0-9.]{1,212}"),
            "application.filename", Pattern.compile("[^/\\\\:*?\"<>|]*[^/\\\\:*?\"<>|. ]"),
            "application.versionNumber", Pattern.compile("\\d{1,3}(\\.\\d{1,3}){0,2}"),
            "application.initialWindow.content", Pattern.compile(".+"));

    private static final Map<String, Pattern> OPTIONAL_VALUES = Map.ofEntries(
            value("application.customUpdateUI", FLAG),
            value("application.allowBrowserInvocation", FLAG),
            value("application.supportedProfiles",
                    "((desktop|extendedDesktop|mobileDevice|extendedMobileDevice)\\s*)+"),
            value("application.supportedLanguages", "[A-Za-z]{2,3}(-\\w+)?(\\s+[A-Za-z]{2,3}(-\\w+)?)*"),
            value("application.initialWindow.systemChrome", "standard|none"),
            value("application.initialWindow.aspectRatio", "portrait|landscape"),
            value("application.initialWindow.renderMode", "auto|cpu|gpu|direct"),
            value("application.initialWindow.transparent", FLAG),
            value("application.initialWindow.visible", FLAG),
            value("application.initialWindow.fullScreen", FLAG),
            value("application.initialWindow.autoOrients", FLAG),
            value("application.initialWindow.maximizable", FLAG),
            value("application.initialWindow.minimizable", FLAG),
            value("application.initialWindow.resizable", FLAG),
            value("application.initialWindow.width", "\\d{1,5}"),
            value("application.initialWindow.height", "\\d{1,5}"),
            value("application.initialWindow.x", "-?\\d{1,5}"),
            value("application.initialWindow.y", "-?\\d{1,5}"),
            value("application.initialWindow.minSize", SIZE_PAIR),
            value("application.initialWindow.maxSize", SIZE_PAIR));

    private DescriptorSchema() {
    }

    static boolean isImage(String name) {
        return IMAGE.matcher(name).matches();
    }

    static boolean allowsChild(String parentPath, String name) {
        return CHILDREN.getOrDefault(parentPath, Set.of()).contains(name)
                || (IMAGE_PARENTS.contains(parentPath) && isImage(name));
    }

    static boolean allowsLanguage(String path) {
        return LANGUAGE_ATTRIBUTE_OWNERS.contains(path);
    }

    static List<String> required() {
        return REQUIRED;
    }

    static boolean allowsValue(String path, String value) {
        Pattern required = REQUIRED_VALUES.get(path);
        if (required != null) {
            return required.matcher(value).matches();
        }
        Pattern optional = OPTIONAL_VALUES.get(path);
        return optional == null || value.isEmpty() || optional.matcher(value).matches();
    }

    private static Map.Entry<String, Pattern> value(String path, String expression) {
        return Map.entry(path, Pattern.compile(expression));
    }
}
