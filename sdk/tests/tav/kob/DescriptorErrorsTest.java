package tav.kob;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import org.junit.Test;

public final class DescriptorErrorsTest extends ProjectTestCase {
    private static final String CLOSE = "</initialWindow>";

    @Test
    public void e100WhenTheTextIsNotXml() throws Exception {
        assertRejected(100, project.change("</application>", "").publish("apk"));
        project.write("Game-app.xml", "");
        assertRejected(100, project.publish("apk"));
        project.write("Game-app.xml",
                "<!DOCTYPE application [<!ENTITY x SYSTEM 'file:///etc/hostname'>]><application/>");
        assertRejected(100, project.publish("apk"));
    }

    @Test
    public void e100WhenTheTextIsNotInItsEncoding() throws Exception {
        Files.write(project.path("Game-app.xml"),
                PracticeProject.DESCRIPTOR.replace("My", "M\u00e4").getBytes(StandardCharsets.ISO_8859_1));
        assertRejected(100, project.publish("apk"));
    }

    @Test
    public void e101WhenTheNamespaceIsMissing() throws Exception {
        assertRejected(101, project.change(" xmlns=\"" + PracticeProject.NAMESPACE + "26.0\"", "").publish("apk"));
    }

    @Test
    public void e102WhenTheNamespaceIsUnknown() throws Exception {
        String known = PracticeProject.NAMESPACE + "26.0";
        assertRejected(102, project.change(known, PracticeProject.NAMESPACE + "26.1").publish("apk"));
        assertRejected(102, project.change("26.1", "27.0").publish("apk"));
        assertRejected(102, project.change("27.0", "1.0.M5").publish("apk"));
        assertRejected(102, project.change("http://ns", "http://other").publish("apk"));
    }

    @Test
    public void anOlderNamespaceIsKnownToo() throws Exception {
        Files.write(project.path("Game.qmv"), new byte[] {'Q', 'M', 'V', 14});
        assertSilentSuccess(project.change("26.0", "14.2").publish("apk"));
    }

    @Test
    public void e103WhenAnElementOrAttributeIsUnexpected() throws Exception {
        ToolRun element = project.change("<icon>", "<foo/><icon>").publish("apk");
        assertRejected(103, element);
        assertTrue(element.output, element.output.endsWith("error 103: application.foo" + System.lineSeparator()));
        assertRejected(103, project.change("<foo/>", "<icon size=\"1\"/>").publish("apk"));
        assertRejected(103, project.change("<icon size=\"1\"/>", "<icon><image48x49>a</image48x49></icon>")
                .publish("apk"));
        project.write("Game-app.xml", "<other xmlns=\"" + PracticeProject.NAMESPACE + "26.0\"/>");
        assertRejected(103, project.publish("apk"));
    }

    @Test
    public void anElementAddedWithoutANamespaceIsOneOfOurs() throws Exception {
        assertSilentSuccess(project.change("<icon>", "<versionLabel xmlns=\"\">1</versionLabel><icon>").publish("apk"));
        assertRejected(103, project.change("xmlns=\"\"", "xmlns=\"urn:other\"").publish("apk"));
    }

    @Test
    public void e104WhenARequiredElementIsMissing() throws Exception {
        for (String element : new String[] {"<id>com.example.game</id>", "<versionNumber>1.2.3</versionNumber>",
            "<filename>Game</filename>", "<content>Game.qmv</content>"}) {
            assertRejected(104, project.change(element, "").publish("apk"));
            project.write("Game-app.xml", PracticeProject.DESCRIPTOR);
        }
    }

    @Test
    public void e105NamesTheElementBeforeTheWordContains() throws Exception {
        ToolRun run = project.change("com.example.game", "com.example.my-game").publish("apk");
        assertRejected(105, run);
        int number = run.output.indexOf("error 105:");
        int word = run.output.indexOf("contains");
        assertEquals("application.id", run.output.substring(number + 11, word - 1));
    }

    @Test
    public void e105ForEveryValueThatIsNotAllowed() throws Exception {
        assertInvalid("com.example.game", "");
        assertInvalid("com.example.game", "a".repeat(213));
        assertInvalid("com.example.game", "com.3d");
        assertInvalid("1.2.3", "1.2.x");
        assertInvalid("1.2.3", "1.2.1000");
        assertInvalid("<filename>Game", "<filename>a/b");
        assertInvalid(CLOSE, "<visible>yes</visible>" + CLOSE);
        assertInvalid(CLOSE, "<renderMode>fast</renderMode>" + CLOSE);
        assertInvalid(CLOSE, "<minSize>100</minSize>" + CLOSE);
        assertInvalid("</application>", "<supportedProfiles>desktop tablet</supportedProfiles></application>");
        assertInvalid("</application>", "<android><manifestAdditions><![CDATA[<manifest>]]></manifestAdditions>"
                + "</android></application>");
    }

    @Test
    public void e106WhenATransparentWindowHasTheSystemsChrome() throws Exception {
        assertRejected(106, project.change(CLOSE, "<transparent>true</transparent>" + CLOSE).publish("apk"));
        assertSilentSuccess(project.change(CLOSE, "<systemChrome>none</systemChrome>" + CLOSE).publish("apk"));
    }

    @Test
    public void e107WhenTheSmallestSizeExceedsTheLargest() throws Exception {
        project.change(CLOSE, "<minSize>10 30</minSize><maxSize>20 20</maxSize>" + CLOSE);
        assertRejected(107, project.publish("apk"));
        assertSilentSuccess(project.change("10 30", "20 20").publish("apk"));
    }

    @Test
    public void theSampleOfTheKitIsAccepted() throws Exception {
        String sample = Files.readString(ToolRun.kit().resolve("samples/descriptor-sample.xml"));
        project.write("Game-app.xml", sample.replace("Sample.qmv", "Game.qmv"));
        assertSilentSuccess(project.publish("apk-captive-runtime"));
    }

    private void assertInvalid(String from, String to) throws Exception {
        assertRejected(105, project.change(from, to).publish("apk"));
        project.write("Game-app.xml", PracticeProject.DESCRIPTOR);
    }
}
