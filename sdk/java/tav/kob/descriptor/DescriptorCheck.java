package tav.kob.descriptor;

import org.w3c.dom.Attr;
import org.w3c.dom.Element;
import org.w3c.dom.NamedNodeMap;
import tav.kob.base.ErrorNumber;
import tav.kob.base.Failure;

/** Checks a parsed descriptor against {@link DescriptorSchema}; the first fault ends it. */
final class DescriptorCheck {
    private static final String XML_NAMESPACE = "http://www.w3.org/XML/1998/namespace";
    private static final String DECLARATIONS = "http://www.w3.org/2000/xmlns/";

    private final Element root;
    private final String subject;

    DescriptorCheck(Element root, String subject) {
        this.root = root;
        this.subject = subject;
    }

    void run() throws Failure {
        checkNodes(root, DescriptorSchema.ROOT);
        checkRequired();
        checkValues(root, DescriptorSchema.ROOT);
        new WindowCheck(root, subject).run();
    }

    private void checkNodes(Element element, String path) throws Failure {
        checkAttributes(element, path);
        for (Element child : Elements.children(element)) {
            String name = child.getLocalName();
            if (!DescriptorSchema.allowsChild(path, name) || !isOwnNamespace(child)) {
                throw unexpected(path + "." + child.getNodeName());
            }
            checkNodes(child, path + "." + name);
        }
    }

    /** Editors that know nothing of namespaces add elements without one; they mean ours. */
    private boolean isOwnNamespace(Element element) {
        String namespace = element.getNamespaceURI();
        return namespace == null || namespace.equals(root.getNamespaceURI());
    }

    private void checkAttributes(Element element, String path) throws Failure {
        NamedNodeMap attributes = element.getAttributes();
        for (int index = 0; index < attributes.getLength(); index++) {
            Attr attribute = (Attr) attributes.item(index);
            boolean declaration = DECLARATIONS.equals(attribute.getNamespaceURI());
            boolean language = XML_NAMESPACE.equals(attribute.getNamespaceURI())
                    && "lang".equals(attribute.getLocalName()) && DescriptorSchema.allowsLanguage(path);
            if (!declaration && !language) {
                throw unexpected(path + "." + attribute.getName());
            }
        }
    }

    private void checkRequired() throws Failure {
        for (String path : DescriptorSchema.required()) {
            if (Elements.find(root, path.split("\\.")).isEmpty()) {
                throw Failure.rejected(subject, ErrorNumber.ELEMENT_MISSING,
                        DescriptorSchema.ROOT + "." + path + " is missing");
            }
        }
    }

    private void checkValues(Element element, String path) throws Failure {
        if (!DescriptorSchema.allowsValue(path, Elements.text(element))) {
            throw invalidValue(subject, path);
        }
        for (Element child : Elements.children(element)) {
            checkValues(child, path + "." + child.getLocalName());
        }
    }

    private Failure unexpected(String path) {
        return Failure.rejected(subject, ErrorNumber.UNEXPECTED_NODE, path);
    }

    /** The caller quotes what stands between the number and the word "contains". */
    static Failure invalidValue(String subject, String path) {
        return Failure.rejected(subject, ErrorNumber.VALUE_INVALID, path + " contains an invalid value");
    }
}
