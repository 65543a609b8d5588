package tav.kob.content;

import java.nio.file.Path;
import java.util.Map;
import java.util.SortedMap;
import tav.kob.base.Failure;
import tav.kob.base.FilePaths;
import tav.kob.command.PackageRequest;
import tav.kob.descriptor.Descriptor;
import tav.kob.descriptor.DescriptorReader;
import tav.kob.descriptor.IconImage;

/** Everything that goes into a package, read and found good. */
public final class PackageInput {
    private final PackageRequest request;
    private final Descriptor descriptor;
    private final PackageItems items;
    private final SortedMap<String, Content> records;

    private PackageInput(PackageRequest request, Descriptor descriptor, PackageItems items) throws Failure {
        this.request = request;
        this.descriptor = descriptor;
        this.items = items;
        this.records = PackageRecords.of(descriptor, request);
    }

    public static PackageInput read(PackageRequest request) throws Failure {
        Descriptor descriptor = DescriptorReader.read(FilePaths.of(request.descriptor()));
        PackageItems items = PackageItems.collect(request.items(), FilePaths.of(request.output()));
        MovieCheck.run(descriptor, items);
        IconCheck.run(descriptor, items);
        items.requireAllFound();
        return new PackageInput(request, descriptor, items);
    }

    public PackageRequest request() {
        return request;
    }

    public Descriptor descriptor() {
        return descriptor;
    }

    /** An image of the descriptor; that it is there has been checked. */
    public Content image(IconImage image) {
        return Content.ofFile(items.files().get(image.name()));
    }

    /** Adds items and records below a folder of the package. */
    public void addAll(String folder, Archive archive) throws Failure {
        for (Map.Entry<String, Content> entry : records.entrySet()) {
            archive.add(folder + entry.getKey(), entry.getValue());
        }
        for (Map.Entry<String, Path> entry : items.files().entrySet()) {
            archive.add(folder + entry.getKey(), Content.ofFile(entry.getValue()));
        }
    }
}
