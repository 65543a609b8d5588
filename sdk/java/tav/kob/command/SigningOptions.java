package tav.kob.command;

/** Where the key for signing lies. */
public final class SigningOptions {
    private final String storeType;
    private final String keystore;
    private final String password;

    SigningOptions(String storeType, String keystore, String password) {
        this.storeType = storeType;
        this.keystore = keystore;
        this.password = password;
    }

    public String storeType() {
        return storeType;
    }

    public String keystore() {
        return keystore;
    }

    public String password() {
        return password;
    }
}
