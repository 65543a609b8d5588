package tav.kob.sign;

import com.android.apksig.ApkSigner;
import com.android.apksig.apk.ApkFormatException;
import java.io.IOException;
import java.nio.file.Path;
import java.security.GeneralSecurityException;
import java.util.List;
import tav.kob.base.ExitCode;
import tav.kob.base.Failure;

/** Signs a finished archive into another file. */
public final class PackageSigner {
    private static final String SIGNER_NAME = "CERT";
    /** Stands in for Android's level where there is no Android: it makes the digests SHA-256. */
    private static final int DIGEST_LEVEL = 18;

    private PackageSigner() {
    }

    /** An Android package gets the schemes 1 to 3. */
    public static void signAndroid(SigningKey key, Path unsigned, Path signed, int minSdk)
            throws IOException, Failure {
        sign(key, unsigned, signed, minSdk, true);
    }

    /** Any other archive gets a jar signature alone, which is scheme 1. */
    public static void signArchive(SigningKey key, Path unsigned, Path signed) throws IOException, Failure {
        sign(key, unsigned, signed, DIGEST_LEVEL, false);
    }

    private static void sign(SigningKey key, Path unsigned, Path signed, int minSdk, boolean wholeFile)
            throws IOException, Failure {
        ApkSigner.SignerConfig signer =
                new ApkSigner.SignerConfig.Builder(SIGNER_NAME, key.key(), key.certificates()).build();
        try {
            new ApkSigner.Builder(List.of(signer))
                    .setInputApk(unsigned.toFile())
                    .setOutputApk(signed.toFile())
                    // Named here, so that the signer need not look for a manifest in other archives.
                    .setMinSdkVersion(minSdk)
                    .setV1SigningEnabled(true)
                    .setV2SigningEnabled(wholeFile)
                    .setV3SigningEnabled(wholeFile)
                    .setV4SigningEnabled(false)
                    .build().sign();
        } catch (GeneralSecurityException | ApkFormatException | IllegalStateException refused) {
            throw new Failure(ExitCode.SIGNING_FAILED, "the package cannot be signed: " + refused.getMessage());
        }
    }
}
