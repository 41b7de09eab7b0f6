#include "monitor_transfer.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "konsole.h"
#include "monitor_anzeige.h"

namespace polarkreis::cli {

namespace {

bool lesbar_fuer_andere(const std::string& datei) {
  using std::filesystem::perms;
  std::error_code fehler;
  const perms rechte = std::filesystem::status(datei, fehler).permissions();
  return !fehler && (rechte & (perms::group_read | perms::others_read)) != perms::none;
}

/// Where the shown values of a file come from.
enum class Herkunft { Server, Kopie, Register };

struct Datei {
  Uebertragung::Ergebnis ergebnis;
  Herkunft herkunft = Herkunft::Server;
};

/// One call's transfers: the desk with the plant chosen, and how each file went.
class Verkehr {
 public:
  Verkehr(Sitzung& s, const Monitorwuensche& wuensche)
      : einstellungen(wuensche.teil != "rules"),
        regeln(wuensche.teil != "settings"),
        platz(s, wuensche.speichern),
        pult(platz.pult),
        sitzung_(s),
        wuensche_(wuensche) {
    if (wuensche.speichern) platz.pruefe_speicherbar(wuensche.erzwingen);
    platz.waehle(monitor_id(wuensche.id));
    platz.pruefe_verwechselbar();
    pruefe_Konto();

    pult.fortschritt = &fortschritt_;
  }
  ~Verkehr() { pult.fortschritt = nullptr; }
  Verkehr(const Verkehr&) = delete;
  Verkehr& operator=(const Verkehr&) = delete;

  const bool einstellungen, regeln;  ///< what is asked for
  Monitorplatz platz;
  ftp_server& pult;
  std::vector<Datei> dateien;

  /// Takes the results of the button that was pressed last.
  void nimm() {
    for (const Uebertragung::Ergebnis& e : pult.Ergebnisse) {
      const bool kopie = !e.gut && pult.ftp.Kopie(e.Dateiname).has_value();
      dateien.push_back(
          {e, e.gut ? Herkunft::Server : (kopie ? Herkunft::Kopie : Herkunft::Register)});
    }
  }
  /// Ends the progress, and tells what failed; the log where it is asked for.
  void abschliessen();
  bool alles_gut() const {
    return std::ranges::all_of(dateien, [](const Datei& d) { return d.ergebnis.gut; });
  }

 private:
  void pruefe_Konto();

  Terminalfortschritt fortschritt_;
  Sitzung& sitzung_;
  const Monitorwuensche& wuensche_;
};

void Verkehr::pruefe_Konto() {
  const std::string datei = platz.p.ablage.pfad(Kontodatei);
  pult.Server_settings();
  if (pult.ftp.Server_Wahl == 0)
    throw Abbruch(
        "The plant has no server choice, so there is no account for a transfer. Give it "
        "one: polarkreis-cli monitor set \"" +
        pult.ftp.ID + "\" server=1");
  if (const std::string grund = Standardkonto_lesen(platz.p.ablage).hindernis; !grund.empty())
    throw Abbruch("The account's file \"" + datei + "\" can't be read: " + grund);
  if (pult.ftp.FTP_Host.empty())
    throw Abbruch("There is no FTP server to go to: fill in the file \"" + datei +
                  "\", five texts in quotes, one a line: the server's address, its host name, "
                  "user, password, folder.");
  if (lesbar_fuer_andere(datei))
    melde("Others can read the password in \"" + datei + "\": chmod 600 closes the file to them.");
}

std::string fehlertext(const Datei& d) {
  std::string text = d.ergebnis.Dateiname;
  if (d.ergebnis.weg == Ladeweg::hoch) return text + " was not uploaded: " + d.ergebnis.grund;
  text += " was not downloaded: " + d.ergebnis.grund;
  if (!text.ends_with('.')) text += ".";
  return text +
         (d.herkunft == Herkunft::Kopie
              ? " What is shown is an earlier copy of it, from the folder FMD_Temp."
              : " There is no earlier copy either: what is shown is what the register holds.");
}

void Verkehr::abschliessen() {
  fortschritt_.loeschen();
  if (wuensche_.protokoll)
    for (const std::string& zeile : pult.ftp.List1)
      std::fprintf(stderr, "%s\n", sichtbar(zeile).c_str());
  for (const Datei& d : dateien)
    if (!d.ergebnis.gut) sitzung_.fehler(fehlertext(d));
}

Json transfers_json(const std::vector<Datei>& dateien) {
  Json alle = Json::array();
  for (const Datei& d : dateien) {
    alle.push_back({{"file", d.ergebnis.Dateiname},
                    {"remote", d.ergebnis.Entfernt},
                    {"good", d.ergebnis.gut},
                    {"reason", d.ergebnis.grund}});
    if (d.ergebnis.weg == Ladeweg::hoch) continue;
    constexpr const char* kHerkunft[] = {"server", "earlier copy", "register"};
    alle.back()["shown"] = kHerkunft[static_cast<int>(d.herkunft)];
  }
  return alle;
}

// Both parts or none: half a plant would be neither the old one nor the server's.
bool uebernehmen(Sitzung& sitzung, Verkehr& verkehr) {
  if (!verkehr.alles_gut()) {
    sitzung.fehler(
        "Nothing was stored, since not every file was downloaded. The register is as it was.");
    return false;
  }
  if (verkehr.einstellungen) verkehr.pult.set_speich();
  if (verkehr.regeln) verkehr.pult.al_speich();
  if (verkehr.pult.SpeichButt()) return true;
  sitzung.fehler(verkehr.platz.speicherfehler());
  return false;
}

void drucke_json(const Verkehr& v, const Monitorwuensche& w, bool gespeichert) {
  Json json{{"id", v.pult.ftp.ID}, {"row", v.pult.FTPSpread.aktive_Zeile()}};
  if (v.einstellungen)
    json["settings"] = Einstellungen_json(v.pult, v.platz.p.captions, w.passwort);
  if (v.regeln) json["rules"] = Regeln_json(v.pult, v.pult.Alarmtexte);
  json["transfers"] = transfers_json(v.dateien);
  json["saved"] = gespeichert;
  drucke(json);
}

void drucke_tabellen(const Verkehr& v, const Monitorwuensche& w, bool gespeichert) {
  if (v.einstellungen) drucke_Einstellungen(v.pult, w.passwort);
  if (v.einstellungen && v.regeln) std::printf("\n");
  if (v.regeln) drucke_Regeln(v.pult);
  if (gespeichert) drucke(Tabelle{{}, {{"Saved: " + v.pult.ftp.ID}}});
}

}  // namespace

void monitor_upload(Sitzung& sitzung, const Monitorwuensche& w) {
  Verkehr verkehr(sitzung, w);
  ftp_server& pult = verkehr.pult;
  if (verkehr.einstellungen) {
    verkehr.platz.melde_unbekannte_Route();
    pult.Tab_Select(1);
    pult.set_upload();
    verkehr.nimm();
  }
  if (verkehr.regeln) {
    pult.Tab_Select(2);
    pult.al_upload();
    verkehr.nimm();
  }
  verkehr.abschliessen();
  if (w.json)
    return drucke(Json{{"id", pult.ftp.ID},
                       {"row", pult.FTPSpread.aktive_Zeile()},
                       {"transfers", transfers_json(verkehr.dateien)}});
  Tabelle tabelle;
  for (const Datei& d : verkehr.dateien)
    tabelle.zeilen.push_back({d.ergebnis.gut ? "Uploaded:" : "Failed:", d.ergebnis.Entfernt});
  drucke(tabelle);
}

void monitor_download(Sitzung& sitzung, const Monitorwuensche& w) {
  Verkehr verkehr(sitzung, w);
  verkehr.platz.pruefe_Adresse();
  ftp_server& pult = verkehr.pult;
  if (verkehr.einstellungen) {
    pult.Tab_Select(1);
    pult.set_download();
    verkehr.nimm();
  }
  if (verkehr.regeln) {
    pult.Tab_Select(2);
    pult.al_download();
    verkehr.nimm();
  }
  verkehr.abschliessen();
  const bool gespeichert = w.speichern && uebernehmen(sitzung, verkehr);
  w.json ? drucke_json(verkehr, w, gespeichert) : drucke_tabellen(verkehr, w, gespeichert);
}

}  // namespace polarkreis::cli
