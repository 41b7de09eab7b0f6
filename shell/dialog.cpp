#include "shell/dialog.h"

#include "shell/text.h"

namespace polarkreis {

namespace {

std::string_view meldung(Fehler nummer) {
  switch (nummer) {
    case Fehler::Datei_fehlt:
      return "File not existing.";
    case Fehler::Modul_fehlt:
      return "Module not available.";
    case Fehler::Speicher_voll:
      return "Out of Memory.";
  }
  return {};
}

}  // namespace

std::string fehlertext(Fehler nummer, std::string_view modul) {
  std::string text = "Polarkreis error " + std::to_string(static_cast<int>(nummer)) + ": ";
  text += meldung(nummer);
  if (!modul.empty()) text += " - " + gross(modul);
  return text;
}

void FehlerBOX(Dialog& dialog, Fehler nummer, std::string_view modul) {
  dialog.zeige(fehlertext(nummer, modul), "Polarkreis", Symbol::fehler);
}

}  // namespace polarkreis
