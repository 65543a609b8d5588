package tav.kob.apk;

import java.util.Map;
import java.util.SortedSet;
import java.util.TreeSet;

/** Writes a manifest in Android's binary form of XML. */
final class BinaryXml {
    private static final int CHUNK_TYPE = 0x0003;
    private static final int RESOURCE_MAP = 0x0180;
    private static final int START_NAMESPACE = 0x0100;
    private static final int END_NAMESPACE = 0x0101;
    private static final int START_ELEMENT = 0x0102;
    private static final int END_ELEMENT = 0x0103;
    private static final int NONE = -1;
    private static final int ATTRIBUTES_START = 20;
    private static final int ATTRIBUTE_SIZE = 20;
    private static final int VALUE_SIZE = 8;
    private static final byte[] NO_HEADER = {};
    private static final String PREFIX = "android";
    private static final String NAMESPACE = "http://schemas.android.com/apk/res/android";

    private final StringPool pool = new StringPool();
    private final LittleEndian nodes = new LittleEndian();

    private BinaryXml() {
    }

    static byte[] write(ManifestElement root) {
        BinaryXml xml = new BinaryXml();
        byte[] resourceMap = xml.nameAttributes(root);
        xml.writeNamespace(START_NAMESPACE);
        xml.writeElement(root);
        xml.writeNamespace(END_NAMESPACE);
        return Chunk.of(CHUNK_TYPE, NO_HEADER, xml.pool.toChunk(), resourceMap, xml.nodes.toBytes());
    }

    /** The n-th resource id belongs to the n-th string, so attribute names must enter the pool first. */
    private byte[] nameAttributes(ManifestElement root) {
        SortedSet<ManifestAttribute> used = new TreeSet<>();
        collect(root, used);
        LittleEndian ids = new LittleEndian();
        for (ManifestAttribute attribute : used) {
            pool.index(attribute.text());
            ids.u32(attribute.resourceId());
        }
        return Chunk.of(RESOURCE_MAP, NO_HEADER, ids.toBytes());
    }

    private static void collect(ManifestElement element, SortedSet<ManifestAttribute> used) {
        used.addAll(element.attributes().keySet());
        element.children().forEach(child -> collect(child, used));
    }

    private void writeNamespace(int type) {
        writeNode(type, new LittleEndian().u32(pool.index(PREFIX)).u32(pool.index(NAMESPACE)));
    }

    private void writeElement(ManifestElement element) {
        int count = element.attributes().size() + element.plainAttributes().size();
        LittleEndian start = new LittleEndian().u32(NONE).u32(pool.index(element.name()))
                .u16(ATTRIBUTES_START).u16(ATTRIBUTE_SIZE).u16(count).u16(0).u16(0).u16(0);
        for (Map.Entry<ManifestAttribute, ManifestElement.Value> entry : element.attributes().entrySet()) {
            writeAttribute(start, pool.index(NAMESPACE), entry.getKey().text(), entry.getValue());
        }
        for (Map.Entry<String, ManifestElement.Value> entry : element.plainAttributes().entrySet()) {
            writeAttribute(start, NONE, entry.getKey(), entry.getValue());
        }
        writeNode(START_ELEMENT, start);
        element.children().forEach(this::writeElement);
        writeNode(END_ELEMENT, new LittleEndian().u32(NONE).u32(pool.index(element.name())));
    }

    private void writeAttribute(LittleEndian out, int namespace, String name, ManifestElement.Value value) {
        int text = value.text == null ? NONE : pool.index(value.text);
        int data = value.text == null ? value.data : text;
        out.u32(namespace).u32(pool.index(name)).u32(text).u16(VALUE_SIZE).u8(0).u8(value.type).u32(data);
    }

    private void writeNode(int type, LittleEndian body) {
        byte[] lineAndComment = new LittleEndian().u32(1).u32(NONE).toBytes();
        nodes.raw(Chunk.of(type, lineAndComment, body.toBytes()));
    }
}
