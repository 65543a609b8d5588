package tav.kob.ios;

import java.nio.file.Files;
import java.nio.file.Path;
import tav.kob.base.Failure;
import tav.kob.base.FilePaths;
import tav.kob.content.Archive;
import tav.kob.content.Content;
import tav.kob.content.PackageInput;

/** Lays out an iOS package as an application bundle without an executable. */
public final class IosArchive {
    private IosArchive() {
    }

    public static Archive layOut(PackageInput input) throws Failure {
        String bundle = "Payload/" + input.descriptor().filename() + ".app/";
        Archive archive = new Archive();
        archive.add(bundle + "Info.plist", Content.ofText(InfoPlist.write(input.descriptor())));
        archive.add(bundle + "embedded.mobileprovision", Content.ofFile(profile(input)));
        input.addAll(bundle, archive);
        return archive;
    }

    private static Path profile(PackageInput input) throws Failure {
        String name = input.request().provisioningProfile().orElseThrow();
        Path profile = FilePaths.of(name);
        if (!Files.isRegularFile(profile)) {
            throw Failure.missingFile(name);
        }
        return profile;
    }
}
