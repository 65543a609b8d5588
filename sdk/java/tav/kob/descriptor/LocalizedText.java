package tav.kob.descriptor;

import java.util.List;
import org.w3c.dom.Element;

/** Text that may stand in several languages. */
final class LocalizedText {
    private static final String XML_NAMESPACE = "http://www.w3.org/XML/1998/namespace";
    private static final String PREFERRED_LANGUAGE = "en";

    private LocalizedText() {
    }

    static String of(Element element) {
        List<Element> texts = Elements.children(element, "text");
        if (texts.isEmpty()) {
            return Elements.text(element);
        }
        Element chosen = texts.stream()
                .filter(text -> PREFERRED_LANGUAGE.equals(text.getAttributeNS(XML_NAMESPACE, "lang")))
                .findFirst().orElse(texts.get(0));
        return Elements.text(chosen);
    }
}
