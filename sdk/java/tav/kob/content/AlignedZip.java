package tav.kob.content;

import java.io.ByteArrayOutputStream;
import java.io.Closeable;
import java.io.IOException;
import java.io.InputStream;
import java.io.RandomAccessFile;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.file.Path;
import java.util.Locale;
import java.util.Map;
import java.util.Set;
import java.util.zip.CRC32;
import java.util.zip.Deflater;
import tav.kob.base.Failure;

/**
 * Writes a zip archive whose uncompressed entries begin on a multiple of four bytes, as Android maps them
 * into memory. Entries are streamed, and their sizes are filled in afterwards: a signing tool that checks
 * sizes against the local header refuses trailing data descriptors of stored entries.
 */
public final class AlignedZip implements Closeable {
    /** Packed already, or read in place on the device. */
    private static final Set<String> STORED_ENDINGS = Set.of("arsc", "qmv", "zux", "png", "jpg", "jpeg", "gif",
            "webp", "mp3", "m4a", "ogg", "mp4", "zip");
    private static final int END_SIGNATURE = 0x06054b50;
    private static final int END_SIZE = 22;
    private static final int MOST_ENTRIES = 0xfffe;
    private static final long LARGEST = 0xfffffffeL;
    private static final int BUFFER_SIZE = 1 << 16;

    private final RandomAccessFile file;
    private final ByteArrayOutputStream directory = new ByteArrayOutputStream();
    private final Deflater deflater = new Deflater(Deflater.DEFAULT_COMPRESSION, true);
    private final byte[] input = new byte[BUFFER_SIZE];
    private final byte[] packed = new byte[BUFFER_SIZE];
    private int count;

    private AlignedZip(Path path) throws IOException {
        file = new RandomAccessFile(path.toFile(), "rw");
    }

    public static void write(Path path, Archive archive) throws IOException, Failure {
        try (AlignedZip zip = new AlignedZip(path)) {
            for (Map.Entry<String, Content> entry : archive.entries().entrySet()) {
                zip.add(entry.getKey(), entry.getValue());
            }
            zip.finish();
        }
    }

    @Override
    public void close() throws IOException {
        deflater.end();
        file.close();
    }

    private void add(String name, Content content) throws IOException, Failure {
        String ending = name.substring(name.lastIndexOf('.') + 1).toLowerCase(Locale.ROOT);
        int method = STORED_ENDINGS.contains(ending) ? ZipEntryRecord.STORED : ZipEntryRecord.DEFLATED;
        ZipEntryRecord entry = new ZipEntryRecord(name, method, file.getFilePointer());
        file.write(entry.localHeader());
        long start = file.getFilePointer();
        copy(name, content, entry);
        long end = file.getFilePointer();
        entry.storedSize = end - start;
        requireFits(end, entry.size);
        file.seek(entry.sizesPosition());
        file.write(entry.sizes());
        file.seek(end);
        directory.write(entry.centralHeader());
        count++;
    }

    private void copy(String name, Content content, ZipEntryRecord entry) throws IOException, Failure {
        CRC32 checksum = new CRC32();
        try (InputStream source = content.open()) {
            for (int length = read(name, source); length >= 0; length = read(name, source)) {
                checksum.update(input, 0, length);
                entry.size += length;
                writeData(entry, length);
            }
        }
        if (entry.isDeflated()) {
            deflater.finish();
            drainDeflater();
            deflater.reset();
        }
        entry.checksum = checksum.getValue();
    }

    /** Told apart from a failure to write, which is the destination's. */
    private int read(String name, InputStream source) throws Failure {
        try {
            return source.read(input);
        } catch (IOException unreadable) {
            throw Content.cannotOpen(Path.of(name));
        }
    }

    private void writeData(ZipEntryRecord entry, int length) throws IOException {
        if (entry.isDeflated()) {
            deflater.setInput(input, 0, length);
            drainDeflater();
        } else {
            file.write(input, 0, length);
        }
    }

    private void drainDeflater() throws IOException {
        for (int length = deflater.deflate(packed); length > 0; length = deflater.deflate(packed)) {
            file.write(packed, 0, length);
        }
    }

    private void finish() throws IOException {
        long start = file.getFilePointer();
        requireFits(start + directory.size(), 0);
        file.write(directory.toByteArray());
        file.write(ByteBuffer.allocate(END_SIZE).order(ByteOrder.LITTLE_ENDIAN)
                .putInt(END_SIGNATURE).putInt(0).putShort((short) count).putShort((short) count)
                .putInt(directory.size()).putInt((int) start).putShort((short) 0).array());
    }

    /** Android knows no archives beyond the classic limits of the format. */
    private void requireFits(long position, long entrySize) throws IOException {
        if (position > LARGEST || entrySize > LARGEST || count > MOST_ENTRIES) {
            throw new IOException("the content is larger than a package can be");
        }
    }
}
