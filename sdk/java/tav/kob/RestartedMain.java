package tav.kob;

import java.io.ByteArrayOutputStream;
import java.io.EOFException;
import java.io.IOException;
import java.io.InputStream;
import java.io.PrintStream;
import java.nio.charset.StandardCharsets;
import tav.kob.base.ExitCode;
import tav.kob.base.TextEncoding;

/**
 * The second process of {@link Utf8Restart}. Its own argument is the number of arguments that come,
 * each ended by a zero byte, on the standard input.
 */
public final class RestartedMain {
    private RestartedMain() {
    }

    public static void main(String[] count) throws IOException {
        String[] arguments = readArguments(System.in, Integer.parseInt(count[0]));
        stopWhenInputEnds();
        System.exit(run(arguments, TextEncoding.output()));
    }

    private static int run(String[] arguments, PrintStream output) {
        try {
            return Tool.run(arguments, output);
        } catch (TextEncoding.NameNotReadable unreadable) {
            output.println("unexpected error: " + unreadable.getMessage());
            return ExitCode.UNEXPECTED;
        }
    }

    static String[] readArguments(InputStream input, int count) throws IOException {
        String[] arguments = new String[count];
        for (int index = 0; index < count; index++) {
            arguments[index] = readArgument(input);
        }
        return arguments;
    }

    private static String readArgument(InputStream input) throws IOException {
        ByteArrayOutputStream bytes = new ByteArrayOutputStream();
        for (int unit = input.read(); unit != 0; unit = input.read()) {
            if (unit < 0) {
                throw new EOFException("the arguments end too early");
            }
            bytes.write(unit);
        }
        return bytes.toString(StandardCharsets.UTF_8);
    }

    /** The input ends when the first process is gone, however it went. */
    private static void stopWhenInputEnds() {
        Thread watch = new Thread(() -> {
            try {
                System.in.read();
            } catch (IOException gone) {
                // A broken input tells the same as its end.
            }
            System.exit(ExitCode.UNEXPECTED);
        });
        watch.setDaemon(true);
        watch.start();
    }
}
