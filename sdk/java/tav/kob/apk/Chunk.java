package tav.kob.apk;

/** A chunk of an Android resource file: type, header size and total size stand before everything else. */
final class Chunk {
    private static final int PREFIX = 8;

    private Chunk() {
    }

    static byte[] of(int type, byte[] header, byte[]... body) {
        int size = PREFIX + header.length;
        for (byte[] part : body) {
            size += part.length;
        }
        LittleEndian chunk = new LittleEndian().u16(type).u16(PREFIX + header.length).u32(size).raw(header);
        for (byte[] part : body) {
            chunk.raw(part);
        }
        return chunk.toBytes();
    }
}
