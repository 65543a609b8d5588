package tav.kob.descriptor;

import java.io.IOException;
import java.io.InputStream;
import java.nio.file.Files;
import java.nio.file.Path;
import org.w3c.dom.Element;
import org.xml.sax.SAXException;
import org.xml.sax.SAXParseException;
import tav.kob.base.ErrorNumber;
import tav.kob.base.Failure;

/** Reads and checks a descriptor file. */
public final class DescriptorReader {
    private DescriptorReader() {
    }

    public static Descriptor read(Path file) throws Failure {
        String subject = String.valueOf(file.getFileName());
        Element root = parse(file, subject);
        if (!DescriptorSchema.ROOT.equals(root.getLocalName())) {
            throw Failure.rejected(subject, ErrorNumber.UNEXPECTED_NODE, root.getNodeName());
        }
        int level = DescriptorNamespace.level(root.getNamespaceURI(), subject);
        new DescriptorCheck(root, subject).run();
        return new Descriptor(subject, level, root);
    }

    private static Element parse(Path file, String subject) throws Failure {
        try (InputStream input = Files.newInputStream(file)) {
            return XmlText.parse(input, true);
        } catch (SAXParseException malformed) {
            throw Failure.rejected(subject, ErrorNumber.DESCRIPTOR_NOT_PARSEABLE,
                    "line " + malformed.getLineNumber() + ": " + malformed.getMessage());
        } catch (SAXException malformed) {
            throw Failure.rejected(subject, ErrorNumber.DESCRIPTOR_NOT_PARSEABLE, malformed.getMessage());
        } catch (IOException unreadable) {
            throw unreadableFile(file, subject);
        }
    }

    /** A file that opens but does not decode as text is a parser's matter, not a missing file. */
    private static Failure unreadableFile(Path file, String subject) {
        return Files.isRegularFile(file) && Files.isReadable(file)
                ? Failure.rejected(subject, ErrorNumber.DESCRIPTOR_NOT_PARSEABLE,
                        "the text is not valid in its encoding")
                : Failure.rejected(subject, ErrorNumber.DESCRIPTOR_MISSING, file + " is missing or cannot be opened");
    }
}
