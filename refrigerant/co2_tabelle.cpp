#include "refrigerant/co2_tabelle.h"

#include <algorithm>

#include "refrigerant/zahlenzeile.h"

namespace polarkreis {
namespace {

using Zeilen = std::vector<CO2Zeile>;

std::vector<CO2Block> bloecke_bilden(const Zeilen& zeilen) {
  std::vector<CO2Block> bloecke;
  for (std::size_t i = 0; i < zeilen.size(); ++i) {
    if (bloecke.empty() || bloecke.back().p != zeilen[i].p) bloecke.push_back({zeilen[i].p, i, i});
    bloecke.back().ende = i + 1;
  }
  return bloecke;
}

// True if the column never falls within a block.
bool steigt(const CO2Daten& daten, double CO2Zeile::*spalte) {
  return std::all_of(daten.bloecke.begin(), daten.bloecke.end(), [&](const CO2Block& block) {
    const auto anfang = daten.zeilen.begin();
    return std::is_sorted(
        anfang + static_cast<std::ptrdiff_t>(block.anfang),
        anfang + static_cast<std::ptrdiff_t>(block.ende),
        [spalte](const CO2Zeile& a, const CO2Zeile& b) { return a.*spalte < b.*spalte; });
  });
}

// First row of a block, rising in temperature, for which `erreicht` holds; the block's end if none.
template <class Test>
const CO2Zeile* erste_im_block(const Zeilen& zeilen, const CO2Block& block, Test&& erreicht) {
  return std::partition_point(zeilen.data() + block.anfang, zeilen.data() + block.ende,
                              [&](const CO2Zeile& zeile) { return !erreicht(zeile); });
}

const CO2Zeile* erste_im_durchgang(const Zeilen& zeilen, double t, double p) {
  for (const CO2Zeile& zeile : zeilen)
    if (zeile.p >= p && zeile.t >= t) return &zeile;
  return nullptr;
}

std::optional<CO2Daten::Abstieg> abstieg_im_durchgang(const Zeilen& zeilen, double t, double h_lc) {
  double h_prev = 0;
  for (const CO2Zeile& zeile : zeilen) {
    if (!(zeile.t + 1 >= t)) continue;
    if (zeile.h <= h_lc) return CO2Daten::Abstieg{zeile.h, h_prev};
    h_prev = zeile.h;
  }
  return std::nullopt;
}

}  // namespace

const CO2Zeile* CO2Daten::erste(double t, double p) const {
  if (!geordnet) return erste_im_durchgang(zeilen, t, p);
  const auto reicht_nicht = [p](const CO2Block& block) { return !(block.p >= p); };
  auto block = std::partition_point(bloecke.begin(), bloecke.end(), reicht_nicht);
  for (; block != bloecke.end(); ++block) {
    const CO2Zeile* zeile =
        erste_im_block(zeilen, *block, [t](const CO2Zeile& z) { return z.t >= t; });
    if (zeile != zeilen.data() + block->ende) return zeile;
  }
  return nullptr;
}

std::optional<CO2Daten::Abstieg> CO2Daten::abstieg(double t, double h_lc) const {
  if (!h_geordnet) return abstieg_im_durchgang(zeilen, t, h_lc);
  double h_prev = 0;
  for (const CO2Block& block : bloecke) {
    const CO2Zeile* zeile =
        erste_im_block(zeilen, block, [t](const CO2Zeile& z) { return z.t + 1 >= t; });
    const CO2Zeile* ende = zeilen.data() + block.ende;
    if (zeile == ende) continue;
    // The first row considered has the block's least enthalpy: if it is too high, so are all.
    if (zeile->h <= h_lc) return Abstieg{zeile->h, h_prev};
    h_prev = (ende - 1)->h;
  }
  return std::nullopt;
}

CO2Daten co2_daten_lesen(std::optional<std::string>&& text) {
  CO2Daten daten;
  if (!text) return daten;
  ItemLeser leser(*text);
  double w[6] = {};
  for (;;) {
    const Zeilenstand stand = zahlen_lesen(leser, w);
    if (stand == Zeilenstand::bruch) daten.bruch = static_cast<int>(daten.zeilen.size()) + 1;
    if (stand != Zeilenstand::voll || w[0] == 0 || w[1] == 0 || w[2] == 0) break;
    daten.zeilen.push_back({w[0], w[1], w[2], w[3], w[4], w[5]});
  }
  daten.bloecke = bloecke_bilden(daten.zeilen);
  const bool t_steigt = steigt(daten, &CO2Zeile::t);
  const bool p_steigt =
      std::is_sorted(daten.bloecke.begin(), daten.bloecke.end(),
                     [](const CO2Block& a, const CO2Block& b) { return a.p < b.p; });
  daten.geordnet = t_steigt && p_steigt;
  daten.h_geordnet = t_steigt && steigt(daten, &CO2Zeile::h);
  return daten;
}

}  // namespace polarkreis
