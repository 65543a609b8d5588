package tav.kob.base;

/** The numbers of the messages about descriptor, icons and content; all of them end with exit code 1. */
public final class ErrorNumber {
    public static final int DESCRIPTOR_NOT_PARSEABLE = 100;
    public static final int NAMESPACE_MISSING = 101;
    public static final int NAMESPACE_INVALID = 102;
    public static final int UNEXPECTED_NODE = 103;
    public static final int ELEMENT_MISSING = 104;
    public static final int VALUE_INVALID = 105;
    public static final int WINDOW_COMBINATION = 106;
    public static final int WINDOW_SIZES = 107;
    public static final int ICON_NOT_OPENED = 200;
    public static final int ICON_DIMENSIONS = 201;
    public static final int ICON_NOT_PNG = 202;
    public static final int FILE_NOT_OPENED = 300;
    public static final int DESCRIPTOR_MISSING = 301;
    public static final int ROOT_CONTENT_MISSING = 302;
    public static final int ICON_MISSING = 303;
    public static final int MOVIE_INVALID = 304;
    public static final int MOVIE_TOO_NEW = 305;

    private ErrorNumber() {
    }
}
