#include "monitor_platz.h"

#include <CLI/CLI.hpp>

#include "konsole.h"
#include "monitoring/route.h"
#include "projektwahl.h"
#include "shell/text.h"

namespace polarkreis::cli {

namespace {

std::string in_Zeile(int zeile) {
  return "row " + std::to_string(zeile);
}

// It names a folder and files, here and on the server, and stands in addresses as it is.
void pruefe_Dateiname(const std::string& id) {
  if (id == "." || id == ".." || id.find_first_of("/\\@#?%;") != std::string::npos)
    throw Abbruch("The ID \"" + id +
                  "\" can't be given to a plant: it becomes the name of a folder and of files on "
                  "the server. Choose one without / \\ @ # ? % ; that isn't \".\" or \"..\".");
  constexpr std::size_t kLaengster_Name = 255, kAnhang = std::string_view("SETTINGS").size();
  if (id.size() > kLaengster_Name - kAnhang)
    throw Abbruch("The ID is too long: it becomes the name of files, and " +
                  std::to_string(kLaengster_Name - kAnhang) + " bytes is all that they can take.");
}

// The local copies of two such plants would be one file.
void pruefe_Schreibweise(const Register& tabelle, const std::string& id, int eigene) {
  for (int zeile = 1; zeile <= Register::Zeilen; ++zeile) {
    const std::string_view andere = getrimmt(tabelle.zelle(zeile, Registerspalte::ID));
    if (zeile != eigene && andere != getrimmt(id) && gleich(andere, id))
      throw Abbruch("The ID \"" + std::string(getrimmt(id)) + "\" differs from \"" +
                    std::string(andere) + "\" in " + in_Zeile(zeile) +
                    " by capitals only. Use that one, or give one of them an ID that is not so "
                    "alike.");
  }
}

}  // namespace

std::string monitor_id(std::string_view text) {
  const std::string id = als_utf8(std::string(getrimmt(text)));
  if (id.empty()) throw CLI::ValidationError("ID", "the ID of a plant must not be blank");
  if (sichtbar(id) != id)
    throw CLI::ValidationError("ID", "\"" + sichtbar(id) + "\" holds control characters");
  return id;
}

Monitorplatz::Monitorplatz(Sitzung& sitzung, bool aendert)
    : p(sitzung.programm()), pult(p.ablage, p.captions, p.dialog, klient) {
  if (aendert)
    sperre_.emplace(p.ablage.Datenordner,
                    [] { melde("Another call is changing the register: waiting for its end."); });
  pult.Oeffnen();
  pult.Activate();
  if (const std::string& hindernis = pult.FTPSpread.hindernis; !hindernis.empty())
    throw Abbruch("The register \"" + p.ablage.pfad(Register::Datei) +
                  "\" can't be read: " + hindernis);
}

Monitorplatz::~Monitorplatz() {
  if (pult.offen) pult.Command3D2();
}

void Monitorplatz::mehrfach_melden(const std::string& id, int zeile) const {
  std::string weitere;
  for (int z = zeile + 1; z <= Register::Zeilen; ++z)
    if (getrimmt(pult.FTPSpread.zelle(z, Registerspalte::ID)) == id)
      weitere += (weitere.empty() ? "" : ", ") + std::to_string(z);
  if (!weitere.empty())
    melde("The ID \"" + id + "\" stands in several rows; " + in_Zeile(zeile) +
          " counts. The others: " + weitere + ".");
}

int Monitorplatz::waehle(const std::string& id) {
  const int zeile = pult.FTPSpread.suche(id);
  if (zeile == 0)
    throw Abbruch("The register has no plant with the ID \"" + id +
                  "\"; \"polarkreis-cli monitor list\" lists them.");
  mehrfach_melden(id, zeile);
  pult.FTPSpread.ActiveRow = zeile;
  return zeile;
}

int Monitorplatz::waehle_oder_neu(const std::string& id) {
  if (pult.FTPSpread.suche(id) > 0) return waehle(id);
  pruefe_Dateiname(id);
  pruefe_Schreibweise(pult.FTPSpread, id, 0);
  const int zeile = pult.FTPSpread.freie_Zeile();
  if (zeile == 0)
    throw Abbruch("The register is full: all of its " + std::to_string(Register::Zeilen) +
                  " rows have an ID. Remove a plant with \"polarkreis-cli monitor remove ID\".");
  melde("A new plant with the ID \"" + id + "\" is made in " + in_Zeile(zeile) + "." +
        (pult.FTPSpread.ist_leer(zeile)
             ? ""
             : " The row had no ID, but held other texts: they are kept, see \"monitor show\"."));
  pult.FTPSpreadText(zeile, static_cast<int>(Registerspalte::ID), id);
  pult.FTPSpread.ActiveRow = zeile;
  return zeile;
}

void Monitorplatz::pruefe_verwechselbar() const {
  const int zeile = pult.FTPSpread.aktive_Zeile();
  const std::string& id = pult.FTPSpread.zelle(zeile, Registerspalte::ID);
  pruefe_Schreibweise(pult.FTPSpread, id, zeile);
}

void Monitorplatz::pruefe_Adresse() const {
  const auto pruefe = [](const std::string& was, const std::string& text, const char* rat) {
    if (text.find_first_of("@#?%;") != std::string::npos)
      throw Abbruch(was + " \"" + text +
                    "\" holds @ # ? % or ;, so a download would ask the server for another file. " +
                    rat);
  };
  pruefe("The ID", pult.FTPSpread.zelle(pult.FTPSpread.aktive_Zeile(), Registerspalte::ID),
         "Give the plant another ID, here and on the server.");
  pruefe("The account's folder", pult.ftp.FTP_Ordner, "Use another folder.");
}

void Monitorplatz::melde_unbekannte_Route() const {
  const std::string_view route =
      getrimmt(pult.FTPSpread.zelle(pult.FTPSpread.aktive_Zeile(), Registerspalte::nt));
  const std::string nummer = Flag_find(p.captions, route, 1);
  if (!route.empty() && nummer == std::to_string(Route_alle) &&
      Flag_find(p.captions, nummer, 2) != route)
    melde("nt: the register's \"" + gekuerzt(route) + "\" is no route; it counts as " + nummer +
          ", which tells everybody.");
}

void Monitorplatz::pruefe_neue_ID(const std::string& alt, const std::string& neu) const {
  const int andere = pult.FTPSpread.suche(neu), eigene = pult.FTPSpread.suche(alt);
  if (andere == 0) {
    pruefe_Dateiname(neu);
    return pruefe_Schreibweise(pult.FTPSpread, neu, eigene);
  }
  if (andere != eigene)
    throw Abbruch("The ID \"" + neu + "\" is taken: " + in_Zeile(andere) +
                  " has it. Nothing was changed.");
}

void Monitorplatz::pruefe_speicherbar(bool erzwingen) const {
  if (erzwingen || pult.FTPSpread.ueberzaehlig == 0) return;
  throw Abbruch("The register's file \"" + p.ablage.pfad(Register::Datei) + "\" has " +
                std::to_string(pult.FTPSpread.ueberzaehlig) +
                " lines behind its 10,000 cells, and a save would drop them. Shorten the file, or "
                "put a copy of it away and repeat the command with --force.");
}

std::string Monitorplatz::speicherfehler() const {
  return grund(p.ablage, "The register could not be written.");
}

void Monitorplatz::speichern() {
  if (!pult.SpeichButt()) throw Abbruch(speicherfehler());
}

}  // namespace polarkreis::cli
