#!/usr/bin/env python3
"""Writes the sample measurements of data/: files as the logger, a control system and two other instruments leave them.
The plants are those of the stand-in logger; the worksheets are made by LibreOffice (soffice) in both formats. The same
call writes the same files, but for the office program's own stamps.

Usage: tools/make_measurements.py [DATA_FOLDER]
"""
import datetime
import pathlib
import random
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True  # leaves nothing beside the tools

from loggersim.channels import Channels
from loggersim.designs import DESIGNS
from loggersim.plant import Plant
from loggersim.recording import record
from loggersim.refrigerant import Refrigerant
from opendocument import Sheet

BEGIN = datetime.datetime(2026, 3, 2, 6, 0, 0)
UNIT_1_AND_2 = 32  # values in a row of a control system


def plant(name, data, phase="start"):
    return Plant(DESIGNS[name], Refrigerant(name, data), phase)


def write_text(path, text):
    path.write_bytes(text.encode("ascii"))


def cold_store(data):
    """A day of a deep-freeze store: start-up, defrosts, stops; a line a minute."""
    return record(Channels(plant("R404A", data), 0, False, random.Random(1)), BEGIN, 24 * 60, 60)


def monitoring_box(data):
    """Six hours of a chiller behind a monitoring box, whose lines begin with an "M"."""
    text = record(Channels(plant("R134A", data), 1, True, random.Random(2)), BEGIN, 6 * 60, 60)
    return "".join("M" + line.replace("  ", " ", 1) for line in text.splitlines(keepends=True))


def control_system(data):
    """Two hours of a chiller, written by its control system: a time stamp and 32 values a row."""
    channels = Channels(plant("R134A", data, "run"), 1, False, random.Random(3))
    rows = []
    for i in range(2 * 180):
        channels.advance(20)
        stamp = BEGIN + datetime.timedelta(seconds=20 * i)
        values = [f"{stamp:%d.%m.%Y %H:%M:%S}"] + channels.texts()[:UNIT_1_AND_2]
        rows.append(",".join(f'"{value}"' for value in values))
    return "\r\n".join(rows + [""])


class Worksheet:
    """Rows of a plant's readings, each with its time."""

    def __init__(self, data, name, rows, interval, seed):
        self.plant = plant(name, data)
        self.random = random.Random(seed)
        self.rows, self.interval = rows, interval

    def readings(self):
        for i in range(self.rows):
            self.plant.advance(self.interval)
            yield i, BEGIN + datetime.timedelta(seconds=i * self.interval), self.plant.readings()

    def noisy(self, value, spread=0.05):
        return round(value + self.random.gauss(0, spread), 3)


def climacheck(data):
    """An hour and a half of the cold store in a ClimaCheck worksheet: data from row 25 on."""
    source = Worksheet(data, "R404A", 540, 10, 4)
    sheet = Sheet("Measurement")
    sheet["A1"], sheet["D5"], sheet["E5"] = "Performance analysis", "Object", "Cold store.tpl"
    headings = {"D": "Time", "E": "Air in", "F": "Air out", "G": "Low pressure", "Q": "Suction line", "V": "Cond. air in",
                "W": "Cond. air out", "X": "High pressure", "AG": "Liquid", "AO": "Discharge", "BF": "Power", "CD": "I L1",
                "CE": "I L2", "CF": "I L3", "CH": "U L1", "CI": "U L2", "CJ": "U L3", "CK": "Evaporator out"}
    for column, text in headings.items():
        sheet[f"{column}24"] = text
    for i, time, r in source.readings():
        values = {"D": time, "E": source.noisy(r.evaporator_in), "F": source.noisy(r.evaporator_out),
                  "G": source.noisy(r.p_low, 0.004), "Q": source.noisy(r.t_suction), "V": source.noisy(r.condenser_in),
                  "W": source.noisy(r.condenser_out), "X": source.noisy(r.p_high, 0.01), "AG": source.noisy(r.t_liquid),
                  "AO": source.noisy(r.t_discharge), "BF": round(r.power, 3), "CD": round(r.current + r.auxiliary, 2),
                  "CE": round(r.current, 2), "CF": round(r.current * 1.004, 2), "CH": source.noisy(231.4, 0.2),
                  "CI": source.noisy(230.2, 0.2), "CJ": source.noisy(232.0, 0.2), "CK": source.noisy(r.t_expansion)}
        for column, value in values.items():
            sheet[f"{column}{i + 25}"] = value
    return sheet


def testo(data, kind):
    """Twenty minutes of two pairs of sensors, and with kind 1 a single one, in a Testo 735 worksheet."""
    source = Worksheet(data, "R404A", 240, 5, 5 + kind)
    sheet = Sheet("735-2")
    side = ("Evaporator", "Condenser")[kind - 1]
    sheet["B1"], sheet["D1"] = "Testo 735-2", f"{side} of the cold store"
    for column, text in zip("BDEFGH", ["Reading", "In 1 [°C]", "In 2 [°C]", "Out 1 [°C]", "Out 2 [°C]", "Bulb [°C]"]):
        if column != "H" or kind == 1:
            sheet[f"{column}2"] = text
    for i, _, r in source.readings():
        inlet, outlet = (r.evaporator_in, r.evaporator_out) if kind == 1 else (r.condenser_in, r.condenser_out)
        values = {"B": i + 1, "D": source.noisy(inlet), "E": source.noisy(inlet), "F": source.noisy(outlet),
                  "G": source.noisy(outlet)}
        if kind == 1:
            values["H"] = source.noisy(r.t_expansion)
        for column, value in values.items():
            sheet[f"{column}{i + 3}"] = round(value, 1)
    sheet["E5"] = f"Cold store {side.lower()}"
    return sheet


def convert(folder, sheets):
    """Has the office program write each sheet in both formats."""
    with tempfile.TemporaryDirectory() as work:
        work = pathlib.Path(work)
        for name, sheet in sheets.items():
            (work / f"{name}.fods").write_text(sheet.text(), encoding="utf-8")
        for kind in ("xls", "xlsx"):
            subprocess.run(["soffice", f"-env:UserInstallation=file://{work}/profile", "--headless", "--convert-to", kind,
                            "--outdir", str(folder)] + [str(work / f"{name}.fods") for name in sheets],
                           check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            for name in sheets:
                if not (folder / f"{name}.{kind}").exists():
                    sys.exit(f"make_measurements: soffice did not write {name}.{kind}")


def main():
    data = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent / "data").resolve()
    write_text(data / "R404A cold store.adc", cold_store(data))
    write_text(data / "R134A monitoring box.adc", monitoring_box(data))
    write_text(data / "KKP_FMD_TEMP_2.txt", control_system(data))
    convert(data, {"ClimaCheck cold store": climacheck(data), "Testo 735 evaporator": testo(data, 1),
                   "Testo 735 condenser": testo(data, 2)})


if __name__ == "__main__":
    main()
