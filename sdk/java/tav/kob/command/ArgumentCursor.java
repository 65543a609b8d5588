package tav.kob.command;

import java.util.List;
import tav.kob.base.Failure;

/** Walks the arguments from left to right. */
public final class ArgumentCursor {
    private final List<String> arguments;
    private int position;

    public ArgumentCursor(List<String> arguments) {
        this.arguments = arguments;
    }

    public boolean hasNext() {
        return position < arguments.size();
    }

    public String next() {
        return arguments.get(position++);
    }

    public boolean nextIsOption() {
        return hasNext() && isOption(arguments.get(position));
    }

    public String valueOf(String option) throws Failure {
        if (!hasNext()) {
            throw Failure.usage("a value is missing behind " + option);
        }
        return next();
    }

    public static boolean isOption(String argument) {
        return argument.startsWith("-");
    }
}
