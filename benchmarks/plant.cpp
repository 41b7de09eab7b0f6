#include "plant.h"

#include <stdlib.h>
#include <unistd.h>

#include <stdexcept>

#include "platform/dateiwache.h"

namespace polarkreis::bench {

namespace fs = std::filesystem;

namespace {

fs::path ablageort(Ort ort) {
  const fs::path speicher = "/dev/shm";
  const bool im_Speicher = ort == Ort::Speicher && access(speicher.c_str(), W_OK) == 0;
  return im_Speicher ? speicher : fs::temp_directory_path();
}

}  // namespace

Datenkopie::Datenkopie(Ort ort) {
  std::string muster = (ablageort(ort) / "polarkreis-bench-XXXXXX").string();
  if (mkdtemp(muster.data()) == nullptr) throw std::runtime_error("no temporary folder");
  pfad_ = muster;
  fs::copy(POLARKREIS_DATA, pfad_, fs::copy_options::recursive);
}

Datenkopie::~Datenkopie() {
  std::error_code ignored;
  fs::remove_all(pfad_, ignored);
}

Anlagenlauf::Anlagenlauf(const std::string& projekt, bool freie_kuehlung, bool heizung)
    : programm_(std::make_unique<Programm>(daten_.ordner(), stumm_)) {
  const std::string ordner = daten_.ordner();
  Programm& p = *programm_;
  p.laden("ENG");
  p.ablage.setze_wache(Dateiwache_machen(ordner));
  p.projekt.Projekt_Oeffnen("SIM_PRO", ordner + "/" + projekt);
  p.projekt.FreeC_Check = freie_kuehlung;
  p.projekt.HeizCheck = heizung;
  Kurs_machen(p.klima, p.projekt);
  lauf_ = std::make_unique<JahresLauf>(
      Laufmittel{p.ablage, p.captions, p.kreis, p.klima, p.luft, p.wrg, p.dialog});
}

Rechnung Anlagenlauf::rechnen() {
  return rechbutt(*lauf_, programm_->projekt, "EUR");
}

std::string Anlagenlauf::dateien() {
  return programm_->ablage.lies_ganz("ERG_TEMP.DAT").value_or("") +
         programm_->ablage.lies_ganz("ergEN1.DAT").value_or("");
}

}  // namespace polarkreis::bench
