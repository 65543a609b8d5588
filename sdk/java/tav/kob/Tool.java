package tav.kob;

import java.io.PrintStream;
import java.util.Arrays;
import tav.kob.base.ExitCode;
import tav.kob.base.Failure;
import tav.kob.base.TextEncoding;
import tav.kob.certificate.CertificateArguments;
import tav.kob.certificate.CertificateMaker;
import tav.kob.command.ArgumentCursor;
import tav.kob.command.PackageArguments;
import tav.kob.device.AndroidDevice;
import tav.kob.device.DeviceArguments;
import tav.kob.device.DeviceListing;

/**
 * One run of the tool. Success says nothing that was not asked for: the caller takes any output of a
 * packaging for a warning.
 */
public final class Tool {
    private Tool() {
    }

    public static int run(String[] arguments, PrintStream output) {
        try {
            runCommand(new ArgumentCursor(Arrays.asList(arguments)));
            return ExitCode.SUCCESS;
        } catch (Failure failure) {
            output.println(failure.getMessage());
            return failure.exitCode();
        } catch (TextEncoding.NameNotReadable unreadable) {
            throw unreadable;
        } catch (Exception | OutOfMemoryError | StackOverflowError unexpected) {
            output.println("unexpected error: " + unexpected);
            return ExitCode.UNEXPECTED;
        }
    }

    private static void runCommand(ArgumentCursor arguments) throws Exception {
        if (!arguments.hasNext()) {
            throw Failure.usage("a command is missing");
        }
        String command = arguments.next();
        switch (command) {
            case "-package":
                Packager.run(PackageArguments.readPackage(arguments));
                break;
            case "-prepare":
                Packager.run(PackageArguments.readPrepare(arguments));
                break;
            case "-certificate":
                CertificateMaker.run(CertificateArguments.read(arguments));
                break;
            case "-devices":
                DeviceArguments.readListing(arguments);
                DeviceListing.print(System.out);
                break;
            case "-installApp":
                AndroidDevice.install(DeviceArguments.readInstall(arguments));
                break;
            case "-uninstallApp":
                AndroidDevice.uninstall(DeviceArguments.readApplication(arguments));
                break;
            case "-launchApp":
                AndroidDevice.launch(DeviceArguments.readApplication(arguments));
                break;
            default:
                throw Failure.usage("unknown command " + command);
        }
    }
}
