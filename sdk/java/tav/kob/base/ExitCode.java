package tav.kob.base;

/** The exit codes that the publishing library reads. */
public final class ExitCode {
    public static final int SUCCESS = 0;
    public static final int CONTENT_REJECTED = 1;
    public static final int USAGE = 2;
    public static final int UNEXPECTED = 5;
    public static final int DESTINATION_NOT_WRITABLE = 6;
    public static final int KEYSTORE_NOT_ACCESSIBLE = 7;
    public static final int CERTIFICATE_INVALID = 8;
    public static final int SIGNING_FAILED = 9;
    public static final int TIMESTAMP_FAILED = 10;
    public static final int CERTIFICATE_NOT_CREATED = 11;
    public static final int DEVICE_LOST = 12;
    public static final int DEVICE_REFUSED = 14;
    public static final int DEVICE_UNREACHABLE = 15;

    private ExitCode() {
    }
}
