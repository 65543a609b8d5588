package tav.kob;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;

import com.android.apksig.ApkVerifier;
import java.io.RandomAccessFile;
import java.nio.file.Files;
import java.util.List;
import org.junit.Test;

public final class AndroidPackageTest extends ProjectTestCase {
    @Test
    public void isSignedByTheFirstThreeSchemes() throws Exception {
        assertSilentSuccess(project.publish("apk-captive-runtime", "-arch", "armv7"));
        ApkVerifier.Result result = new ApkVerifier.Builder(project.output().toFile()).build().verify();
        assertTrue(result.getErrors().toString(), result.isVerified());
        assertTrue(result.isVerifiedUsingV1Scheme());
        assertTrue(result.isVerifiedUsingV2Scheme());
        assertTrue(result.isVerifiedUsingV3Scheme());
        assertEquals(List.of(), result.getWarnings());
    }

    @Test
    public void isAcceptedByAndroidsOwnPrograms() throws Exception {
        project.write("data/odd.png", "7 bytes");
        assertSilentSuccess(project.publishWith("data/odd.png"));
        String apk = project.output().toString();
        assertEquals(0, ToolRun.program("zipalign", "-c", "4", apk).exitCode);
        ToolRun verified = ToolRun.program("apksigner", "verify", "--verbose", apk);
        assertTrue(verified.output, verified.output.contains("v3 scheme (APK Signature Scheme v3): true"));
        assertEquals(0, verified.exitCode);
        assertEquals(0, ToolRun.program("aapt", "dump", "--values", "resources", apk).exitCode);
    }

    @Test
    public void tellsIdVersionAndNameInItsManifest() throws Exception {
        project.publish("apk-captive-runtime");
        String badging = aapt("badging");
        assertTrue(badging, badging.contains(
                "package: name='com.example.game' versionCode='1002003' versionName='1.2.3'"));
        assertTrue(badging, badging.contains("application-label:'My Game'"));
        assertTrue(badging, badging.contains("launchable-activity: name='tav.practice.PlayerActivity'"));
        assertFalse(badging, badging.contains("application-debuggable"));
    }

    @Test
    public void givesAnIdWithoutADotAPrefix() throws Exception {
        project.change("com.example.game", "noName");
        project.publish("apk");
        assertTrue(aapt("badging").contains("package: name='tav.noName'"));
    }

    @Test
    public void prefersTheEnglishName() throws Exception {
        project.change("My Game",
                "<text xml:lang=\"de\">Spiel</text><text xml:lang=\"en\">Play &amp; \u65e5\u672c</text>");
        project.publish("apk");
        assertTrue(aapt("badging").contains("application-label:'Play & \u65e5\u672c'"));
    }

    @Test
    public void takesTheFirstNameWithoutAnEnglishOne() throws Exception {
        project.change("My Game", "<text xml:lang=\"de\">Spiel</text><text xml:lang=\"fr\">Jeu</text>");
        project.publish("apk");
        assertTrue(aapt("badging").contains("application-label:'Spiel'"));
    }

    @Test
    public void asksForEachPermissionOfTheManifestAdditions() throws Exception {
        project.change("</application>", "<android><manifestAdditions><![CDATA[<manifest>\n"
                + "<uses-permission android:name=\"android.permission.INTERNET\"/>\n"
                + "<uses-permission android:name=\"android.permission.CAMERA\" />\n"
                + "</manifest>]]></manifestAdditions></android></application>");
        project.publish("apk");
        assertEquals("package: com.example.game\n"
                + "uses-permission: name='android.permission.INTERNET'\n"
                + "uses-permission: name='android.permission.CAMERA'\n", aapt("permissions"));
    }

    @Test
    public void offersItsIconsByDensity() throws Exception {
        project.change("</icon>", "<image192x192>icons/icon192.png</image192x192>"
                + "<image36x36>icons/icon36.png</image36x36><image16x16>icons/icon16.png</image16x16></icon>");
        for (int side : new int[] {16, 36, 192}) {
            project.writeIcon(side);
        }
        assertSilentSuccess(project.publishWith("icons/icon16.png", "icons/icon36.png", "icons/icon192.png"));
        String badging = aapt("badging");
        assertTrue(badging, badging.contains("application-icon-120:'res/drawable-ldpi-v4/icon.png'"));
        assertTrue(badging, badging.contains("application-icon-640:'res/drawable-xxxhdpi-v4/icon.png'"));
        assertTrue(badging, badging.contains("densities: '120' '160' '640'"));
        assertTrue(project.entryNames().contains("assets/icons/icon16.png"));
    }

    @Test
    public void needsNoIcon() throws Exception {
        project.change("<image48x48>icons/icon48.png</image48x48>", "");
        assertSilentSuccess(project.publish("apk"));
        assertTrue(aapt("badging").contains("application: label='My Game' icon=''"));
        assertFalse(String.join(" ", project.entryNames()).contains("res/drawable"));
    }

    @Test
    public void carriesMovieItemsAndDescriptorAsAssets() throws Exception {
        project.write("data/levels.xml", "<levels/>");
        assertSilentSuccess(project.publishWith("-C", project.path("").toString(), "data/levels.xml"));
        assertEquals("QMV\u001a and the rest of a movie", project.entry("assets/Game.qmv"));
        assertEquals("<levels/>", project.entry("assets/data/levels.xml"));
        assertEquals(PracticeProject.DESCRIPTOR, project.entry("assets/META-INF/TAV/application.xml"));
    }

    @Test
    public void packagesAFolderWithAllThatLiesInIt() throws Exception {
        project.write("other/data/a b.txt", "blank");
        project.write("other/data/Tr\u00e4ume/\u65e5\u672c.txt", "deep");
        assertSilentSuccess(project.publishWith("-C", project.path("other").toString(), "data"));
        assertEquals("blank", project.entry("assets/data/a b.txt"));
        assertEquals("deep", project.entry("assets/data/Tr\u00e4ume/\u65e5\u672c.txt"));
        assertEquals(0, ToolRun.program("apksigner", "verify", project.output().toString()).exitCode);
    }

    @Test
    public void leavesTheFormerPackageOutOfTheNextOne() throws Exception {
        project.publishWith(".");
        List<String> first = project.entryNames();
        project.publishWith(".");
        assertEquals(first, project.entryNames());
        assertFalse(first.contains("assets/Game.apk"));
    }

    @Test
    public void acceptsEitherSlash() throws Exception {
        project.write("data/levels.xml", "<levels/>");
        assertSilentSuccess(project.publishWith(
                "-C", project.path("").toString().replace('/', '\\'), "data\\levels.xml"));
        assertEquals("<levels/>", project.entry("assets/data/levels.xml"));
    }

    @Test
    public void carriesNativeExtensionsAndNamesThem() throws Exception {
        project.change("</application>", "<extensions><extensionID>ext.one</extensionID></extensions></application>");
        project.write("cache/one.zux", "code");
        project.write("cache/notes.txt", "not an extension");
        assertSilentSuccess(project.publishWith("-extdir", project.path("cache") + "/"));
        assertEquals("code", project.entry("assets/META-INF/TAV/extensions/one.zux"));
        assertTrue(project.entry("assets/META-INF/TAV/package.json").contains("\"extensionIDs\": [\"ext.one\"]"));
        assertFalse(String.join(" ", project.entryNames()).contains("notes.txt"));
    }

    @Test
    public void recordsTargetProcessorAndDownloadPlace() throws Exception {
        assertSilentSuccess(project.publish("apk-emulator",
                "-tavDownloadURL", "http://get.example/\"tav\"", "-arch", "x86"));
        String record = project.entry("assets/META-INF/TAV/package.json");
        assertTrue(record, record.contains("\"target\": \"apk-emulator\""));
        assertTrue(record, record.contains("\"arch\": \"x86\""));
        assertTrue(record, record.contains("\"tavDownloadURL\": \"http://get.example/\\\"tav\\\"\""));
        assertTrue(manifest().contains("Raw: \"x86\""));
    }

    @Test
    public void isDebuggableAndKnowsItsHostWhenItConnects() throws Exception {
        assertSilentSuccess(project.publish("apk-debug", "-connect", "10.0.0.2", "-arch", "armv8"));
        assertTrue(aapt("badging").contains("application-debuggable"));
        assertTrue(project.entry("assets/META-INF/TAV/debug.json").contains("\"connect\": [\"10.0.0.2\"]"));
    }

    @Test
    public void findsItsOwnAddressesWhenNoHostIsNamed() throws Exception {
        assertSilentSuccess(project.publish("apk-debug", "-connect", "-arch", "armv7"));
        String record = project.entry("assets/META-INF/TAV/debug.json");
        assertTrue(record, record.matches("(?s).*\"connect\": \\[(\"[0-9.]+\"(, )?)*\\].*"));
        assertFalse(record, record.contains("127.0.0.1"));
    }

    @Test
    public void knowsItsPortWhenItListens() throws Exception {
        assertSilentSuccess(project.publish("apk-debug", "-listen", "7936"));
        assertTrue(project.entry("assets/META-INF/TAV/debug.json").contains("\"listen\": 7936"));
    }

    @Test
    public void isTheSameInEveryRun() throws Exception {
        project.publish("apk-captive-runtime");
        byte[] first = Files.readAllBytes(project.output());
        project.publish("apk-captive-runtime");
        assertArrayEquals(first, Files.readAllBytes(project.output()));
    }

    @Test
    public void isLeftUnsignedWhenOnlyPrepared() throws Exception {
        assertSilentSuccess(ToolRun.inProcess(PracticeProject.join(List.of("-prepare"), project.content())));
        assertTrue(aapt("badging").contains("package: name='com.example.game'"));
        assertFalse(new ApkVerifier.Builder(project.output().toFile()).build().verify().isVerified());
        assertEquals(List.of("Game-app.xml", "Game.apk", "Game.qmv", "icons"), project.filesInFolder());
    }

    @Test
    public void isSignedFromAJksStoreToo() throws Exception {
        String store = Keystores.make(project.path("old.jks"), "JKS", "-keyalg", "RSA").toString();
        assertSilentSuccess(ToolRun.inProcess(PracticeProject.join(List.of("-package", "-target", "apk",
                "-storetype", "JKS", "-keystore", store, "-storepass", Keystores.PASSWORD), project.content())));
        assertTrue(new ApkVerifier.Builder(project.output().toFile()).build().verify().isVerified());
    }

    @Test
    public void growsWithoutHoldingAMovieInMemory() throws Exception {
        try (RandomAccessFile movie = new RandomAccessFile(project.path("Game.qmv").toFile(), "rw")) {
            movie.setLength(96L << 20);
        }
        assertSilentSuccess(ToolRun.asProcess("C", project.path(""),
                PracticeProject.join(PracticeProject.signed(Keystores.good(), "apk"), project.content()), "-Xmx32m"));
        assertTrue(Files.size(project.output()) > 96L << 20);
        assertEquals(0, ToolRun.program("zipalign", "-c", "4", project.output().toString()).exitCode);
    }

    private String aapt(String what) throws Exception {
        ToolRun run = ToolRun.program("aapt", "dump", what, project.output().toString());
        assertEquals(run.output, 0, run.exitCode);
        return run.output;
    }

    private String manifest() throws Exception {
        return ToolRun.program("aapt", "dump", "xmltree", project.output().toString(), "AndroidManifest.xml").output;
    }
}
