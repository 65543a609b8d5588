package tav.kob.content;

import java.io.IOException;
import java.io.UncheckedIOException;
import java.nio.file.FileVisitOption;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.HashSet;
import java.util.Iterator;
import java.util.List;
import java.util.Optional;
import java.util.Set;
import java.util.SortedMap;
import java.util.TreeMap;
import java.util.stream.Stream;
import tav.kob.base.Failure;
import tav.kob.base.FilePaths;
import tav.kob.base.TextEncoding;
import tav.kob.command.Item;

/** The files named behind -C, by the name that each has in the package. */
public final class PackageItems {
    private final SortedMap<String, Path> files = new TreeMap<>();
    private final SortedMap<String, Path> closed = new TreeMap<>();
    private final SortedMap<String, Path> missing = new TreeMap<>();
    private final Set<String> folders = new HashSet<>();
    private final Path output;

    private PackageItems(Path output) {
        this.output = output.toAbsolutePath().normalize();
    }

    public static PackageItems collect(List<Item> items, Path output) throws Failure {
        PackageItems collected = new PackageItems(output);
        for (Item item : items) {
            collected.add(item);
        }
        return collected;
    }

    public SortedMap<String, Path> files() {
        return files;
    }

    public Optional<Path> file(String name) {
        return Optional.ofNullable(files.get(name));
    }

    /** Whether the name is there and yet cannot be read as a file. */
    public boolean isClosed(String name) {
        return closed.containsKey(name) || folders.contains(name);
    }

    /**
     * Kept apart from collecting: a missing movie or icon has an error of its own, which the descriptor
     * decides, and only what remains is a missing file of the command line.
     */
    public void requireAllFound() throws Failure {
        if (!missing.isEmpty()) {
            throw Failure.missingFile(missing.get(missing.firstKey()).toString());
        }
        if (!closed.isEmpty()) {
            throw Content.cannotOpen(closed.get(closed.firstKey()));
        }
    }

    private void add(Item item) throws Failure {
        Path folder = FilePaths.of(item.folder());
        Path relative = FilePaths.of(item.name()).normalize();
        // A root is looked for, not an absolute path: on Windows a path can have the one without being the other.
        if (relative.getRoot() != null || relative.startsWith("..")) {
            throw Failure.usage("the item " + item.name() + " lies outside the folder of its -C");
        }
        Path file = folder.resolve(relative);
        if (Files.isDirectory(file)) {
            folders.add(entryName(relative));
            addFolder(file, relative);
        } else if (Files.exists(file)) {
            addFile(file, relative);
        } else {
            missing.put(entryName(relative), file);
        }
    }

    private void addFolder(Path folder, Path relative) throws Failure {
        try (Stream<Path> tree = Files.walk(folder, FileVisitOption.FOLLOW_LINKS)) {
            for (Iterator<Path> paths = tree.iterator(); paths.hasNext();) {
                Path path = paths.next();
                if (!Files.isDirectory(path)) {
                    Path below = folder.relativize(path);
                    TextEncoding.requireReadable(below.toString());
                    addFile(path, relative.resolve(below).normalize());
                }
            }
        } catch (IOException | UncheckedIOException broken) {
            throw Content.cannotOpen(folder);
        }
    }

    private void addFile(Path file, Path relative) throws Failure {
        // A folder that holds the last package would otherwise pack it into the next one.
        if (file.toAbsolutePath().normalize().equals(output)) {
            return;
        }
        String name = entryName(relative);
        if (!Files.isRegularFile(file) || !Files.isReadable(file)) {
            closed.put(name, file);
            return;
        }
        Path earlier = files.putIfAbsent(name, file);
        if (earlier != null && !isSameFile(earlier, file)) {
            throw Failure.usage("two different files are to be packaged as " + name);
        }
    }

    private static boolean isSameFile(Path first, Path second) throws Failure {
        try {
            return Files.isSameFile(first, second);
        } catch (IOException vanished) {
            throw Content.cannotOpen(second);
        }
    }

    private static String entryName(Path relative) {
        return FilePaths.withForwardSlashes(relative.toString());
    }
}
