#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

#include "support/temp_folder.h"

/// A real spreadsheet program (LibreOffice, without a window) that converts files for tests. Each
/// object has a profile of its own, so that tests may run side by side.
class Tabellenprogramm {
 public:
  /// Converts a file of `ordner` to another format ("xls", "xlsx", "csv"); the result stands beside
  /// it under the same name with that ending. False if it could not.
  bool wandle(const TempOrdner& ordner, std::string_view datei, std::string_view format) const {
    const std::string name(datei.substr(0, datei.rfind('.')));
    const std::string befehl = "soffice '-env:UserInstallation=file://" + profil_.pfad() +
                               "' --headless --convert-to " + std::string(format) + " --outdir '" +
                               ordner.pfad() + "' '" + ordner.pfad(datei) + "' >/dev/null 2>&1";
    return std::system(befehl.c_str()) == 0 && ordner.da(name + "." + std::string(format));
  }

 private:
  TempOrdner profil_;
};

/// A worksheet as the program's own flat format: rows of cells as XML, see the functions below.
inline std::string offenes_Blatt(const std::string& zeilen) {
  return R"(<?xml version="1.0" encoding="UTF-8"?>
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
<number:minutes number:style="long"/><number:text>:</number:text>
<number:seconds number:style="long"/></number:date-style>
<number:time-style style:name="N2"><number:hours number:style="long"/><number:text>:</number:text>
<number:minutes number:style="long"/><number:text>:</number:text>
<number:seconds number:style="long"/></number:time-style>
<style:style style:name="date" style:family="table-cell" style:data-style-name="N1"/>
<style:style style:name="time" style:family="table-cell" style:data-style-name="N2"/>
</office:automatic-styles>
<office:body><office:spreadsheet><table:table table:name="One">)" +
         zeilen +
         R"(</table:table><table:table table:name="Two"><table:table-row><table:table-cell
 office:value-type="string"><text:p>other sheet</text:p></table:table-cell></table:table-row>
</table:table></office:spreadsheet></office:body></office:document>)";
}
inline std::string offene_Zeile(const std::string& zellen) {
  return "<table:table-row>" + zellen + "</table:table-row>";
}
/// Empty cells or rows in between.
inline std::string leere_Zellen(int anzahl) {
  return "<table:table-cell table:number-columns-repeated=\"" + std::to_string(anzahl) + "\"/>";
}
inline std::string leere_Zeilen(int anzahl) {
  return "<table:table-row table:number-rows-repeated=\"" + std::to_string(anzahl) +
         "\"><table:table-cell/></table:table-row>";
}
inline std::string Zahlzelle(const std::string& zahl) {
  return R"(<table:table-cell office:value-type="float" office:value=")" + zahl + "\"/>";
}
inline std::string Textzelle(const std::string& text) {
  return R"(<table:table-cell office:value-type="string"><text:p>)" + text +
         "</text:p></table:table-cell>";
}
/// "2026-11-20T16:25:03".
inline std::string Datumzelle(const std::string& datum) {
  return R"(<table:table-cell table:style-name="date" office:value-type="date" office:date-value=")" +
         datum + "\"/>";
}
/// "PT06H05M07S".
inline std::string Uhrzelle(const std::string& zeit) {
  return R"(<table:table-cell table:style-name="time" office:value-type="time" office:time-value=")" +
         zeit + "\"/>";
}
