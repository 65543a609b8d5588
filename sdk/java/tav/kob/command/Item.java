package tav.kob.command;

/** A file or folder to package: named relative to the folder of the -C before it. */
public final class Item {
    private final String folder;
    private final String name;

    Item(String folder, String name) {
        this.folder = folder;
        this.name = name;
    }

    public String folder() {
        return folder;
    }

    public String name() {
        return name;
    }
}
