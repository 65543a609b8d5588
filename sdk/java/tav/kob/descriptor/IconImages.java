package tav.kob.descriptor;

import java.util.ArrayList;
import java.util.List;
import org.w3c.dom.Element;
import tav.kob.base.FilePaths;

/** Collects the images of the application and of its file types. */
final class IconImages {
    private IconImages() {
    }

    static List<IconImage> ofApplication(Element root) {
        List<IconImage> images = new ArrayList<>();
        for (Element icon : Elements.children(root, "icon")) {
            addImages(icon, images);
        }
        return images;
    }

    static List<IconImage> ofFileTypes(Element root) {
        List<IconImage> images = new ArrayList<>();
        for (Element fileTypes : Elements.children(root, "fileTypes")) {
            for (Element fileType : Elements.children(fileTypes, "fileType")) {
                addImages(fileType, images);
                Elements.children(fileType, "icon").forEach(icon -> addImages(icon, images));
            }
        }
        return images;
    }

    private static void addImages(Element parent, List<IconImage> images) {
        for (Element element : Elements.children(parent)) {
            String name = element.getLocalName();
            String path = Elements.text(element);
            if (DescriptorSchema.isImage(name) && !path.isEmpty()) {
                int side = Integer.parseInt(name.substring("image".length(), name.indexOf('x')));
                images.add(new IconImage(side, decode(path)));
            }
        }
    }

    /** The same decoding as the caller's, or its items and these names would not meet: other "%" are dropped. */
    private static String decode(String path) {
        return FilePaths.withForwardSlashes(path.replace("%20", " ").replace("%", ""));
    }
}
