package tav.kob;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertTrue;

import java.io.IOException;
import java.io.InputStream;
import java.util.List;
import java.util.jar.JarEntry;
import java.util.jar.JarFile;
import org.junit.Test;

public final class OtherPackagesTest extends ProjectTestCase {
    @Test
    public void anIosPackageIsASignedApplicationBundle() throws Exception {
        project.change("My Game", "You &amp; I");
        project.write("dev.mobileprovision", "profile");
        assertSilentSuccess(project.publish("ipa-app-store", "-provisioning-profile",
                project.path("dev.mobileprovision").toString()));
        assertEquals("profile", project.entry("Payload/Game.app/embedded.mobileprovision"));
        assertTrue(project.entry("Payload/Game.app/Info.plist").contains("<string>You &amp; I</string>"));
        assertTrue(project.entry("Payload/Game.app/Info.plist").contains("<string>com.example.game</string>"));
        assertSigned("Payload/Game.app/Game.qmv");
    }

    @Test
    public void everyIosTargetIsKnown() throws Exception {
        String profile = project.write("dev.mobileprovision", "profile").toString();
        assertSilentSuccess(project.publish("ipa-test", "-provisioning-profile", profile));
        assertSilentSuccess(project.publish("ipa-ad-hoc", "-provisioning-profile", profile));
        assertSilentSuccess(project.publish("ipa-debug", "-connect", "-provisioning-profile", profile));
        assertTrue(project.entry("Payload/Game.app/META-INF/TAV/debug.json").contains("connect"));
    }

    @Test
    public void anIosPackageNeedsItsProfile() throws Exception {
        assertEquals(2, project.publish("ipa-test").exitCode);
        ToolRun run = project.publish("ipa-test", "-provisioning-profile", "/no/where.mobileprovision");
        assertEquals(2, run.exitCode);
        assertTrue(run.output, run.output.startsWith("no such file /no/where.mobileprovision\r\nusage:"));
    }

    @Test
    public void aNativeTargetTakesThePlaceOfTheAndroidOneBeforeIt() throws Exception {
        List<String> options = PracticeProject.signed(
                Keystores.good(), "apk-debug", "-listen", "7936", "-arch", "armv7");
        options.addAll(List.of("-target", "native"));
        assertSilentSuccess(ToolRun.inProcess(PracticeProject.join(options, project.content())));
        assertTrue(project.entry("Game/META-INF/TAV/package.json").contains("\"target\": \"native\""));
        assertTrue(project.entry("Game/META-INF/TAV/debug.json").contains("7936"));
        assertSigned("Game/Game.qmv");
    }

    private void assertSigned(String name) throws IOException {
        try (JarFile jar = new JarFile(project.output().toFile(), true)) {
            JarEntry entry = jar.getJarEntry(name);
            // The signers of an entry are known once its last byte has been read and checked.
            try (InputStream input = jar.getInputStream(entry)) {
                input.readAllBytes();
            }
            assertNotNull(name, entry.getCodeSigners());
        }
    }
}
