#include "diagnostics/messdatei.h"
#include "diagnostics/messformat.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::string_view Endung = ".fmd";
constexpr std::size_t Zeilenbytes = 1100;  // about what a row comes to

/// The row count stands for a run that goes on, not for a table that really is so long.
bool nur_Kopf(const Messung& messung) {
  return messung.Mess_Zeilen == Zeilen_unbekannt && !messung.DiaSpread.gefuellt(Zeilen_unbekannt);
}

bool Zeilen_anhaengen(std::string& text, const Messung& messung, Fortschritt* fortschritt) {
  const int letzte = messung.letzte_Zeile();
  const int anzahl = letzte - Messtabelle::Erste + 1;
  text.reserve(text.size() + static_cast<std::size_t>(anzahl) * Zeilenbytes);
  for (int n = 1; n <= anzahl; ++n) {
    if (fortschritt != nullptr && !fortschritt->schritt(Zaehltext(n, anzahl), n, anzahl))
      return false;
    Messzeile_anhaengen(text, messung.DiaSpread, n + Messtabelle::Erste - 1);
  }
  return true;
}

}  // namespace

bool Messdatei::SaveDiaG(std::string_view path, Fortschritt* fortschritt) {
  std::string text;
  Kopf_anhaengen(text, messung_, messung_.Mess_Zeilen, captions_.Sprache, uhr_.Ortszeit());
  if (!nur_Kopf(messung_) && !Zeilen_anhaengen(text, messung_, fortschritt)) return false;
  return ablage_.schreib_ganz(path, text);
}

std::string Messdatei::mit_Endung(std::string_view path) {
  std::string name(path);
  if (!gross(name).ends_with(gross(Endung))) name += Endung;
  return name;
}

bool Messdatei::Pr_Speich_als(std::string_view path, Fortschritt* fortschritt) {
  if (getrimmt(path).empty()) return false;
  const std::string name = mit_Endung(path);
  if (ablage_.stand(name).da && !dialog_.frage(captions_.text(Caption::Ueberschreiben), name))
    return false;
  return SaveDiaG(name, fortschritt);
}

}  // namespace polarkreis
