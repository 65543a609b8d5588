package tav.kob.content;

import java.io.ByteArrayInputStream;
import java.io.IOException;
import java.io.InputStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import tav.kob.base.ErrorNumber;
import tav.kob.base.Failure;

/** The bytes of one entry of a package; a file is read only while it is written into the package. */
public abstract class Content {
    public static Content ofBytes(byte[] bytes) {
        return new Content() {
            @Override
            public InputStream open() {
                return new ByteArrayInputStream(bytes);
            }
        };
    }

    public static Content ofText(String text) {
        return ofBytes(text.getBytes(StandardCharsets.UTF_8));
    }

    public static Content ofFile(Path file) {
        return new Content() {
            @Override
            public InputStream open() throws Failure {
                try {
                    return Files.newInputStream(file);
                } catch (IOException closed) {
                    throw cannotOpen(file);
                }
            }
        };
    }

    public abstract InputStream open() throws Failure;

    public static Failure cannotOpen(Path file) {
        return Failure.rejected(file.toString(), ErrorNumber.FILE_NOT_OPENED,
                "the file is missing or cannot be opened");
    }
}
