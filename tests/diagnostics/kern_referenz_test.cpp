#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

#include "diagnostics/methode.h"
#include "kern_desk.h"

namespace {

using namespace polarkreis;

std::vector<std::string> zerlegt(const std::string& zeile) {
  std::vector<std::string> teile;
  std::size_t anfang = 0;
  for (std::size_t ende; (ende = zeile.find(';', anfang)) != std::string::npos; anfang = ende + 1)
    teile.push_back(zeile.substr(anfang, ende - anfang));
  teile.push_back(zeile.substr(anfang));
  return teile;
}

KernDesk::Zellen zellen(const std::vector<std::string>& teile) {
  KernDesk::Zellen alle;
  for (std::size_t i = 1; i < teile.size(); ++i) {
    const auto gleich = teile[i].find('=');
    if (gleich != std::string::npos)
      alle.emplace_back(std::stoi(teile[i].substr(0, gleich)), teile[i].substr(gleich + 1));
  }
  return alle;
}

/// Replays the table of reference rows: "case" begins a plant, "in" and "out" are a row's cells
/// before and after, "red" its marks, "end" the scale values and sums of the case.
class Vergleich {
 public:
  void zeile(const std::string& text) {
    const auto teile = zerlegt(text);
    if (teile[0] == "case") anlage(teile);
    if (teile[0] == "in") eingabe(zellen(teile));
    if (teile[0] == "out") ausgabe(zellen(teile));
    if (teile[0] == "red") farben(teile);
    if (teile[0] == "end") ende(teile);
  }
  int zeilen = 0;

 private:
  void anlage(const std::vector<std::string>& t) {
    name_ = t[1] + " code " + t[2] + " method " + t[5];
    nummer_ = 2;
    desk_ = std::make_unique<KernDesk>(t[1]);
    Messung& m = desk_->messung;
    m.Hub_Volumen = Wert(t[4]);
    m.Combo4 = Combo4_Text(std::stoi(t[5]), desk_->captions);
    m.C = Wert(t[6]);
    m.Combo2 = t[7];
    if (!t[8].empty()) m.Q0 = Wert(t[8]);
    m.ECO_OPT = std::stoi(t[9]);
    m.Bauart = std::stoi(t[10]);
    m.Antrieb = std::stoi(t[11]);
    if (t[12] == "1") m.RGCombo = desk_->captions.text(JMapCap::Regelung_Stufen);
    if (t[13] == "1") {
      m.OrbiN_spread(1, Einheitentabelle::Liste) =
          desk_->captions.text(VerbCapt::Verdichter) + " - 1 ph.";
    }
    std::string skalierung = "\"0\"\r\n\"10\"\r\n\"V\"\r\n\"0\"\r\n\"1000\"\r\n\"kg/h\"\r\n";
    for (int i = 6; i < 24; ++i) skalierung += "\"\"\r\n";
    desk_->eingaenge.schreib("FMD_SP_CAL.dat", skalierung + "\"0\"\r\n");
    desk_->kern.beginnen();
    desk_->kern.Funktion.Sensor_Code[1] = std::stoi(t[2]);
    desk_->kern.Funktion.Sensor_Code[2] = std::stoi(t[3]);
  }
  void eingabe(const KernDesk::Zellen& alle) {
    ++nummer_;
    ++zeilen;
    erwartet_ = std::vector<std::string>(Spalte::Angelegt + 1);
    for (const auto& [spalte, text] : alle) erwartet_[static_cast<std::size_t>(spalte)] = text;
    desk_->setze(alle, nummer_);
    desk_->kern.Kern_Zeile(nummer_);
  }
  void ausgabe(const KernDesk::Zellen& alle) {
    for (const auto& [spalte, text] : alle) erwartet_[static_cast<std::size_t>(spalte)] = text;
    for (int spalte = 0; spalte <= Spalte::Angelegt; ++spalte) {
      EXPECT_EQ(desk_->zelle(spalte, nummer_), erwartet_[static_cast<std::size_t>(spalte)])
          << name_ << ", row " << nummer_ << ", column " << spalte;
    }
  }
  void farben(const std::vector<std::string>& t) {
    unsigned bits = 0;
    for (const std::string& farbe : t)
      bits |= farbe == "sh" ? Rot_sh : farbe == "sc" ? Rot_sc : farbe == "eta" ? Rot_eta : 0U;
    EXPECT_EQ(desk_->messung.DiaSpread.rot(nummer_), bits) << name_ << ", row " << nummer_;
  }
  void ende(const std::vector<std::string>& t) {
    const Skala& s = desk_->messung.skala;
    const double werte[] = {s.Q_max,
                            s.EER_max,
                            s.t0_min,
                            s.tc_max,
                            s.t_end_max,
                            s.p_max,
                            s.dp_max,
                            desk_->kern.Summe_Energ,
                            desk_->kern.Sum_zeit_messung};
    for (std::size_t i = 0; i < std::size(werte); ++i)
      EXPECT_NEAR(werte[i], Wert(t[i + 1]), 1e-12 * std::abs(werte[i])) << name_ << ", " << i;
  }

  std::unique_ptr<KernDesk> desk_;
  std::string name_;
  int nummer_ = 2;
  std::vector<std::string> erwartet_;
};

TEST(KernReferenz, EveryCellOfEveryRowIsTheSecondProgramsCell) {
  std::ifstream strom(std::string(POLARKREIS_DATA) + "/../tests/diagnostics/kern_referenz.csv");
  Vergleich vergleich;
  for (std::string zeile; std::getline(strom, zeile);)
    if (!zeile.empty() && zeile[0] != '#') vergleich.zeile(zeile);
  EXPECT_GT(vergleich.zeilen, 150);
}

}  // namespace
