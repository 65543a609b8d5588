package tav.kob.command;

import java.util.List;
import java.util.Optional;

/** All that a -package or -prepare command line says, already checked for being complete. */
public final class PackageRequest {
    private final RawPackageOptions options;

    PackageRequest(RawPackageOptions options) {
        this.options = options;
    }

    public Target target() {
        return options.target;
    }

    /** Empty for an intermediate package that is left unsigned. */
    public Optional<SigningOptions> signing() {
        return options.keystore == null ? Optional.empty() : Optional.of(
                new SigningOptions(options.storeType, options.keystore, options.storePassword));
    }

    public Optional<DebugSession> debugSession() {
        return Optional.ofNullable(options.debugSession);
    }

    public Optional<String> downloadUrl() {
        return Optional.ofNullable(options.downloadUrl);
    }

    public Optional<String> processor() {
        return Optional.ofNullable(options.processor);
    }

    public Optional<String> provisioningProfile() {
        return Optional.ofNullable(options.provisioningProfile);
    }

    public Optional<String> timestampServer() {
        return Optional.ofNullable(options.timestampServer);
    }

    public Optional<String> extensionFolder() {
        return Optional.ofNullable(options.extensionFolder);
    }

    public String output() {
        return options.output;
    }

    public String descriptor() {
        return options.descriptor;
    }

    public List<Item> items() {
        return options.items;
    }
}
