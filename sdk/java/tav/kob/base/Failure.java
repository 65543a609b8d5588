package tav.kob.base;

/** The one way a run ends without success: an exit code and the text that goes to the caller. */
public final class Failure extends Exception {
    private static final long serialVersionUID = 1L;

    private final int exitCode;

    public Failure(int exitCode, String text) {
        super(text);
        this.exitCode = exitCode;
    }

    public static Failure usage(String what) {
        return new Failure(ExitCode.USAGE, what + "\r\n" + Usage.TEXT);
    }

    /**
     * The caller quotes the name back to the user: it takes what stands behind "no such file " and
     * drops exactly one character before the line feed, which is why the line ends in CR LF everywhere.
     */
    public static Failure missingFile(String name) {
        return usage("no such file " + name);
    }

    /** The subject comes first because the caller overlooks an error number at the start of the output. */
    public static Failure rejected(String subject, int number, String detail) {
        return new Failure(ExitCode.CONTENT_REJECTED, subject + ": error " + number + ": " + detail);
    }

    public int exitCode() {
        return exitCode;
    }
}
