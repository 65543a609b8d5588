package tav.kob;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.nio.file.Files;
import java.nio.file.Path;
import java.security.KeyStore;
import java.security.cert.X509Certificate;
import java.security.interfaces.RSAPublicKey;
import java.time.LocalDate;
import java.time.ZoneId;
import java.util.ArrayList;
import java.util.List;
import org.junit.Test;

public final class CertificateTest extends ProjectTestCase {
    @Test
    public void makesAKeystoreThatSigns() throws Exception {
        Path file = project.path("new.p12");
        assertSilentSuccess(create("Tr\u00e4ume, Inc", "-validityPeriod", "3",
                "2048-RSA", file.toString(), Keystores.PASSWORD));
        X509Certificate certificate = certificate(file);
        assertEquals("CN=\"Tr\u00e4ume, Inc\", OU=Unit, O=Org, C=XX", certificate.getSubjectDN().toString());
        assertEquals(LocalDate.now().plusYears(3),
                certificate.getNotAfter().toInstant().atZone(ZoneId.systemDefault()).toLocalDate());
        assertEquals(2048, ((RSAPublicKey) certificate.getPublicKey()).getModulus().bitLength());
        assertSilentSuccess(ToolRun.inProcess(
                PracticeProject.join(PracticeProject.signed(file, "apk"), project.content())));
    }

    @Test
    public void replacesAnExistingFile() throws Exception {
        Path file = project.write("old.p12", "something else");
        assertSilentSuccess(create("Me", "1024-RSA", file.toString(), Keystores.PASSWORD));
        assertEquals(1024, ((RSAPublicKey) certificate(file).getPublicKey()).getModulus().bitLength());
        assertEquals(List.of("Game-app.xml", "Game.qmv", "icons", "old.p12"), project.filesInFolder());
    }

    @Test
    public void code11WhenThePasswordIsRefused() throws Exception {
        Path file = project.write("old.p12", "something else");
        ToolRun run = create("Me", "2048-RSA", file.toString(), "short");
        assertTrue(run.output, run.output.contains("cannot be created"));
        assertEquals(11, run.exitCode);
        assertEquals("something else", Files.readString(file));
    }

    @Test
    public void code6WhenTheFolderIsMissing() {
        ToolRun run = create("Me", "2048-RSA", project.path("nowhere/new.p12").toString(), Keystores.PASSWORD);
        assertEquals(6, run.exitCode);
        assertFalse(Files.exists(project.path("nowhere")));
    }

    @Test
    public void wrongArgumentsAreUsageErrors() {
        assertUsage("unknown key type 4096-RSA", create("Me", "4096-RSA", "f.p12", "password"));
        assertUsage("-validityPeriod cannot be 0",
                create("Me", "-validityPeriod", "0", "2048-RSA", "f.p12", "password"));
        assertUsage("key type, file and password are needed behind the options", create("Me", "2048-RSA", "f.p12"));
        assertUsage("-cn, -ou, -o and -c are needed",
                ToolRun.inProcess(List.of("-certificate", "-cn", "Me", "2048-RSA", "f.p12", "password")));
    }

    private static ToolRun create(String name, String... more) {
        List<String> arguments = new ArrayList<>(
                List.of("-certificate", "-cn", name, "-ou", "Unit", "-o", "Org", "-c", "XX"));
        arguments.addAll(List.of(more));
        return ToolRun.inProcess(arguments);
    }

    private static X509Certificate certificate(Path file) throws Exception {
        KeyStore store = Keystores.load(file);
        return (X509Certificate) store.getCertificate(store.aliases().nextElement());
    }

    private static void assertUsage(String what, ToolRun run) {
        assertTrue(run.output, run.output.startsWith(what + "\r\nusage:"));
        assertEquals(2, run.exitCode);
    }
}
