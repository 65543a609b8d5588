package tav.kob.content;

import java.io.IOException;
import java.io.InputStream;
import java.nio.ByteBuffer;
import java.nio.file.Files;
import java.nio.file.Path;
import tav.kob.base.ErrorNumber;
import tav.kob.base.Failure;
import tav.kob.descriptor.Descriptor;
import tav.kob.descriptor.IconImage;

/** Every image that the descriptor names must be packaged and be a PNG of the size in its element's name. */
public final class IconCheck {
    private static final long PNG_SIGNATURE = 0x89504E470D0A1A0AL;
    private static final int HEADER_CHUNK_LENGTH = 13;
    private static final int HEADER_CHUNK_NAME = 0x49484452;
    private static final int BYTES_NEEDED = 24;

    private IconCheck() {
    }

    public static void run(Descriptor descriptor, PackageItems items) throws Failure {
        for (IconImage image : descriptor.allImages()) {
            check(image, readHeader(image, find(image, descriptor, items)));
        }
    }

    private static Path find(IconImage image, Descriptor descriptor, PackageItems items) throws Failure {
        if (items.isClosed(image.name())) {
            throw cannotOpen(image);
        }
        return items.file(image.name()).orElseThrow(() -> Failure.rejected(descriptor.subject(),
                ErrorNumber.ICON_MISSING, "the icon " + image.name() + " is not among the packaged files"));
    }

    private static void check(IconImage image, ByteBuffer header) throws Failure {
        if (header.remaining() < BYTES_NEEDED || header.getLong() != PNG_SIGNATURE
                || header.getInt() != HEADER_CHUNK_LENGTH || header.getInt() != HEADER_CHUNK_NAME) {
            throw Failure.rejected(image.name(), ErrorNumber.ICON_NOT_PNG, "this is not a PNG file");
        }
        int width = header.getInt();
        int height = header.getInt();
        if (width != image.side() || height != image.side()) {
            throw Failure.rejected(image.name(), ErrorNumber.ICON_DIMENSIONS, "the icon is " + width + "x" + height
                    + ", not " + image.side() + "x" + image.side());
        }
    }

    private static ByteBuffer readHeader(IconImage image, Path file) throws Failure {
        try (InputStream input = Files.newInputStream(file)) {
            return ByteBuffer.wrap(input.readNBytes(BYTES_NEEDED));
        } catch (IOException unreadable) {
            throw cannotOpen(image);
        }
    }

    private static Failure cannotOpen(IconImage image) {
        return Failure.rejected(image.name(), ErrorNumber.ICON_NOT_OPENED, "the icon cannot be opened");
    }
}
