package tav.kob;

import java.io.IOException;
import java.io.OutputStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.Arrays;
import tav.kob.base.TextEncoding;

/**
 * Starts the tool again in a UTF-8 locale. In the C locale the virtual machine turns every byte beyond
 * ASCII into a replacement character before the program sees it, and no system property changes that.
 * The bytes themselves are still in /proc, and they travel to the second process on its standard input,
 * since the first one could not spell them in a command line either.
 */
final class Utf8Restart {
    private static final Path OWN_COMMAND_LINE = Paths.get("/proc/self/cmdline");
    private static final String UTF8_LOCALE = "C.UTF-8";

    private Utf8Restart() {
    }

    static boolean isNeededFor(String[] arguments) {
        return !TextEncoding.spellsEveryName()
                && Files.isReadable(OWN_COMMAND_LINE)
                && !(Arrays.stream(arguments).allMatch(TextEncoding::isAscii)
                        && TextEncoding.isAscii(System.getProperty("user.dir")));
    }

    static int run(int argumentCount) throws IOException, InterruptedException {
        byte[] raw = lastArguments(Files.readAllBytes(OWN_COMMAND_LINE), argumentCount);
        ProcessBuilder builder = new ProcessBuilder(
                Paths.get(System.getProperty("java.home"), "bin", "java").toString(),
                "-cp", System.getProperty("java.class.path"), RestartedMain.class.getName(),
                String.valueOf(argumentCount));
        builder.environment().put("LC_ALL", UTF8_LOCALE);
        builder.redirectOutput(ProcessBuilder.Redirect.INHERIT).redirectError(ProcessBuilder.Redirect.INHERIT);
        Process process = builder.start();
        // A caller that cancels ends the process it knows. The second one must not go on without it: it
        // stops when its input ends, which is why the input stays open until then.
        try (OutputStream input = process.getOutputStream()) {
            input.write(raw);
            input.flush();
            return process.waitFor();
        }
    }

    /** Each argument ends in a zero byte, so the last ones begin behind a zero byte counted from the end. */
    static byte[] lastArguments(byte[] commandLine, int count) {
        int start = commandLine.length;
        for (int left = count; left > 0; left--) {
            start--;
            while (start > 0 && commandLine[start - 1] != 0) {
                start--;
            }
        }
        return Arrays.copyOfRange(commandLine, start, commandLine.length);
    }
}
