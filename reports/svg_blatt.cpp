#include "reports/svg_blatt.h"

#include <cmath>

#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::string_view Auslassung = "…";

std::size_t Folgenlaenge(char kopf) {
  const auto byte = static_cast<unsigned char>(kopf);
  if (byte < 0x80) return 1;
  if (byte < 0xE0) return 2;
  return byte < 0xF0 ? 3 : 4;
}

/// The character at the beginning of a UTF-8 text, as its bytes.
std::string_view erstes_Zeichen(std::string_view text) {
  return text.substr(0, Folgenlaenge(text.front()));
}

char32_t Zeichencode(std::string_view zeichen) {
  char32_t code = static_cast<unsigned char>(zeichen.front());
  if (zeichen.size() > 1) code &= 0x7FU >> zeichen.size();
  for (const char c : zeichen.substr(1))
    code = (code << 6) | (static_cast<unsigned char>(c) & 0x3F);
  return code;
}

bool ist_darstellbar(char32_t code) {
  if (code < 0x20 || (code >= 0x7F && code < 0xA0)) return false;
  return code != 0xFFFE && code != 0xFFFF;
}

bool ist_eines_von(std::string_view zeichen, std::string_view vorrat) {
  return vorrat.find(zeichen) != std::string_view::npos;
}

/// Width of a character in parts of the font's size.
double Zeichenbreite(std::string_view zeichen) {
  if (zeichen.size() == 1) {
    if (ist_eines_von(zeichen, " iIjl.,:;'|!")) return 0.32;
    if (ist_eines_von(zeichen, "ftr()[]/-\\\"")) return 0.4;
    if (ist_eines_von(zeichen, "mwMW@%=+<>~&#")) return 0.92;
    return zeichen.front() >= 'A' && zeichen.front() <= 'Z' ? 0.71 : 0.63;
  }
  const char32_t code = Zeichencode(zeichen);
  if (code == 0xB0) return 0.5;                 // degree sign
  if (code >= 0x300 && code < 0x370) return 0;  // accents that stand above another letter
  return code < 0x2E80 ? 0.68 : 1.05;           // from there on mostly square characters
}

void anhaengen(std::string& ziel, double mass) {
  Zahl_anhaengen(ziel, std::round(mass * 100) / 100);
}

std::string_view Anschlagwort(Anschlag anschlag) {
  if (anschlag == Anschlag::Mitte) return "middle";
  return anschlag == Anschlag::Ende ? "end" : "start";
}

}  // namespace

std::string saubere_Zeile(std::string text) {
  const std::string roh = als_utf8(std::move(text));
  std::string zeile;
  for (std::string_view rest = roh; !rest.empty();) {
    const std::string_view zeichen = erstes_Zeichen(rest);
    if (ist_eines_von(zeichen, "\t\r\n")) zeile += ' ';
    if (ist_darstellbar(Zeichencode(zeichen))) zeile += zeichen;
    rest.remove_prefix(zeichen.size());
  }
  return zeile;
}

std::string XML_Text(std::string_view text) {
  std::string xml;
  for (const char c : text) {
    if (c == '&')
      xml += "&amp;";
    else if (c == '<')
      xml += "&lt;";
    else if (c == '>')
      xml += "&gt;";
    else if (c == '"')
      xml += "&quot;";
    else
      xml += c;
  }
  return xml;
}

std::string Mass_Text(double mass) {
  std::string text;
  anhaengen(text, mass);
  return text;
}

double Textbreite(std::string_view text, double groesse, bool fett) {
  double breite = 0;
  while (!text.empty()) {
    const std::string_view zeichen = erstes_Zeichen(text);
    breite += Zeichenbreite(zeichen);
    text.remove_prefix(zeichen.size());
  }
  return breite * groesse * (fett ? 1.1 : 1);
}

std::string gekuerzt(std::string_view text, double breite, double groesse, bool fett) {
  if (Textbreite(text, groesse, fett) <= breite) return std::string(text);
  breite -= Textbreite(Auslassung, groesse, fett);
  std::string anfang;
  while (!text.empty()) {
    const std::string_view zeichen = erstes_Zeichen(text);
    breite -= Textbreite(zeichen, groesse, fett);
    if (breite < 0) break;
    anfang += zeichen;
    text.remove_prefix(zeichen.size());
  }
  return std::string(rechts_getrimmt(anfang)).append(Auslassung);
}

std::vector<std::string> umbrochen(std::string_view text, double breite, double groesse) {
  std::vector<std::string> zeilen;
  std::string zeile;
  for (text = getrimmt(text); !text.empty(); text = links_getrimmt(text)) {
    const std::string_view wort = text.substr(0, text.find(' '));
    text.remove_prefix(wort.size());
    const std::string laenger = zeile.empty() ? std::string(wort) : zeile + ' ' + std::string(wort);
    if (zeile.empty() || Textbreite(laenger, groesse) <= breite) {
      zeile = laenger;
    } else {
      zeilen.push_back(gekuerzt(zeile, breite, groesse));
      zeile = wort;
    }
  }
  zeilen.push_back(gekuerzt(zeile, breite, groesse));
  return zeilen;
}

Svg_Blatt::Svg_Blatt(double breite, double hoehe, std::string_view titel) {
  xml_ =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\"";
  Attribut("width", breite);
  Attribut("height", hoehe);
  Attribut("viewBox", "0 0 " + Mass_Text(breite) + ' ' + Mass_Text(hoehe));
  Attribut("font-family", "Helvetica, Arial, 'Liberation Sans', 'DejaVu Sans', sans-serif");
  xml_ += ">\n";
  if (!titel.empty()) xml_ += "<title>" + XML_Text(titel) + "</title>\n";
  Rechteck({0, 0, breite, hoehe}, {"#ffffff"});
}

void Svg_Blatt::Attribut(std::string_view name, std::string_view text) {
  xml_.append(" ").append(name).append("=\"").append(XML_Text(text)).append("\"");
}

void Svg_Blatt::Attribut(std::string_view name, double mass) {
  xml_.append(" ").append(name).append("=\"");
  anhaengen(xml_, mass);
  xml_ += '"';
}

void Svg_Blatt::Strichattribute(const Strich& strich) {
  Attribut("stroke", strich.farbe);
  Attribut("stroke-width", strich.breite);
  if (!strich.muster.empty()) Attribut("stroke-dasharray", strich.muster);
}

void Svg_Blatt::Formattribute(const Form& form) {
  Attribut("fill", form.fuellung);
  if (!form.randfarbe.empty()) Strichattribute({form.randfarbe, form.randbreite});
}

void Svg_Blatt::Punktattribut(const Linienzug& zug) {
  xml_ += " points=\"";
  for (const Bildort& ort : zug) {
    if (xml_.back() != '"') xml_ += ' ';
    anhaengen(xml_, ort.x);
    xml_ += ',';
    anhaengen(xml_, ort.y);
  }
  xml_ += '"';
}

void Svg_Blatt::Gruppe(std::string_view klasse) {
  xml_ += "<g";
  Attribut("class", klasse);
  xml_ += ">\n";
}

void Svg_Blatt::Gruppe_im_Fenster(std::string_view klasse, const Bildflaeche& fenster) {
  xml_ += "<clipPath id=\"Fenster\">";
  Rechteck(fenster, {"#ffffff"});
  xml_ += "</clipPath>\n<g";
  Attribut("class", klasse);
  Attribut("clip-path", "url(#Fenster)");
  xml_ += ">\n";
}

void Svg_Blatt::Gruppe_Ende() {
  xml_ += "</g>\n";
}

void Svg_Blatt::Linie(const Bildort& von, const Bildort& bis, const Strich& strich) {
  xml_ += "<line";
  Attribut("x1", von.x);
  Attribut("y1", von.y);
  Attribut("x2", bis.x);
  Attribut("y2", bis.y);
  Strichattribute(strich);
  xml_ += "/>\n";
}

void Svg_Blatt::Zug(const Linienzug& zug, const Strich& strich) {
  xml_ += "<polyline fill=\"none\" stroke-linejoin=\"round\"";
  Strichattribute(strich);
  Punktattribut(zug);
  xml_ += "/>\n";
}

void Svg_Blatt::Vieleck(const Linienzug& ecken, const Form& form) {
  xml_ += "<polygon";
  Formattribute(form);
  Punktattribut(ecken);
  xml_ += "/>\n";
}

void Svg_Blatt::Kreis(const Bildort& mitte, double radius, const Form& form) {
  xml_ += "<circle";
  Attribut("cx", mitte.x);
  Attribut("cy", mitte.y);
  Attribut("r", radius);
  Formattribute(form);
  xml_ += "/>\n";
}

void Svg_Blatt::Drehung(double winkel, const Bildort& um) {
  if (winkel == 0) return;
  Attribut("transform",
           "rotate(" + Mass_Text(winkel) + ' ' + Mass_Text(um.x) + ' ' + Mass_Text(um.y) + ')');
}

void Svg_Blatt::Rechteck(const Bildflaeche& flaeche, const Form& form, double winkel) {
  xml_ += "<rect";
  Attribut("x", flaeche.x);
  Attribut("y", flaeche.y);
  Attribut("width", flaeche.breite);
  Attribut("height", flaeche.hoehe);
  if (form.rundung > 0) Attribut("rx", form.rundung);
  Drehung(winkel, {flaeche.x + flaeche.breite / 2, flaeche.y + flaeche.hoehe / 2});
  Formattribute(form);
  xml_ += "/>\n";
}

void Svg_Blatt::Text(const Bildort& ort, std::string_view text, const Schrift& schrift) {
  if (text.empty()) return;
  xml_ += "<text";
  Attribut("x", ort.x);
  Attribut("y", ort.y + 0.35 * schrift.groesse);
  Attribut("font-size", schrift.groesse);
  if (schrift.fett) Attribut("font-weight", "bold");
  if (schrift.anschlag != Anschlag::Anfang) Attribut("text-anchor", Anschlagwort(schrift.anschlag));
  Drehung(schrift.winkel, ort);
  Attribut("fill", schrift.farbe);
  xml_.append(">").append(XML_Text(text)).append("</text>\n");
}

}  // namespace polarkreis
