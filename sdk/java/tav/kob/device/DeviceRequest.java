package tav.kob.device;

import java.util.Map;

/** What a command line about devices says: the value of each option that its command takes. */
public final class DeviceRequest {
    private final Map<String, String> values;

    DeviceRequest(Map<String, String> values) {
        this.values = values;
    }

    String serial() {
        return values.get("-device");
    }

    String appId() {
        return values.get("-appid");
    }

    String packageFile() {
        return values.get("-package");
    }
}
