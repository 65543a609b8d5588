package tav.kob.content;

import java.net.Inet4Address;
import java.net.InetAddress;
import java.net.NetworkInterface;
import java.net.SocketException;
import java.util.Collections;
import java.util.SortedSet;
import java.util.TreeSet;

/** The addresses under which a device may reach this machine. */
final class LocalAddresses {
    private LocalAddresses() {
    }

    static SortedSet<String> list() {
        SortedSet<String> addresses = new TreeSet<>();
        try {
            for (NetworkInterface network : Collections.list(NetworkInterface.getNetworkInterfaces())) {
                for (InetAddress address : Collections.list(network.getInetAddresses())) {
                    if (address instanceof Inet4Address && !address.isLoopbackAddress()) {
                        addresses.add(address.getHostAddress());
                    }
                }
            }
        } catch (SocketException noNetwork) {
            // A machine without a network has no address to offer; the package is none the worse.
            return addresses;
        }
        return addresses;
    }
}
