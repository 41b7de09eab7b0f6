#include "cycle/logp_punkte.h"

#include <algorithm>
#include <cmath>

#include "cycle/logp_lauf.h"

namespace polarkreis {
namespace {

constexpr double nullpunkt = LogpLauf::nullpunkt;

using Ort = LogpLauf::Ort;

/// Collects the points of a cycle in the order of its circuit.
class Sammler {
 public:
  explicit Sammler(const LogpLauf& lauf)
      : l_(lauf), e_(lauf.e), unten_(bei(e_.p0, l_.f.t0F)), oben_(bei(e_.pc, l_.f.tcF)) {}

  Zustandspunkte sammle() {
    verdichtung();
    verfluessigung();
    fluessigkeit();
    verdampfung();
    hauptweg_.push_back(hauptweg_.front());
    s_.Wege.insert(s_.Wege.begin(), hauptweg_);
    return std::move(s_);
  }

 private:
  std::size_t neu(const Zustandspunkt& punkt) {
    s_.Punkte.push_back(punkt);
    return s_.Punkte.size() - 1;
  }
  std::size_t haupt(const Zustandspunkt& punkt) {
    hauptweg_.push_back(neu(punkt));
    return hauptweg_.back();
  }
  Zustandspunkt gas(std::string_view name, double p, const Ort& ort, Druckstufe stufe) const {
    const bool ueber = e_.transkritisch && stufe == Druckstufe::Hochdruck;
    return {name, p, ort.t, ort.h, ort.rho, stufe, ueber ? Lage::ueberkritisch : Lage::ueberhitzt};
  }
  // A pure fluid has one temperature there, the one that was given; not so a measured pressure.
  Saettigung bei(double p, double t) const {
    Saettigung s = Saettigung_bei(l_.km, p);
    if (!l_.Gemisch && !l_.gemessen) s.t_b = s.t_d = t;
    return s;
  }
  // Between the two lines; colder than the bubble line as liquid.
  Zustandspunkt gedrosselt(std::string_view name, double h) const {
    const Saettigung& s = l_.Mitte;
    const double x = (h - s.h_l) / (s.h_v - s.h_l);
    const bool fluessig = x < 0;
    return {name,
            e_.p_m,
            fluessig ? l_.T_liq() - nullpunkt : s.t_b + x * (s.t_d - s.t_b),
            h,
            leer,
            Druckstufe::Mitteldruck,
            fluessig ? Lage::unterkuehlt : Lage::nass};
  }

  void verdichtung();
  void zwei_Stufen();
  void einspritzung();
  void verfluessigung();
  void fluessigkeit();
  Zustandspunkt vor_Ventil(Zustandspunkt punkt) const;
  void zwischenstufe(std::size_t von);
  void Flashgas(std::size_t Tank);
  void verdampfung();

  const LogpLauf& l_;
  const logp_H::Ergebnis& e_;
  const Saettigung unten_, oben_;
  Zustandspunkte s_;
  std::vector<std::size_t> hauptweg_;
  std::size_t Einlass_Hoch_ = 0;  // where vapour joins between the stages
  std::size_t Einlass_Saug_ = 0;  // where flash gas joins the suction line
  std::size_t Einlass_Gaskuehler_ = 0;
};

void Sammler::verdichtung() {
  Einlass_Saug_ = haupt(gas("compressor inlet", e_.p_s, l_.Saug, Druckstufe::Niederdruck));
  if (e_.Art == Schaltung::zweistufig) zwei_Stufen();
  if (e_.Art == Schaltung::Einspritzung) einspritzung();
  const Ort& Ende = e_.Art == Schaltung::zweistufig ? l_.Ende2 : l_.Ende1;
  haupt(gas("compressor outlet", e_.p_d, Ende, Druckstufe::Hochdruck));
  const Ort Eintritt{e_.t_d, e_.h_d, leer};
  const bool gemischt = e_.Art == Schaltung::Flashgas_eigen && e_.m_zu > 0;
  if (gemischt || e_.p_d > e_.pc)
    haupt(gas(e_.transkritisch ? "gas cooler inlet" : "condenser inlet", e_.pc, Eintritt,
              Druckstufe::Hochdruck));
  Einlass_Gaskuehler_ = hauptweg_.back();
}

void Sammler::zwei_Stufen() {
  haupt(gas("low stage outlet", e_.p_m, l_.Ende1, Druckstufe::Mitteldruck));
  Einlass_Hoch_ = haupt(gas("high stage inlet", e_.p_m, l_.Mischung, Druckstufe::Mitteldruck));
}

/// Where the compression passes the intermediate pressure on the diagram's straight line.
void Sammler::einspritzung() {
  const double anteil = std::log(e_.p_m / e_.p_s) / std::log(e_.p_d / e_.p_s);
  const double h = l_.Saug.h + anteil * (l_.Ende1.h - l_.Saug.h);
  Einlass_Hoch_ = haupt(gas("vapour injection", e_.p_m, {leer, h, leer}, Druckstufe::Mitteldruck));
}

void Sammler::verfluessigung() {
  const KMZustand& z = l_.haupt;
  constexpr Druckstufe hoch = Druckstufe::Hochdruck;
  if (e_.transkritisch) {
    haupt({"gas cooler outlet", e_.pc, z.Tc - nullpunkt, l_.h_lc, z.rho_lc, hoch,
           Lage::ueberkritisch});
    return;
  }
  haupt({"condensation begins", e_.pc, oben_.t_d, oben_.h_v, oben_.rho_v, hoch, Lage::Taulinie});
  haupt({"condensation ends", e_.pc, oben_.t_b, l_.h_lc, oben_.rho_l, hoch, Lage::Siedelinie});
  if (l_.dT_sc > 0)
    haupt({"condenser outlet", e_.pc, oben_.t_b - l_.dT_sc, l_.h_lc - l_.dT_sc * z.cp_l, leer, hoch,
           Lage::unterkuehlt});
}

void Sammler::fluessigkeit() {
  const KMZustand& z = l_.haupt;
  Zustandspunkt punkt = s_.Punkte[hauptweg_.back()];
  punkt.rho = leer;
  if (punkt.Ort == Lage::Siedelinie) punkt.Ort = Lage::unterkuehlt;
  const std::size_t Abzweig = hauptweg_.back();
  const auto kuehle = [&](std::string_view name, double dT) {
    punkt.Name = name;
    punkt.t -= dT;
    punkt.h -= dT * z.cp_l;
    haupt(punkt);
  };
  if (l_.Economiser) kuehle("economiser outlet", l_.u);
  if (l_.dT_liquid != 0) kuehle("internal heat exchanger outlet", l_.dT_liquid);
  if (l_.f.dp_Fl > 0) {
    punkt.Name = "expansion valve inlet";
    punkt.p -= l_.f.dp_Fl / 1000;
    haupt(vor_Ventil(punkt));
  }
  if (l_.gestuft) zwischenstufe(Abzweig);
}

/// Too great a loss of the liquid line makes vapour in front of the valve.
Zustandspunkt Sammler::vor_Ventil(Zustandspunkt punkt) const {
  if (e_.transkritisch) return punkt;
  const Saettigung s = Saettigung_bei(l_.km, punkt.p);
  const double x = (punkt.h - s.h_l) / (s.h_v - s.h_l);
  if (x <= 0) return punkt;
  punkt.Ort = Lage::nass;
  punkt.t = s.t_b + x * (s.t_d - s.t_b);
  return punkt;
}

/// Economiser: a part of the liquid is throttled and evaporates against the rest. Tank: all of it
/// is throttled, and only the liquid goes on.
void Sammler::zwischenstufe(std::size_t von) {
  constexpr Druckstufe mittel = Druckstufe::Mitteldruck;
  const Zustandspunkt Dampf{l_.Economiser ? "economiser vapour" : "tank vapour",
                            e_.p_m,
                            l_.Dampf.t,
                            l_.Dampf.h,
                            l_.Dampf.rho,
                            mittel,
                            l_.Dampf.t > l_.Mitte.t_d ? Lage::ueberhitzt : Lage::Taulinie};
  if (l_.Economiser) {
    const std::size_t nass = neu(gedrosselt("economiser valve outlet", s_.Punkte[von].h));
    s_.Wege.push_back({von, nass, neu(Dampf), Einlass_Hoch_});
    return;
  }
  const std::size_t Tank = haupt(gedrosselt("tank inlet", e_.h_liq));
  if (e_.m_zu > 0) {
    haupt({"tank liquid", e_.p_m, l_.Mitte.t_b, e_.h_l, l_.Mitte.rho_l, mittel, Lage::Siedelinie});
    neu(Dampf);
    Flashgas(Tank);
  }
}

void Sammler::Flashgas(std::size_t Tank) {
  const std::size_t Dampf = s_.Punkte.size() - 1;
  if (e_.Art == Schaltung::zweistufig) {
    s_.Wege.push_back({Tank, Dampf, Einlass_Hoch_});
  } else if (e_.Art == Schaltung::Flashgas_Saug) {
    const Saettigung s = Saettigung_bei(l_.km, e_.p_s);
    const double t = s.t_d + (l_.Dampf.h - s.h_v) / l_.nieder.cp_v0;
    const bool feucht = l_.Dampf.h < s.h_v;
    const std::size_t gedrosselt =
        neu({"flash gas throttled", e_.p_s, feucht ? s.t_d : t, l_.Dampf.h, leer,
             Druckstufe::Niederdruck, feucht ? Lage::nass : Lage::ueberhitzt});
    s_.Wege.push_back({Tank, Dampf, gedrosselt, Einlass_Saug_});
  } else {
    const std::size_t ein =
        neu(gas("flash gas compressor inlet", e_.p_m, l_.Mischung, Druckstufe::Mitteldruck));
    const std::size_t aus =
        neu(gas("flash gas compressor outlet", e_.p_d, l_.Ende2, Druckstufe::Hochdruck));
    s_.Wege.push_back({Tank, Dampf, ein, aus, Einlass_Gaskuehler_});
  }
}

void Sammler::verdampfung() {
  const KMZustand& n = l_.nieder;
  constexpr Druckstufe nieder = Druckstufe::Niederdruck;
  const double x = (e_.h_l - n.h_l0) / (n.h_v0 - n.h_l0);
  haupt({"evaporator inlet", e_.p0, unten_.t_b + x * (unten_.t_d - unten_.t_b), e_.h_l, leer,
         nieder, Lage::nass});
  haupt({"evaporation ends", e_.p0, unten_.t_d, n.h_v0, n.rho_v0, nieder, Lage::Taulinie});
  const Ort Austritt{l_.f.t0F + l_.dT_sh, n.h_v0 + l_.dT_sh * n.cp_v0, leer};
  if (l_.dT_sh > 0) haupt(gas("evaporator outlet", e_.p0, Austritt, nieder));
  const Ort vor_Mischung{e_.t_s, n.h_v0 + (e_.t_s - l_.f.t0F) * n.cp_v0, leer};
  if (e_.Art == Schaltung::Flashgas_Saug && e_.m_zu > 0)
    haupt(gas("suction line outlet", e_.p_s, vor_Mischung, nieder));
}

}  // namespace

const Zustandspunkt* Zustandspunkte::finde(std::string_view name) const {
  const auto punkt = std::ranges::find(Punkte, name, &Zustandspunkt::Name);
  return punkt == Punkte.end() ? nullptr : &*punkt;
}

std::string_view Name_von(Druckstufe stufe) {
  switch (stufe) {
    case Druckstufe::Niederdruck:
      return "low";
    case Druckstufe::Mitteldruck:
      return "intermediate";
    default:
      return "high";
  }
}

std::string_view Name_von(Lage ort) {
  switch (ort) {
    case Lage::unterkuehlt:
      return "subcooled liquid";
    case Lage::Siedelinie:
      return "bubble line";
    case Lage::nass:
      return "wet vapour";
    case Lage::Taulinie:
      return "dew line";
    case Lage::ueberhitzt:
      return "superheated vapour";
    default:
      return "supercritical";
  }
}

Zustandspunkte Punkte_von(const LogpLauf& lauf) {
  return Sammler(lauf).sammle();
}

}  // namespace polarkreis
