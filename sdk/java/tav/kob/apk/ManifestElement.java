package tav.kob.apk;

import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import java.util.TreeMap;

/** An element of the manifest before it is written in binary form. */
final class ManifestElement {
    /** A typed value as Android stores it; a text is kept until the string pool knows its number. */
    static final class Value {
        private static final int REFERENCE = 0x01;
        private static final int STRING = 0x03;
        private static final int DECIMAL = 0x10;
        private static final int BOOLEAN = 0x12;

        final int type;
        final int data;
        final String text;

        private Value(int type, int data, String text) {
            this.type = type;
            this.data = data;
            this.text = text;
        }
    }

    private final String name;
    // Android searches attributes by resource id, so they must be written in that order.
    private final Map<ManifestAttribute, Value> attributes = new TreeMap<>();
    private final Map<String, Value> plainAttributes = new TreeMap<>();
    private final List<ManifestElement> children = new ArrayList<>();

    ManifestElement(String name) {
        this.name = name;
    }

    ManifestElement text(ManifestAttribute attribute, String text) {
        attributes.put(attribute, new Value(Value.STRING, 0, text));
        return this;
    }

    ManifestElement number(ManifestAttribute attribute, int number) {
        attributes.put(attribute, new Value(Value.DECIMAL, number, null));
        return this;
    }

    ManifestElement flag(ManifestAttribute attribute, boolean flag) {
        attributes.put(attribute, new Value(Value.BOOLEAN, flag ? -1 : 0, null));
        return this;
    }

    ManifestElement reference(ManifestAttribute attribute, int resourceId) {
        attributes.put(attribute, new Value(Value.REFERENCE, resourceId, null));
        return this;
    }

    /** An attribute outside the android namespace. */
    ManifestElement plainText(String attribute, String text) {
        plainAttributes.put(attribute, new Value(Value.STRING, 0, text));
        return this;
    }

    ManifestElement child(ManifestElement child) {
        children.add(child);
        return this;
    }

    String name() {
        return name;
    }

    Map<ManifestAttribute, Value> attributes() {
        return attributes;
    }

    Map<String, Value> plainAttributes() {
        return plainAttributes;
    }

    List<ManifestElement> children() {
        return children;
    }
}
