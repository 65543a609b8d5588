package tav.kob.command;

import java.util.Map;
import java.util.Set;
import tav.kob.base.Failure;

/** Reads the arguments behind -package and -prepare. */
public final class PackageArguments {
    private interface Option {
        void read(RawPackageOptions options, ArgumentCursor arguments) throws Failure;
    }

    private static final Set<String> PROCESSORS = Set.of("armv7", "armv8", "x86");
    private static final Set<String> STORE_TYPES = Set.of("PKCS12", "JKS");
    private static final int LAST_PORT = 65535;

    private static final Map<String, Option> CONTENT_OPTIONS = Map.of(
            "-C", (options, arguments) -> options.setItemFolder(arguments.valueOf("-C")),
            "-extdir", (options, arguments) -> options.extensionFolder = arguments.valueOf("-extdir"));

    private static final Map<String, Option> PACKAGE_OPTIONS = Map.ofEntries(
            Map.entry("-target", (options, arguments) -> options.addTarget(arguments.valueOf("-target"))),
            Map.entry("-connect", PackageArguments::readConnect),
            Map.entry("-listen", PackageArguments::readListen),
            Map.entry("-tavDownloadURL",
                    (options, arguments) -> options.downloadUrl = arguments.valueOf("-tavDownloadURL")),
            Map.entry("-arch",
                    (options, arguments) -> options.processor = oneOf("-arch", PROCESSORS, arguments)),
            Map.entry("-provisioning-profile", (options, arguments) ->
                    options.provisioningProfile = arguments.valueOf("-provisioning-profile")),
            Map.entry("-tsa", (options, arguments) -> options.timestampServer = arguments.valueOf("-tsa")),
            Map.entry("-storetype",
                    (options, arguments) -> options.storeType = oneOf("-storetype", STORE_TYPES, arguments)),
            Map.entry("-keystore", (options, arguments) -> options.keystore = arguments.valueOf("-keystore")),
            Map.entry("-storepass",
                    (options, arguments) -> options.storePassword = arguments.valueOf("-storepass")));

    private PackageArguments() {
    }

    public static PackageRequest readPackage(ArgumentCursor arguments) throws Failure {
        RawPackageOptions options = new RawPackageOptions();
        Target androidTarget = null;
        while (arguments.hasNext()) {
            readOne(options, arguments, true);
            androidTarget = options.target == Target.NATIVE ? androidTarget : options.target;
        }
        requireOperands(options);
        require(options.target, "-target");
        requireDebugTarget(options, androidTarget);
        require(options.keystore, "-keystore");
        require(options.storePassword, "-storepass");
        if (options.target.format() == Target.Format.IOS) {
            require(options.provisioningProfile, "-provisioning-profile");
        }
        return new PackageRequest(options);
    }

    public static PackageRequest readPrepare(ArgumentCursor arguments) throws Failure {
        RawPackageOptions options = new RawPackageOptions();
        options.target = Target.APK;
        while (arguments.hasNext()) {
            readOne(options, arguments, false);
        }
        requireOperands(options);
        return new PackageRequest(options);
    }

    private static void readOne(RawPackageOptions options, ArgumentCursor arguments, boolean packaging)
            throws Failure {
        String argument = arguments.next();
        Option option = CONTENT_OPTIONS.get(argument);
        if (option == null && packaging) {
            option = PACKAGE_OPTIONS.get(argument);
        }
        if (option != null) {
            option.read(options, arguments);
        } else if (ArgumentCursor.isOption(argument)) {
            throw Failure.usage("unknown option " + argument);
        } else {
            options.addOperand(argument);
        }
    }

    /** The host may be left out; an option always follows then, which is how the two are told apart. */
    private static void readConnect(RawPackageOptions options, ArgumentCursor arguments) {
        String host = arguments.hasNext() && !arguments.nextIsOption() ? arguments.next() : "";
        options.debugSession = DebugSession.connecting(host);
    }

    private static void readListen(RawPackageOptions options, ArgumentCursor arguments) throws Failure {
        String text = arguments.valueOf("-listen");
        int port = text.matches("\\d{1,5}") ? Integer.parseInt(text) : 0;
        if (port < 1 || port > LAST_PORT) {
            throw Failure.usage("-listen " + text + " is not a port number");
        }
        options.debugSession = DebugSession.listening(port);
    }

    private static String oneOf(String option, Set<String> allowed, ArgumentCursor arguments) throws Failure {
        String value = arguments.valueOf(option);
        if (!allowed.contains(value)) {
            throw Failure.usage(option + " cannot be " + value);
        }
        return value;
    }

    private static void requireOperands(RawPackageOptions options) throws Failure {
        require(options.output, "the output file");
        require(options.descriptor, "the descriptor");
        if (options.items.isEmpty()) {
            throw Failure.usage("there is nothing to package");
        }
    }

    private static void requireDebugTarget(RawPackageOptions options, Target androidTarget) throws Failure {
        boolean debug = options.target.isDebug() || (androidTarget != null && androidTarget.isDebug());
        if (options.debugSession != null && !debug) {
            throw Failure.usage("-connect and -listen need a debug target");
        }
    }

    private static void require(Object value, String name) throws Failure {
        if (value == null) {
            throw Failure.usage(name + " is missing");
        }
    }
}
