package tav.kob.content;

import java.io.IOException;
import java.io.InputStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.util.Arrays;
import tav.kob.base.ErrorNumber;
import tav.kob.base.Failure;
import tav.kob.descriptor.Descriptor;

/** The movie must be packaged, must be one, and must not ask for more than the descriptor's level. */
public final class MovieCheck {
    private static final byte[] MAGIC = "QMV".getBytes(StandardCharsets.US_ASCII);

    private MovieCheck() {
    }

    public static void run(Descriptor descriptor, PackageItems items) throws Failure {
        String name = descriptor.content();
        byte[] header = readHeader(find(descriptor, items));
        if (header.length <= MAGIC.length || !Arrays.equals(MAGIC, Arrays.copyOf(header, MAGIC.length))) {
            throw Failure.rejected(name, ErrorNumber.MOVIE_INVALID, "this is not a QMV file");
        }
        int level = Byte.toUnsignedInt(header[MAGIC.length]);
        if (level > descriptor.level()) {
            throw Failure.rejected(name, ErrorNumber.MOVIE_TOO_NEW, "the movie is made for level " + level
                    + ", the namespace allows " + descriptor.level());
        }
    }

    private static Path find(Descriptor descriptor, PackageItems items) throws Failure {
        String name = descriptor.content();
        if (items.isClosed(name)) {
            throw Failure.rejected(name, ErrorNumber.FILE_NOT_OPENED, "the movie cannot be opened");
        }
        return items.file(name).orElseThrow(() -> Failure.rejected(descriptor.subject(),
                ErrorNumber.ROOT_CONTENT_MISSING, "the content " + name + " is not among the packaged files"));
    }

    private static byte[] readHeader(Path movie) throws Failure {
        try (InputStream input = Content.ofFile(movie).open()) {
            return input.readNBytes(MAGIC.length + 1);
        } catch (IOException unreadable) {
            throw Content.cannotOpen(movie);
        }
    }
}
