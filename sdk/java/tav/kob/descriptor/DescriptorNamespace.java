package tav.kob.descriptor;

import java.util.regex.Matcher;
import java.util.regex.Pattern;
import tav.kob.base.ErrorNumber;
import tav.kob.base.Failure;

/** The namespace of a descriptor names the runtime level that it is written for. */
final class DescriptorNamespace {
    private static final String BASE = "http://ns.zenvoka.example/tav/application/";
    private static final Pattern LEVEL = Pattern.compile("(\\d{1,3})\\.(\\d{1,3})");
    private static final int NEWEST_MAJOR = 26;
    private static final int NEWEST_MINOR = 0;

    private DescriptorNamespace() {
    }

    /** Gives the major number of the level. */
    static int level(String namespace, String subject) throws Failure {
        if (namespace == null || namespace.isEmpty()) {
            throw Failure.rejected(subject, ErrorNumber.NAMESPACE_MISSING, "application has no namespace");
        }
        Matcher level = LEVEL.matcher(namespace.startsWith(BASE) ? namespace.substring(BASE.length()) : "");
        if (!level.matches() || isTooNew(level)) {
            throw Failure.rejected(subject, ErrorNumber.NAMESPACE_INVALID, "unknown namespace " + namespace);
        }
        return Integer.parseInt(level.group(1));
    }

    private static boolean isTooNew(Matcher level) {
        int major = Integer.parseInt(level.group(1));
        int minor = Integer.parseInt(level.group(2));
        return major > NEWEST_MAJOR || (major == NEWEST_MAJOR && minor > NEWEST_MINOR);
    }
}
