package tav.kob;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import org.junit.Test;

public final class SigningErrorsTest extends ProjectTestCase {
    @Test
    public void code6WhenTheDestinationCannotBeWritten() throws Exception {
        List<String> arguments = arguments(Keystores.good());
        arguments.set(arguments.indexOf(project.output().toString()), project.path("nowhere/Game.apk").toString());
        assertEnds(6, "cannot write", ToolRun.inProcess(arguments));
        Files.createDirectory(project.output());
        assertEnds(6, "cannot write", project.publish("apk"));
    }

    @Test
    public void code7WhenTheKeystoreIsMissingOrNone() throws Exception {
        assertEnds(7, "cannot be read", publishWith(project.path("nowhere.p12")));
        assertEnds(7, "cannot be read", publishWith(project.write("noise.p12", "this is not a keystore")));
    }

    @Test
    public void code7WhenThePasswordIsWrong() throws Exception {
        List<String> arguments = arguments(Keystores.good());
        arguments.set(arguments.indexOf(Keystores.PASSWORD), "guess");
        assertEnds(7, "password may be incorrect", ToolRun.inProcess(arguments));
        Path jks = Keystores.make(project.path("old.jks"), "JKS", "-keyalg", "RSA");
        arguments.set(arguments.indexOf("PKCS12"), "JKS");
        arguments.set(arguments.indexOf(Keystores.good().toString()), jks.toString());
        assertEnds(7, "password may be incorrect", ToolRun.inProcess(arguments));
    }

    @Test
    public void code8WhenTheCertificateIsOutOfDate() throws Exception {
        Path expired = Keystores.make(project.path("expired.p12"), "PKCS12",
                "-keyalg", "RSA", "-startdate", "-2y", "-validity", "30");
        assertEnds(8, "not valid today", publishWith(expired));
    }

    @Test
    public void code8WhenTheKeystoreHoldsNoPrivateKey() throws Exception {
        assertEnds(8, "no private key", publishWith(Keystores.withoutPrivateKey(project.path("trust.p12"))));
    }

    @Test
    public void code9WhenTheKeyCannotSignAPackage() throws Exception {
        Path unusable = Keystores.make(project.path("edwards.p12"), "PKCS12", "-keyalg", "Ed25519");
        assertEnds(9, "cannot be signed", publishWith(unusable));
        assertFalse(Files.exists(project.output()));
        assertEquals(List.of("Game-app.xml", "Game.qmv", "edwards.p12", "icons"), project.filesInFolder());
    }

    @Test
    public void code10WhenATimestampServerIsAskedFor() throws Exception {
        assertEnds(10, "timestamp server", project.publish("apk", "-tsa", "https://timestamp.example/tsa"));
        assertSilentSuccess(project.publish("apk", "-tsa", "none"));
    }

    @Test
    public void whatAKilledRunLeftBehindIsClearedAway() throws Exception {
        Process ended = new ProcessBuilder(ToolRun.java(), "-version").redirectErrorStream(true).start();
        ended.getInputStream().readAllBytes();
        ended.waitFor();
        project.write(".Game.apk." + ended.pid() + "-0.part", "half a package");
        String living = ".Game.apk." + ProcessHandle.current().pid() + "-7.part";
        project.write(living, "a package in the making");
        assertSilentSuccess(project.publish("apk"));
        assertEquals(List.of(living, "Game-app.xml", "Game.apk", "Game.qmv", "icons"), project.filesInFolder());
    }

    private ToolRun publishWith(Path keystore) {
        return ToolRun.inProcess(arguments(keystore));
    }

    private List<String> arguments(Path keystore) {
        return PracticeProject.join(PracticeProject.signed(keystore, "apk"), project.content());
    }

    private static void assertEnds(int exitCode, String phrase, ToolRun run) {
        assertTrue(run.output, run.output.contains(phrase));
        assertEquals(exitCode, run.exitCode);
    }
}
