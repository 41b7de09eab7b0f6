#!/usr/bin/env python3
"""Writes what the fuzzers begin with: small pieces of the sample files, one folder a target.

Usage: tools/fuzz_seeds.py FOLDER
"""
import pathlib
import sys
import zipfile

DATA = pathlib.Path(__file__).parent.parent / "data"


def lines_of(name, number):
    return b"".join((DATA / name).read_bytes().splitlines(keepends=True)[:number])


def measurement(rows, count, language="ENG"):
    """A measurement file: 100 lines of heading, then 169 cells a row."""
    heading = ["Plant", "", f"{count}&$§{language}", "02.03.2026", "R404A", "0", "3§$%0§$%500§$%0§$%-150§$%0",
               "Single-stage", "Swept volume", " 1 h", "", "5s", ""]
    heading += [""] * (100 - len(heading))
    for i, (low, high) in enumerate(rows):
        cells = [f"06:00:{i:02}", low, "-20", "-14.4", "-9.4", high, "30", "62.2", "29.6", "6"]
        heading += cells + [""] * (169 - len(cells))
    return "".join(f'"{line}"\r\n' for line in heading).encode("utf-8")


def quoted(texts):
    """One quoted text a line."""
    return "".join('"' + text.replace('"', '""') + '"\r\n' for text in texts).encode("utf-8")


def xml_parts(path):
    """The parts of a zipped worksheet, with only its first rows."""
    with zipfile.ZipFile(path) as archive:
        sheet, texts, styles = (archive.read(f"xl/{part}.xml") for part in
                                ("worksheets/sheet1", "sharedStrings", "styles"))
    begin = sheet.index(b"<sheetData>")
    rows = sheet[begin:].split(b"<row ")
    return b"\0".join([b"<worksheet>" + b"<row ".join(rows[:30]) + b"</sheetData></worksheet>", texts, styles])


def seeds():
    yield "fmd", "run", measurement([("1.2", "14.5"), ("1.1", "15.7"), ("0.4", "3"), ("0", "0")], 4)
    yield "fmd", "broken off", measurement([("1.2", "14.5"), ("1.1", "95")], 65459)
    yield "fmd", "long", measurement([("1.2", "14.5")], 1001, "GER")
    yield "adc", "base", lines_of("R404A cold store.adc", 30)
    yield "adc", "box", lines_of("R134A monitoring box.adc", 15)
    yield "adc", "ends", b"02.03.2026 06:00:00\t1\r\r\n\n" * 3 + b"6:00:00\t" * 30
    yield "steuertext", "control", lines_of("KKP_FMD_TEMP_2.txt", 8)
    yield "steuertext", "empty", lines_of("KKP_FMD_TEMP_2.txt", 2) + b'""\r\n' + lines_of("KKP_FMD_TEMP_2.txt", 1)
    for name in ("Testo 735 condenser", "Testo 735 evaporator", "ClimaCheck cold store"):
        yield "arbeitsmappe", f"{name}.parts", xml_parts(DATA / f"{name}.xlsx")
    for name in ("Testo 735 condenser.xls", "Testo 735 condenser.xlsx"):
        yield "arbeitsmappe", name, (DATA / name).read_bytes()
    values = [" ".join(lines_of("R134A monitoring box.adc", 1).decode().split("\t")[1:n]).strip() for n in (17, 33)]
    yield "antwort", "base", f"{values[0]} T02.03.2026 06:00:00 ok\r\n".encode()
    yield "antwort", "box", f"{values[1]} M02.03.2026 06:00:00 ok\r\n".encode()
    yield "antwort", "echo", b"ec %*\r" + f"{values[0]}  -1 1e999 -- ok".encode()
    index = b'"AAAAAAA","Maker","Compressors","2"\r\n"AAAAAAA","Maker","Others","51"\r\n'
    records = (DATA / "VERDICHN.rdm").read_bytes()[:570 * 8]
    texts = (DATA / "VERDICHI.rdm").read_bytes()[:128 * 3]
    yield "katalog", "whole", b"%\n".join([index, b"AAAAAAA Compressors\r\n", b"BB\r\n", b"", texts, records])
    yield "katalog", "list", b"%\n".join([b"", b"", b"AA", b'"AAAAAAAN.rdm","Text","2"\r\n', b"", records[:1000]])
    cells = ["K17", "Cold store", 'Gate "3", left', "two\r\nlines"] + [""] * 35
    rule = ["c1=tc;", "ro=  ;", "c2=  ;", "cm=3;", "vl=45;", "ti=10;", "nt=3;", "en=1;"]
    yield "monitor", "register", b"0" + quoted(cells + ["".join(rule)])
    yield "monitor", "broken quotes", b"0" + b'"K17\r\n""\r\n"Cold"store"\r\n""x"\nK\xfchlhaus"\n' + quoted(cells)
    yield "monitor", "many cells", b"0" + quoted(["a"] * 10001)
    yield "monitor", "settings", b"1" + quoted(["nm=Cold store;", "fn=R404A;", "", "pw=a;b;", "xx=1;", "nt=10;"])
    yield "monitor", "plain settings", b"1nm=K\xfchlhaus;\nst=a\n\ntw=;\nnt=99;"
    yield "monitor", "rule", b"2" + quoted(rule)
    yield "monitor", "short rule", b"2" + quoted(rule[:4] + ["vl=4;5;", "", "en=1;"])
    yield "monitor", "clipboard", b'3K17\tCold store\r"a\tb"\t"c""d"\r\n\n\t'


def main():
    folder = pathlib.Path(sys.argv[1])
    for target, name, content in seeds():
        (folder / target).mkdir(parents=True, exist_ok=True)
        (folder / target / name.replace(" ", "_")).write_bytes(content)


if __name__ == "__main__":
    main()
