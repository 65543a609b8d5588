package tav.kob;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import org.junit.Before;
import org.junit.Rule;
import org.junit.rules.TemporaryFolder;

/** Gives each test a fresh project. */
public abstract class ProjectTestCase {
    @Rule
    public final TemporaryFolder temporary = new TemporaryFolder();

    PracticeProject project;

    @Before
    public void createProject() throws Exception {
        project = new PracticeProject(temporary.newFolder("movie").toPath());
    }

    static void assertSilentSuccess(ToolRun run) {
        assertEquals("", run.output);
        assertEquals(0, run.exitCode);
    }

    /** The caller only sees a number that does not stand at the very start. */
    static void assertRejected(int number, ToolRun run) {
        assertTrue(run.output, run.output.indexOf("error " + number + ": ") > 0);
        assertEquals(1, run.exitCode);
    }
}
