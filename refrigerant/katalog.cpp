#include <algorithm>
#include <string>

#include "refrigerant/kaeltemittel.h"
#include "refrigerant/katalog.h"
#include "shell/text.h"

namespace polarkreis {
namespace {

const KMEintrag* finde(std::string_view gross_und_getrimmt) {
  const auto* eintrag =
      std::find_if(std::begin(katalog), std::end(katalog),
                   [&](const KMEintrag& e) { return e.name == gross_und_getrimmt; });
  return eintrag == std::end(katalog) ? nullptr : eintrag;
}

}  // namespace

std::span<const KMEintrag> KM_Katalog() {
  return katalog;
}

bool Kaeltemittel::KM_Bekannt(std::string_view name) {
  return finde(gross(rechts_getrimmt(name))) != nullptr;
}

const KMEintrag* Kaeltemittel::eintrag() const {
  if (z.RefName != gesucht_) {
    gesucht_ = z.RefName;
    gefunden_ = finde(gross(getrimmt(z.RefName)));
  }
  return gefunden_;
}

int Kaeltemittel::KM_Datei() {
  const KMEintrag* e = eintrag();
  if (!e) return 0;
  if (z.RefFile != e->datei) z.RefFile = e->datei;
  z.GWP = e->GWP;
  if (!e->kanonisch.empty() && z.RefName != e->kanonisch) z.RefName = e->kanonisch;
  return e->zeilen;
}

void Kaeltemittel::KM_Grenzen() {
  z.tmax = 65;
  if (const KMEintrag* e = eintrag()) {
    z.tmin = e->tmin;
    z.tmax = e->tmax;
  }
}

bool Kaeltemittel::hat_Tabelle(std::string_view datei) const {
  const KMEintrag* e = eintrag();
  return e && e->datei == datei;
}

bool Kaeltemittel::ist_CO2() const {
  return hat_Tabelle("CO2.DAT");
}

}  // namespace polarkreis
