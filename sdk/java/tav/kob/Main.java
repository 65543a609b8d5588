package tav.kob;

import tav.kob.base.TextEncoding;

/** Where a plain "java -jar KOB.jar" begins. */
public final class Main {
    private Main() {
    }

    public static void main(String[] arguments) throws Exception {
        System.exit(run(arguments));
    }

    private static int run(String[] arguments) throws Exception {
        if (Utf8Restart.isNeededFor(arguments)) {
            return Utf8Restart.run(arguments.length);
        }
        try {
            return Tool.run(arguments, TextEncoding.output());
        } catch (TextEncoding.NameNotReadable unreadable) {
            return Utf8Restart.run(arguments.length);
        }
    }
}
