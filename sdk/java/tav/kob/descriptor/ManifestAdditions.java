package tav.kob.descriptor;

import java.io.ByteArrayInputStream;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.util.Collection;
import java.util.LinkedHashSet;
import java.util.List;
import java.util.Set;
import org.w3c.dom.Element;
import org.w3c.dom.NodeList;
import org.xml.sax.SAXException;
import tav.kob.base.Failure;

/** The permissions in the manifest fragment that a descriptor carries as text. */
final class ManifestAdditions {
    private ManifestAdditions() {
    }

    static Collection<String> permissions(Element root, String subject) throws Failure {
        String fragment = Elements.text(root, "android", "manifestAdditions");
        if (fragment.isEmpty()) {
            return List.of();
        }
        Set<String> permissions = new LinkedHashSet<>();
        // The fragment uses the prefix "android" without declaring it, so namespaces must be off.
        NodeList elements = parse(fragment, subject).getElementsByTagName("uses-permission");
        for (int index = 0; index < elements.getLength(); index++) {
            String name = ((Element) elements.item(index)).getAttribute("android:name").trim();
            if (!name.isEmpty()) {
                permissions.add(name);
            }
        }
        return permissions;
    }

    private static Element parse(String fragment, String subject) throws Failure {
        try {
            return XmlText.parse(new ByteArrayInputStream(fragment.getBytes(StandardCharsets.UTF_8)), false);
        } catch (SAXException | IOException unreadable) {
            throw DescriptorCheck.invalidValue(subject, "application.android.manifestAdditions");
        }
    }
}
