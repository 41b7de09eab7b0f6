#include "simulation/anlage.h"

#include <algorithm>
#include <cmath>

#include "shell/text.h"
#include "simulation/auswahltexte.h"

namespace polarkreis {

Regelart Regelart_von(const Captions& captions, std::string_view text) {
  if (benennt(captions.text(JMapCap::Regelung_Drehzahl), text)) return Regelart::Drehzahl;
  if (benennt(captions.text(JMapCap::Regelung_ohne), text)) return Regelart::ohne;
  if (benennt(captions.text(JMapCap::Regelung_Stufen), text)) return Regelart::Stufen;
  if (benennt(captions.text(JMapCap::Regelung_zwei_Drehzahlen), text)) {
    return Regelart::zwei_Drehzahlen;
  }
  if (benennt(captions.text(JMapCap::Regelung_stetig), text)) return Regelart::stetig;
  return Regelart::keine;
}

namespace {

double Anlagenfaktor_von(const Captions& captions, std::string_view art) {
  const std::string zweistufig =
      captions.text(Caption::Zweistufig) + std::string(kAnlagenart_Trenner);
  if (gleich(art, zweistufig + captions.text(Caption::Zwischenkuehler))) return 0.8;
  if (gleich(art, zweistufig + captions.text(Caption::Einspritzung))) return 0.88;
  return 1;
}

double Bauformfaktor_von(int antrieb) {
  if (antrieb == 1) return 0.95;
  if (antrieb == 3) return 1.06;
  return 1;
}

double Typfaktor_von(int bauart) {
  switch (bauart) {
    case 2:
      return 0.97;
    case 3:
      return 0.99;
    case 4:
      return 0.96;
    default:
      return 1.01;
  }
}

double Mittelfaktor_von(std::string_view kaeltemittel) {
  if (ist_Kohlenwasserstoff(kaeltemittel)) return 0.9;
  if (ist_Ammoniak(kaeltemittel)) return 0.93;
  return 1;
}

void Zahlen_uebernehmen(const Projektdaten& p, Anlage& a) {
  a.Q0 = Wert(p.Q0);
  a.t0 = Wert(p.t0);
  a.Tc = Wert(p.Tc);
  a.P_gasK = Wert(p.P_gasK);
  a.dt_Verd = Wert(p.DT_v_combo);
  a.dtVerfl = Wert(p.dtVerfl);
  a.Lueftcap = Wert(p.Lueftcap);
  a.PumpCap = Wert(p.PumpCap);
  a.LueftcapVerDa = Wert(p.LueftcapVerDa);
  a.Pel_freeCool = Wert(p.Pel_freeCool);
  a.dt_freeC = Wert(p.dt_freeC);
  a.T_heat = Wert(p.T_heat);
  a.Q_heat = Wert(p.Q_heat);
  a.T_enth = Wert(p.T_enth);
  a.M_enth = Wert(p.M_enth);
  a.Lamellenabstand = Wert(p.Lamm_AB_combo);
  a.t_K_wasser = Wert(p.t_K_wasser);
  if (a.t_K_wasser == 0) a.t_K_wasser = 28;
}

void Auswahlen_uebernehmen(const Projektdaten& p, Anlage& a) {
  const Captions& captions = p.captions;
  a.Kaelteraum = ist_Kaelteraum(captions, p.AnwendBereich);
  a.Abtauart = p.KaltGAbt ? 2 : p.HeißGAbt ? 1 : 0;
  a.RGart = Regelart_von(captions, p.RGart);
  a.RGartL = Regelart_von(captions, p.RGartL);
  a.RGartP = Regelart_von(captions, p.RGartP);
  const bool thermostatisch = benennt(captions.text(JMapCap::Ventil_thermostatisch), p.Combo1);
  a.Ventil = thermostatisch ? Ventilart::thermostatisch : Ventilart::anderes;
  a.Verfluessiger = Verfluessigerart_von(captions, p.Vfl_typ);
  a.Bauart = Nummer_in(captions, Verdichtertypen(), p.verdichter_typ);
  a.Antrieb = Nummer_in(captions, Bauformen(), p.Verdichterbauart);
  a.Winter_frei = benennt(captions.text(PedCap::Ohne), p.WinterRGart);
  a.tc_min = Wert(erste_zeichen(p.WinterRGart, 2));
}

}  // namespace

Anlage Anlage_von(const Projektdaten& projekt) {
  Anlage a;
  a.Kaeltemittel = projekt.KaelteM;
  a.CO2 = ist_CO2(projekt.KaelteM);
  a.ableitung = projekt.ableitung;
  if (a.ableitung.f_F == 0) a.ableitung.f_F = 1;
  Zahlen_uebernehmen(projekt, a);
  Auswahlen_uebernehmen(projekt, a);
  a.transkritisch = a.CO2 && a.Tc > 31;
  a.Anlagenfaktor = Anlagenfaktor_von(projekt.captions, projekt.Anlagenart_Combo);
  a.Bauformfaktor = Bauformfaktor_von(a.Antrieb);
  a.Typfaktor = Typfaktor_von(a.Bauart);
  a.Mittelfaktor = Mittelfaktor_von(projekt.KaelteM);
  a.WaterCheck = Wert(projekt.WaterCheck) == 1;
  a.HeizCheck = projekt.HeizCheck;
  a.FreeC_Check = projekt.FreeC_Check;
  a.ParaL_Check = projekt.ParaL_Check;
  a.Check3D1 = projekt.Check3D1;
  a.Gleitopt = projekt.Gleitopt;
  a.ECO_OPT = projekt.ECO_OPT;
  a.tmin_gemerkt = projekt.tmin_gemerkt;
  return a;
}

namespace {

double dT_Verdampfer(const Anlage& a, double last_prozent, double dt, double t0) {
  if (a.Gleitopt) {
    double gleitend = std::max(dt * (last_prozent / 100) * 1.04, 4.5);
    if (t0 < -15) gleitend = std::max(gleitend, 6.5);
    return gleitend;
  }
  switch (a.RGart) {
    case Regelart::Drehzahl:
      return dt * 1.05;
    case Regelart::ohne:
      return dt * 1.09;
    case Regelart::Stufen:
      return dt * 0.98;
    case Regelart::zwei_Drehzahlen:
      return dt * 1.02;
    case Regelart::stetig:
      return dt * 1.04;
    default:
      return dt * 1.08;
  }
}

double dT_Verfluessiger(const Anlage& a, double last_prozent, double dt) {
  switch (a.RGart) {
    case Regelart::Drehzahl:
      return dt * last_prozent / 100;
    case Regelart::Stufen:
      return dt * last_prozent / 100 * 1.04;
    case Regelart::zwei_Drehzahlen:
      return dt * last_prozent / 100 * 1.05;
    case Regelart::stetig:
      return dt * last_prozent / 100 * 1;
    default:
      return dt;
  }
}

double Winterfaktor(Regelart art) {
  switch (art) {
    case Regelart::Drehzahl:
      return 0.3;
    case Regelart::Stufen:
      return 1.15;
    case Regelart::zwei_Drehzahlen:
    case Regelart::stetig:
      return 1.2;
    default:
      return 1;
  }
}

}  // namespace

double dT_Last(const Anlage& anlage, double last_prozent, double dt_auslegung, int modus,
               double t0) {
  const double last = ist_leer(last_prozent) ? 0 : last_prozent;
  return modus == 1 ? dT_Verdampfer(anlage, last, dt_auslegung, t0)
                    : dT_Verfluessiger(anlage, last, dt_auslegung);
}

double t0_wirksam(const Anlage& a, double last_prozent) {
  return a.t0 + a.dt_Verd - dT_Last(a, last_prozent, a.dt_Verd, 1, a.t0);
}

double Winter_dT(const Anlage& anlage, double tc) {
  const double t_min = anlage.Winter_frei ? anlage.tmin_gemerkt : anlage.tc_min;
  if (!(tc > t_min)) return 0;
  const double dt = anlage.Kaelteraum ? std::pow((tc + 2) - t_min, 0.833) : (tc - t_min) / 4;
  return dt * Winterfaktor(anlage.RGart);
}

}  // namespace polarkreis
