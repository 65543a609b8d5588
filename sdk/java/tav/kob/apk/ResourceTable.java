package tav.kob.apk;

import java.nio.charset.StandardCharsets;
import java.util.Arrays;
import java.util.Set;

/** Writes resources.arsc: the label, and the launcher icon in the densities that there are. */
final class ResourceTable {
    static final int LABEL_ID = 0x7f010000;
    static final int ICON_ID = 0x7f020000;

    private static final int TABLE = 0x0002;
    private static final int PACKAGE = 0x0200;
    private static final int TYPE = 0x0201;
    private static final int TYPE_SPEC = 0x0202;
    private static final int PACKAGE_ID = 0x7f;
    private static final int PACKAGE_NAME_BYTES = 256;
    private static final int PACKAGE_HEADER_SIZE = 288;
    private static final int TYPE_HEADER_SIZE = 84;
    private static final int CONFIG_SIZE = 64;
    private static final int VARIES_BY_DENSITY = 0x0100;
    private static final int ANY_DENSITY = 0;
    private static final int FIRST_SDK_WITH_DENSITIES = 4;
    private static final int STRING_VALUE = 0x03;

    private final StringPool values = new StringPool();
    private final StringPool typeNames = new StringPool();
    private final StringPool keyNames = new StringPool();
    private final LittleEndian types = new LittleEndian();

    private ResourceTable() {
    }

    /** The label is a resource too: Android's tools learn the locales, and so the label, from the table alone. */
    static byte[] write(String packageName, String label, Set<Density> densities) {
        ResourceTable table = new ResourceTable();
        int labelType = table.startType("string", 0);
        table.addEntry(labelType, "label", ANY_DENSITY, label);
        if (!densities.isEmpty()) {
            int iconType = table.startType("drawable", VARIES_BY_DENSITY);
            densities.forEach(density ->
                    table.addEntry(iconType, "icon", density.dotsPerInch(), density.iconPath()));
        }
        return Chunk.of(TABLE, new LittleEndian().u32(1).toBytes(),
                table.values.toChunk(), table.packageChunk(packageName));
    }

    /** Each type has one resource here; types are counted from 1. */
    private int startType(String name, int variation) {
        int type = typeNames.index(name) + 1;
        byte[] header = new LittleEndian().u8(type).u8(0).u16(0).u32(1).toBytes();
        types.raw(Chunk.of(TYPE_SPEC, header, new LittleEndian().u32(variation).toBytes()));
        return type;
    }

    private void addEntry(int type, String key, int dotsPerInch, String value) {
        int firstEntry = TYPE_HEADER_SIZE + Integer.BYTES;
        byte[] header = new LittleEndian().u8(type).u8(0).u16(0).u32(1).u32(firstEntry)
                .raw(config(dotsPerInch)).toBytes();
        byte[] entry = new LittleEndian().u32(0).u16(8).u16(0).u32(keyNames.index(key))
                .u16(8).u8(0).u8(STRING_VALUE).u32(values.index(value)).toBytes();
        types.raw(Chunk.of(TYPE, header, entry));
    }

    private static byte[] config(int dotsPerInch) {
        LittleEndian config = new LittleEndian().u32(CONFIG_SIZE).zeros(10).u16(dotsPerInch)
                .zeros(8).u16(dotsPerInch == ANY_DENSITY ? 0 : FIRST_SDK_WITH_DENSITIES);
        return config.zeros(CONFIG_SIZE - config.size()).toBytes();
    }

    private byte[] packageChunk(String packageName) {
        byte[] typePool = typeNames.toChunk();
        byte[] keyPool = keyNames.toChunk();
        LittleEndian header = new LittleEndian().u32(PACKAGE_ID).raw(fixedName(packageName))
                .u32(PACKAGE_HEADER_SIZE).u32(0)
                .u32(PACKAGE_HEADER_SIZE + typePool.length).u32(0).u32(0);
        return Chunk.of(PACKAGE, header.toBytes(), typePool, keyPool, types.toBytes());
    }

    /** A longer name than fits is cut: the manifest holds the name that counts. */
    private static byte[] fixedName(String name) {
        byte[] text = name.getBytes(StandardCharsets.UTF_16LE);
        return Arrays.copyOf(Arrays.copyOf(text, Math.min(text.length, PACKAGE_NAME_BYTES - 2)), PACKAGE_NAME_BYTES);
    }
}
