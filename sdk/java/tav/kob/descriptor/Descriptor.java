package tav.kob.descriptor;

import java.util.ArrayList;
import java.util.Collection;
import java.util.List;
import java.util.stream.Collectors;
import org.w3c.dom.Element;
import tav.kob.base.Failure;

/** The values of a checked descriptor. */
public final class Descriptor {
    private final String subject;
    private final int level;
    private final Element root;
    private final Collection<String> permissions;

    Descriptor(String subject, int level, Element root) throws Failure {
        this.subject = subject;
        this.level = level;
        this.root = root;
        this.permissions = ManifestAdditions.permissions(root, subject);
    }

    /** The name under which messages speak of this descriptor. */
    public String subject() {
        return subject;
    }

    /** The major number of the runtime level in the namespace. */
    public int level() {
        return level;
    }

    public String namespace() {
        return root.getNamespaceURI();
    }

    public String id() {
        return Elements.text(root, "id");
    }

    public String filename() {
        return Elements.text(root, "filename");
    }

    /** What the user reads below the icon. */
    public String label() {
        String name = Elements.child(root, "name").map(LocalizedText::of).orElse("");
        return name.isEmpty() ? filename() : name;
    }

    public String versionNumber() {
        return Elements.text(root, "versionNumber");
    }

    public String aspectRatio() {
        return Elements.text(root, "initialWindow", "aspectRatio");
    }

    public boolean isFullScreen() {
        return Elements.text(root, "initialWindow", "fullScreen").equalsIgnoreCase("true");
    }

    /** The movie's name in the package. */
    public String content() {
        return Elements.text(root, "initialWindow", "content").replace("%20", " ");
    }

    public Collection<String> permissions() {
        return permissions;
    }

    public List<IconImage> applicationIcons() {
        return IconImages.ofApplication(root);
    }

    public List<IconImage> allImages() {
        List<IconImage> images = new ArrayList<>(IconImages.ofApplication(root));
        images.addAll(IconImages.ofFileTypes(root));
        return images;
    }

    public List<String> extensionIds() {
        return Elements.children(root, "extensions").stream()
                .flatMap(extensions -> Elements.children(extensions, "extensionID").stream())
                .map(Elements::text).filter(id -> !id.isEmpty()).collect(Collectors.toList());
    }

    /** For a value that only one kind of package finds wrong. */
    public Failure invalidValue(String path) {
        return DescriptorCheck.invalidValue(subject, path);
    }
}
