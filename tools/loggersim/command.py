"""The command line."""
import argparse
import datetime
import os
import pathlib
import random
import signal
import sys

from .bath import Bath
from .channels import Channels
from .designs import DESIGNS
from .device import Device
from .faults import Faults
from .memory import Memory
from .plant import Plant
from .recording import Recording, record
from .refrigerant import Refrigerant

DATA = pathlib.Path(__file__).resolve().parents[2] / "data"
SIGNALS = (signal.SIGTERM, signal.SIGINT, signal.SIGHUP)
RECORDED = "RECORD01.adc"
RECORDED_LINES, RECORDED_INTERVAL = 240, 30.0

EPILOG = """The first line of standard output is the device that the program opens:

    tools/logger_sim --plant R404A --speed 60 --link logger.tty &
    polarkreis-cli logger run --port 1=logger.tty --settings "data/logger R404A.json" --out store.fmd

It runs until it is stopped (Ctrl-C) and tells more in docs/logger-sim.md."""


def fraction(text):
    value = float(text)
    if not 0 <= value <= 1:
        raise argparse.ArgumentTypeError("a probability from 0 to 1")
    return value


def positive(text):
    value = float(text)
    if not 0 < value < 1e6:
        raise argparse.ArgumentTypeError("a number above 0")
    return value


def named_file(text):
    name, _, path = text.partition("=")
    if not name.endswith((".adc", ".txt")) or " " in name or not path:
        raise argparse.ArgumentTypeError("NAME.adc=PATH or NAME.txt=PATH, without blanks in the name")
    return name, path


def parser():
    p = argparse.ArgumentParser(
        prog="logger_sim", formatter_class=argparse.RawDescriptionHelpFormatter, epilog=EPILOG,
        description="A stand-in for the data logger on a pseudo terminal, with a plant to measure behind it.")
    plant = p.add_argument_group("what is measured")
    plant.add_argument("--plant", choices=sorted(DESIGNS), default="R404A", help="refrigerant of the plant (R404A)")
    plant.add_argument("--orbiter", type=int, choices=(0, 1, 2), help="remote units (as the plant has them)")
    plant.add_argument("--adc", metavar="FILE", help="play this recorded measurement instead, one line a sample")
    plant.add_argument("--bath", type=float, metavar="T",
                       help="all sensors lie in a bath of T °C and at one pressure, for a calibration")
    plant.add_argument("--speed", type=positive, default=1.0, metavar="N", help="the plant's time runs N times as fast")
    plant.add_argument("--step", type=positive, default=0.0, metavar="S",
                       help="the plant goes on by S seconds with each sample, whatever the clock says")
    plant.add_argument("--phase", default="start", help="begin with start, run, defrost, stop or a minute of the cycle")
    plant.add_argument("--seed", "--random", type=int, metavar="N", help="sensor noise and faults that can be repeated")
    plant.add_argument("--data", default=DATA, metavar="DIR", help="data folder with the refrigerants' tables")
    device = p.add_argument_group("the device")
    device.add_argument("--box", choices=("none", "M", "A"), default="none",
                        help="class that the reply tells: M a monitoring box with its own wiring, A the other")
    device.add_argument("--echo", action="store_true", help="give each command back before its reply")
    device.add_argument("--file", type=named_file, action="append", default=[], metavar="NAME=PATH",
                        help="a file in the logger's memory; may be given several times")
    device.add_argument("--link", metavar="PATH", help="make a link to the device, removed at the end")
    add_faults(p.add_argument_group("misbehaviour (P: probability of a sample reply, 0 to 1)"))
    return p


def add_faults(group):
    group.add_argument("--noise", type=fraction, default=0.0, metavar="P", help="characters changed on the way")
    group.add_argument("--short", type=fraction, default=0.0, metavar="P", help="fewer than 25 characters")
    group.add_argument("--long", type=fraction, default=0.0, metavar="P", help="more than 600 characters")
    group.add_argument("--echo-only", type=fraction, nargs="?", const=1.0, default=0.0, metavar="P",
                       help="the command comes back and nothing else (without P: always)")
    group.add_argument("--spike", type=fraction, default=0.0, metavar="P", help="a value that no plant can have")
    group.add_argument("--late", type=positive, default=0.0, metavar="MS", help="every reply comes so much later")
    group.add_argument("--late-rate", type=fraction, default=1.0, metavar="P", help="only some are late")
    group.add_argument("--dead", action="store_true", help="no reply at all")
    group.add_argument("--die-after", type=int, default=-1, metavar="N",
                       help="after N samples the line dies in the middle of a reply")


def channels_of(options, seed):
    plant = Plant(DESIGNS[options.plant], Refrigerant(options.plant, options.data), options.phase)
    orbiter = plant.design.orbiter if options.orbiter is None else options.orbiter
    return Channels(plant, orbiter, options.box == "M", random.Random(seed))


def source_of(options, seed):
    if options.adc:
        return Recording(options.adc)
    if options.bath is not None:
        return Bath(options.bath, random.Random(seed))
    return channels_of(options, seed)


def memory_of(options, seed):
    memory = Memory()
    begin = datetime.datetime(2026, 3, 1, 8, 0, 0)
    memory.put(RECORDED, record(channels_of(options, seed), begin, RECORDED_LINES, RECORDED_INTERVAL))
    for name, path in options.file:
        with open(path, encoding="cp1252", newline="") as file:
            memory.put(name, file.read())
    return memory


def device_of(options):
    seed = options.seed if options.seed is not None else random.randrange(2 ** 32)
    source = source_of(options, seed)
    faults = Faults(options.noise, options.short, options.long, options.echo_only, options.spike,
                    options.late / 1000, options.late_rate, options.dead, options.die_after)
    # A "T" before the clock time tells no class and makes the token read as the number 0.
    letter = "T" if options.box == "none" else options.box
    return Device(source, memory_of(options, seed), faults, random.Random(seed + 1), letter=letter,
                  echo=options.echo, speed=options.speed, step=options.step)


class Stopped(Exception):
    pass


def stop(*_):
    for number in SIGNALS:
        signal.signal(number, signal.SIG_IGN)
    raise Stopped


def link(path, device):
    if os.path.islink(path):
        os.unlink(path)
    os.symlink(device, path)


def serve(device, options):
    if options.link:
        link(options.link, device.path)
    try:
        print(device.path, flush=True)
        device.run()
        print("The line has died.", file=sys.stderr)
    finally:
        if options.link and os.path.islink(options.link) and os.readlink(options.link) == device.path:
            os.unlink(options.link)


def main(arguments=None):
    options = parser().parse_args(arguments)
    for number in SIGNALS:
        signal.signal(number, stop)
    try:
        device = device_of(options)
        try:
            serve(device, options)
        finally:
            device.close()
    except Stopped:
        pass
    except (OSError, ValueError) as problem:
        print(f"logger_sim: {problem}", file=sys.stderr)
        return 1
    return 0
