#!/usr/bin/python3
"""A loopback device in a process of its own: prints "listening on PORT" and serves until it is
ended, which is how it is pulled out. What it was given lies in its record folder."""

import argparse

from loopback.device import STEPS, Device


def parse():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--record", required=True, metavar="FOLDER",
                        help="where it keeps what it was given; kept when it comes back")
    parser.add_argument("--port", type=int, default=0, help="by default a free one")
    parser.add_argument("--model", default="Loopback", help="its ro.product.model")
    parser.add_argument("--state", choices=("device", "offline", "unauthorized"),
                        default="device", help="what adb is to see")
    parser.add_argument("--old", action="store_true",
                        help="without features: packages are pushed, and no shell has an exit code")
    parser.add_argument("--refuse-install", metavar="REASON",
                        help="refuses each package, as INSTALL_FAILED_INSUFFICIENT_STORAGE")
    parser.add_argument("--leave-at", choices=STEPS,
                        help="pulled out at that step; with half of a streamed package arrived")
    parser.add_argument("--hold-at", choices=STEPS,
                        help="records \"held\" at that step and waits for the file \"release\"")
    return parser.parse_args()


def main():
    device = Device(parse())
    print(f"listening on {device.port}", flush=True)
    try:
        device.serve()
    except KeyboardInterrupt:
        pass


if __name__ == "__main__":
    main()
