package tav.kob.device;

import java.util.HashMap;
import java.util.List;
import java.util.Map;
import tav.kob.base.Failure;
import tav.kob.command.ArgumentCursor;

/** Reads the arguments behind -devices, -installApp, -uninstallApp and -launchApp. */
public final class DeviceArguments {
    private static final String PLATFORM = "-platform";
    private static final String ANDROID = "android";

    private DeviceArguments() {
    }

    public static DeviceRequest readListing(ArgumentCursor arguments) throws Failure {
        return read(arguments, List.of(PLATFORM));
    }

    public static DeviceRequest readInstall(ArgumentCursor arguments) throws Failure {
        return read(arguments, List.of(PLATFORM, "-device", "-package"));
    }

    public static DeviceRequest readApplication(ArgumentCursor arguments) throws Failure {
        return read(arguments, List.of(PLATFORM, "-device", "-appid"));
    }

    /** Each of the options is needed, in any order. */
    private static DeviceRequest read(ArgumentCursor arguments, List<String> options) throws Failure {
        Map<String, String> values = new HashMap<>();
        while (arguments.hasNext()) {
            String option = arguments.next();
            if (!options.contains(option)) {
                throw Failure.usage("unknown option " + option);
            }
            values.put(option, arguments.valueOf(option));
        }
        for (String option : options) {
            if (values.getOrDefault(option, "").isEmpty()) {
                throw Failure.usage(option + " is missing");
            }
        }
        if (!values.get(PLATFORM).equals(ANDROID)) {
            throw Failure.usage(PLATFORM + " cannot be " + values.get(PLATFORM));
        }
        return new DeviceRequest(values);
    }
}
