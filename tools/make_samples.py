#!/usr/bin/env python3
"""Writes the sample projects of data/: five plants that a planner would recognise, and the first one as the working
project. Selections are named by caption file and line, so the samples follow the caption texts.

Usage: tools/make_samples.py [DATA_FOLDER]
"""
import pathlib
import sys

LANGUAGE = "ENG"
STEMS = {"J": "JMapCap", "H": "heatcap", "P": "PEDcap", "C": "Caption", "S": "SoleCapt"}
ITEMS = """KaelteM Q0 t0 tambient AnwendBereich vdsize AnlGroesse VFlsize AmbientT Tempbereich WartungI Fullzustand
Leitungsdimension WaermeD reserviert Verdichterbauart RGart WinterRGart Land Stadt Rechart Combo1 Sprache PumpCap RGartP
Lueftcap RGartL LueftcapVerDa Abtauart verdichter_typ T_heat Q_heat T_enth M_enth WaterCheck dt_freeC ProjektNam
ProBeschr Anlagenart_Combo Tc dtVerfl P_gasK Vfl_typ DT_v_combo Pel_freeCool VERFL_Eff_combo""".split()

COMMON = {
    "vdsize": "P3", "AnlGroesse": "P3", "VFlsize": "P3", "AmbientT": "H15", "tambient": "35",
    "WartungI": "J23", "Fullzustand": "J26", "Leitungsdimension": "P3", "WaermeD": "H15",
    "Rechart": "1", "Sprache": LANGUAGE, "PumpCap": "0", "RGartP": "J42", "RGartL": "J41", "Abtauart": "0",
    "T_heat": "35", "Q_heat": "0", "T_enth": "55", "M_enth": "0", "WaterCheck": "0", "dt_freeC": "5",
    "Anlagenart_Combo": "C134 - C217", "P_gasK": "0", "Pel_freeCool": "0", "VERFL_Eff_combo": "B",
}

SAMPLES = {
    "Supermarket medium temperature.prj": {
        "ProjektNam": "Supermarket", "ProBeschr": "Chilled cabinets and cold rooms, R448A, hot water from the desuperheater",
        "KaelteM": "R448A", "Q0": "120", "t0": "-8", "AnwendBereich": "J2", "Tempbereich": "J19",
        "Verdichterbauart": "C87", "verdichter_typ": "C89", "RGart": "J43", "WinterRGart": "25 °C",
        "Land": "Germany", "Stadt": "Cologne", "Combo1": "J49", "Lueftcap": "1.8", "LueftcapVerDa": "3.2",
        "WaterCheck": "1", "M_enth": "4000", "Tc": "49", "dtVerfl": "14", "Vfl_typ": "P27", "DT_v_combo": "8",
    },
    "CO2 supermarket.prj": {
        "ProjektNam": "CO2 supermarket", "ProBeschr": "Transcritical R744 with flash tank, hot water from the gas cooler",
        "KaelteM": "R744", "Q0": "90", "t0": "-8", "AnwendBereich": "J2", "Tempbereich": "J19",
        "AmbientT": "P2", "tambient": "30", "Verdichterbauart": "C87", "verdichter_typ": "C89", "RGart": "J41",
        "WinterRGart": "15 °C", "Land": "Denmark", "Stadt": "Copenhagen", "Combo1": "J49", "Lueftcap": "1.6",
        "LueftcapVerDa": "2.4", "WaterCheck": "1", "M_enth": "5000", "Tc": "40.1", "dtVerfl": "10.1",
        "P_gasK": "102.5", "Vfl_typ": "P27", "DT_v_combo": "8",
    },
    "Ammonia process cooling.prj": {
        "ProjektNam": "Dairy", "ProBeschr": "Ice water and process cooling with R717 screw compressors and cooling tower",
        "KaelteM": "R717", "Q0": "800", "t0": "-2", "AnwendBereich": "J7", "Tempbereich": "J18",
        "AnlGroesse": "H10", "WartungI": "J23", "Verdichterbauart": "C86", "verdichter_typ": "C90", "RGart": "J45",
        "WinterRGart": "22 °C", "Land": "Spain", "Stadt": "Seville", "Combo1": "C138", "PumpCap": "11",
        "RGartP": "J41", "Lueftcap": "9", "LueftcapVerDa": "0", "Abtauart": "1", "Tc": "36", "dtVerfl": "8.2",
        "Vfl_typ": "Kühlturm", "DT_v_combo": "7.3",
    },
    "Propane air conditioning.prj": {
        "ProjektNam": "Hotel", "ProBeschr": "Air conditioning with R290, heating and hot water by heat recovery",
        "KaelteM": "R290", "Q0": "60", "t0": "3", "AnwendBereich": "J5", "Tempbereich": "H15",
        "AnlGroesse": "H8", "Verdichterbauart": "C88", "verdichter_typ": "Scroll", "RGart": "J44",
        "WinterRGart": "40 °C", "Land": "Austria", "Stadt": "Vienna", "Combo1": "J48", "PumpCap": "1.1",
        "RGartP": "J41", "Lueftcap": "1.2", "LueftcapVerDa": "0", "T_heat": "32", "Q_heat": "25", "T_enth": "50",
        "M_enth": "800", "WaterCheck": "1", "Tc": "45.7", "dtVerfl": "10.7", "Vfl_typ": "P27", "DT_v_combo": "7",
    },
    "R134A chiller with free cooling.prj": {
        "ProjektNam": "Data centre", "ProBeschr": "R134A screw chiller with dry cooler and free cooling",
        "KaelteM": "R134A", "Q0": "350", "t0": "5", "AnwendBereich": "J6", "Tempbereich": "H15",
        "AnlGroesse": "H10", "Verdichterbauart": "C87", "verdichter_typ": "C90", "RGart": "J41",
        "WinterRGart": "25 °C", "Land": "Switzerland", "Stadt": "Zurich", "Combo1": "J49", "PumpCap": "5.5",
        "RGartP": "J41", "Lueftcap": "5", "LueftcapVerDa": "0", "Tc": "49", "dtVerfl": "14", "Vfl_typ": "S24 P27",
        "DT_v_combo": "8", "Pel_freeCool": "3",
    },
}
WORKING = "Supermarket medium temperature.prj"


class Captions:
    def __init__(self, folder):
        self.lines = {
            key: [line.strip().strip('"') for line in (folder / f"{stem}.{LANGUAGE}").read_text("utf-8").splitlines()]
            for key, stem in STEMS.items()
        }

    def piece(self, word):
        if word[:1] in self.lines and word[1:].isdigit():
            return self.lines[word[0]][int(word[1:]) - 1]
        return word

    def text(self, reference):
        return " ".join(self.piece(word) for word in reference.split(" "))


SELECTIONS = {"AnwendBereich", "vdsize", "AnlGroesse", "VFlsize", "AmbientT", "Tempbereich", "WartungI", "Fullzustand",
              "Leitungsdimension", "WaermeD", "Verdichterbauart", "RGart", "Combo1", "RGartP", "RGartL", "verdichter_typ",
              "Anlagenart_Combo", "Vfl_typ"}


def items(sample, captions):
    values = {**COMMON, **sample}
    texts = [values.get(item, "") for item in ITEMS]
    return [captions.text(text) if item in SELECTIONS else text for item, text in zip(ITEMS, texts)]


def quoted(text):
    return '"' + text.replace('"', '""') + '"'


def write(path, lines):
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("utf-8"))


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent / "data")
    captions = Captions(folder)
    for name, sample in SAMPLES.items():
        body = [quoted(text) for text in items(sample, captions)]
        header = ",".join(quoted(t) for t in (sample["ProjektNam"], sample["ProBeschr"], "", "SIM_PRO"))
        write(folder / name, [header] + body)
        if name == WORKING:
            write(folder / "Temp_Sim.dat", body)


if __name__ == "__main__":
    main()
