#include <cerrno>
#include <utility>

#include "shell/ablage.h"
#include "shell/platte.h"
#include "shell/text.h"

namespace polarkreis {

std::optional<std::string> Ablage::lies_ganz(std::string_view name, std::string* hindernis) {
  std::optional<std::string> bytes = lies_bytes(name, hindernis);
  if (bytes) bytes = als_utf8(std::move(*bytes));
  return bytes;
}

std::optional<std::string> Ablage::lies_bytes(std::string_view name, std::string* hindernis) {
  const std::string wo = pfad(name);
  std::string bytes;
  const int fehler = platte::lies(wo, bytes);
  if (hindernis != nullptr)
    *hindernis = fehler == 0 || fehler == ENOENT ? std::string() : platte::grund(fehler);
  if (fehler == 0) return bytes;
  if (fehler != ENOENT) meldungen_.melde("read", wo, "can't be read: " + platte::grund(fehler));
  return std::nullopt;
}

bool Ablage::schreib_ganz(std::string_view name, std::string_view inhalt, Haltbarkeit haltbarkeit,
                          Zugriff zugriff) {
  const std::string wo = pfad(name);
  int fehler = platte::mache_ordner(platte::ort(wo).ordner);
  if (fehler == 0)
    fehler = platte::ersetze(wo, inhalt, haltbarkeit == Haltbarkeit::sicher,
                             zugriff == Zugriff::nur_Eigner);
  if (fehler != 0) return misslungen(wo, platte::grund(fehler));
  letzter_fehler_.clear();
  alles_pruefen();
  return true;
}

bool Ablage::mache_privaten_ordner(std::string_view name) {
  const std::string wo = pfad(name);
  const int fehler = platte::mache_privaten_ordner(wo);
  if (fehler != 0) return misslungen(wo, platte::grund(fehler));
  letzter_fehler_.clear();
  return true;
}

bool Ablage::haenge_an(std::string_view name, std::string_view satz, Haltbarkeit haltbarkeit) {
  const std::string wo = pfad(name);
  int fehler = platte::mache_ordner(platte::ort(wo).ordner);
  if (fehler == 0) fehler = platte::haenge_satz_an(wo, satz, haltbarkeit == Haltbarkeit::sicher);
  if (fehler != 0) return misslungen(wo, platte::grund(fehler));
  letzter_fehler_.clear();
  alles_pruefen();
  return true;
}

bool Ablage::Datei_Loeschen(std::string_view name) {
  const std::string wo = pfad(name);
  const int fehler = platte::loesche(wo);
  if (fehler == 0) {
    letzter_fehler_.clear();
    alles_pruefen();
    return true;
  }
  meldungen_.melde("delete", wo, "left as it was: " + platte::grund(fehler));
  letzter_fehler_ = "\r\nCan not delete/overwrite file:   - ";
  letzter_fehler_ += name;
  letzter_fehler_ += " - ";
  return false;
}

// A refusal that lasts is told once: a run tries to save its rows anew with every sample.
bool Ablage::misslungen(const std::string& wo, const std::string& warum) {
  std::string fehler = "Can not write \"" + wo + "\": " + warum;
  if (fehler != letzter_fehler_) meldungen_.melde("write", wo, "not written: " + warum);
  letzter_fehler_ = std::move(fehler);
  return false;
}

}  // namespace polarkreis
