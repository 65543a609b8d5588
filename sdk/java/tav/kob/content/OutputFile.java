package tav.kob.content;

import java.io.Closeable;
import java.io.File;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.util.ArrayList;
import java.util.List;
import tav.kob.base.ExitCode;
import tav.kob.base.Failure;

/**
 * The destination and the parts beside it in which the package grows. The destination changes only when
 * a finished part is moved onto it, so whatever fails leaves an earlier package as it was.
 */
public final class OutputFile implements Closeable {
    private static final String PART_ENDING = ".part";

    private final Path destination;
    private final Path folder;
    private final String partPrefix;
    private final List<Path> parts = new ArrayList<>();

    public OutputFile(Path destination) throws Failure {
        this.destination = destination;
        this.folder = destination.toAbsolutePath().getParent();
        if (folder == null || !Files.isDirectory(folder) || Files.isDirectory(destination)) {
            throw notWritable(destination.toString());
        }
        this.partPrefix = "." + destination.getFileName() + ".";
        removeAbandonedParts();
    }

    /** Not a temporary file of the library, which nobody but the owner could read after the move. */
    public Path newPart() throws IOException {
        Path part = folder.resolve(partPrefix + ProcessHandle.current().pid() + "-" + parts.size() + PART_ENDING);
        parts.add(part);
        // A caller that cancels ends this process; the hook then tidies up.
        part.toFile().deleteOnExit();
        return Files.createFile(part);
    }

    public void commit(Path part) throws IOException {
        Files.move(part, destination, StandardCopyOption.REPLACE_EXISTING, StandardCopyOption.ATOMIC_MOVE);
    }

    public static Failure notWritable(String detail) {
        return new Failure(ExitCode.DESTINATION_NOT_WRITABLE, "cannot write " + detail);
    }

    @Override
    public void close() throws IOException {
        for (Path part : parts) {
            Files.deleteIfExists(part);
        }
    }

    /** A process that was killed outright could not tidy up; its number in the name tells that it is gone. */
    private void removeAbandonedParts() {
        File[] found = folder.toFile().listFiles((in, name) -> name.startsWith(partPrefix) && isAbandoned(name));
        for (File part : found == null ? new File[0] : found) {
            part.delete();
        }
    }

    private boolean isAbandoned(String name) {
        String rest = name.substring(partPrefix.length());
        return rest.matches("\\d{1,18}-\\d\\.part")
                && ProcessHandle.of(Long.parseLong(rest.substring(0, rest.indexOf('-')))).isEmpty();
    }
}
