package tav.kob.device;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import tav.kob.apk.AndroidIdentity;
import tav.kob.base.ExitCode;
import tav.kob.base.Failure;
import tav.kob.base.FilePaths;

/**
 * One device, and what can be done with an application on it. A device that cannot be reached at first
 * and one that is lost in the middle end with different codes, and so does one that answers with a
 * refusal.
 */
public final class AndroidDevice {
    private final String serial;

    private AndroidDevice(String serial) {
        this.serial = serial;
    }

    public static void install(DeviceRequest request) throws Failure, IOException, InterruptedException {
        Path file = FilePaths.of(request.packageFile());
        if (!Files.isRegularFile(file)) {
            throw Failure.missingFile(request.packageFile());
        }
        // An application that could not be removed before is replaced.
        new AndroidDevice(request.serial()).perform("Success", "install", "-r", file.toString());
    }

    public static void uninstall(DeviceRequest request) throws Failure, IOException, InterruptedException {
        new AndroidDevice(request.serial()).perform("Success", "uninstall", packageName(request));
    }

    public static void launch(DeviceRequest request) throws Failure, IOException, InterruptedException {
        String component = packageName(request) + "/" + AndroidIdentity.ACTIVITY;
        new AndroidDevice(request.serial()).perform("Starting", "shell", "am", "start", "-n", component);
    }

    /** The name goes into a command line of the device's shell, so nothing but a name may pass. */
    private static String packageName(DeviceRequest request) throws Failure {
        return AndroidIdentity.packageName(request.appId())
                .orElseThrow(() -> Failure.usage("-appid cannot be " + request.appId()));
    }

    /** An old device's shell has no exit code, so what was said must tell of success, too. */
    private void perform(String evidence, String... arguments)
            throws Failure, IOException, InterruptedException {
        requireReachable(ExitCode.DEVICE_UNREACHABLE, "cannot be reached");
        Adb.Answer answer = run(arguments);
        if (isRefusal(answer.text)) {
            throw new Failure(ExitCode.DEVICE_REFUSED, answer.text);
        }
        if (answer.exitCode == 0 && answer.text.contains(evidence)) {
            return;
        }
        requireReachable(ExitCode.DEVICE_LOST, "went away");
        throw new Failure(ExitCode.UNEXPECTED, answer.text);
    }

    private void requireReachable(int exitCode, String what) throws Failure, IOException, InterruptedException {
        String state = run("get-state").text;
        if (!state.equals("device")) {
            throw new Failure(exitCode, "the device " + serial + " " + what + ": " + state);
        }
    }

    private static boolean isRefusal(String text) {
        return text.contains("Failure [") || text.contains("Error:");
    }

    private Adb.Answer run(String... arguments) throws Failure, IOException, InterruptedException {
        List<String> all = new ArrayList<>(List.of("-s", serial));
        all.addAll(Arrays.asList(arguments));
        return Adb.run(all.toArray(new String[0]));
    }
}
