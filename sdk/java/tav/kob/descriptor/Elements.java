package tav.kob.descriptor;

import java.util.ArrayList;
import java.util.List;
import java.util.Optional;
import org.w3c.dom.Element;
import org.w3c.dom.Node;

/** Short ways through a document: direct children only, compared by local name. */
final class Elements {
    private Elements() {
    }

    static List<Element> children(Element parent) {
        List<Element> found = new ArrayList<>();
        for (Node node = parent.getFirstChild(); node != null; node = node.getNextSibling()) {
            if (node.getNodeType() == Node.ELEMENT_NODE) {
                found.add((Element) node);
            }
        }
        return found;
    }

    static List<Element> children(Element parent, String name) {
        List<Element> found = children(parent);
        found.removeIf(element -> !name.equals(element.getLocalName()));
        return found;
    }

    static Optional<Element> child(Element parent, String name) {
        return children(parent, name).stream().findFirst();
    }

    /** The first element at the end of a path of names below the root. */
    static Optional<Element> find(Element root, String... path) {
        Optional<Element> current = Optional.of(root);
        for (String name : path) {
            current = current.flatMap(element -> child(element, name));
        }
        return current;
    }

    static String text(Element element) {
        return element.getTextContent().trim();
    }

    static String text(Element root, String... path) {
        return find(root, path).map(Elements::text).orElse("");
    }
}
