package tav.kob;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import java.nio.file.Files;
import java.util.List;
import org.junit.Test;

public final class UsageTest extends ProjectTestCase {
    @Test
    public void anUnknownOrMissingCommandIsAUsageError() {
        assertUsage("a command is missing", ToolRun.inProcess(List.of()));
        assertUsage("unknown command -frobnicate", ToolRun.inProcess(List.of("-frobnicate")));
        assertUsage("unknown command -arch", ToolRun.inProcess(List.of("-arch", "armv7", "-storetype", "PKCS12")));
    }

    @Test
    public void aWrongTargetClauseIsAUsageError() throws Exception {
        assertUsage("unknown target apk-x", project.publish("apk-x"));
        assertUsage("-target apk and -target apk-debug exclude each other",
                project.publish("apk", "-target", "apk-debug"));
        assertUsage("-connect and -listen need a debug target", project.publish("apk", "-listen", "7936"));
        assertUsage("-listen 0 is not a port number", project.publish("apk-debug", "-listen", "0"));
        assertUsage("-listen 65536 is not a port number", project.publish("apk-debug", "-listen", "65536"));
        assertUsage("-arch cannot be mips", project.publish("apk", "-arch", "mips"));
        assertUsage("unknown option -fast", project.publish("apk", "-fast"));
    }

    @Test
    public void anIncompleteCommandLineIsAUsageError() throws Exception {
        assertUsage("-target is missing", ToolRun.inProcess(
                PracticeProject.join(List.of("-package"), project.content())));
        assertUsage("-keystore is missing", ToolRun.inProcess(
                PracticeProject.join(List.of("-package", "-target", "apk"), project.content())));
        assertUsage("the output file is missing", ToolRun.inProcess(List.of("-prepare")));
        assertUsage("the descriptor is missing", ToolRun.inProcess(List.of("-prepare", "a.apk")));
        assertUsage("there is nothing to package", ToolRun.inProcess(List.of("-prepare", "a.apk", "a-app.xml")));
        assertUsage("a value is missing behind -C", ToolRun.inProcess(List.of("-prepare", "a.apk", "a-app.xml", "-C")));
    }

    @Test
    public void anItemOutsideItsFolderIsAUsageError() throws Exception {
        project.write("data/x.txt", "x");
        assertUsage("the item ../movie/Game.qmv lies outside the folder of its -C",
                project.publishWith("../movie/Game.qmv"));
    }

    @Test
    public void twoFilesOfOneNameAreAUsageErrorAndOneFileNamedTwiceIsNot() throws Exception {
        project.write("other/icons/icon48.png", "another");
        assertUsage("two different files are to be packaged as icons/icon48.png",
                project.publishWith("-C", project.path("other").toString(), "icons"));
        assertSilentSuccess(project.publishWith("Game.qmv", "icons"));
    }

    @Test
    public void anItemCannotTakeTheNameOfARecord() throws Exception {
        project.write("META-INF/TAV/package.json", "{}");
        assertUsage("the package needs the name assets/META-INF/TAV/package.json for itself",
                project.publishWith("META-INF"));
    }

    @Test
    public void aMissingItemIsNamedWhereTheCallerLooksForIt() throws Exception {
        String output = project.publishWith("data/gone.xml").output;
        int name = output.indexOf("no such file ") + 13;
        int usage = output.indexOf("\nusage:");
        assertEquals(project.path("data/gone.xml").toString(), output.substring(name, usage - 1));
        assertFalse(Files.exists(project.output()));
    }

    private static void assertUsage(String what, ToolRun run) {
        assertEquals(2, run.exitCode);
        assertTrue(run.output, run.output.startsWith(what + "\r\nusage:"));
    }
}
