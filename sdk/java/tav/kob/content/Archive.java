package tav.kob.content;

import java.util.SortedMap;
import java.util.TreeMap;
import tav.kob.base.Failure;

/** All entries of a package, by name; sorted, so that the same input gives the same file. */
public final class Archive {
    private final SortedMap<String, Content> entries = new TreeMap<>();

    public void add(String name, Content content) throws Failure {
        if (entries.putIfAbsent(name, content) != null) {
            throw Failure.usage("the package needs the name " + name + " for itself");
        }
    }

    public SortedMap<String, Content> entries() {
        return entries;
    }
}
