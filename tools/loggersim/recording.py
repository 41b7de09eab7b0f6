"""A recorded measurement in the place of a plant, and the making of one."""
import datetime
import itertools

from .channels import UNIT


def values_of(line):
    """The values of a line behind its time stamp; runs of tabs count once."""
    return [value.strip() for value in line.split("\t")[1:] if value.strip()]


class Recording:
    """Plays the lines of an .adc file, one each sample, over and over."""

    def __init__(self, path):
        with open(path, encoding="cp1252", newline=None) as file:
            lines = [values_of(line) for line in file]
        self.lines = [line for line in lines if line]
        if not self.lines:
            raise ValueError(f"{path}: no line with values behind a time stamp and a tab")
        self._next = itertools.cycle(self.lines)

    def advance(self, seconds):
        pass

    def texts(self):
        return list(next(self._next))


def record(channels, begin, lines, interval):
    """The text of an .adc file: so many lines, an interval of seconds apart."""
    text = []
    for i in range(lines):
        channels.advance(interval)
        stamp = (begin + datetime.timedelta(seconds=i * interval)).strftime("%d.%m.%Y  %H:%M:%S")
        text.append("\t".join([stamp] + channels.texts()[:UNIT * (channels.orbiter + 1)]))
    return "\r\n".join(text + [""])
