package tav.kob;

import java.io.ByteArrayOutputStream;
import java.nio.ByteBuffer;
import java.nio.charset.StandardCharsets;
import java.util.Arrays;
import java.util.zip.CRC32;
import java.util.zip.Deflater;

/** Draws a grey square. */
final class Png {
    private static final byte[] SIGNATURE = {(byte) 0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};

    private Png() {
    }

    static byte[] square(int side) {
        ByteArrayOutputStream png = new ByteArrayOutputStream();
        png.writeBytes(SIGNATURE);
        byte[] header = ByteBuffer.allocate(13).putInt(side).putInt(side).put((byte) 8).array();
        png.writeBytes(chunk("IHDR", header));
        png.writeBytes(chunk("IDAT", deflate(new byte[side * (side + 1)])));
        png.writeBytes(chunk("IEND", new byte[0]));
        return png.toByteArray();
    }

    private static byte[] chunk(String type, byte[] data) {
        byte[] name = type.getBytes(StandardCharsets.US_ASCII);
        CRC32 checksum = new CRC32();
        checksum.update(name);
        checksum.update(data);
        return ByteBuffer.allocate(data.length + 12).putInt(data.length).put(name).put(data)
                .putInt((int) checksum.getValue()).array();
    }

    private static byte[] deflate(byte[] data) {
        Deflater deflater = new Deflater();
        deflater.setInput(data);
        deflater.finish();
        byte[] packed = new byte[data.length + 64];
        int length = deflater.deflate(packed);
        deflater.end();
        return Arrays.copyOf(packed, length);
    }
}
