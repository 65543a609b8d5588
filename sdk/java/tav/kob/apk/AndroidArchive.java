package tav.kob.apk;

import java.io.IOException;
import java.io.InputStream;
import java.util.Map;
import java.util.SortedMap;
import java.util.TreeMap;
import tav.kob.base.Failure;
import tav.kob.content.Archive;
import tav.kob.content.Content;
import tav.kob.content.PackageInput;
import tav.kob.descriptor.IconImage;

/** Lays out an Android package. */
public final class AndroidArchive {
    public static final int MIN_SDK = AndroidManifest.MIN_SDK;

    private AndroidArchive() {
    }

    public static Archive layOut(PackageInput input) throws IOException, Failure {
        Archive archive = new Archive();
        String packageName = AndroidIdentity.packageName(input.descriptor());
        SortedMap<Density, Content> icons = icons(input);
        archive.add("AndroidManifest.xml", Content.ofBytes(
                AndroidManifest.write(input.descriptor(), input.request(), packageName, !icons.isEmpty())));
        archive.add("classes.dex", Content.ofBytes(playerClass()));
        archive.add("resources.arsc", Content.ofBytes(
                ResourceTable.write(packageName, input.descriptor().label(), icons.keySet())));
        for (Map.Entry<Density, Content> icon : icons.entrySet()) {
            archive.add(icon.getKey().iconPath(), icon.getValue());
        }
        input.addAll("assets/", archive);
        return archive;
    }

    private static SortedMap<Density, Content> icons(PackageInput input) {
        SortedMap<Density, Content> icons = new TreeMap<>();
        for (IconImage icon : input.descriptor().applicationIcons()) {
            Density.forIcon(icon.side()).ifPresent(
                    density -> icons.putIfAbsent(density, input.image(icon)));
        }
        return icons;
    }

    private static byte[] playerClass() throws IOException {
        try (InputStream resource = AndroidArchive.class.getResourceAsStream("classes.dex")) {
            return resource.readAllBytes();
        }
    }
}
