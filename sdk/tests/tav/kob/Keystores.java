package tav.kob;

import java.io.IOException;
import java.io.OutputStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.security.GeneralSecurityException;
import java.security.KeyStore;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Map;

/** Real keystores, made by the Java runtime's key tool. */
final class Keystores {
    static final String PASSWORD = "secret word";

    private static Path shared;

    private Keystores() {
    }

    /** Making a key takes longer than making a package, so all tests share one. */
    static synchronized Path good() throws Exception {
        if (shared == null) {
            Path folder = Files.createTempDirectory("kob-keys");
            shared = make(folder.resolve("good.p12"), "PKCS12", "-keyalg", "RSA", "-validity", "3650");
            folder.toFile().deleteOnExit();
            shared.toFile().deleteOnExit();
        }
        return shared;
    }

    static Path make(Path file, String type, String... options) throws IOException, InterruptedException {
        List<String> command = new ArrayList<>(List.of(
                Paths.get(System.getProperty("java.home"), "bin", "keytool").toString(),
                "-genkeypair", "-alias", "key", "-dname", "CN=Test", "-storetype", type,
                "-keystore", file.toString(), "-storepass", PASSWORD, "-keypass", PASSWORD));
        command.addAll(Arrays.asList(options));
        ToolRun run = ToolRun.program(file.getParent(), Map.of(), command);
        if (run.exitCode != 0) {
            throw new IOException(run.output);
        }
        return file;
    }

    static Path withoutPrivateKey(Path file) throws Exception {
        KeyStore store = emptyStore();
        store.setCertificateEntry("trusted", load(good()).getCertificate("key"));
        try (OutputStream output = Files.newOutputStream(file)) {
            store.store(output, PASSWORD.toCharArray());
        }
        return file;
    }

    static KeyStore load(Path file) throws GeneralSecurityException, IOException {
        return KeyStore.getInstance(file.toFile(), PASSWORD.toCharArray());
    }

    private static KeyStore emptyStore() throws GeneralSecurityException, IOException {
        KeyStore store = KeyStore.getInstance("PKCS12");
        store.load(null, null);
        return store;
    }
}
