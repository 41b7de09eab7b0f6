#include <utility>

#include "monitoring/ftp_server.h"
#include "monitoring/textzeilen.h"
#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

std::string Regeldatei(const std::string& ID, std::size_t i) {
  return ID + "ALERT" + std::to_string(i + 1);
}

}  // namespace

void ftp_server::alerts_handle(int Fall) {
  switch (Fall) {
    case 1:
      return Regeln_fuellen();
    case 2:
      return Regeln_packen(true);
    case 3:
      return Regeln_hoch();
    case 4:
      return Regeln_herunter();
    case 5:
      return Regeln_packen(false);
    default:
      return;
  }
}

void ftp_server::al_upload() {
  alerts_handle(2);
  alerts_handle(3);
}

void ftp_server::al_download() {
  alerts_handle(4);
  alerts_handle(5);
}

// A rule that was never filled must not show that of the plant before, which the next save would
// then give to this one.
void ftp_server::Regeln_fuellen() {
  const int zeile = FTPSpread.aktive_Zeile();
  for (std::size_t i = 0; i < AlertSpread.size(); ++i)
    AlertSpread[i] =
        Regel_entpacken(captions_, FTPSpread.zelle(zeile, Regelspalte(static_cast<int>(i) + 1)));
}

void ftp_server::Regeln_packen(bool ins_Register) {
  const int zeile = FTPSpread.aktive_Zeile();
  for (std::size_t i = 0; i < AlertSpread.size(); ++i) {
    Alarmtexte[i] = Regel_packen(captions_, AlertSpread[i]);
    if (ins_Register) FTPSpread.setze(zeile, Regelspalte(static_cast<int>(i) + 1), Alarmtexte[i]);
  }
}

void ftp_server::Regeln_hoch() {
  Ergebnisse.clear();
  Server_settings();
  for (std::size_t i = 0; i < Alarmtexte.size(); ++i) {
    const std::string Dateiname = Regeldatei(ftp.ID, i);
    if (!weiter(Dateiname, static_cast<int>(i), Regelzahl)) break;
    std::string inhalt;
    for (const std::string& item : Regel_teilen(Alarmtexte[i])) zeile_anhaengen(inhalt, {item});
    Ergebnisse.push_back(ftp.Abschicken(Dateiname, inhalt));
  }
  weiter({}, Regelzahl, Regelzahl);
}

void ftp_server::Regeln_herunter() {
  Ergebnisse.clear();
  Server_settings();
  for (std::size_t i = 0; i < AlertSpread.size(); ++i) {
    const std::string Dateiname = Regeldatei(ftp.ID, i);
    if (!weiter(Dateiname, static_cast<int>(i), Regelzahl)) break;
    Ergebnisse.push_back(ftp.Hoch_laden(Ladeweg::herunter, Dateiname));
    if (const auto inhalt = ftp.Kopie(Dateiname)) Regel_lesen(*inhalt, AlertSpread[i]);
  }
  weiter({}, Regelzahl, Regelzahl);
}

void ftp_server::Regel_lesen(std::string_view text, Alarmregel& regel) const {
  for (Textzeilen zeilen(text); !zeilen.ende();) {
    const std::string item = zeilen.lies();
    if (getrimmt(item).empty()) return;
    Item_uebernehmen(captions_, item, regel);
  }
}

// --- Editing a rule

std::string* ftp_server::Regelzelle(int Zeile, int Spalte) {
  if (Zeile < 1 || Zeile > Regelzeilen || Spalte < 1 || Spalte > Regelzahl) return nullptr;
  return &AlertSpread[static_cast<std::size_t>(Spalte) - 1][static_cast<Regelzeile>(Zeile)];
}

void ftp_server::AlertSpreadEdit(int Zeile, int Spalte) {
  HideComponents();
  const std::string* zelle = Regelzelle(Zeile, Spalte);
  if (zelle == nullptr) return;
  std::vector<std::string> auswahl = Regelauswahl(captions_, static_cast<Regelzeile>(Zeile));
  Zelleditor& editor = auswahl.empty() ? AlertSpreadText : Alert_Combo;
  editor = {true, Zeile, Spalte, *zelle, std::move(auswahl)};
}

void ftp_server::Alert_Combo_Click(int Eintrag) {
  if (!Alert_Combo.sichtbar || Eintrag < 0 || Eintrag >= static_cast<int>(Alert_Combo.Liste.size()))
    return;
  if (std::string* zelle = Regelzelle(Alert_Combo.Zeile, Alert_Combo.Spalte))
    *zelle = Alert_Combo.Liste[static_cast<std::size_t>(Eintrag)];
  HideComponents();
}

void ftp_server::AlertSpreadText_Change(std::string_view Text) {
  if (!AlertSpreadText.sichtbar) return;
  if (std::string* zelle = Regelzelle(AlertSpreadText.Zeile, AlertSpreadText.Spalte)) *zelle = Text;
  HideComponents();
}

}  // namespace polarkreis
