#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "ausgabe.h"
#include "climate/feuchte_luft.h"
#include "climate/jahresgang.h"
#include "climate/klima.h"
#include "climate/wrg.h"
#include "cycle/logp_h.h"
#include "diagnostics/kern.h"
#include "refrigerant/kaeltemittel.h"
#include "refrigerant/sole.h"

namespace polarkreis::cli {

/// All that `calc` keeps from line to line: one of each calculation object, fresh at the start and
/// independent of the working project.
struct Rechenstand {
  Rechenstand(Ablage& dateien, Captions& texte);
  Rechenstand(const Rechenstand&) = delete;
  Rechenstand& operator=(const Rechenstand&) = delete;

  Ablage& ablage;
  Captions& captions;
  Kaeltemittel km;
  Kreis kreis;
  logp_H logph;
  Klima klima;
  JahresGang jahresgang;
  WRG wrg;
  Luftzustand luft;
  Solen solen;
  Messung messung;
  Kanaele kanaele;
  Kern kern;
  bool wrg_geladen = false;   ///< the heat-recovery items have been read
  bool neu_beginnen = false;  ///< asks for a fresh state
};

/// The members of one line by their names. An argument is a number, a text or null; what else
/// stands there is refused before an operation runs.
class Argumente {
 public:
  explicit Argumente(const Json& zeile) : zeile_(zeile) {}

  const Json& zeile() const { return zeile_; }
  /// The member as it stands, or null if it isn't there.
  const Json* roh(std::string_view name) const;
  bool da(std::string_view name) const { return roh(name) != nullptr; }
  double zahl(std::string_view name) const;
  int ganz(std::string_view name) const;
  std::string text(std::string_view name) const;

 private:
  const Json& zeile_;
};

/// A number, a text or null.
bool ist_einfach(const Json& wert);
/// Null and anything that is no number or text are empty; a text goes through `Wert`.
double als_zahl(const Json& wert);
/// The same cut to a whole number; 0 where it is empty.
int als_ganz(const Json& wert);
/// A number as the house writes it; null is the empty text.
std::string als_text(const Json& wert);

/// What an operation answers: a result, or why there is none.
struct Antwort {
  Json wert = nullptr;
  std::string fehler;
};
Antwort misslingt(std::string text);

/// One operation of `calc`.
struct Operation {
  std::string_view name;
  std::string_view noetig;  ///< names of its arguments, blanks between
  std::string_view kann;    ///< names of those that may be left out
  Antwort (*rechne)(Rechenstand&, const Argumente&);
};
/// The operations, by subject.
std::span<const Operation> Grundoperationen();
std::span<const Operation> Stoffoperationen();
std::span<const Operation> Kreisoperationen();
std::span<const Operation> Logphoperationen();
std::span<const Operation> Katalogoperationen();
std::span<const Operation> Klimaoperationen();
std::span<const Operation> Heizoperationen();
std::span<const Operation> Soleoperationen();
std::span<const Operation> Messoperationen();
std::span<const Operation> Monitoroperationen();
std::span<const Operation> Standoperationen();

/// A column of a refrigerant table by its name.
struct Satzspalte {
  std::string_view name;
  double SatZeile::*feld;
};
std::span<const Satzspalte> Satzspalten();

/// All fields of the refrigerant state and the run values, by their names.
Json stand_json(const Rechenstand& stand);

/// Answers line by line, and keeps the state between them.
class Rechner {
 public:
  Rechner(Ablage& ablage, Captions& captions);
  /// The answer to one line, which may hold anything.
  Json antworte(std::string_view zeile);

 private:
  Ablage& ablage_;
  Captions& captions_;
  std::optional<Rechenstand> stand_;
};

}  // namespace polarkreis::cli
