#include <utility>

#include "diagnostics/messdatei.h"
#include "diagnostics/messformat.h"

namespace polarkreis {

namespace {

/// The name beside the working copy that is still free.
std::string freier_Name(const Ablage& ablage, const std::string& arbeitskopie,
                        const Zeitpunkt& jetzt) {
  const std::size_t trenner = arbeitskopie.find_last_of("/\\");
  const std::string ordner = arbeitskopie.substr(0, trenner == std::string::npos ? 0 : trenner + 1);
  const std::string stamm = ordner + "FM_diag " + Zeitstempel_Dateiname(jetzt);
  std::string name = stamm + ".fmd";
  for (int n = 2; ablage.stand(name).da; ++n) name = stamm + " " + std::to_string(n) + ".fmd";
  return name;
}

/// True if something stands behind the heading.
bool hat_Zeilen(const std::string& inhalt) {
  const std::string text = markiert(inhalt);
  Messleser leser(text);
  for (int n = 0; n < Kopfzeilen_Datei; ++n) leser.lies();
  return leser.noch_Text();
}

/// The heading and the whole rows of the content; nothing if not even the heading is whole.
std::string Ganzes(const std::string& inhalt) {
  const std::string text = markiert(inhalt);
  Messleser leser(text);
  std::string ganz;
  for (int n = 0; n < Kopfzeilen_Datei; ++n) zeile_anhaengen(ganz, {leser.lies()});
  if (leser.am_Ende()) return {};
  for (Messzeile zeile; leser.lies_Zeile(zeile);) Messzeile_anhaengen(ganz, zeile);
  return ganz;
}

}  // namespace

bool Messdatei::ist_Arbeitskopie(std::string_view path) const {
  return !Arbeitskopie.empty() && ablage_.pfad(path) == ablage_.pfad(Arbeitskopie);
}

/// Keeps the working copy under a name of its own where it holds rows; once for each state of it.
/// What a run could not keep or read with one sample it meets again with the next: the name stays,
/// and what can't be read is left alone until the user does something.
bool Messdatei::beiseite_legen() {
  const Dateistand stand = ablage_.stand(Arbeitskopie);
  if (!stand.da || stand.groesse == 0 || stand == beiseite_) return true;
  if (stand == unlesbar_) return false;
  const std::optional<std::string> inhalt = ablage_.lies_ganz(Arbeitskopie);
  if (!inhalt) {
    unlesbar_ = stand;
    ablage_.haenge_an(Arbeitskopie, "");  // mostly refused, too, and that tells why
    return false;
  }
  if (hat_Zeilen(*inhalt) && !beiseite_schreiben(*inhalt)) return false;
  beiseite_ = stand;
  return true;
}

bool Messdatei::beiseite_schreiben(const std::string& inhalt) {
  if (beiseite_name_.empty() || ablage_.stand(beiseite_name_).da)
    beiseite_name_ = freier_Name(ablage_, Arbeitskopie, uhr_.Ortszeit());
  if (!ablage_.schreib_ganz(beiseite_name_, inhalt)) return false;
  ablage_.meldungen().melde("measurement", Arbeitskopie,
                            "its rows are kept as \"" + beiseite_name_ + "\"");
  beiseite_name_.clear();
  return true;
}

bool Messdatei::Kopf_ablegen() {
  if (!beiseite_legen()) return false;
  std::string kopf;
  Kopf_anhaengen(kopf, messung_, Zeilen_unbekannt, captions_.Sprache, uhr_.Ortszeit());
  if (!ablage_.schreib_ganz(Arbeitskopie, kopf)) return false;
  geschrieben_ = static_cast<std::int64_t>(kopf.size());
  kopf_fehlt_ = false;
  zu_retten_ = false;
  return true;
}

bool Messdatei::Lauf_beginnen() {
  if (Arbeitskopie.empty()) return true;
  unlesbar_ = {};
  // Rows of the run before belong to its file, if the disk takes them now.
  if (!wartend_.empty() && !kopf_fehlt_) Wartende_ablegen();
  kopf_fehlt_ = true;
  return Kopf_ablegen();
}

bool Messdatei::Zeile_anhaengen() {
  if (Arbeitskopie.empty()) return true;
  Messzeile_anhaengen(wartend_, messung_.DiaSpread, Messtabelle::Erste);
  return (!kopf_fehlt_ || Kopf_ablegen()) && Wartende_ablegen();
}

bool Messdatei::Wartende_ablegen() {
  if (ablage_.Dateigroesse(Arbeitskopie) != geschrieben_ && !auf_ganze_Zeilen()) return false;
  if (!ablage_.haenge_an(Arbeitskopie, wartend_, Anhaengen)) return false;
  geschrieben_ += static_cast<std::int64_t>(wartend_.size());
  wartend_.clear();
  return true;
}

/// The working copy is not as this job left it: cuts it back to its last whole row, so that a row
/// can be appended. One that is gone, or without a whole heading, is begun.
bool Messdatei::auf_ganze_Zeilen() {
  const std::string inhalt = ablage_.lies_ganz(Arbeitskopie).value_or("");
  const std::string ganz = Ganzes(inhalt);
  if (ganz.empty()) return Kopf_ablegen();
  geschrieben_ = static_cast<std::int64_t>(ganz.size());
  if (ganz == inhalt && ablage_.Dateigroesse(Arbeitskopie) == geschrieben_) return true;
  if (!ablage_.schreib_ganz(Arbeitskopie, ganz)) {
    geschrieben_ = -1;
    return false;
  }
  ablage_.meldungen().melde("measurement", Arbeitskopie, "cut back to its last whole row");
  return true;
}

bool Messdatei::Arbeitskopie_schreiben() {
  if (Arbeitskopie.empty()) return true;
  unlesbar_ = {};
  // A run without a heading so far has left the rows of the one before in the file.
  if ((zu_retten_ || kopf_fehlt_) && !beiseite_legen()) return false;
  if (!SaveDiaG(Arbeitskopie)) return false;
  wartend_.clear();
  kopf_fehlt_ = false;
  zu_retten_ = false;
  geschrieben_ = -1;
  return true;
}

}  // namespace polarkreis
