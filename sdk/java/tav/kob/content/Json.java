package tav.kob.content;

import java.util.Collection;
import java.util.Map;
import java.util.stream.Collectors;

/** Writes the small records inside a package: objects of texts, numbers and lists of texts. */
public final class Json {
    private Json() {
    }

    public static String object(Map<String, ?> members) {
        return members.entrySet().stream()
                .map(member -> "  " + quoted(member.getKey()) + ": " + value(member.getValue()))
                .collect(Collectors.joining(",\n", "{\n", "\n}\n"));
    }

    private static String value(Object value) {
        if (value instanceof Collection) {
            return ((Collection<?>) value).stream().map(Json::value).collect(Collectors.joining(", ", "[", "]"));
        }
        return value instanceof Number ? value.toString() : quoted(value.toString());
    }

    private static String quoted(String text) {
        StringBuilder quoted = new StringBuilder("\"");
        for (char unit : text.toCharArray()) {
            if (unit == '"' || unit == '\\') {
                quoted.append('\\').append(unit);
            } else if (unit < ' ') {
                quoted.append(String.format("\\u%04x", (int) unit));
            } else {
                quoted.append(unit);
            }
        }
        return quoted.append('"').toString();
    }
}
