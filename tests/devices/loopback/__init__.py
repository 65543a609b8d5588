"""An Android device on the loopback network, as far as adb and an installation need one."""
