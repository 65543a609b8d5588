package tav.kob;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.io.ByteArrayInputStream;
import java.io.OutputStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.util.List;
import java.util.concurrent.TimeUnit;
import org.junit.Test;

/** Real processes, started as the caller starts them. */
public final class LocaleTest extends ProjectTestCase {
    private static final String NAME = "Tr\u00e4ume \u65e5\u672c";

    @Test
    public void namesBeyondAsciiSurviveTheCLocale() throws Exception {
        useMovieNamed(NAME);
        String apk = project.path(NAME + ".apk").toString();
        ToolRun run = ToolRun.asProcess("C", project.path(""), PracticeProject.join(
                PracticeProject.signed(Keystores.good(), "apk-captive-runtime", "-tavDownloadURL", ""),
                List.of(apk, project.path(NAME + "-app.xml").toString(),
                        "-C", project.path("").toString(), NAME + ".qmv")));
        assertSilentSuccess(run);
        assertTrue(ToolRun.program("aapt", "list", apk).output.contains("assets/" + NAME + ".qmv"));
        assertEquals(0, ToolRun.program("apksigner", "verify", apk).exitCode);
    }

    @Test
    public void messagesAboutSuchNamesAreUtf8() throws Exception {
        ToolRun run = ToolRun.asProcess("C", project.path(""),
                List.of("-prepare", "Game.apk", NAME + "-app.xml", "Game.qmv"));
        assertRejected(301, run);
        assertTrue(run.output, run.output.startsWith(NAME + "-app.xml: error 301: "));
    }

    @Test
    public void suchNamesInsideAFolderSurviveTheCLocale() throws Exception {
        project.write("data/" + NAME + ".txt", "deep");
        assertSilentSuccess(ToolRun.asProcess("C", project.path(""),
                PracticeProject.join(List.of("-prepare"), project.content("data"))));
        assertEquals("deep", project.entry("assets/data/" + NAME + ".txt"));
    }

    @Test
    public void relativeNamesWorkInAFolderOfSuchAName() throws Exception {
        PracticeProject inside = new PracticeProject(temporary.newFolder(NAME).toPath());
        assertSilentSuccess(ToolRun.asProcess("C", inside.path(""),
                List.of("-prepare", "Game.apk", "Game-app.xml", "Game.qmv", "icons")));
        assertTrue(Files.exists(inside.output()));
    }

    @Test
    public void aPlainRunInTheCLocaleIsSilent() throws Exception {
        assertSilentSuccess(ToolRun.asProcess("C", project.path(""),
                PracticeProject.join(PracticeProject.signed(Keystores.good(), "apk"), project.content())));
    }

    @Test
    public void code5WhenNoLocaleCanSpellAName() throws Exception {
        project.write("data/" + NAME + ".txt", "deep");
        Process process = startSecondProcess("-prepare\0Game.apk\0Game-app.xml\0Game.qmv\0icons\0data\0", 6);
        String output = new String(process.getInputStream().readAllBytes(), StandardCharsets.UTF_8);
        assertEquals(5, process.waitFor());
        assertTrue(output, output.startsWith("unexpected error: the locale of this process cannot spell"));
        assertFalse(Files.exists(project.output()));
    }

    @Test
    public void theSecondProcessEndsWithTheFirst() throws Exception {
        // A pipe that nobody writes keeps the second process reading until its own input ends.
        assertEquals(0, ToolRun.program("mkfifo", project.path("endless-app.xml").toString()).exitCode);
        Process process = startSecondProcess("-prepare\0Game.apk\0endless-app.xml\0Game.qmv\0", 4);
        assertFalse(process.waitFor(500, TimeUnit.MILLISECONDS));
        process.getOutputStream().close();
        assertTrue(process.waitFor(10, TimeUnit.SECONDS));
        assertEquals(5, process.exitValue());
    }

    @Test
    public void argumentsAreTakenFromTheEndOfACommandLine() throws Exception {
        byte[] line = "java\0-jar\0KOB.jar\0-cn\0\0T\u00e4g\0".getBytes(StandardCharsets.UTF_8);
        byte[] last = Utf8Restart.lastArguments(line, 3);
        assertEquals("-cn\0\0T\u00e4g\0", new String(last, StandardCharsets.UTF_8));
        assertEquals(List.of("-cn", "", "T\u00e4g"),
                List.of(RestartedMain.readArguments(new ByteArrayInputStream(last), 3)));
    }

    private void useMovieNamed(String name) throws Exception {
        project.change("Game.qmv", name.replace(" ", "%20") + ".qmv")
                .change("<icon><image48x48>icons/icon48.png</image48x48></icon>", "");
        Files.move(project.path("Game.qmv"), project.path(name + ".qmv"));
        Files.move(project.path("Game-app.xml"), project.path(name + "-app.xml"));
    }

    private Process startSecondProcess(String arguments, int count) throws Exception {
        ProcessBuilder builder = new ProcessBuilder(ToolRun.java(),
                "-cp", ToolRun.kit().resolve("lib/KOB.jar").toString(),
                RestartedMain.class.getName(), String.valueOf(count));
        builder.environment().put("LC_ALL", "C");
        Process process = builder.directory(project.path("").toFile()).redirectErrorStream(true).start();
        OutputStream input = process.getOutputStream();
        input.write(arguments.getBytes(StandardCharsets.UTF_8));
        input.flush();
        return process;
    }
}
