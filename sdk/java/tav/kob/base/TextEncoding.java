package tav.kob.base;

import java.io.FileDescriptor;
import java.io.FileOutputStream;
import java.io.PrintStream;
import java.nio.charset.Charset;
import java.nio.charset.StandardCharsets;

/**
 * How text meets the system. Outside Windows it is UTF-8 whatever the locale says, because the caller
 * writes and reads UTF-8 there; the virtual machine, however, takes arguments and file names by locale.
 */
public final class TextEncoding {
    /** A folder holds a name that this virtual machine, started in its locale, cannot spell. */
    public static final class NameNotReadable extends RuntimeException {
        private static final long serialVersionUID = 1L;

        NameNotReadable(String name) {
            super("the locale of this process cannot spell the file name " + name);
        }
    }

    private TextEncoding() {
    }

    /** Call with every name that was read from a folder rather than given as an argument. */
    public static void requireReadable(String name) {
        if (!spellsEveryName() && !isAscii(name)) {
            throw new NameNotReadable(name);
        }
    }

    public static boolean spellsEveryName() {
        return isWindows() || systemCharset().equals(StandardCharsets.UTF_8);
    }

    public static boolean isAscii(String text) {
        return text.chars().allMatch(unit -> unit < 0x80);
    }

    public static PrintStream output() {
        Charset charset = isWindows() ? systemCharset() : StandardCharsets.UTF_8;
        return new PrintStream(new FileOutputStream(FileDescriptor.err), true, charset);
    }

    private static boolean isWindows() {
        return System.getProperty("os.name").startsWith("Windows");
    }

    private static Charset systemCharset() {
        return Charset.forName(System.getProperty("sun.jnu.encoding", "UTF-8"));
    }
}
