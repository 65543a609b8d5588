package tav.kob.apk;

import java.util.Arrays;
import java.util.Optional;

/** The screen densities, each with the side of its launcher icon. */
enum Density {
    LDPI("ldpi", 36, 120),
    MDPI("mdpi", 48, 160),
    HDPI("hdpi", 72, 240),
    XHDPI("xhdpi", 96, 320),
    XXHDPI("xxhdpi", 144, 480),
    XXXHDPI("xxxhdpi", 192, 640);

    private final String text;
    private final int iconSide;
    private final int dotsPerInch;

    Density(String text, int iconSide, int dotsPerInch) {
        this.text = text;
        this.iconSide = iconSide;
        this.dotsPerInch = dotsPerInch;
    }

    static Optional<Density> forIcon(int side) {
        return Arrays.stream(values()).filter(density -> density.iconSide == side).findFirst();
    }

    int dotsPerInch() {
        return dotsPerInch;
    }

    String iconPath() {
        return "res/drawable-" + text + "-v4/icon.png";
    }
}
