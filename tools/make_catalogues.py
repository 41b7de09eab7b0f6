#!/usr/bin/env python3
"""Writes the sample catalogues of data/: compressors, evaporators and condensers of invented makers, with ratings that
follow from the refrigerants' tables and from plain heat transfer. The same call writes the same files. Their form is
told in docs/catalogue.md.

Usage: tools/make_catalogues.py [DATA_FOLDER]
"""
import dataclasses
import math
import pathlib
import sys

sys.dont_write_bytecode = True  # leaves nothing beside the tools

from loggersim.refrigerant import KELVIN, between, rows

CODE_PAGE = "cp850"
RECORD, FIELD, FIELDS = 570, 40, 14
TITLE_RECORD, TYPE_RECORD = 1, 51
LIST_RECORD, LISTS, LIST_BLOCK = 128, 18, 66
FIRST = 2  # record of the first component
BLOCK = 50  # from one block of a catalogue without lists to the next: the type's record lies between two

COMPRESSORS, EVAPORATORS, CONDENSERS = "VERDICH", "LUFTKVD", "AXIALKD"

# Record of the list texts for each list position.
LIST_INDEX = [6, 5, 7, 8, 2, 11, 13, 15, 9, 4, 1, 10, 3, 12, 14, 16, 17, 18]


@dataclasses.dataclass(frozen=True)
class Refrigerant:
    name: str
    table: str
    exponent: float  # of the isentropic compression
    cp_suction: float  # kJ/(kg K)
    specific_volume: bool = False  # the table gives dm³/kg

    def load(self, data):
        columns = list(zip(*rows(data / self.table)))
        return Table([kelvin - KELVIN for kelvin in columns[0]], columns, self)


class Table:
    """The refrigerant's saturation line: °C, bar, kJ/kg, kg/m³."""

    def __init__(self, t, columns, refrigerant):
        self.t, self.columns, self.refrigerant = t, columns, refrigerant

    def at(self, column, t):
        return between(t, self.t, self.columns[column])

    def pressure(self, t):
        """At the dew point: a rating's temperatures are those of the dry vapour."""
        return math.exp(between(t, self.t, [math.log(p) for p in self.columns[1]]))

    def liquid_enthalpy(self, p):
        """Of the boiling liquid, which a blend condenses to below its dew temperature."""
        return self.at(3, between(math.log(p), [math.log(bubble) for bubble in self.columns[2]], self.t))

    def suction_density(self, t):
        value = self.at(6, t)
        return 1000 / value if self.refrigerant.specific_volume else value


REFRIGERANTS = [
    Refrigerant("R134A", "R134A.DAT", 1.10, 0.90),
    Refrigerant("R404A", "R404A.DAT", 1.08, 0.90),
    Refrigerant("R407C", "R407C.DAT", 1.12, 0.90),
    Refrigerant("R407F", "R407F.DAT", 1.12, 0.90),
    Refrigerant("R410A", "R410A.DAT", 1.15, 1.05),
    Refrigerant("R32", "R32.dat", 1.22, 1.20),
    Refrigerant("R448A", "R448A.DAT", 1.12, 0.90),
    Refrigerant("R449A", "R449A.DAT", 1.12, 0.90),
    Refrigerant("R513A", "R513A.DAT", 1.09, 0.88),
    Refrigerant("R290", "PROPAN.DAT", 1.10, 1.75),
    Refrigerant("R717", "AMMONIAK.DAT", 1.29, 2.55, specific_volume=True),
    Refrigerant("R744", "CO2.DAT", 1.28, 1.15),
]


@dataclasses.dataclass(frozen=True)
class Design:
    """A maker's series: volumetric and overall efficiency fall with the pressure ratio."""
    maker: str
    series: str
    kind: str
    smallest: float  # m³/h
    filling: tuple  # at pressure ratio 1, loss for each further 1
    efficiency: tuple  # best, loss for each 1 away from the best ratio, best ratio
    weight: float  # kg for a displacement of 1 m³/h, to the power of 0.75
    step: float = 1.45  # from one model's size to the next


RECIPROCATING = Design("Brunsholm Verdichter", "BHK", "semi-hermetic reciprocating", 9.2, (0.95, 0.038),
                       (0.68, 0.012, 3.5), 9.5)
SUBCRITICAL = Design("Brunsholm Verdichter", "BHC", "semi-hermetic reciprocating", 3.6, (0.94, 0.045), (0.69, 0.02, 2.8), 16)
AMMONIA = Design("Brunsholm Verdichter", "BHO", "open reciprocating", 58, (0.94, 0.035), (0.72, 0.012, 4.0), 14)
SCROLL = Design("Südhang Kältetechnik", "SKS", "hermetic scroll", 5.1, (0.985, 0.012), (0.68, 0.02, 3.0), 8)
SCREW = Design("Tornevall Skruv", "TVS", "semi-hermetic screw", 118, (0.95, 0.014), (0.70, 0.013, 3.6), 9, 1.3)
OPEN_SCREW = Design("Tornevall Skruv", "TVO", "open screw", 250, (0.94, 0.013), (0.73, 0.014, 4.2), 8, 1.3)

AIR_CONDITIONING, MEDIUM, LOW = ("air conditioning", 5, 50), ("medium temperature", -10, 45), ("low temperature", -35, 40)

# Position of the list: refrigerant, series, duty with evaporating and condensing temperature in °C.
COMPRESSOR_LISTS = [
    ("R134A", RECIPROCATING, MEDIUM),
    ("R134A", SCREW, AIR_CONDITIONING),
    ("R404A", RECIPROCATING, MEDIUM),
    ("R404A", RECIPROCATING, LOW),
    ("R407C", SCROLL, AIR_CONDITIONING),
    ("R407F", RECIPROCATING, MEDIUM),
    ("R410A", SCROLL, AIR_CONDITIONING),
    ("R32", SCROLL, AIR_CONDITIONING),
    ("R448A", RECIPROCATING, MEDIUM),
    ("R448A", RECIPROCATING, LOW),
    ("R449A", RECIPROCATING, MEDIUM),
    ("R513A", RECIPROCATING, MEDIUM),
    ("R513A", SCREW, AIR_CONDITIONING),
    ("R290", RECIPROCATING, MEDIUM),
    ("R290", SCROLL, AIR_CONDITIONING),
    ("R717", AMMONIA, ("process cooling", -10, 35)),
    ("R717", OPEN_SCREW, ("process cooling", -10, 35)),
    ("R744", SUBCRITICAL, ("subcritical stage", -32, -5)),
]
MODELS = 8
SUPERHEAT = 10  # K, of the suction gas; the liquid is not subcooled


def significant(value, digits=3):
    """A rating as catalogues print it."""
    return f"{float(f'{value:.{digits}g}'):.{max(0, digits - 1 - math.floor(math.log10(value)))}f}"


def compressor(design, table, duty, volume):
    """One record's texts; `volume` in m³/h."""
    refrigerant = table.refrigerant
    _, t0, tc = duty
    rho = table.suction_density(t0) * (t0 + KELVIN) / (t0 + SUPERHEAT + KELVIN)
    p0, pc = table.pressure(t0), table.pressure(tc)
    ratio, n = pc / p0, refrigerant.exponent
    full, loss = design.filling
    m = volume / 3600 * rho * (full - loss * (ratio - 1))
    capacity = m * (table.at(4, t0) + refrigerant.cp_suction * SUPERHEAT - table.liquid_enthalpy(pc))
    best, fall, best_ratio = design.efficiency
    efficiency = (best - fall * abs(ratio - best_ratio)) * (1 - 0.6 / (volume + 10))
    power = m * n / (n - 1) * 100 * p0 / rho * (ratio ** ((n - 1) / n) - 1) / efficiency
    current = 1.25 * power / (math.sqrt(3) * 0.4 * 0.86)
    lines = [math.sqrt(4 * m / density / speed / math.pi) * 1000
             for density, speed in ((rho, 12), (rho * ratio ** (1 / n), 11))]
    return [
        f"{design.series}-{volume:.0f}{duty[0][0].upper()}",
        f"{design.maker}, {design.series} {design.kind.split()[-1]}",
        f"Refrigerant: {refrigerant.name}",
        f"Displacement: {significant(volume)} m³/h",
        f"Rated at: t0 {t0} °C, tc {tc} °C, {SUPERHEAT} K",
        f"Capacity: {significant(capacity)} kW",
        f"Power input: {significant(power)} kW",
        f"COP: {capacity / power:.2f}",
        f"Max. current: {significant(current, 2)} A",
        f"Suction line: {pipe(lines[0])} mm",
        f"Discharge line: {pipe(lines[1])} mm",
        f"Oil charge: {significant(0.35 * volume ** 0.6, 2)} dm³",
        f"Sound power: {66 + 6 * math.log10(volume):.0f} dB(A)",
        f"Weight: {design.weight * volume ** 0.75:.0f} kg",
    ]


def pipe(inner):
    """The outer diameter of a copper or steel line, mm."""
    sizes = [10, 12, 16, 18, 22, 28, 35, 42, 54, 64, 76, 89, 108, 133, 159, 219]
    return next((size for size in sizes if size - 2 >= inner), sizes[-1])


def compressors(data):
    """Records by number, texts of the lists in the order of their records, rows of the index."""
    tables = {refrigerant.name: refrigerant.load(data) for refrigerant in REFRIGERANTS}
    records, texts, index = {TITLE_RECORD: ["Compressors", "18 lists"], TYPE_RECORD: ["0"]}, [""] * LISTS, []
    for position, (name, design, duty) in enumerate(COMPRESSOR_LISTS):
        start = position * LIST_BLOCK + FIRST
        volumes = [float(significant(design.smallest * design.step ** i)) for i in range(MODELS)]
        for i, volume in enumerate(volumes):
            records[start + i] = compressor(design, tables[name], duty, volume)
        rating = f"t0 {duty[1]} °C, tc {duty[2]} °C"
        texts[LIST_INDEX[position] - 1] = (f"{name}: {design.kind}, {duty[0]}, {rating}, "
                                           f"{volumes[0]:g} to {volumes[-1]:g} m³/h, {design.maker}")
        index.append((COMPRESSORS, design.maker, f"{name} {design.kind}, {duty[0]}", start))
    return records, texts, index


AIR_CP = 1.006  # kJ/(kg K)


def air_side(capacity, difference, air_change, k, rho, pressure):
    """Air flow in m³/h, surface in m², fan power in kW of a finned coil: `difference` between entering air and the
    refrigerant and `air_change` in K, `k` in W/(m² K), `pressure` of the fans in Pa."""
    flow = capacity * 3600 / (rho * AIR_CP * air_change)
    mean = air_change / math.log(difference / (difference - air_change))
    return flow, capacity * 1000 / (k * mean), flow / 3600 * pressure / 0.38 / 1000


FAN_FLOW = 5.5  # m³/h of a fan of 500 mm for each 1/min; it grows with the cube of the diameter
TIP_SPEED = 45  # m/s, at most


def tip_speed(diameter, speed):
    """In m/s, of a diameter in mm at a speed in 1/min."""
    return math.pi * diameter / 1000 * speed / 60


def fans(flow, speed, diameters):
    """Number and diameter in mm of fans at a speed in 1/min: the smallest of which four are enough, or the largest."""
    for diameter in (d for d in diameters if tip_speed(d, speed) < TIP_SPEED):
        number = math.ceil(flow / (FAN_FLOW * speed * (diameter / 500) ** 3))
        if number <= 4:
            break
    return number, diameter


def fan_sound(number, diameter, speed):
    """Sound pressure in dB(A) at 10 m: the sixth power of the tip speed, the area that sounds."""
    return 60 * math.log10(tip_speed(diameter, speed)) + 10 * math.log10(number * diameter / 500) - 47.5


@dataclasses.dataclass(frozen=True)
class Cooler:
    maker: str
    series: str
    fins: int  # spacing, mm
    smallest: float  # kW
    t0: int  # °C
    difference: float  # K
    k: float  # W/(m² K)
    step: float = 1.45


COOLER_SPEED = 1330  # 1/min

COOLERS = [
    Cooler("Frostmühle Luftkühler", "FM4", 4, 3.2, -8, 8, 22),
    Cooler("Frostmühle Luftkühler", "FM7", 7, 2.6, -8, 8, 26),
    Cooler("Kaltenrain Apparatebau", "KRT", 12, 2.1, -25, 7, 30),
]


def defrost(cooler, surface):
    """Power in kW: about 100 W/m², more where narrow gaps freeze up sooner."""
    return 0.1 * (7 / cooler.fins) ** 0.3 * surface


def evaporator(cooler, capacity):
    sensible, air_change = capacity / 1.15, 0.47 * cooler.difference
    t_air = cooler.t0 + cooler.difference
    rho = 353 / (t_air + KELVIN)
    flow, surface, power = air_side(sensible, cooler.difference, air_change, cooler.k, rho, 110)
    number, diameter = fans(flow, COOLER_SPEED, (350, 400, 450, 500, 630))
    return [
        f"{cooler.series}-{significant(capacity)}",
        f"{cooler.maker}, {cooler.series}",
        f"Fin spacing: {cooler.fins} mm",
        f"Capacity: {significant(capacity)} kW",
        f"Rated at: t0 {cooler.t0} °C, air {t_air:g} °C",
        f"Air flow: {significant(flow)} m³/h",
        f"Surface: {significant(surface)} m²",
        f"Tube volume: {significant(0.115 * surface, 2)} dm³",
        f"Fans: {number} × Ø {diameter} mm",
        f"Fan power: {significant(power, 2)} kW",
        f"Air throw: {round(0.045 * diameter * (flow / number / 5000) ** 0.5 + 2)} m",
        f"Sound pressure: {38 + 3.7 * math.log(flow / 1000):.0f} dB(A), 3 m",
        f"Electric defrost: {significant(defrost(cooler, surface), 2)} kW",
        f"Weight: {significant(14 + 0.62 * surface * (4 + cooler.fins) / 8, 2)} kg",
    ]


@dataclasses.dataclass(frozen=True)
class Condenser:
    maker: str
    series: str
    kind: str
    smallest: float  # kW
    k: float  # W/(m² K)
    pressure: float  # Pa
    speed: int  # 1/min
    step: float = 1.45


CONDENSER_SERIES = [
    Condenser("Windgrube Verflüssiger", "WGA", "axial, fast", 18, 34, 95, 1330),
    Condenser("Windgrube Verflüssiger", "WGL", "axial, quiet", 13, 28, 45, 660),
    Condenser("Grönstad Kyl", "GKV", "axial, vertical air", 42, 33, 80, 890, 1.3),
]
T_AIR, T_CONDENSING = 25, 40


def condenser(series, capacity):
    difference = T_CONDENSING - T_AIR
    rho = 353 / (T_AIR + KELVIN)
    flow, surface, power = air_side(capacity, difference, 0.53 * difference, series.k, rho, series.pressure)
    number, diameter = fans(flow, series.speed, (500, 630, 800, 910, 1000))
    length = number * (diameter * 1.35 + 60)
    return [
        f"{series.series} {significant(capacity)}",
        f"{series.maker}, {series.series}",
        f"Design: {series.kind}",
        f"Capacity: {significant(capacity)} kW",
        f"Rated at: tc {T_CONDENSING} °C, air {T_AIR} °C",
        f"Air flow: {significant(flow)} m³/h",
        f"Surface: {significant(surface)} m²",
        f"Tube volume: {significant(0.105 * surface, 2)} dm³",
        f"Fans: {number} × Ø {diameter} mm",
        f"Fan power: {significant(power, 2)} kW",
        f"Fan speed: {series.speed} 1/min",
        f"Sound pressure: {fan_sound(number, diameter, series.speed):.0f} dB(A), 10 m",
        f"Size: {length:.0f} × {diameter * 1.3 + 90:.0f} × {diameter * 0.6 + 480:.0f} mm",
        f"Weight: {significant(30 + 0.75 * surface, 2)} kg",
    ]


def blocks(code, title, type_digit, series, record, text):
    """A catalogue without lists: a block for each series, and the rows of its index."""
    records, index = {TITLE_RECORD: [title], TYPE_RECORD: [type_digit]}, []
    for block, one in enumerate(series):
        start = block * BLOCK + FIRST
        for i in range(MODELS):
            records[start + i] = record(one, float(significant(one.smallest * one.step ** i)))
        index.append((code, one.maker, text(one), start))
    return records, index


def encoded(text, length):
    data = text.encode(CODE_PAGE)
    if len(data) > length:
        sys.exit(f"make_catalogues: \"{text}\" has more than {length} characters")
    return data.ljust(length)


def write_records(path, records):
    """The records by number, from 1 to the highest; those between are blank."""
    with open(path, "wb") as file:
        for number in range(1, max(records) + 1):
            texts = records.get(number, [])
            if len(texts) > FIELDS:
                sys.exit(f"make_catalogues: record {number} has more than {FIELDS} fields")
            file.write(b"".join(encoded(text, FIELD) for text in texts).ljust(RECORD))


def write_rows(path, lines):
    """Text files of the data folder: quoted items, UTF-8, CR LF."""
    text = "".join(",".join(f'"{item}"' for item in line) + "\r\n" for line in lines)
    path.write_bytes(text.encode("utf-8"))


def main():
    data = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent / "data")
    records, texts, index = compressors(data)
    write_records(data / f"{COMPRESSORS}N.rdm", records)
    (data / f"{COMPRESSORS}I.rdm").write_bytes(b"".join(encoded(text, LIST_RECORD) for text in texts))
    write_rows(data / "I650.DAT", index)

    records, index = blocks(EVAPORATORS, "Luftkühler", "3", COOLERS, evaporator,
                            lambda cooler: f"Air coolers, {cooler.fins} mm fin spacing")
    write_records(data / f"{EVAPORATORS}N.rdm", records)
    write_rows(data / "I600.DAT", index)

    # The digit is left blank: the program writes it at the first use.
    records, index = blocks(CONDENSERS, "Verflüssiger", "", CONDENSER_SERIES, condenser,
                            lambda series: f"Air-cooled condensers, {series.kind}")
    write_records(data / f"{CONDENSERS}N.rdm", records)
    write_rows(data / "I550.DAT", index)

    write_rows(data / "katalg.lst", [(f"{EVAPORATORS}  Air coolers",), (f"{CONDENSERS}  Air-cooled condensers",),
                                     (f"{COMPRESSORS}  Compressors",)])


if __name__ == "__main__":
    main()
