#include "monitor_aenderung.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>

#include "konsole.h"
#include "monitor_platz.h"
#include "monitoring/route.h"
#include "shell/text.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

constexpr std::string_view kServer = "server", kID = "id";

/// "KEY=VALUE", parted at its first "=".
struct Zuweisung {
  std::string schluessel, wert;
};

[[noreturn]] void falsch(const std::string& text) {
  throw CLI::ValidationError(sichtbar(text));
}

std::string zitat(std::string_view text) {
  return "\"" + gekuerzt(text) + "\"";
}

template <class Liste>
std::string aufgezaehlt(const Liste& texte) {
  std::string alle;
  for (const auto& text : texte) alle += (alle.empty() ? "\"" : ", \"") + std::string(text) + "\"";
  return alle;
}

Zuweisung geteilt(const std::string& roh, const std::string& schluessel) {
  const std::string text = als_utf8(roh);
  const std::size_t ort = text.find('=');
  if (ort == std::string::npos)
    falsch(zitat(text) + " is not of the form KEY=VALUE. The keys: " + schluessel);
  Zuweisung z{text.substr(0, ort), text.substr(ort + 1)};
  // The value isn't told: it may be a password.
  if (sichtbar(z.wert) != z.wert)
    falsch(zitat(z.schluessel) + ": the value holds control characters");
  return z;
}

[[noreturn]] void unbekannt(const Zuweisung& z, const std::string& schluessel) {
  falsch("there is no key " + zitat(z.schluessel) + ". The keys: " + schluessel);
}

// A whole number in digits alone; nothing for any other text.
std::optional<int> ganze_aus(std::string_view text) {
  const std::string_view ziffern = getrimmt(text);
  int value = 0;
  const auto [bis, fehler] =
      std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), value);
  if (ziffern.empty() || fehler != std::errc() || bis != ziffern.data() + ziffern.size() ||
      value < 0)
    return std::nullopt;
  return value;
}

// One of the texts, given as it stands (in any case) or by its number from `erste`. A blank text
// can't be chosen: nothing would find it again.
std::string wahl_aus(const Zuweisung& z, const std::vector<std::string>& texte, int erste) {
  const int letzte = erste + static_cast<int>(texte.size()) - 1;
  auto text = std::ranges::find_if(
      texte, [&](const std::string& t) { return !getrimmt(t).empty() && gleich(t, z.wert); });
  const std::optional<int> nummer = ganze_aus(z.wert);
  if (text == texte.end() && nummer && *nummer >= erste && *nummer <= letzte)
    text = texte.begin() + (*nummer - erste);
  if (text == texte.end())
    falsch(z.schluessel + " can't be " + zitat(z.wert) + ". It takes a number from " +
           std::to_string(erste) + " to " + std::to_string(letzte) +
           " or one of the texts: " + aufgezaehlt(texte));
  if (getrimmt(*text).empty())
    falsch(z.schluessel + " can't be " + zitat(z.wert) +
           ": this language has no text for it. Choose another language with --language.");
  return *text;
}

// --- settings

std::string einstellschluessel() {
  std::string alle;
  for (const ftp_server::Feld& feld : ftp_server::Felder())
    alle += std::string(feld.schluessel) + ", ";
  return alle + std::string(kServer) + ", " + std::string(kID);
}

std::string kaeltemittel_aus(const std::string& wert) {
  const auto liste = Monitoring_Kaeltemittel();
  const auto mittel = std::ranges::find_if(liste, [&](auto m) { return gleich(m, wert); });
  if (mittel != liste.end()) return std::string(*mittel);
  if (!getrimmt(wert).empty())
    melde("fn: " + zitat(wert) +
          " is none of the listed refrigerants; it is kept as it stands. The list: " +
          aufgezaehlt(liste));
  return wert;
}

std::string feldwert(const Captions& captions, Registerspalte spalte, const Zuweisung& z) {
  switch (spalte) {
    case Registerspalte::nt:
      return wahl_aus(z, Routen(captions), 0);
    case Registerspalte::fn:
      return kaeltemittel_aus(z.wert);
    case Registerspalte::th:
    case Registerspalte::pu:
    case Registerspalte::pd:
      if (!getrimmt(z.wert).empty() && !zahl_aus(z.wert))
        melde(z.schluessel + ": " + zitat(z.wert) + " is no number; it is kept as it stands.");
      return z.wert;
    default:
      return z.wert;
  }
}

int serverwahl(const Zuweisung& z) {
  const std::optional<int> wahl = ganze_aus(z.wert);
  if (wahl != Standardserver && wahl != eigener_Server)
    falsch("server can't be " + zitat(z.wert) +
           ": 1 is the default FTP server, 2 the plant's own (ip, dr, us, pw)");
  return *wahl;
}

// --- rules

constexpr Regelzeile kRegelzeilen[] = {Regelzeile::en, Regelzeile::c1, Regelzeile::ro,
                                       Regelzeile::c2, Regelzeile::cm, Regelzeile::vl,
                                       Regelzeile::ti, Regelzeile::nt};

std::string regelschluessel() {
  std::string alle;
  for (Regelzeile zeile : kRegelzeilen)
    alle += (alle.empty() ? "" : ", ") + std::string(Regelschluessel(zeile));
  return alle;
}

std::string schalter(const Zuweisung& z) {
  if (gleich(z.wert, "ON") || getrimmt(z.wert) == "1") return "ON";
  if (gleich(z.wert, "OFF") || getrimmt(z.wert) == "0") return "OFF";
  falsch("en can't be " + zitat(z.wert) + ": it takes ON, OFF, 1 or 0");
}

// An entry of the list; the empty text is the entry for none.
std::string listenwert(const Captions& captions, Regelzeile zeile, const Zuweisung& z) {
  const std::vector<std::string> liste = Regelauswahl(captions, zeile);
  const auto text =
      std::ranges::find_if(liste, [&](const std::string& t) { return gleich(t, z.wert); });
  if (text == liste.end())
    falsch(z.schluessel + " can't be " + zitat(z.wert) +
           ". It takes one of: " + aufgezaehlt(liste));
  return *text;
}

std::string vergleich(const Captions& captions, const Zuweisung& z) {
  std::vector<std::string> zeichen;
  for (const std::string& text : Regelauswahl(captions, Regelzeile::cm))
    if (!getrimmt(text).empty()) zeichen.push_back(text);
  return wahl_aus(z, zeichen, 1);
}

std::string zahltext(const Zuweisung& z) {
  const std::string text(getrimmt(z.wert));
  if (!text.empty() && !zahl_aus(text))
    falsch(z.schluessel + " can't be " + zitat(z.wert) + ": it takes a number, or nothing");
  return text;
}

std::string regelwert(const Captions& captions, Regelzeile zeile, const Zuweisung& z) {
  if (z.wert.find(';') != std::string::npos)
    falsch(z.schluessel + " can't hold a \";\": it would end there");
  switch (zeile) {
    case Regelzeile::en:
      return schalter(z);
    case Regelzeile::c1:
    case Regelzeile::c2:
    case Regelzeile::ro:
      return listenwert(captions, zeile, z);
    case Regelzeile::cm:
      return vergleich(captions, z);
    case Regelzeile::nt:
      return wahl_aus(z, Regelauswahl(captions, zeile), 0);
    default:
      return zahltext(z);
  }
}

}  // namespace

void Einstellaenderung::anwenden(ftp_server& pult) const {
  for (const auto& [feld, wert] : felder) pult.*feld.text = wert;
  if (id) pult.ID_Label = *id;
  if (!server) return;
  pult.Option2 = *server == eigener_Server;
  pult.Option1 = !pult.Option2;
}

Einstellaenderung einstellungen_aus(const Captions& captions,
                                    const std::vector<std::string>& texte) {
  Einstellaenderung aenderung;
  for (const std::string& text : texte) {
    const Zuweisung z = geteilt(text, einstellschluessel());
    if (z.schluessel == kServer) {
      aenderung.server = serverwahl(z);
      continue;
    }
    if (z.schluessel == kID) {
      aenderung.id = monitor_id(z.wert);
      continue;
    }
    const auto felder = ftp_server::Felder();
    const auto feld = std::ranges::find(felder, z.schluessel, &ftp_server::Feld::schluessel);
    if (feld == felder.end()) unbekannt(z, einstellschluessel());
    aenderung.felder.emplace_back(*feld, feldwert(captions, feld->spalte, z));
  }
  return aenderung;
}

Regelaenderung regel_aus(const Captions& captions, const std::vector<std::string>& texte) {
  Regelaenderung aenderung;
  for (const std::string& text : texte) {
    const Zuweisung z = geteilt(text, regelschluessel());
    const auto* zeile = std::ranges::find(kRegelzeilen, z.schluessel,
                                          [](Regelzeile r) { return Regelschluessel(r); });
    if (zeile == std::ranges::end(kRegelzeilen)) unbekannt(z, regelschluessel());
    aenderung.emplace_back(*zeile, regelwert(captions, *zeile, z));
  }
  return aenderung;
}

}  // namespace polarkreis::cli
