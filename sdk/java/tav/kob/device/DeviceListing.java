package tav.kob.device;

import java.io.IOException;
import java.io.PrintStream;
import tav.kob.base.ExitCode;
import tav.kob.base.Failure;

/** The attached devices, a line each: serial, tab, state; below a line that heads them. */
public final class DeviceListing {
    private DeviceListing() {
    }

    public static void print(PrintStream output) throws Failure, IOException, InterruptedException {
        Adb.Answer listing = Adb.run("devices");
        if (listing.exitCode != 0) {
            throw new Failure(ExitCode.UNEXPECTED, listing.text);
        }
        output.println(listing.text);
    }
}
