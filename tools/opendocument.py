"""A worksheet as a flat OpenDocument text, which the office program converts to its other formats."""
import datetime
import re
from xml.sax.saxutils import escape

HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
 xmlns:number="urn:oasis:names:tc:opendocument:xmlns:datastyle:1.0"
 office:version="1.3" office:mimetype="application/vnd.oasis.opendocument.spreadsheet">
<office:automatic-styles>
<number:date-style style:name="N1"><number:year number:style="long"/><number:text>-</number:text>
<number:month number:style="long"/><number:text>-</number:text><number:day number:style="long"/>
<number:text> </number:text><number:hours number:style="long"/><number:text>:</number:text>
<number:minutes number:style="long"/><number:text>:</number:text><number:seconds number:style="long"/></number:date-style>
<number:time-style style:name="N2"><number:hours number:style="long"/><number:text>:</number:text>
<number:minutes number:style="long"/><number:text>:</number:text><number:seconds number:style="long"/></number:time-style>
<style:style style:name="date" style:family="table-cell" style:data-style-name="N1"/>
<style:style style:name="time" style:family="table-cell" style:data-style-name="N2"/>
</office:automatic-styles>
<office:body><office:spreadsheet>
"""
TAIL = "</office:spreadsheet></office:body></office:document>\n"


def place(name):
    """Row and column of a name such as "CK25", both from 1."""
    letters, digits = re.fullmatch("([A-Z]+)([0-9]+)", name).groups()
    column = 0
    for letter in letters:
        column = column * 26 + ord(letter) - ord("A") + 1
    return int(digits), column


def cell(value):
    """Numbers, texts, dates with clock time, and clock times."""
    if value is None:
        return "<table:table-cell/>"
    if isinstance(value, datetime.datetime):
        return f'<table:table-cell table:style-name="date" office:value-type="date" office:date-value="{value.isoformat()}"/>'
    if isinstance(value, datetime.time):
        return (f'<table:table-cell table:style-name="time" office:value-type="time" '
                f'office:time-value="{value:PT%HH%MM%SS}"/>')
    if isinstance(value, str):
        return f'<table:table-cell office:value-type="string"><text:p>{escape(value)}</text:p></table:table-cell>'
    return f'<table:table-cell office:value-type="float" office:value="{value!r}"/>'


class Sheet:
    """Cells by their names."""

    def __init__(self, name):
        self.name = name
        self.cells = {}

    def __setitem__(self, name, value):
        row, column = place(name)
        self.cells.setdefault(row, {})[column] = value

    def _row(self, row):
        cells = self.cells.get(row, {})
        return "".join(cell(cells.get(column)) for column in range(1, max(cells, default=1) + 1))

    def text(self):
        rows = "".join(f"<table:table-row>{self._row(row)}</table:table-row>\n" for row in range(1, max(self.cells) + 1))
        return f'{HEAD}<table:table table:name="{escape(self.name)}">\n{rows}</table:table>\n{TAIL}'
