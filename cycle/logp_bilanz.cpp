#include "cycle/logp_bilanz.h"

#include <algorithm>
#include <cmath>

#include "cycle/logp_lauf.h"

namespace polarkreis {
namespace {

constexpr std::string_view kZweite_Stufe = "high stage", kFlashgas = "flash gas compressor";
constexpr double Nahezu = 0.9;    // as well as an ideal gas stands for vapour near saturation
constexpr double Ziffern = 1e-9;  // what the last digits of the numbers leave

void Waerme(const LogpLauf& l, std::vector<Bilanz>& liste) {
  const logp_H::Ergebnis& e = l.e;
  const KMZustand& n = l.nieder;
  const double h_aus = n.h_v0 + l.dT_sh * n.cp_v0;
  const auto energie = [&](std::string_view bauteil, double zu, double ab) {
    liste.push_back({bauteil, Bilanz::Art::Energie, zu, ab});
  };
  energie("evaporator", logp_H::Q0, e.m * (h_aus - e.h_l));
  if (l.f.Innen_WT) {
    const bool Tank = l.gestuft && !l.Economiser;
    energie("internal heat exchanger", (Tank ? e.m_hoch : e.m) * l.dT_liquid * l.haupt.cp_l,
            e.m * (e.t_s - l.t_s_ohne) * n.cp_v0);
  }
  if (l.Economiser) {
    const double h_ein = l.h_lc - l.dT_sc * l.haupt.cp_l;
    energie("economiser", e.m * l.u * l.haupt.cp_l, e.m_zu * (l.Dampf.h - h_ein));
  } else if (l.gestuft) {
    energie("flash tank", e.m_hoch * e.h_liq, e.m * e.h_l + e.m_zu * l.Dampf.h);
  }
  energie("whole plant", logp_H::Q0 + e.Q_SL + e.P, e.Qc);
}

void Arbeit(const LogpLauf& l, std::vector<Bilanz>& liste) {
  const logp_H::Ergebnis& e = l.e;
  const auto verdichter = [&](std::string_view bauteil, double P, double m, double h_ein,
                              double h_aus) {
    const bool zweiter = bauteil == kZweite_Stufe || bauteil == kFlashgas;
    liste.push_back({bauteil, Bilanz::Art::Energie, P, m * (h_aus - h_ein)});
    liste.push_back({bauteil, Bilanz::Art::Arbeit, P, zweiter ? e.P_ideal_2 : e.P_ideal_1});
  };
  switch (e.Art) {
    case Schaltung::einstufig:
    case Schaltung::Einspritzung:
      verdichter("compressor", e.P_1, e.m_Modell, l.Saug.h, l.Ende1.h);
      break;
    case Schaltung::Flashgas_Saug:
      verdichter("compressor", e.P_1, e.m_hoch, l.Saug.h, l.Ende1.h);
      break;
    case Schaltung::zweistufig:
      verdichter("low stage", e.P_1, e.m, l.Saug.h, l.Ende1.h);
      liste.push_back({"mixing", Bilanz::Art::Energie, e.m * l.Ende1.h + e.m_zu * l.Dampf.h,
                       e.m_hoch * l.Mischung.h});
      verdichter(kZweite_Stufe, e.P_2, e.m_hoch, l.Mischung.h, l.Ende2.h);
      break;
    case Schaltung::Flashgas_eigen:
      verdichter("main compressor", e.P_1, e.m, l.Saug.h, l.Ende1.h);
      if (e.m_zu > 0) verdichter(kFlashgas, e.P_2, e.m_zu, l.Mischung.h, l.Ende2.h);
  }
}

}  // namespace

bool Bilanz::schliesst() const {
  if (Groesse == Art::Arbeit) return zu >= Nahezu * ab;
  return std::abs(Rest()) <= Ziffern * std::max(std::abs(zu), std::abs(ab));
}

std::vector<Bilanz> Bilanzen_von(const LogpLauf& lauf) {
  std::vector<Bilanz> liste;
  Waerme(lauf, liste);
  Arbeit(lauf, liste);
  const logp_H::Ergebnis& e = lauf.e;
  liste.push_back({"evaporator, by the mass flow model", Bilanz::Art::Masse, e.m_Modell, e.m});
  if (lauf.gestuft) liste.push_back({"condenser", Bilanz::Art::Masse, e.m + e.m_zu, e.m_hoch});
  return liste;
}

}  // namespace polarkreis
