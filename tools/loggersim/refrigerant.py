"""Refrigerants from the data folder's tables: pressures in bar absolute, temperatures in °C, kJ/kg, kg/m³."""
import bisect
import csv
import dataclasses
import math
import pathlib

KELVIN = 273.15


@dataclasses.dataclass(frozen=True)
class Vapour:
    """Mean figures of superheated vapour, good enough for a stand-in."""
    table: str
    cp_suction: float  # kJ/(kg K)
    cp_discharge: float
    exponent: float  # of the isentropic compression
    specific_volume: bool = False  # the table gives dm³/kg


VAPOURS = {
    "R404A": Vapour("R404A.DAT", 0.90, 1.15, 1.08),
    "R134A": Vapour("R134A.DAT", 0.90, 1.12, 1.10),
    "R717": Vapour("AMMONIAK.DAT", 2.55, 2.95, 1.29, specific_volume=True),
    "R744": Vapour("CO2.DAT", 1.15, 1.35, 1.30),
}


def rows(path):
    with open(path, newline="", encoding="utf-8-sig") as file:
        for row in csv.reader(file):
            if row:
                yield [float(item) for item in row]


def between(x, xs, ys):
    """Straight line between the neighbours of x; the outer ones go on."""
    i = min(max(bisect.bisect_right(xs, x), 1), len(xs) - 1)
    part = (x - xs[i - 1]) / (xs[i] - xs[i - 1])
    return ys[i - 1] + part * (ys[i] - ys[i - 1])


class Refrigerant:
    def __init__(self, name, data):
        self.name = name
        self.vapour = VAPOURS[name]
        columns = list(zip(*rows(pathlib.Path(data) / self.vapour.table)))
        self._t = [kelvin - KELVIN for kelvin in columns[0]]
        # Between dew and bubble line: how the program relates a pressure to a temperature.
        self._log_p = [(math.log(dew) + math.log(bubble)) / 2 for dew, bubble in zip(columns[1], columns[2])]
        self._h_liquid, self._h_vapour = columns[3], columns[4]
        self._rho_vapour = [1000 / v for v in columns[6]] if self.vapour.specific_volume else columns[6]
        self.t_highest = self._t[-1]
        self.hot = HotGas(pathlib.Path(data) / "CO2_sh01.dat") if name == "R744" else None

    def pressure(self, t):
        return math.exp(between(t, self._t, self._log_p))

    def temperature(self, p):
        return between(math.log(p), self._log_p, self._t)

    def h_liquid(self, t):
        return between(t, self._t, self._h_liquid)

    def h_vapour(self, t):
        return between(t, self._t, self._h_vapour)

    def suction(self, t0, t_suction):
        """Enthalpy and density of the vapour at the compressor's inlet."""
        h = self.h_vapour(t0) + self.vapour.cp_suction * (t_suction - t0)
        rho = between(t0, self._t, self._rho_vapour) * (t0 + KELVIN) / (t_suction + KELVIN)
        return h, rho

    def compression(self, p_low, p_high, rho):
        """Isentropic work, kJ/kg."""
        n = self.vapour.exponent
        ratio = max(p_high / p_low, 1.0)
        return n / (n - 1) * 100 * p_low / rho * (ratio ** ((n - 1) / n) - 1)

    def discharge(self, p_high, h):
        """Temperature of the hot gas of an enthalpy."""
        if self.hot and p_high >= self.hot.lowest:
            return self.hot.temperature(p_high, h)
        t = self.temperature(p_high)
        return t + (h - self.h_vapour(t)) / self.vapour.cp_discharge


class HotGas:
    """R744 above its saturation line."""

    def __init__(self, path):
        self._lines = {}
        for t, p, h, *_ in rows(path):
            if t * p * h == 0:
                break
            ts, hs = self._lines.setdefault(p, ([], []))
            ts.append(t)
            hs.append(h)
        self._pressures = sorted(self._lines)
        self.lowest = self._pressures[0]

    def _at(self, p, read):
        i = min(max(bisect.bisect_right(self._pressures, p), 1), len(self._pressures) - 1)
        low, high = self._pressures[i - 1], self._pressures[i]
        part = (p - low) / (high - low)
        return (1 - part) * read(*self._lines[low]) + part * read(*self._lines[high])

    def enthalpy(self, p, t):
        return self._at(p, lambda ts, hs: between(t, ts, hs))

    def temperature(self, p, h):
        return self._at(p, lambda ts, hs: between(h, hs, ts))
