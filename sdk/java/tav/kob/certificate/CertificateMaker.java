package tav.kob.certificate;

import java.io.IOException;
import java.io.InputStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.time.LocalDate;
import java.time.temporal.ChronoUnit;
import java.util.List;
import tav.kob.base.ExitCode;
import tav.kob.base.Failure;
import tav.kob.base.FilePaths;
import tav.kob.content.OutputFile;

/** Makes a keystore with a self-signed certificate by the Java runtime's own key tool. */
public final class CertificateMaker {
    private static final String ALIAS = "1";
    /** The password travels in the environment: a command line can be read by every user of the machine. */
    private static final String PASSWORD_VARIABLE = "KOB_STOREPASS";

    private final CertificateRequest request;

    private CertificateMaker(CertificateRequest request) {
        this.request = request;
    }

    public static void run(CertificateRequest request) throws IOException, InterruptedException, Failure {
        new CertificateMaker(request).run();
    }

    /** The key tool would add to an existing keystore; the caller has agreed to have it replaced. */
    private void run() throws IOException, InterruptedException, Failure {
        try (OutputFile output = new OutputFile(FilePaths.of(request.file))) {
            Path part = output.newPart();
            Files.delete(part);
            runKeyTool(part);
            output.commit(part);
        } catch (IOException broken) {
            throw notCreated(broken.getMessage());
        }
    }

    private void runKeyTool(Path keystore) throws IOException, InterruptedException, Failure {
        ProcessBuilder builder = new ProcessBuilder(commandLine(keystore)).redirectErrorStream(true);
        builder.environment().put(PASSWORD_VARIABLE, request.password);
        Process process = builder.start();
        process.getOutputStream().close();
        String said;
        try (InputStream output = process.getInputStream()) {
            said = new String(output.readAllBytes(), StandardCharsets.UTF_8).trim();
        }
        if (process.waitFor() != 0 || !Files.exists(keystore)) {
            throw notCreated(said);
        }
    }

    private List<String> commandLine(Path keystore) {
        return List.of(Paths.get(System.getProperty("java.home"), "bin", "keytool").toString(),
                "-genkeypair", "-noprompt", "-alias", ALIAS,
                "-keyalg", "RSA", "-keysize", String.valueOf(request.keySize), "-sigalg", "SHA256withRSA",
                "-dname", DistinguishedName.of(request), "-validity", String.valueOf(days()),
                "-storetype", "PKCS12", "-keystore", keystore.toString(),
                "-storepass:env", PASSWORD_VARIABLE);
    }

    private long days() {
        LocalDate today = LocalDate.now();
        return ChronoUnit.DAYS.between(today, today.plusYears(request.years));
    }

    private static Failure notCreated(String reason) {
        return new Failure(ExitCode.CERTIFICATE_NOT_CREATED, "the certificate cannot be created: " + reason);
    }
}
