package tav.kob.device;

import java.io.BufferedReader;
import java.io.IOException;
import java.io.InputStreamReader;
import java.net.URISyntaxException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import tav.kob.base.ExitCode;
import tav.kob.base.Failure;

/** The Android Debug Bridge that belongs to the same SDK as this tool. */
final class Adb {
    /** How a run ended and what it said on both streams, without what it tells of its server's start. */
    static final class Answer {
        final int exitCode;
        final String text;

        private Answer(int exitCode, String text) {
            this.exitCode = exitCode;
            this.text = text;
        }
    }

    private static final String SERVER_NEWS = "* daemon ";
    private static final String WAITING = "- waiting for device -";

    private Adb() {
    }

    static Answer run(String... arguments) throws Failure, IOException, InterruptedException {
        List<String> command = new ArrayList<>(List.of(program().toString()));
        command.addAll(Arrays.asList(arguments));
        Process process = start(command);
        process.getOutputStream().close();
        String text = read(process);
        return new Answer(process.waitFor(), text);
    }

    private static Process start(List<String> command) throws Failure {
        try {
            return new ProcessBuilder(command).redirectErrorStream(true).start();
        } catch (IOException missing) {
            throw new Failure(ExitCode.UNEXPECTED, "cannot start adb: " + missing.getMessage());
        }
    }

    /** A device that is gone may never come back, so adb is not left to wait for one. */
    private static String read(Process process) throws IOException {
        List<String> lines = new ArrayList<>();
        BufferedReader reader = new BufferedReader(
                new InputStreamReader(process.getInputStream(), StandardCharsets.UTF_8));
        for (String line = reader.readLine(); line != null; line = reader.readLine()) {
            if (line.startsWith(WAITING)) {
                process.destroy();
                break;
            }
            if (!line.startsWith(SERVER_NEWS)) {
                lines.add(line);
            }
        }
        return String.join("\n", lines).strip();
    }

    private static Path program() {
        boolean windows = System.getProperty("os.name").startsWith("Windows");
        return ownFolder().resolve("android").resolve("bin").resolve(windows ? "adb.exe" : "adb");
    }

    private static Path ownFolder() {
        try {
            return Paths.get(Adb.class.getProtectionDomain().getCodeSource().getLocation().toURI()).getParent();
        } catch (URISyntaxException impossible) {
            throw new IllegalStateException(impossible);
        }
    }
}
