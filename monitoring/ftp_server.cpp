#include "monitoring/ftp_server.h"

#include "monitoring/route.h"

namespace polarkreis {

namespace {

enum class Seite { Settings = 1, Alerts, Load_measure };

constexpr std::array<std::string_view, 53> kKaeltemittel{
    "CO2",   "AMMONIAK", "PROPAN", "PROPYLEN", "HFO1234YF", "HFO1234ZE", "R13B1",  "R123",  "R124",
    "R134a", "R152a",    "R227",   "R290",     "R401A",     "R401B",     "R402A",  "R402B", "R403B",
    "R404A", "R407A",    "R407C",  "R407F",    "R408A",     "R409A",     "R410A",  "R413A", "R417A",
    "R422A", "R422D",    "R427A",  "R437A",    "R438A",     "R448A",     "R449A",  "R450A", "R452A",
    "R502",  "R507",     "R508A",  "R508B",    "R513A",     "R600a",     "R717",   "R723",  "R744",
    "R1270", "FX_90",    "ISC_29", "ISC_49",   "ISC_59",    "ISC_69L",   "ISC_79", "ISC_89"};

}  // namespace

std::span<const std::string_view> Monitoring_Kaeltemittel() {
  return kKaeltemittel;
}

ftp_server::ftp_server(Ablage& ablage, const Captions& captions, Dialog& dialog, FtpKlient& klient)
    : ftp(ablage, klient), ablage_(ablage), captions_(captions), dialog_(dialog) {}

// --- Opening and closing

void ftp_server::Oeffnen() {
  start_caption();
  ftp.Tempordner_anlegen();
  FTPSpread = {};
  Save_monitoring(2);
  Kalender(1);
  offen = true;
}

bool ftp_server::Ende_monitoring() {
  if (!Save_monitoring(1)) return false;
  Command3D2();
  return true;
}

void ftp_server::Command3D2() {
  ftp.Disconnect();
  offen = false;
}

bool ftp_server::Save_monitoring(int Richtung) {
  return Richtung == 1 ? FTPSpread.schreib(ablage_) : FTPSpread.lies(ablage_);
}

// The place for data that a later program keeps beside the register; no such file exists.
void ftp_server::LoadDiaG(std::string_view) {}

// --- Pages

void ftp_server::start_caption() {
  FTPSpread_Kopf = {"Frigmont Monitoring ID",
                    captions_.text(Caption::Kunde),
                    "Straße",
                    "Hausnummer",
                    captions_.text(Caption::Standort),
                    "Postleitzahl",
                    "Stadt",
                    captions_.text(Caption::Kaeltemittel),
                    "Threshold / [kW]",
                    captions_.text(Caption::Alarmverzoegerung) + " Start / [min]",
                    captions_.text(Caption::Alarmverzoegerung) + " Stop / [min]",
                    "SMS 1 :",
                    "SMS 2 :",
                    "E-Mail :",
                    "FTP IP(xxx.yyy.xx.yy):",
                    "FTP IP(xxx.yyy.xx.yy):",
                    "FTP user :",
                    "FTP password :",
                    "nt="};
  AlertSpread_Kopf = {"ON/OFF",
                      "CH1",
                      "",
                      "CH2",
                      "=,>,<",
                      "Alarme",
                      "Zeitverzögerung Alarme",
                      captions_.text(Caption::Information) + " Alarme"};
  fn_Liste.assign(kKaeltemittel.begin(), kKaeltemittel.end());
  nt_Liste = Routen(captions_);
}

void ftp_server::Tab_Select(int Seite) {
  constexpr int kSeiten = 3;
  if (Seite < 1 || Seite > kSeiten) return;
  HideComponents();
  SSTab1 = Seite;
  switch (static_cast<polarkreis::Seite>(Seite)) {
    case Seite::Settings:
      return handle_settings(1);
    case Seite::Alerts:
      return alerts_handle(1);
    case Seite::Load_measure:
      return Kalender(1);
  }
}

void ftp_server::HideComponents() {
  Alert_Combo = {};
  AlertSpreadText = {};
}

void ftp_server::Kalender(int Fall) {
  constexpr int kTage = 31, kStunden = 24;
  if (Fall != 1) return;
  KalenderSpread = {};
  for (int tag = 1; tag <= kTage; ++tag)
    KalenderSpread[(tag - 1) / Kalenderspalten][(tag - 1) % Kalenderspalten] = std::to_string(tag);
  time_combo = {" 0 - 24h"};
  for (int stunde = 1; stunde <= kStunden; ++stunde)
    time_combo.push_back(std::to_string(stunde) + "h");
}

}  // namespace polarkreis
