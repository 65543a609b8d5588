package tav.kob.apk;

import java.util.Optional;
import java.util.regex.Pattern;
import tav.kob.base.Failure;
import tav.kob.descriptor.Descriptor;

/** Names and version code, which Android asks for in forms of its own. */
public final class AndroidIdentity {
    /** The class that shows the application, in every package that this tool makes. */
    public static final String ACTIVITY = "tav.practice.PlayerActivity";

    private static final String PREFIX = "tav.";
    private static final Pattern PACKAGE_NAME = Pattern.compile("[A-Za-z][A-Za-z0-9]*(\\.[A-Za-z][A-Za-z0-9]*)+");
    private static final int PART_LIMIT = 1000;
    private static final int PARTS = 3;

    private AndroidIdentity() {
    }

    /** Android wants two parts at least, and each must begin with a letter. */
    public static Optional<String> packageName(String id) {
        String name = id.contains(".") ? id : PREFIX + id;
        return Optional.of(name).filter(PACKAGE_NAME.asMatchPredicate());
    }

    static String packageName(Descriptor descriptor) throws Failure {
        Optional<String> name = packageName(descriptor.id());
        if (name.isEmpty()) {
            throw descriptor.invalidValue("application.id");
        }
        return name.get();
    }

    static int versionCode(String versionNumber) {
        String[] parts = versionNumber.split("\\.");
        int code = 0;
        for (int index = 0; index < PARTS; index++) {
            code = code * PART_LIMIT + (index < parts.length ? Integer.parseInt(parts[index]) : 0);
        }
        return code;
    }
}
