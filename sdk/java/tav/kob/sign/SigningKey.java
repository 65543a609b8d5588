package tav.kob.sign;

import java.io.IOException;
import java.io.InputStream;
import java.nio.file.Files;
import java.security.GeneralSecurityException;
import java.security.Key;
import java.security.KeyStore;
import java.security.PrivateKey;
import java.security.UnrecoverableKeyException;
import java.security.cert.Certificate;
import java.security.cert.CertificateException;
import java.security.cert.X509Certificate;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import tav.kob.base.ExitCode;
import tav.kob.base.Failure;
import tav.kob.base.FilePaths;
import tav.kob.command.SigningOptions;

/** The private key and its certificates, from the user's keystore. */
public final class SigningKey {
    private final PrivateKey key;
    private final List<X509Certificate> certificates;

    private SigningKey(PrivateKey key, List<X509Certificate> certificates) {
        this.key = key;
        this.certificates = certificates;
    }

    public static SigningKey load(SigningOptions options) throws Failure {
        char[] password = options.password().toCharArray();
        KeyStore store = open(options, password);
        try {
            return firstUsable(store, password, options.keystore());
        } catch (UnrecoverableKeyException wrongPassword) {
            throw wrongPassword(options.keystore());
        } catch (GeneralSecurityException unreadable) {
            throw new Failure(ExitCode.CERTIFICATE_INVALID, options.keystore() + ": " + unreadable.getMessage());
        }
    }

    PrivateKey key() {
        return key;
    }

    List<X509Certificate> certificates() {
        return certificates;
    }

    private static KeyStore open(SigningOptions options, char[] password) throws Failure {
        try (InputStream input = Files.newInputStream(FilePaths.of(options.keystore()))) {
            KeyStore store = KeyStore.getInstance(options.storeType());
            store.load(input, password);
            return store;
        } catch (IOException unreadable) {
            throw unreadable.getCause() instanceof UnrecoverableKeyException
                    ? wrongPassword(options.keystore()) : notAccessible(options.keystore(), unreadable);
        } catch (GeneralSecurityException unreadable) {
            throw notAccessible(options.keystore(), unreadable);
        }
    }

    /** Aliases come in no order; sorting them makes the choice the same on every machine. */
    private static SigningKey firstUsable(KeyStore store, char[] password, String name)
            throws GeneralSecurityException, Failure {
        String reason = "the keystore holds no private key with a certificate";
        for (String alias : sortedAliases(store)) {
            Key key = store.isKeyEntry(alias) ? store.getKey(alias, password) : null;
            List<X509Certificate> certificates = certificates(store, alias);
            if (key instanceof PrivateKey && !certificates.isEmpty()) {
                try {
                    certificates.get(0).checkValidity();
                    return new SigningKey((PrivateKey) key, certificates);
                } catch (CertificateException outOfDate) {
                    reason = "the certificate is not valid today: " + outOfDate.getMessage();
                }
            }
        }
        throw new Failure(ExitCode.CERTIFICATE_INVALID, name + ": " + reason);
    }

    private static List<String> sortedAliases(KeyStore store) throws GeneralSecurityException {
        List<String> aliases = Collections.list(store.aliases());
        Collections.sort(aliases);
        return aliases;
    }

    private static List<X509Certificate> certificates(KeyStore store, String alias) throws GeneralSecurityException {
        List<X509Certificate> certificates = new ArrayList<>();
        Certificate[] chain = store.getCertificateChain(alias);
        if (chain != null) {
            for (Certificate certificate : chain) {
                if (certificate instanceof X509Certificate) {
                    certificates.add((X509Certificate) certificate);
                }
            }
        }
        return certificates;
    }

    private static Failure wrongPassword(String keystore) {
        return new Failure(ExitCode.KEYSTORE_NOT_ACCESSIBLE,
                keystore + ": the keystore cannot be opened, the password may be incorrect");
    }

    private static Failure notAccessible(String keystore, Exception reason) {
        return new Failure(ExitCode.KEYSTORE_NOT_ACCESSIBLE,
                keystore + ": the keystore cannot be read: " + reason.getMessage());
    }
}
