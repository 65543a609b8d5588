#!/usr/bin/python3
"""What a publish costs beside the packaging tool.

In turn, pair by pair: a publish with a tool that does nothing, whose CPU time is that of the host
command and the library; a publish with the real tool; and the tool run by itself on the same files. The
waits that belong to the design: half a second of polling and one second of the progress dialog's
tick."""

import os
import pathlib
import resource
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
RUNS = 7
PASSWORD = "practice-only"


def timed(command, environment=None, allowed=(0,)):
    """CPU and wall seconds of a command with all that it starts."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    started = time.monotonic()
    code = subprocess.run(command, env=environment, stdin=subprocess.DEVNULL,
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          check=False).returncode
    wall = time.monotonic() - started
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    if code not in allowed:
        sys.exit(f"{command[0]} ended with {code}")
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, wall


class Bench:
    def __init__(self, folder, build):
        self.folder, self.build = folder, build
        self.game, self.keystore = folder / "Game", folder / "bench.p12"
        shutil.copytree(ROOT / "samples" / "Game", self.game)
        self.lay_out_java("real", pathlib.Path(os.path.realpath(shutil.which("java"))).parents[1])
        self.lay_out_java("idle", self.idle_java())
        self.tool("-certificate", "-cn", "Bench", "-ou", "Bench", "-o", "Bench", "-c", "US",
                  "2048-RSA", self.keystore, PASSWORD)

    def lay_out_java(self, name, home):
        jre = self.folder / name / "Zenvoka" / "Zenvoka Kestrow 2020" / "jre"
        jre.parent.mkdir(parents=True)
        jre.symlink_to(home)

    def idle_java(self):
        home = self.folder / "idle-java"
        (home / "bin").mkdir(parents=True)
        (home / "bin" / "java").symlink_to(shutil.which("true"))
        return home

    def tool(self, *arguments):
        return timed(["java", "-jar", self.build / "TAV26.0" / "lib" / "KOB.jar", *arguments])

    def tool_alone(self):
        icons = [f"icons/icon{size}x{size}.png" for size in (192, 144, 96, 72, 36, 48)]
        return self.tool("-package", "-target", "apk-captive-runtime", "-arch", "armv8",
                         "-storetype", "PKCS12", "-keystore", self.keystore, "-storepass", PASSWORD,
                         self.folder / "alone.apk", self.game / "Game-app.xml", "-C", self.game,
                         "Game.qmv", *icons, "-C", self.game, "level data/first level.json", "-C",
                         self.game, "sounds/Über uns.txt", "-extdir", self.game / "ext")

    def publish(self, java):
        environment = dict(os.environ, CommonProgramFiles=str(self.folder / java),
                           TMPDIR=str(self.folder), XDG_CONFIG_HOME=str(self.folder / "config"),
                           BENCH_PASSWORD=PASSWORD)
        # The idle tool makes no package, which the host command tells by 1.
        return timed([self.build / "qutav", "publish", self.game / "Game.qud.json", "--version",
                      "26.0", "--certificate", self.keystore, "--password-env", "BENCH_PASSWORD"],
                     environment, (0,) if java == "real" else (0, 1))


def main(build):
    with tempfile.TemporaryDirectory(prefix="qutav-bench-") as name:
        bench = Bench(pathlib.Path(name), pathlib.Path(build).resolve())
        bench.publish("real")  # warms the caches and exports the movie
        rows = [(bench.publish("idle"), bench.publish("real"), bench.tool_alone())
                for _ in range(RUNS)]
    own = [idle[0] for idle, _, _ in rows]
    ratios = [idle[0] / tool[0] for idle, _, tool in rows]
    beyond = [real[1] - tool[1] for _, real, tool in rows]
    print(f"{RUNS} runs: median, largest")
    print(f"CPU of library and host command   {statistics.median(own) * 1000:6.0f} ms"
          f" {max(own) * 1000:6.0f} ms   (wanted: under 100 ms)")
    print(f"  as a part of the tool's CPU     {statistics.median(ratios):6.3f}    {max(ratios):6.3f}")
    print(f"wall time beyond the tool's       {statistics.median(beyond):6.2f} s  {max(beyond):6.2f} s"
          "    (the design's waits: up to 1.5 s)")


if __name__ == "__main__":
    main(sys.argv[1])
