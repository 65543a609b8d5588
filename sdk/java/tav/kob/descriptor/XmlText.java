package tav.kob.descriptor;

import java.io.IOException;
import java.io.InputStream;
import javax.xml.XMLConstants;
import javax.xml.parsers.DocumentBuilder;
import javax.xml.parsers.DocumentBuilderFactory;
import javax.xml.parsers.ParserConfigurationException;
import org.w3c.dom.Element;
import org.xml.sax.InputSource;
import org.xml.sax.SAXException;
import org.xml.sax.SAXParseException;
import org.xml.sax.helpers.DefaultHandler;

/** Parses XML that comes from elsewhere: no document type, so nothing is fetched and nothing expands. */
final class XmlText {
    private XmlText() {
    }

    static Element parse(InputStream input, boolean withNamespaces) throws SAXException, IOException {
        DocumentBuilder builder = newBuilder(withNamespaces);
        // Without a handler the parser prints to the standard error, and output means a warning.
        builder.setErrorHandler(new DefaultHandler() {
            @Override
            public void fatalError(SAXParseException problem) throws SAXException {
                throw problem;
            }
        });
        return builder.parse(new InputSource(input)).getDocumentElement();
    }

    private static DocumentBuilder newBuilder(boolean withNamespaces) {
        try {
            DocumentBuilderFactory factory = DocumentBuilderFactory.newInstance();
            factory.setNamespaceAware(withNamespaces);
            factory.setFeature(XMLConstants.FEATURE_SECURE_PROCESSING, true);
            factory.setFeature("http://apache.org/xml/features/disallow-doctype-decl", true);
            return factory.newDocumentBuilder();
        } catch (ParserConfigurationException missing) {
            throw new IllegalStateException("this Java runtime has no usable XML parser", missing);
        }
    }
}
