package tav.kob.content;

import java.io.IOException;
import java.nio.file.DirectoryIteratorException;
import java.nio.file.DirectoryStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.SortedMap;
import java.util.TreeMap;
import tav.kob.base.FilePaths;
import tav.kob.base.Failure;
import tav.kob.base.TextEncoding;
import tav.kob.command.DebugSession;
import tav.kob.command.PackageRequest;
import tav.kob.descriptor.Descriptor;

/** What a package of any kind says of itself, below META-INF/TAV. */
final class PackageRecords {
    private static final String FOLDER = "META-INF/TAV/";
    private static final String EXTENSION_ENDING = ".zux";

    private final Descriptor descriptor;
    private final PackageRequest request;
    private final SortedMap<String, Content> records = new TreeMap<>();

    private PackageRecords(Descriptor descriptor, PackageRequest request) {
        this.descriptor = descriptor;
        this.request = request;
    }

    static SortedMap<String, Content> of(Descriptor descriptor, PackageRequest request) throws Failure {
        PackageRecords collected = new PackageRecords(descriptor, request);
        collected.records.put(FOLDER + "application.xml", Content.ofFile(FilePaths.of(request.descriptor())));
        collected.records.put(FOLDER + "package.json", Content.ofText(collected.describePackage()));
        if (request.debugSession().isPresent()) {
            collected.records.put(FOLDER + "debug.json", Content.ofText(describe(request.debugSession().get())));
        }
        if (request.extensionFolder().isPresent()) {
            collected.addExtensions(FilePaths.of(request.extensionFolder().get()));
        }
        return collected.records;
    }

    private String describePackage() {
        Map<String, Object> members = new LinkedHashMap<>();
        members.put("target", request.target().text());
        members.put("namespace", descriptor.namespace());
        members.put("content", descriptor.content());
        request.processor().ifPresent(processor -> members.put("arch", processor));
        request.downloadUrl().ifPresent(url -> members.put("tavDownloadURL", url));
        members.put("extensionIDs", descriptor.extensionIds());
        return Json.object(members);
    }

    private static String describe(DebugSession session) throws Failure {
        if (session.isListening()) {
            return Json.object(Map.of("listen", session.port()));
        }
        return Json.object(Map.of("connect",
                session.host().isEmpty() ? LocalAddresses.list() : List.of(session.host())));
    }

    private void addExtensions(Path folder) throws Failure {
        try (DirectoryStream<Path> files = Files.newDirectoryStream(folder)) {
            for (Path file : files) {
                addExtension(file);
            }
        } catch (IOException | DirectoryIteratorException unreadable) {
            throw Content.cannotOpen(folder);
        }
    }

    private void addExtension(Path file) throws Failure {
        String name = file.getFileName().toString();
        if (!name.toLowerCase(Locale.ROOT).endsWith(EXTENSION_ENDING)) {
            return;
        }
        TextEncoding.requireReadable(name);
        if (!Files.isRegularFile(file) || !Files.isReadable(file)) {
            throw Content.cannotOpen(file);
        }
        records.put(FOLDER + "extensions/" + name, Content.ofFile(file));
    }
}
