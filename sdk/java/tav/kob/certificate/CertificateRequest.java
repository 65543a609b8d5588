package tav.kob.certificate;

/** What a -certificate command line says. */
public final class CertificateRequest {
    String commonName;
    String unit;
    String organization;
    String country;
    int years = 25;
    int keySize;
    String file;
    String password;

    CertificateRequest() {
    }
}
