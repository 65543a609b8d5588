package tav.kob.apk;

import java.io.ByteArrayOutputStream;

/** Collects the little-endian numbers that Android's binary files are made of. */
final class LittleEndian {
    private final ByteArrayOutputStream bytes = new ByteArrayOutputStream();

    LittleEndian u8(int value) {
        bytes.write(value);
        return this;
    }

    LittleEndian u16(int value) {
        return u8(value).u8(value >> 8);
    }

    LittleEndian u32(int value) {
        return u16(value).u16(value >> 16);
    }

    LittleEndian raw(byte[] data) {
        bytes.write(data, 0, data.length);
        return this;
    }

    LittleEndian zeros(int count) {
        return raw(new byte[count]);
    }

    LittleEndian padToWord() {
        return zeros(-bytes.size() & 3);
    }

    int size() {
        return bytes.size();
    }

    byte[] toBytes() {
        return bytes.toByteArray();
    }
}
