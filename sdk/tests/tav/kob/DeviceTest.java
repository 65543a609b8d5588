package tav.kob;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static org.junit.Assume.assumeFalse;

import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.nio.file.attribute.PosixFilePermissions;
import java.util.List;
import java.util.Map;
import org.junit.Before;
import org.junit.Rule;
import org.junit.Test;
import org.junit.rules.TemporaryFolder;

/** The device commands over an adb of the test's own: a script that keeps its arguments and answers. */
public final class DeviceTest {
    private static final String REACHABLE = "get-state) echo device ;;";
    private static final String SERIAL = "emulator-5554";

    @Rule
    public final TemporaryFolder temporary = new TemporaryFolder();

    private Path jar;
    private Path adb;
    private Path calls;
    private Path packageFile;

    @Before
    public void layOutAnSdk() throws Exception {
        assumeFalse("a shell script stands in for adb", System.getProperty("os.name").startsWith("Windows"));
        Path lib = temporary.newFolder("TAV26.0").toPath().resolve("lib");
        Files.createDirectories(lib.resolve("android/bin"));
        jar = Files.copy(ToolRun.kit().resolve("lib/KOB.jar"), lib.resolve("KOB.jar"),
                StandardCopyOption.REPLACE_EXISTING);
        adb = lib.resolve("android/bin/adb");
        calls = temporary.getRoot().toPath().resolve("calls");
        packageFile = Files.writeString(temporary.getRoot().toPath().resolve("My Game.apk"), "a package");
    }

    @Test
    public void theListingIsPrintedWithoutTheNewsOfTheServersStart() throws Exception {
        answer("devices) echo '* daemon not running; starting now at tcp:5037' >&2;"
                + "echo '* daemon started successfully' >&2;"
                + "printf 'List of devices attached\\nemulator-5554\\tdevice\\nA1B2\\toffline\\n\\n' ;;");
        ToolRun run = tool("-devices", "-platform", "android");
        assertEquals("List of devices attached\nemulator-5554\tdevice\nA1B2\toffline\n", run.output);
        assertEquals(0, run.exitCode);
        assertEquals(List.of("devices"), Files.readAllLines(calls));
    }

    @Test
    public void aListingThatFailsIsUnexpected() throws Exception {
        answer("devices) echo 'adb: failed to check server version' >&2; exit 1 ;;");
        assertEnd(5, "adb: failed to check server version\n", tool("-devices", "-platform", "android"));
    }

    @Test
    public void installingAsksForTheStateAndReplacesTheApplication() throws Exception {
        answer(REACHABLE + "install) echo 'Performing Streamed Install'; echo Success ;;");
        assertEnd(0, "", install());
        assertEquals(List.of("-s emulator-5554 get-state", "-s emulator-5554 install -r " + packageFile),
                Files.readAllLines(calls));
    }

    @Test
    public void uninstallingNamesThePackage() throws Exception {
        answer(REACHABLE + "uninstall) echo Success ;;");
        assertEnd(0, "", application("-uninstallApp", "com.example.game"));
        assertEquals("-s emulator-5554 uninstall com.example.game", Files.readAllLines(calls).get(1));
    }

    @Test
    public void launchingStartsTheActivityOfThePackage() throws Exception {
        answer(REACHABLE + "shell) echo 'Starting: Intent { }' ;;");
        assertEnd(0, "", application("-launchApp", "com.example.game"));
        assertEquals("-s emulator-5554 shell am start -n com.example.game/tav.practice.PlayerActivity",
                Files.readAllLines(calls).get(1));
    }

    @Test
    public void anIdWithoutADotNamesThePackageThatWasMadeWithIt() throws Exception {
        answer(REACHABLE + "uninstall) echo Success ;;");
        assertEnd(0, "", application("-uninstallApp", "Game"));
        assertEquals("-s emulator-5554 uninstall tav.Game", Files.readAllLines(calls).get(1));
    }

    @Test
    public void code15WhenTheDeviceCannotBeReached() throws Exception {
        answer("get-state) echo \"error: device 'emulator-5554' not found\" >&2; exit 1 ;;");
        String said = "the device emulator-5554 cannot be reached: error: device 'emulator-5554' not found\n";
        assertEnd(15, said, install());
        assertEnd(15, said, application("-uninstallApp", "com.example.game"));
        assertEnd(15, said, application("-launchApp", "com.example.game"));
        assertEquals(3, Files.readAllLines(calls).size());
    }

    @Test
    public void code15WhenTheDeviceIsOffline() throws Exception {
        answer("get-state) echo offline ;;");
        assertEnd(15, "the device emulator-5554 cannot be reached: offline\n", install());
    }

    @Test
    public void code12WhenTheDeviceGoesAwayInTheMiddle() throws Exception {
        answer("get-state) if [ -e \"$0.gone\" ]; then echo 'error: no such device' >&2; exit 1; fi;"
                + "echo device ;;"
                + "install|shell) touch \"$0.gone\"; echo 'adb: failed to read' >&2; exit 1 ;;");
        String said = "the device emulator-5554 went away: error: no such device\n";
        assertEnd(12, said, install());
        Files.delete(adb.resolveSibling("adb.gone"));
        assertEnd(12, said, application("-launchApp", "com.example.game"));
    }

    @Test
    public void adbIsNotLeftWaitingForADeviceThatIsGone() throws Exception {
        answer("get-state) if [ -e \"$0.gone\" ]; then echo 'error: no such device' >&2; exit 1; fi;"
                + "echo device ;;"
                + "uninstall) touch \"$0.gone\"; echo '- waiting for device -' >&2; exec sleep 1000 ;;");
        assertEnd(12, "the device emulator-5554 went away: error: no such device\n",
                application("-uninstallApp", "com.example.game"));
    }

    @Test
    public void code14WhenTheDeviceRefuses() throws Exception {
        answer(REACHABLE
                + "install) echo 'adb: failed to install x: Failure [INSTALL_FAILED_OLDER_SDK]' >&2; exit 1 ;;"
                + "uninstall) echo 'Failure [DELETE_FAILED_INTERNAL_ERROR]'; exit 1 ;;"
                + "shell) echo 'Starting: Intent { }'; echo 'Error: Activity does not exist.' >&2; exit 1 ;;");
        assertEnd(14, "adb: failed to install x: Failure [INSTALL_FAILED_OLDER_SDK]\n", install());
        assertEnd(14, "Failure [DELETE_FAILED_INTERNAL_ERROR]\n",
                application("-uninstallApp", "com.example.game"));
        assertEnd(14, "Starting: Intent { }\nError: Activity does not exist.\n",
                application("-launchApp", "com.example.game"));
    }

    @Test
    public void aRefusalOfAnOldDeviceCountsThoughItsShellHasNoExitCode() throws Exception {
        answer(REACHABLE + "install) echo 'Failure [INSTALL_FAILED_OLDER_SDK]' ;;");
        assertEquals(14, install().exitCode);
    }

    @Test
    public void silenceIsNoSuccess() throws Exception {
        answer(REACHABLE + "install) ;;");
        assertEquals(5, install().exitCode);
    }

    @Test
    public void code5WithItsWordsWhenAdbRefuses() throws Exception {
        answer(REACHABLE + "install) echo \"filename doesn't end .apk\" >&2; exit 1 ;;");
        assertEnd(5, "filename doesn't end .apk\n", install());
    }

    @Test
    public void code5WhenThereIsNoAdb() throws Exception {
        ToolRun run = tool("-devices", "-platform", "android");
        assertTrue(run.output, run.output.startsWith("cannot start adb: "));
        assertEquals(5, run.exitCode);
    }

    @Test
    public void aMissingPackageIsNamedAndNoDeviceIsAsked() throws Exception {
        answer(REACHABLE);
        Files.delete(packageFile);
        assertUsage("no such file " + packageFile, install());
        assertTrue(Files.notExists(calls));
    }

    @Test
    public void wrongArgumentsAreUsageErrors() {
        assertUsage("-platform is missing", inProcess("-devices"));
        assertUsage("-platform cannot be ios", inProcess("-devices", "-platform", "ios"));
        assertUsage("unknown option -device", inProcess("-devices", "-platform", "android", "-device", SERIAL));
        assertUsage("a value is missing behind -package",
                inProcess("-installApp", "-platform", "android", "-device", SERIAL, "-package"));
        assertUsage("-device is missing", inProcess("-installApp", "-platform", "android", "-package", "x.apk"));
        assertUsage("-appid is missing", inProcess("-launchApp", "-platform", "android", "-device", SERIAL));
        assertUsage("-device is missing", inProcess("-launchApp", "-platform", "android", "-device", "",
                "-appid", "com.example.game"));
        assertUsage("-appid cannot be com.example; reboot", inProcess("-uninstallApp", "-platform", "android",
                "-device", SERIAL, "-appid", "com.example; reboot"));
    }

    /** Lays out an adb that answers by the given cases of its command. */
    private void answer(String cases) throws Exception {
        Files.writeString(adb, "#!/bin/sh\necho \"$@\" >> \"$CALLS\"\n[ \"$1\" = -s ] && shift 2\n"
                + "case \"$1\" in\n" + cases + "\nesac\n");
        Files.setPosixFilePermissions(adb, PosixFilePermissions.fromString("rwxr-xr-x"));
    }

    private ToolRun install() throws Exception {
        return tool("-installApp", "-platform", "android", "-device", SERIAL,
                "-package", packageFile.toString());
    }

    private ToolRun application(String command, String id) throws Exception {
        return tool(command, "-platform", "android", "-device", SERIAL, "-appid", id);
    }

    private ToolRun tool(String... arguments) throws Exception {
        List<String> command = PracticeProject.join(
                List.of(ToolRun.java(), "-jar", jar.toString()), List.of(arguments));
        return ToolRun.program(temporary.getRoot().toPath(), Map.of("CALLS", calls.toString()), command);
    }

    private static ToolRun inProcess(String... arguments) {
        return ToolRun.inProcess(List.of(arguments));
    }

    private static void assertEnd(int exitCode, String output, ToolRun run) {
        assertEquals(output, run.output);
        assertEquals(exitCode, run.exitCode);
    }

    private static void assertUsage(String what, ToolRun run) {
        assertEquals(2, run.exitCode);
        assertTrue(run.output, run.output.startsWith(what + "\r\nusage:"));
    }
}
