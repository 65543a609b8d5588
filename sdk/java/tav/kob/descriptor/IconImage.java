package tav.kob.descriptor;

/** An image that the descriptor names: its side in pixels and its name in the package. */
public final class IconImage {
    private final int side;
    private final String name;

    IconImage(int side, String name) {
        this.side = side;
        this.name = name;
    }

    public int side() {
        return side;
    }

    public String name() {
        return name;
    }
}
