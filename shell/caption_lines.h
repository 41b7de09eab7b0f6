#pragma once

/// The lines of the caption files that the program uses, one enum a file, the value being the line
/// number. Selections store and compare these texts, so a line's position is part of the program's
/// logic. Some words serve several selections (the size words, `Heatcap::Normal`, `PedCap::Niedrig`
/// ...): they are worded to fit all of them.

namespace polarkreis {

/// `VerbCapt.<language>`: compressor texts; lines 1 to 12 are the functions of a measuring unit.
enum class VerbCapt {
  Verdichter = 1,
  Verfluessiger = 2,
  Verdampfer = 3,
  Luftseite = 4,
  Pumpe = 5,
  Ventilator = 6,
  Verdichter_Fernfuehler = 7,
  Zweistufig_Zwischenkuehler = 8,
  Zweistufig = 9,
  Zweistufig_Booster = 10,
  Zweistufig_Einspritzung = 11,
  Economiser = 12,
};

/// `SoleCapt.<language>`: brine and secondary-fluid texts.
enum class SoleCapt { Kaeltemittel = 4, Trockenkuehler = 24 };

/// `Caption.<language>`: general texts.
enum class Caption {
  Projekt = 25,
  Unter_tmin = 53,
  Ueber_tmax = 54,
  Tc_unter_t0 = 55,
  Unbekannt = 61,
  Kaeltemittel = 62,
  Verdampfungstemperatur = 63,
  Verfluessigungstemperatur = 64,
  Leistungszahl = 78,
  Bewertung = 81,
  Anlagenart = 82,
  Offen = 86,
  Halbhermetisch = 87,
  Hermetisch = 88,
  Hubkolben = 89,
  Schraube = 90,
  Verdampfergroesse = 127,
  Verfluessigergroesse = 128,
  Zwischenkuehler = 129,
  Einspritzung = 130,
  Expansionsorgan = 133,
  Einstufig = 134,
  Zweistufig = 135,
  Schwimmerventil = 138,
  Direktverdampfung = 217,
};

/// `AirCoCap.<language>`: air-conditioning and climate texts; the months stand in lines 65 to 76.
enum class AirCoCap {
  Ort = 40,
  Temperatur = 41,
  Feuchte = 42,
  Sommer = 43,
  Winter = 44,
  Hoch = 45,
  Tief = 46,
  Tag_Nacht = 47,
  Hoehe = 48,
  Breite = 49,
  Januar = 65,
  Dezember = 76,
};

/// `JMapCap.<language>`: simulation texts.
enum class JMapCap {
  Energiesimulation = 1,
  Kaelteraum = 2,
  Klima_Sommer = 3,
  Klima_lang = 4,
  Klima_laenger = 5,
  Produktionskuehlung = 6,
  Prozesskuehlung = 7,
  Jahresgang = 8,
  Land = 9,
  Stadt = 10,
  Monat = 11,
  Tag = 12,
  Nacht = 13,
  Last = 14,
  Profil = 15,
  Ergebnisse = 16,
  Temperaturbereich = 17,
  Bereich_hoch = 18,
  Bereich_mittel = 19,
  Bereich_tief = 20,
  Anlagengroesse = 21,
  Wartung = 22,
  Wartung_gut = 23,
  Wartung_mittel = 24,
  Wartung_schlecht = 25,
  Fuellung_richtig = 26,
  Fuellung_knapp = 27,
  Fuellung_Mangel = 28,
  Fuellzustand = 29,
  Leitungsdimension = 30,
  Kaelteraum_zwei = 31,
  Waermedaemmung = 32,
  Anwendung = 33,
  Klimaklasse = 34,
  Kaeltemittelwort = 35,
  Verdampfer = 36,
  Verfluessiger = 37,
  Verdichter = 38,
  Leistungsregelung = 39,
  Winter_tc = 40,
  Regelung_Drehzahl = 41,
  Regelung_ohne = 42,
  Regelung_Stufen = 43,
  Regelung_zwei_Drehzahlen = 44,
  Regelung_stetig = 45,
  Pumpen = 46,
  Ventilator = 47,
  Ventil_thermostatisch = 48,
  Ventil_elektronisch = 49,
  Auslegungspunkt = 50,
  Jahresrechnung = 51,
  Betriebsstunden = 52,
  Lastfaktor = 53,
  Betriebstage = 54,
  Energiepreis = 55,
  Verdichterenergie = 56,
  Verfluessigerventilatoren = 57,
  Verdampferventilatoren = 58,
  Abtauung = 59,
  Wasserverbrauch = 60,
  Warmwasser = 61,
  Heizung = 62,
  Freikuehlung = 63,
  Jahreskosten = 64,
  Jahresenergie = 65,
  Emission = 66,
  Kaeltepreis = 67,
};

/// `heatcap.<language>`: heating and heat-recovery texts, and the size words.
enum class Heatcap {
  Klein = 8,
  Gross = 10,
  Normal = 15,
  Sehr_hoch = 17,
  Heizoel = 20,
  Erdgas = 21,
  Holzpellets = 22,
  Strom = 23,
  Kessel_alt = 24,
  Kessel_Standard = 25,
  Kessel_Niedertemperatur = 26,
  Kessel_Brennwert = 27,
  Verteilung_gut = 28,
  Verteilung_mittel = 29,
  Verteilung_schlecht = 30,
  Einsparung_Kosten = 31,
  Einsparung_CO2 = 32,
  Kaltwasser = 33,
  dT_Warmwasser = 34,
  dT_Heizung = 35,
  Brennstoff = 36,
  Brennstoffpreis = 37,
  Kesselart = 38,
  Wirkungsgrad = 39,
  Verlust = 40,
};

/// `PEDcap.<language>`: size and class words, condenser kinds.
enum class PedCap {
  Niedrig = 2,
  Mittel = 3,
  Hoch = 4,
  Ohne = 15,
  Wassergekuehlt = 26,
  Luftgekuehlt = 27,
};

}  // namespace polarkreis
