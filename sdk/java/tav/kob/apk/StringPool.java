package tav.kob.apk;

import java.util.LinkedHashMap;
import java.util.Map;

/** Numbers strings in the order of their first use and writes them as a string pool chunk. */
final class StringPool {
    private static final int CHUNK_TYPE = 0x0001;
    private static final int HEADER_SIZE = 28;
    private static final int LONGEST_SHORT_LENGTH = 0x7fff;

    private final Map<String, Integer> indexes = new LinkedHashMap<>();

    int index(String text) {
        Integer known = indexes.putIfAbsent(text, indexes.size());
        return known == null ? indexes.size() - 1 : known;
    }

    byte[] toChunk() {
        LittleEndian offsets = new LittleEndian();
        LittleEndian strings = new LittleEndian();
        for (String text : indexes.keySet()) {
            offsets.u32(strings.size());
            write(text, strings);
        }
        strings.padToWord();
        int stringsStart = HEADER_SIZE + offsets.size();
        LittleEndian header = new LittleEndian()
                .u32(indexes.size()).u32(0).u32(0).u32(stringsStart).u32(0);
        return Chunk.of(CHUNK_TYPE, header.toBytes(), offsets.toBytes(), strings.toBytes());
    }

    /** UTF-16, the form without flags: the length in units, the units, a zero unit. */
    private static void write(String text, LittleEndian strings) {
        if (text.length() > LONGEST_SHORT_LENGTH) {
            strings.u16(0x8000 | text.length() >> 16);
        }
        strings.u16(text.length());
        text.chars().forEach(strings::u16);
        strings.u16(0);
    }
}
