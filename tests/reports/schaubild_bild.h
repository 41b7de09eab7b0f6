#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "reports/schaubild_svg.h"
#include "reports/svg_blatt.h"
#include "svg_leser.h"

/// Charts to draw and what their tests read from the pictures.
namespace schaubildtest {

using namespace polarkreis;

/// Even axes from 0 to 10 and 0 to 100. Without titles the plot is 24 to 726 high.
inline Schaubild gerades_Bild() {
  Schaubild bild;
  bild.x = {"x", false, 0, 10};
  bild.y = {"y", false, 0, 100};
  return bild;
}

inline Kurve Linie(Kurvenart art, std::vector<Kurvenpunkt> punkte, std::string legende = "",
                   std::string beschriftung = "") {
  return {art, std::move(legende), std::move(beschriftung), std::move(punkte)};
}

inline SvgLeser gelesen(const Schaubild& bild) {
  return SvgLeser(SVG_Text(bild));
}

/// The places of a polyline or polygon.
inline std::vector<Bildort> Punkte(const SvgElement& element) {
  std::vector<Bildort> orte;
  std::istringstream eingabe(element.wort("points"));
  for (std::string paar; eingabe >> paar;) {
    const std::size_t komma = paar.find(',');
    orte.push_back({Wert(paar.substr(0, komma)), Wert(paar.substr(komma + 1))});
  }
  return orte;
}

inline std::vector<SvgElement> Zuege(const SvgLeser& leser) {
  return leser.alle("polyline", "Kurven");
}

/// A place in the plot by its parts of the frame's width and height, from below.
inline Bildort im_Rahmen(const SvgLeser& leser, double anteil_x, double anteil_y) {
  const SvgElement rahmen = leser.rahmen();
  return {rahmen.zahl("x") + anteil_x * rahmen.zahl("width"),
          rahmen.zahl("y") + (1 - anteil_y) * rahmen.zahl("height")};
}

inline void erwarte_Ort(const Bildort& ort, const Bildort& soll) {
  EXPECT_NEAR(ort.x, soll.x, 0.011);
  EXPECT_NEAR(ort.y, soll.y, 0.011);
}

inline bool enthaelt(const std::vector<std::string>& texte, const std::string& text) {
  return std::ranges::find(texte, text) != texte.end();
}

}  // namespace schaubildtest
