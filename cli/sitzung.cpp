#include "sitzung.h"

#include <cstdio>
#include <filesystem>

#include "konsole.h"
#include "platform/ordner.h"

namespace polarkreis::cli {

namespace {

bool ist_ordner(const std::string& pfad) {
  std::error_code fehler;
  return std::filesystem::is_directory(pfad, fehler);
}

std::string ohne_trenner(std::string ordner) {
  while (ordner.size() > 1 && (ordner.back() == '/' || ordner.back() == '\\')) ordner.pop_back();
  return ordner;
}

// The folder that is stored leads to another one only while that is there, and only once.
void gespeichertem_folgen(Programm& p) {
  const std::string zuletzt = ohne_trenner(p.einstellungen[Einstellungen::Datenordner]);
  if (zuletzt == p.ablage.Datenordner || !ist_ordner(zuletzt)) return;
  p.ablage.Datenordner = zuletzt;
  p.einstellungen.Parameter_Lesen();
}

}  // namespace

struct Sitzung::Innen {
  std::string programmpfad;
  Konsolendialog dialog;
  std::unique_ptr<Programm> programm;

  std::unique_ptr<Programm> starten(const Optionen& optionen);
};

Sitzung::Sitzung(std::string programmpfad) : innen_(std::make_unique<Innen>()) {
  innen_->programmpfad = std::move(programmpfad);
}

Sitzung::~Sitzung() = default;

Programm& Sitzung::programm() {
  if (!innen_->programm) innen_->programm = innen_->starten(optionen);
  return *innen_->programm;
}

void Sitzung::fehler(std::string_view text, int status_neu) {
  melde(text);
  status = status_neu;
}

// The working project stays in its language here: a command translates what it reads in memory, and
// only an explicit save writes.
std::unique_ptr<Programm> Sitzung::Innen::starten(const Optionen& optionen) {
  const bool gegeben = !optionen.data.empty();
  if (gegeben && !ist_ordner(optionen.data))
    throw Abbruch("The data folder \"" + optionen.data +
                  "\" is not there. Give the path of an existing folder.");
  const std::string ordner = ohne_trenner(gegeben ? optionen.data : Datenordner_Finden(0));
  auto p = std::make_unique<Programm>(ordner, dialog);
  if (optionen.verbose)
    p->meldungen.setze_hoerer(
        [](const std::string& zeile) { std::fputs((zeile + "\n").c_str(), stderr); });
  p->einstellungen.Parameter_Lesen();
  if (!gegeben && p->einstellungen.erster_Start)
    Datenordner_Fuellen(Lieferordner(programmpfad), ordner);
  if (!gegeben) gespeichertem_folgen(*p);
  if (!ist_ordner(p->ablage.Datenordner))
    throw Abbruch("The data folder \"" + p->ablage.Datenordner +
                  "\" can't be made. Give another one with --data.");
  p->meldungen.setze_ordner(p->ablage.Datenordner);
  p->captions.Sprache =
      optionen.language.empty() ? p->einstellungen[Einstellungen::Sprache] : optionen.language;
  p->captions.Captions_Laden();
  if (!optionen.language.empty() && !p->ablage.vorhanden("Caption." + optionen.language))
    throw Abbruch("The data folder has no texts in the language \"" + optionen.language +
                  "\" (Caption." + optionen.language + " and its companions). Choose another one.");
  return p;
}

}  // namespace polarkreis::cli
