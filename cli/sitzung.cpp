#include "sitzung.h"

#include "konsole.h"
#include "platform/ordner.h"
#include "shell/start/start.h"

namespace polarkreis::cli {

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
  auto p = std::make_unique<Programm>("", dialog);
  if (optionen.verbose) p->meldungen.setze_hoerer([](const std::string& zeile) { melde(zeile); });
  Startangaben angaben;
  angaben.datenordner = optionen.data;
  if (optionen.data.empty()) angaben.gefundener_ordner = Datenordner_Finden(0);
  angaben.fuellen = [this](const std::string& ordner) {
    return Datenordner_Fuellen(Lieferordner(programmpfad), ordner).misslungen == 0;
  };
  if (const std::string fehler = Datenordner_festlegen(*p, angaben); !fehler.empty())
    throw Abbruch(fehler + " The folder was \"" + p->ablage.Datenordner +
                  "\"; --data gives another one.");
  p->laden(optionen.language);
  if (!optionen.language.empty() && !p->ablage.vorhanden("Caption." + optionen.language))
    throw Abbruch("The data folder has no texts in the language \"" + optionen.language +
                  "\" (Caption." + optionen.language + " and its companions). Choose another one.");
  return p;
}

}  // namespace polarkreis::cli
