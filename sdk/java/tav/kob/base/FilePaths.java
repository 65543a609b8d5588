package tav.kob.base;

import java.nio.file.InvalidPathException;
import java.nio.file.Path;
import java.nio.file.Paths;

/** Turns path texts of the command line into paths. */
public final class FilePaths {
    private FilePaths() {
    }

    /** Callers write either slash on every system. */
    public static String withForwardSlashes(String text) {
        return text.replace('\\', '/');
    }

    public static Path of(String text) throws Failure {
        try {
            return Paths.get(withForwardSlashes(text));
        } catch (InvalidPathException invalid) {
            throw Failure.missingFile(text);
        }
    }
}
