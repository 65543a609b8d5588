package tav.kob.base;

final class Usage {
    static final String TEXT = String.join("\n",
            "usage: KOB -package -target TARGET [-connect [HOST] | -listen PORT] [-tavDownloadURL URL]",
            "           [-arch armv7|armv8|x86] [-provisioning-profile FILE] [-tsa none|URL]",
            "           [-storetype PKCS12|JKS] -keystore FILE -storepass PASSWORD",
            "           OUTPUT DESCRIPTOR ITEM... [-C FOLDER ITEM...]... [-extdir FOLDER]",
            "       KOB -prepare OUTPUT DESCRIPTOR ITEM... [-C FOLDER ITEM...]... [-extdir FOLDER]",
            "       KOB -certificate -cn NAME -ou UNIT -o ORGANIZATION -c COUNTRY",
            "           [-validityPeriod YEARS] 1024-RSA|2048-RSA FILE PASSWORD",
            "       KOB -devices -platform android",
            "       KOB -installApp -platform android -device SERIAL -package FILE",
            "       KOB -uninstallApp -platform android -device SERIAL -appid ID",
            "       KOB -launchApp -platform android -device SERIAL -appid ID",
            "targets: apk apk-captive-runtime apk-emulator apk-debug",
            "         ipa-test ipa-debug ipa-ad-hoc ipa-app-store native");

    private Usage() {
    }
}
