#include "cycle/bauteile.h"

#include <algorithm>

#include "shell/cp850.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int kTypsatz = 51;
constexpr std::size_t kFeldlaenge = 40;

// Bytes that were never written are NULs in old catalogues.
constexpr std::string_view kLeerstellen{" \t\0", 3};

std::string_view feld(std::string_view satz, std::size_t n) {
  const std::string_view ganz = satz.substr(n * kFeldlaenge, kFeldlaenge);
  const std::size_t anfang = ganz.find_first_not_of(kLeerstellen);
  if (anfang == std::string_view::npos) return {};
  return ganz.substr(anfang, ganz.find_last_not_of(kLeerstellen) + 1 - anfang);
}

Bauteil bauteil(std::string_view satz, int nummer) {
  Bauteil b;
  b.Satz = nummer;
  for (std::size_t n = 0; n < Bauteil::Feldzahl; ++n) b.Felder[n] = aus_CP850(feld(satz, n));
  return b;
}

}  // namespace

Bauteile::Bauteile(Katalogdateien& dateien, std::string_view code, int nummer)
    : dateien_(dateien), code_(code), datei_(Bauteildatei(code)), nummer_(nummer) {
  const std::int64_t groesse = dateien.ablage.Dateigroesse(datei_);
  anzahl_ = static_cast<int>((groesse + Bauteilsatz - 1) / Bauteilsatz);
  if (anzahl_ == 0) {
    dateien.melde(datei_, "missing: the catalogue has no components");
    return;
  }
  if (groesse % Bauteilsatz != 0)
    dateien.melde(datei_, "its size is no multiple of " + std::to_string(Bauteilsatz) +
                              " bytes: blanks stand in for the rest of its last record");
  dateien.ablage.Datei_Satz(datei_, nummer_, Bauteilsatz);
}

Bauteile::~Bauteile() {
  if (anzahl_ > 0) dateien_.ablage.Datei_Schliessen(nummer_);
}

// A catalogue shows soon that it was read; only one that begins with nothing is asked for its file.
bool Bauteile::lesbar() const {
  for (int n = 1; n <= std::min(anzahl_, kTypsatz); ++n)
    if (dateien_.ablage.Satz_Lesen(nummer_, n).find_first_not_of(kLeerstellen) != std::string::npos)
      return true;
  return anzahl_ > 0 && dateien_.ablage.lies_ganz(datei_).has_value();
}

int Bauteile::Typ() {
  const int typ = Typ_aus_Code(code_);
  if (anzahl_ == 0) return typ;
  std::string text = dateien_.ablage.Satz_Lesen(nummer_, kTypsatz);
  char& ziffer = text.front();
  if (ziffer >= '0' && ziffer <= '9') return ziffer - '0';
  if (kLeerstellen.find(ziffer) == std::string_view::npos) {
    dateien_.melde(datei_, "record 51 begins with no digit: the type is taken from the code");
    return typ;
  }
  ziffer = static_cast<char>('0' + typ);
  dateien_.ablage.Satz_Schreiben(nummer_, kTypsatz, text);
  return typ;
}

std::vector<Bauteil> Bauteile::suche(int Anfang, int hoechstens, const Suchmuster& muster) {
  std::vector<Bauteil> gefunden;
  if (Anfang < 1 || anzahl_ == 0) return gefunden;
  if (Anfang > anzahl_) {
    dateien_.melde(datei_, "its " + std::to_string(anzahl_) + " records end before number " +
                               std::to_string(Anfang) + ": no component is read");
    return gefunden;
  }
  const int ende = Anfang - 1 + std::min(hoechstens, anzahl_ - Anfang + 1);
  for (int n = Anfang; n <= ende; ++n) {
    if (n == kTypsatz) continue;
    const std::string satz = dateien_.ablage.Satz_Lesen(nummer_, n);
    const std::string_view erstes = feld(satz, 0), zweites = feld(satz, 1);
    if (erstes.empty() && zweites.empty()) break;
    if (muster.in(erstes) || muster.in(zweites)) gefunden.push_back(bauteil(satz, n));
  }
  return gefunden;
}

int Katalogtyp(Katalogdateien& dateien, std::string_view code) {
  return Bauteile(dateien, code).Typ();
}

}  // namespace polarkreis
