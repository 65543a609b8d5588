package tav.kob.command;

import java.util.ArrayList;
import java.util.List;
import tav.kob.base.Failure;

/** What has been read of a command line so far; a null field was not named. */
final class RawPackageOptions {
    Target target;
    DebugSession debugSession;
    String downloadUrl;
    String processor;
    String storeType = "PKCS12";
    String keystore;
    String storePassword;
    String provisioningProfile;
    String timestampServer;
    String extensionFolder;
    String output;
    String descriptor;
    final List<Item> items = new ArrayList<>();
    private String itemFolder = "";

    /** A native target stands behind an Android one on the same line and takes its place. */
    void addTarget(String text) throws Failure {
        Target added = Target.named(text).orElseThrow(() -> Failure.usage("unknown target " + text));
        if (target != null && added != Target.NATIVE && target != added) {
            throw Failure.usage("-target " + target.text() + " and -target " + text + " exclude each other");
        }
        target = added;
    }

    void setItemFolder(String folder) {
        itemFolder = folder;
    }

    void addOperand(String text) throws Failure {
        if (text.isEmpty()) {
            throw Failure.usage("a file name is empty");
        }
        if (output == null) {
            output = text;
        } else if (descriptor == null) {
            descriptor = text;
        } else {
            items.add(new Item(itemFolder, text));
        }
    }
}
