package tav.kob;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import java.nio.file.Files;
import java.nio.file.Paths;
import java.util.List;
import org.junit.Test;

public final class ContentErrorsTest extends ProjectTestCase {
    @Test
    public void e200WhenAnIconCannotBeOpened() throws Exception {
        Files.delete(project.path("icons/icon48.png"));
        Files.createDirectory(project.path("icons/icon48.png"));
        assertRejected(200, project.publish("apk"));
    }

    @Test
    public void e201WhenAnIconHasAnotherSize() throws Exception {
        byte[] tooWide = Png.square(48);
        tooWide[19] = 49;
        Files.write(project.path("icons/icon48.png"), tooWide);
        assertRejected(201, project.publish("apk"));
        Files.write(project.path("icons/icon48.png"), Png.square(47));
        assertRejected(201, project.publish("apk"));
    }

    @Test
    public void e202WhenAnIconIsNotAPng() throws Exception {
        project.write("icons/icon48.png", "GIF89a and what follows it in such a file");
        assertRejected(202, project.publish("apk"));
        project.write("icons/icon48.png", "");
        assertRejected(202, project.publish("apk"));
    }

    @Test
    public void e303WhenAnIconIsNotPackagedOrNotThere() throws Exception {
        project.change("icons/icon48.png", "icons/other.png");
        assertRejected(303, project.publish("apk"));
        assertRejected(303, project.publishWith("icons/other.png"));
    }

    @Test
    public void anIconPathWithABlankMatchesTheDecodedItem() throws Exception {
        Files.move(project.path("icons/icon48.png"), project.path("icons/my icon.png"));
        project.change("icons/icon48.png", "icons/my%20icon.png");
        assertSilentSuccess(ToolRun.inProcess(List.of("-prepare", project.output().toString(),
                project.path("Game-app.xml").toString(), "-C", project.path("").toString(),
                "Game.qmv", "icons/my icon.png")));
    }

    @Test
    public void theIconsOfFileTypesAreCheckedToo() throws Exception {
        project.change("</application>", "<fileTypes><fileType><name>n</name><extension>e</extension>"
                + "<image16x16>icons/icon48.png</image16x16></fileType></fileTypes></application>");
        assertRejected(201, project.publish("apk"));
    }

    @Test
    public void e300WhenAFileInAFolderCannotBeOpened() throws Exception {
        project.write("data/good.txt", "good");
        Files.createSymbolicLink(project.path("data/broken"), Paths.get("nowhere"));
        assertRejected(300, project.publishWith("data"));
    }

    @Test
    public void e300WhenTheExtensionsCannotBeOpened() throws Exception {
        assertRejected(300, project.publishWith("-extdir", project.path("nowhere").toString()));
        Files.createDirectories(project.path("cache/folder.zux"));
        assertRejected(300, project.publishWith("-extdir", project.path("cache").toString()));
    }

    @Test
    public void e301WhenTheDescriptorIsMissing() throws Exception {
        Files.delete(project.path("Game-app.xml"));
        assertRejected(301, project.publish("apk"));
        Files.createDirectory(project.path("Game-app.xml"));
        assertRejected(301, project.publish("apk"));
    }

    @Test
    public void e302WhenTheContentIsNotThePackagedMovie() throws Exception {
        assertRejected(302, project.change("Game.qmv", "Other.qmv").publish("apk"));
        project.change("Other.qmv", "Game.qmv");
        Files.delete(project.path("Game.qmv"));
        assertRejected(302, project.publish("apk"));
    }

    @Test
    public void aContentWithABlankMatchesTheDecodedMovie() throws Exception {
        Files.move(project.path("Game.qmv"), project.path("My Game.qmv"));
        project.change("Game.qmv", "My&#37;20Game.qmv").change("<icon>", "").change("</icon>", "")
                .change("<image48x48>icons/icon48.png</image48x48>", "");
        assertSilentSuccess(ToolRun.inProcess(List.of("-prepare", project.output().toString(),
                project.path("Game-app.xml").toString(), "-C", project.path("").toString(), "My Game.qmv")));
    }

    @Test
    public void e304WhenTheMovieIsNotOne() throws Exception {
        project.write("Game.qmv", "SWAP");
        assertRejected(304, project.publish("apk"));
        project.write("Game.qmv", "QMV");
        assertRejected(304, project.publish("apk"));
    }

    @Test
    public void e305WhenTheMovieNeedsANewerRuntime() throws Exception {
        Files.write(project.path("Game.qmv"), new byte[] {'Q', 'M', 'V', 27});
        assertRejected(305, project.publish("apk"));
        Files.write(project.path("Game.qmv"), new byte[] {'Q', 'M', 'V', (byte) 200});
        assertRejected(305, project.publish("apk"));
    }

    @Test
    public void aFailureLeavesTheFormerPackageAndNothingElse() throws Exception {
        assertSilentSuccess(project.publish("apk"));
        byte[] former = Files.readAllBytes(project.output());
        project.write("Game.qmv", "SWAP");
        assertRejected(304, project.publish("apk"));
        assertArrayEquals(former, Files.readAllBytes(project.output()));
        assertEquals(List.of("Game-app.xml", "Game.apk", "Game.qmv", "icons"), project.filesInFolder());
    }
}
