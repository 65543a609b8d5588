package tav.kob.descriptor;

import org.w3c.dom.Element;
import tav.kob.base.ErrorNumber;
import tav.kob.base.Failure;

/** Values of the initial window that are right by themselves and wrong together. */
final class WindowCheck {
    private final Element root;
    private final String subject;

    WindowCheck(Element root, String subject) {
        this.root = root;
        this.subject = subject;
    }

    void run() throws Failure {
        boolean transparent = value("transparent").equalsIgnoreCase("true");
        if (transparent && !value("systemChrome").equals("none")) {
            throw Failure.rejected(subject, ErrorNumber.WINDOW_COMBINATION,
                    "a transparent window cannot have the system's chrome");
        }
        String smallest = value("minSize");
        String largest = value("maxSize");
        if (!smallest.isEmpty() && !largest.isEmpty() && exceeds(smallest, largest)) {
            throw Failure.rejected(subject, ErrorNumber.WINDOW_SIZES,
                    "application.initialWindow.minSize is greater than application.initialWindow.maxSize");
        }
    }

    private static boolean exceeds(String smallest, String largest) {
        String[] low = smallest.split("\\s+");
        String[] high = largest.split("\\s+");
        return Integer.parseInt(low[0]) > Integer.parseInt(high[0])
                || Integer.parseInt(low[1]) > Integer.parseInt(high[1]);
    }

    private String value(String name) {
        return Elements.text(root, "initialWindow", name);
    }
}
