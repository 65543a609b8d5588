package tav.kob.content;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.charset.StandardCharsets;

/** One entry of a zip archive, as its two headers tell it. */
final class ZipEntryRecord {
    static final int STORED = 0;
    static final int DEFLATED = 8;

    private static final int LOCAL_SIGNATURE = 0x04034b50;
    private static final int LOCAL_SIZE = 30;
    private static final int SIZES_OFFSET = 14;
    private static final int CENTRAL_SIGNATURE = 0x02014b50;
    private static final int CENTRAL_SIZE = 46;
    private static final int VERSION = 20;
    private static final int UTF8_NAMES = 0x0800;
    /** 1 January 1980: the earliest date there is, and the same in every run. */
    private static final int DATE = 0x0021;
    private static final int ALIGNMENT = 4;
    /** The extra field that tells a signing tool how to pad an entry when it copies it. */
    private static final int ALIGNMENT_FIELD = 0xd935;
    private static final int ALIGNMENT_FIELD_SIZE = 6;

    private final byte[] name;
    private final int method;
    private final long offset;
    long checksum;
    long storedSize;
    long size;

    ZipEntryRecord(String name, int method, long offset) {
        this.name = name.getBytes(StandardCharsets.UTF_8);
        this.method = method;
        this.offset = offset;
    }

    boolean isDeflated() {
        return method == DEFLATED;
    }

    /** Checksum and sizes are left zero until the data has been through. */
    byte[] localHeader() {
        int extra = method == STORED ? paddedFieldSize() : 0;
        ByteBuffer header = allocate(LOCAL_SIZE + name.length + extra);
        header.putInt(LOCAL_SIGNATURE);
        putCommon(header, 0, 0, 0);
        header.putShort((short) extra).put(name);
        if (extra > 0) {
            header.putShort((short) ALIGNMENT_FIELD).putShort((short) (extra - 4)).putShort((short) ALIGNMENT);
        }
        return header.array();
    }

    long sizesPosition() {
        return offset + SIZES_OFFSET;
    }

    byte[] sizes() {
        return allocate(3 * Integer.BYTES)
                .putInt((int) checksum).putInt((int) storedSize).putInt((int) size).array();
    }

    byte[] centralHeader() {
        ByteBuffer header = allocate(CENTRAL_SIZE + name.length);
        header.putInt(CENTRAL_SIGNATURE).putShort((short) VERSION);
        putCommon(header, (int) checksum, (int) storedSize, (int) size);
        header.putShort((short) 0).putShort((short) 0).putShort((short) 0).putShort((short) 0).putInt(0);
        return header.putInt((int) offset).put(name).array();
    }

    private int paddedFieldSize() {
        long dataStart = offset + LOCAL_SIZE + name.length + ALIGNMENT_FIELD_SIZE;
        return ALIGNMENT_FIELD_SIZE + (int) (-dataStart & (ALIGNMENT - 1));
    }

    private void putCommon(ByteBuffer header, int crc, int compressed, int uncompressed) {
        header.putShort((short) VERSION).putShort((short) UTF8_NAMES).putShort((short) method)
                .putShort((short) 0).putShort((short) DATE)
                .putInt(crc).putInt(compressed).putInt(uncompressed).putShort((short) name.length);
    }

    private static ByteBuffer allocate(int size) {
        return ByteBuffer.allocate(size).order(ByteOrder.LITTLE_ENDIAN);
    }
}
