#include "monitoring/ftp_konto.h"

#include <algorithm>

#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

std::string_view ohne_Schraegstriche(std::string_view ordner) {
  while (ordner.starts_with('/')) ordner.remove_prefix(1);
  while (ordner.ends_with('/')) ordner.remove_suffix(1);
  return ordner;
}

}  // namespace

bool ist_Host(std::string_view host) {
  const auto ist_Steuerzeichen = [](unsigned char c) { return c < ' ' || c == '\x7F'; };
  return !host.empty() && host.find_first_of(" /\\@?#%\"") == std::string_view::npos &&
         std::none_of(host.begin(), host.end(), ist_Steuerzeichen);
}

Ftp_Konto Standardkonto_lesen(Ablage& ablage) {
  Ftp_Konto konto;
  const std::string inhalt = ablage.lies_ganz(Kontodatei, &konto.hindernis).value_or("");
  ItemLeser items(inhalt);
  konto.IP = getrimmt(items.lies());
  konto.Host = getrimmt(items.lies());
  konto.Nutzer = items.lies();
  konto.Passwort = items.lies();
  konto.Ordner = ohne_Schraegstriche(getrimmt(items.lies()));
  if (konto.Ordner.empty()) konto.Ordner = Standardordner;
  return konto;
}

bool Standardkonto_anlegen(Ablage& ablage) {
  if (ablage.vorhanden(Kontodatei)) return true;
  constexpr int kItems = 5;
  std::string inhalt;
  for (int i = 0; i < kItems; ++i) zeile_anhaengen(inhalt, {""});
  return ablage.schreib_ganz(Kontodatei, inhalt, Haltbarkeit::sicher, Zugriff::nur_Eigner);
}

}  // namespace polarkreis
