package tav.kob.certificate;

/** Writes the owner's name as one text, with everything that means something there escaped. */
final class DistinguishedName {
    private static final String SPECIAL = ",+\"\\<>;=#";

    private DistinguishedName() {
    }

    static String of(CertificateRequest request) {
        return "CN=" + escaped(request.commonName) + ", OU=" + escaped(request.unit)
                + ", O=" + escaped(request.organization) + ", C=" + escaped(request.country);
    }

    private static String escaped(String value) {
        StringBuilder text = new StringBuilder();
        for (char unit : value.toCharArray()) {
            if (SPECIAL.indexOf(unit) >= 0) {
                text.append('\\');
            }
            text.append(unit);
        }
        return text.toString();
    }
}
