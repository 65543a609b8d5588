package tav.kob.command;

/** How a debug package finds its debugger: it calls a host, or it waits on a port. */
public final class DebugSession {
    private final String host;
    private final int port;

    private DebugSession(String host, int port) {
        this.host = host;
        this.port = port;
    }

    /** An empty host leaves it to the tool to name this machine's addresses. */
    static DebugSession connecting(String host) {
        return new DebugSession(host, 0);
    }

    static DebugSession listening(int port) {
        return new DebugSession("", port);
    }

    public boolean isListening() {
        return port > 0;
    }

    public String host() {
        return host;
    }

    public int port() {
        return port;
    }
}
