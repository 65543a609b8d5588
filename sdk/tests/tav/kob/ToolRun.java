package tav.kob;

import java.io.ByteArrayOutputStream;
import java.io.IOException;
import java.io.PrintStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Map;

/** One run of the tool or of another program: how it ended and what it said. */
final class ToolRun {
    final int exitCode;
    final String output;

    private ToolRun(int exitCode, String output) {
        this.exitCode = exitCode;
        this.output = output;
    }

    /** Runs the tool within this process, which is what makes many runs cheap. */
    static ToolRun inProcess(List<String> arguments) {
        ByteArrayOutputStream bytes = new ByteArrayOutputStream();
        int exitCode = Tool.run(arguments.toArray(new String[0]), new PrintStream(bytes, true, StandardCharsets.UTF_8));
        return new ToolRun(exitCode, bytes.toString(StandardCharsets.UTF_8));
    }

    /** Runs KOB.jar as its caller does, in a locale of the test's choice. */
    static ToolRun asProcess(String locale, Path folder, List<String> arguments, String... javaOptions)
            throws IOException, InterruptedException {
        List<String> command = new ArrayList<>(List.of(java()));
        command.addAll(Arrays.asList(javaOptions));
        command.addAll(List.of("-jar", kit().resolve("lib/KOB.jar").toString()));
        command.addAll(arguments);
        return program(folder, Map.of("LC_ALL", locale), command);
    }

    static ToolRun program(String... command) throws IOException, InterruptedException {
        return program(Paths.get("."), Map.of(), Arrays.asList(command));
    }

    static Path kit() {
        return Paths.get(System.getProperty("kob.kit"));
    }

    static String java() {
        return Paths.get(System.getProperty("java.home"), "bin", "java").toString();
    }

    static ToolRun program(Path folder, Map<String, String> environment, List<String> command)
            throws IOException, InterruptedException {
        ProcessBuilder builder = new ProcessBuilder(command).redirectErrorStream(true).directory(folder.toFile());
        builder.environment().putAll(environment);
        Process process = builder.start();
        process.getOutputStream().close();
        String output = new String(process.getInputStream().readAllBytes(), StandardCharsets.UTF_8);
        return new ToolRun(process.waitFor(), output);
    }
}
