#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

#include "monitor_aenderung.h"
#include "monitor_anzeige.h"
#include "monitor_platz.h"
#include "monitor_transfer.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

void sage(const std::string& text) {
  drucke(Tabelle{{}, {{text}}});
}

void auflisten(Sitzung& sitzung, const Monitorwuensche& w) {
  Monitorplatz platz(sitzung);
  if (w.json)
    drucke(Liste_json(platz.pult, platz.p.captions));
  else
    drucke_Liste(platz.pult, platz.p.captions);
}

void zeigen(Sitzung& sitzung, const Monitorwuensche& w) {
  const std::string id = monitor_id(w.id);
  Monitorplatz platz(sitzung);
  platz.waehle(id);
  platz.melde_unbekannte_Route();
  platz.pult.Tab_Select(1);
  platz.pult.Server_settings();
  if (w.json)
    drucke(Einstellungen_json(platz.pult, platz.p.captions, w.passwort));
  else
    drucke_Einstellungen(platz.pult, w.passwort);
}

void einstellen(Sitzung& sitzung, const Monitorwuensche& w) {
  const std::string id = monitor_id(w.id);
  const Einstellaenderung aenderung = einstellungen_aus(sitzung.programm().captions, w.aenderungen);
  Monitorplatz platz(sitzung, true);
  platz.pruefe_speicherbar(w.erzwingen);
  if (aenderung.id) platz.pruefe_neue_ID(id, *aenderung.id);
  const int zeile = platz.waehle_oder_neu(id);
  const auto ist_Route = [](const auto& f) { return f.first.spalte == Registerspalte::nt; };
  if (std::ranges::none_of(aenderung.felder, ist_Route)) platz.melde_unbekannte_Route();
  platz.pult.Tab_Select(1);
  aenderung.anwenden(platz.pult);
  platz.pult.set_speich();
  platz.speichern();
  platz.pult.Server_settings();
  if (w.json)
    drucke(Einstellungen_json(platz.pult, platz.p.captions, w.passwort));
  else
    sage("Saved: " + platz.pult.ID_Label + ", row " + std::to_string(zeile) + " of the register");
}

void regeln_zeigen(Sitzung& sitzung, const Monitorwuensche& w) {
  const std::string id = monitor_id(w.id);
  Monitorplatz platz(sitzung);
  const int zeile = platz.waehle(id);
  platz.pult.Tab_Select(2);
  if (!w.json) return drucke_Regeln(platz.pult);
  drucke(Json{
      {"id", id}, {"row", zeile}, {"rules", Regeln_json(platz.pult, gepackte_Regeln(platz.pult))}});
}

void regel_einstellen(Sitzung& sitzung, const Monitorwuensche& w) {
  const std::string id = monitor_id(w.id);
  const Regelaenderung aenderung = regel_aus(sitzung.programm().captions, w.aenderungen);
  Monitorplatz platz(sitzung, true);
  platz.pruefe_speicherbar(w.erzwingen);
  platz.waehle_oder_neu(id);
  platz.pult.Tab_Select(2);
  const auto ort = static_cast<std::size_t>(w.regel) - 1;
  Alarmregel& regel = platz.pult.AlertSpread[ort];
  for (const auto& [zeile, wert] : aenderung) regel[zeile] = wert;
  platz.pult.al_speich();
  platz.speichern();
  if (w.json) return drucke(Regel_json(platz.pult, w.regel, gepackte_Regeln(platz.pult)[ort]));
  sage("Saved: rule " + std::to_string(w.regel) + " of " + id + ", " +
       (Regel_leer(regel) ? std::string(kLeere_Regel)
                          : regel[Regelzeile::en] + ": " + Regelsatz(regel)));
}

void entfernen(Sitzung& sitzung, const Monitorwuensche& w) {
  const std::string id = monitor_id(w.id);
  Monitorplatz platz(sitzung, true);
  platz.pruefe_speicherbar(w.erzwingen);
  const int zeile = platz.waehle(id);
  platz.pult.FTPSpread_Auswahl = {zeile, 1, zeile, Register::Spalten};
  platz.pult.FTPSpreadDelete();
  platz.speichern();
  if (w.json)
    drucke(Json{{"id", id}, {"row", zeile}});
  else
    sage("Removed: " + id + ", row " + std::to_string(zeile) + " of the register");
}

/// What a command takes beside its ID.
struct Mehr {
  bool zuweisungen = false, regel = false, teil = false, passwort = false, speichert = false;
};

/// A command under "monitor".
struct Unterbefehl {
  const char *name, *hilfe, *beispiel;
  Mehr mehr;
  void (*werk)(Sitzung&, const Monitorwuensche&);
};
constexpr Unterbefehl kUnterbefehle[] = {
    {"list", "List the plants of the register", "  polarkreis-cli monitor list", {}, auflisten},
    {"show",
     "Show a plant's settings",
     "  polarkreis-cli monitor show K17 --json",
     {.passwort = true},
     zeigen},
    {"set",
     "Change a plant's settings and save the register; an unknown ID makes a new plant",
     "  polarkreis-cli monitor set K17 nm=\"Cold store 3\" fn=R744 nt=\"ftp + SMS2\" server=1",
     {.zuweisungen = true, .speichert = true},
     einstellen},
    {"rules",
     "Show a plant's 16 alarm rules",
     "  polarkreis-cli monitor rules K17",
     {},
     regeln_zeigen},
    {"rule",
     "Change an alarm rule of a plant and save the register",
     "  polarkreis-cli monitor rule K17 1 c1=tc cm=\">\" vl=45 ti=10 nt=\"SMS + E-Mail\" en=ON",
     {.zuweisungen = true, .regel = true, .speichert = true},
     regel_einstellen},
    {"upload",
     "Send a plant's settings and rules to the FTP server",
     "  polarkreis-cli monitor upload K17",
     {.teil = true},
     monitor_upload},
    {"download",
     "Fetch a plant's settings and rules from the FTP server and show them",
     "  polarkreis-cli monitor download K17 rules --save",
     {.teil = true, .passwort = true, .speichert = true},
     monitor_download},
    {"remove",
     "Remove a plant from the register, and save it; nothing on the server changes",
     "  polarkreis-cli monitor remove K17",
     {.speichert = true},
     entfernen},
};

void argumente_anmelden(CLI::App& befehl, const Unterbefehl& u, Monitorwuensche& w) {
  if (u.werk != auflisten)
    befehl.add_option("ID", w.id, "Monitoring ID of the plant")->required()->type_name("");
  if (u.mehr.regel)
    befehl.add_option("N", w.regel, "Number of the rule, 1 to 16")
        ->required()
        ->type_name("")
        ->check(CLI::Range(1, Regelzahl).description(""));
  if (u.mehr.zuweisungen)
    befehl
        .add_option("KEY=VALUE", w.aenderungen,
                    u.mehr.regel
                        ? "en, c1, ro, c2, cm, vl, ti, nt: see docs/monitoring.md"
                        : "nm, st, nu, ad, co, tw, fn, th, pu, pd, s1, s2, ml, ip, dr, us, "
                          "pw, nt, server, id: see docs/monitoring.md")
        ->required()
        ->type_name("");
  if (u.mehr.teil)
    befehl.add_option("PART", w.teil, "settings or rules; both without it")
        ->type_name("")
        ->check(CLI::IsMember({"settings", "rules"}).description(""));
}

void optionen_anmelden(CLI::App& befehl, const Unterbefehl& u, Monitorwuensche& w) {
  befehl.add_flag("--json", w.json, "Print as JSON");
  if (u.mehr.passwort)
    befehl.add_flag("--password", w.passwort, "Show the plant's FTP password in the clear");
  if (u.mehr.teil && u.mehr.speichert)
    befehl.add_flag("--save", w.speichern, "Store in the register what was fetched");
  if (u.mehr.teil)
    befehl.add_flag("--log", w.protokoll,
                    "Print the log of the transfers to standard error: it shows the account's "
                    "password in the clear");
  if (u.mehr.speichert)
    befehl.add_flag("--force", w.erzwingen,
                    "Save even if the register's file has lines behind its 10,000 cells, which are "
                    "then dropped");
}

}  // namespace

void monitor_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* monitor = app.add_subcommand(
      "monitor", "Keep the register of remotely monitored plants, and exchange it by FTP");
  monitor->require_subcommand(1);
  beispiel(*monitor, kUnterbefehle[0].beispiel);
  for (const Unterbefehl& u : kUnterbefehle) {
    CLI::App* befehl = monitor->add_subcommand(u.name, u.hilfe);
    auto w = std::make_shared<Monitorwuensche>();
    argumente_anmelden(*befehl, u, *w);
    optionen_anmelden(*befehl, u, *w);
    beispiel(*befehl, u.beispiel);
    befehl->callback([&sitzung, w, werk = u.werk] { werk(sitzung, *w); });
  }
}

}  // namespace polarkreis::cli
