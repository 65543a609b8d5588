package tav.kob;

import java.io.IOException;
import java.nio.file.Path;
import java.util.Optional;
import tav.kob.apk.AndroidArchive;
import tav.kob.base.ExitCode;
import tav.kob.base.Failure;
import tav.kob.base.FilePaths;
import tav.kob.command.PackageRequest;
import tav.kob.command.Target;
import tav.kob.content.AlignedZip;
import tav.kob.content.Archive;
import tav.kob.content.OutputFile;
import tav.kob.content.PackageInput;
import tav.kob.ios.IosArchive;
import tav.kob.sign.PackageSigner;
import tav.kob.sign.SigningKey;

/** Makes one package: everything is read and checked before the first byte is written. */
final class Packager {
    private static final String NO_TIMESTAMP = "none";

    private final PackageRequest request;

    private Packager(PackageRequest request) {
        this.request = request;
    }

    static void run(PackageRequest request) throws IOException, Failure {
        new Packager(request).run();
    }

    private void run() throws IOException, Failure {
        PackageInput input = PackageInput.read(request);
        Archive archive = layOut(input);
        Optional<SigningKey> key = loadKey();
        requireNoTimestamp();
        try (OutputFile output = new OutputFile(FilePaths.of(request.output()))) {
            write(archive, key, output);
        } catch (IOException broken) {
            throw OutputFile.notWritable(request.output() + ": " + broken.getMessage());
        }
    }

    private Archive layOut(PackageInput input) throws IOException, Failure {
        switch (request.target().format()) {
            case ANDROID:
                return AndroidArchive.layOut(input);
            case IOS:
                return IosArchive.layOut(input);
            default:
                Archive archive = new Archive();
                // Below a folder, or an item could take the place of the signature's own files.
                input.addAll(input.descriptor().filename() + "/", archive);
                return archive;
        }
    }

    private Optional<SigningKey> loadKey() throws Failure {
        return request.signing().isPresent()
                ? Optional.of(SigningKey.load(request.signing().get())) : Optional.empty();
    }

    /** This tool never opens a connection, so a server that must be asked cannot be reached. */
    private void requireNoTimestamp() throws Failure {
        if (!request.timestampServer().orElse(NO_TIMESTAMP).equals(NO_TIMESTAMP)) {
            throw new Failure(ExitCode.TIMESTAMP_FAILED, "cannot reach the timestamp server "
                    + request.timestampServer().get());
        }
    }

    private void write(Archive archive, Optional<SigningKey> key, OutputFile output) throws IOException, Failure {
        Path unsigned = output.newPart();
        AlignedZip.write(unsigned, archive);
        if (key.isEmpty()) {
            output.commit(unsigned);
            return;
        }
        Path signed = output.newPart();
        if (request.target().format() == Target.Format.ANDROID) {
            PackageSigner.signAndroid(key.get(), unsigned, signed, AndroidArchive.MIN_SDK);
        } else {
            PackageSigner.signArchive(key.get(), unsigned, signed);
        }
        output.commit(signed);
    }
}
