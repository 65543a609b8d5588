package tav.kob;

import java.io.IOException;
import java.io.InputStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.zip.ZipFile;

/** A movie's folder with everything that a package needs, and the command lines that package it. */
final class PracticeProject {
    static final String NAMESPACE = "http://ns.zenvoka.example/tav/application/";
    static final String DESCRIPTOR = "<application xmlns=\"" + NAMESPACE + "26.0\">"
            + "<id>com.example.game</id><versionNumber>1.2.3</versionNumber><filename>Game</filename>"
            + "<name>My Game</name><initialWindow><content>Game.qmv</content></initialWindow>"
            + "<icon><image48x48>icons/icon48.png</image48x48></icon></application>";

    private final Path folder;

    PracticeProject(Path folder) throws IOException {
        this.folder = folder;
        write("Game.qmv", "QMV\u001a and the rest of a movie");
        write("Game-app.xml", DESCRIPTOR);
        writeIcon(48);
    }

    Path path(String name) {
        return folder.resolve(name);
    }

    Path output() {
        return path("Game.apk");
    }

    Path write(String name, String text) throws IOException {
        Path file = path(name);
        Files.createDirectories(file.getParent());
        return Files.write(file, text.getBytes(StandardCharsets.UTF_8));
    }

    void writeIcon(int side) throws IOException {
        Path file = path("icons/icon" + side + ".png");
        Files.createDirectories(file.getParent());
        Files.write(file, Png.square(side));
    }

    /** Rewrites the descriptor with one text in place of another. */
    PracticeProject change(String from, String to) throws IOException {
        String text = Files.readString(path("Game-app.xml"));
        if (!text.contains(from)) {
            throw new IllegalArgumentException("the descriptor has no " + from);
        }
        write("Game-app.xml", text.replace(from, to));
        return this;
    }

    /** The arguments up to the password, for a target with its options. */
    static List<String> signed(Path keystore, String... target) {
        List<String> arguments = new ArrayList<>(List.of("-package", "-target"));
        arguments.addAll(Arrays.asList(target));
        arguments.addAll(List.of("-storetype", "PKCS12", "-keystore", keystore.toString(),
                "-storepass", Keystores.PASSWORD));
        return arguments;
    }

    /** The arguments behind the password: output, descriptor, movie, icon and more. */
    List<String> content(String... more) {
        List<String> arguments = new ArrayList<>(List.of(output().toString(), path("Game-app.xml").toString(),
                "-C", folder + "/", "Game.qmv", "icons/icon48.png"));
        arguments.addAll(Arrays.asList(more));
        return arguments;
    }

    /** Packages for a target, with its options, and the plain content. */
    ToolRun publish(String... target) throws Exception {
        return ToolRun.inProcess(join(signed(Keystores.good(), target), content()));
    }

    /** Packages a captive apk with items behind the plain content. */
    ToolRun publishWith(String... more) throws Exception {
        return ToolRun.inProcess(join(signed(Keystores.good(), "apk-captive-runtime"), content(more)));
    }

    String entry(String name) throws IOException {
        try (ZipFile zip = new ZipFile(output().toFile())) {
            try (InputStream input = zip.getInputStream(zip.getEntry(name))) {
                return new String(input.readAllBytes(), StandardCharsets.UTF_8);
            }
        }
    }

    List<String> entryNames() throws IOException {
        List<String> names = new ArrayList<>();
        try (ZipFile zip = new ZipFile(output().toFile())) {
            zip.stream().forEach(entry -> names.add(entry.getName()));
        }
        return names;
    }

    List<String> filesInFolder() throws IOException {
        List<String> names = new ArrayList<>();
        try (var files = Files.list(folder)) {
            files.forEach(file -> names.add(file.getFileName().toString()));
        }
        names.sort(null);
        return names;
    }

    static List<String> join(List<String> first, List<String> second) {
        List<String> all = new ArrayList<>(first);
        all.addAll(second);
        return all;
    }
}
