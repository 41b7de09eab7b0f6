#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace polarkreis {

/// A place on a drawing, in its units: x to the right, y downward.
struct Bildort {
  double x = 0, y = 0;
};

using Linienzug = std::vector<Bildort>;

/// A rectangle on a drawing by its upper left corner.
struct Bildflaeche {
  double x = 0, y = 0, breite = 0, hoehe = 0;
  double rechts() const { return x + breite; }
  double unten() const { return y + hoehe; }
};

struct Strich {
  std::string_view farbe;
  double breite = 1;
  std::string_view muster = {};  ///< lengths of dashes and gaps; empty for a full line
};

/// How a closed shape is filled and edged.
struct Form {
  std::string_view fuellung;
  std::string_view randfarbe = {};
  double randbreite = 0;
  double rundung = 0;  ///< radius of a rectangle's corners
};

enum class Anschlag { Anfang, Mitte, Ende };

struct Schrift {
  double groesse = 12;
  Anschlag anschlag = Anschlag::Anfang;
  std::string_view farbe = "#222222";
  bool fett = false;
  double winkel = 0;  ///< degrees, clockwise about its place
};

/// The text as one clean line: UTF-8, a tab or line end becomes a blank, other control characters
/// and what XML doesn't allow are dropped.
std::string saubere_Zeile(std::string text);

/// The text with what XML reserves replaced, for contents and attributes.
std::string XML_Text(std::string_view text);

/// A measure of the drawing as text: at most two decimals, point as decimal sign.
std::string Mass_Text(double mass);

/// About how wide a text of this size is in the widest of the usual sans-serif fonts.
double Textbreite(std::string_view text, double groesse, bool fett = false);

/// The text, or so much of it as the width holds and an ellipsis.
std::string gekuerzt(std::string_view text, double breite, double groesse, bool fett = false);

/// The text in lines that the width holds, parted at blanks; a word that is too wide is shortened.
std::vector<std::string> umbrochen(std::string_view text, double breite, double groesse);

/// An SVG 1.1 picture on a white ground, put together from its shapes in the order of drawing. All
/// measures must be finite.
class Svg_Blatt {
 public:
  Svg_Blatt(double breite, double hoehe, std::string_view titel);

  void Gruppe(std::string_view klasse);
  /// A group of which only what lies in `fenster` is seen; one of this kind a picture.
  void Gruppe_im_Fenster(std::string_view klasse, const Bildflaeche& fenster);
  void Gruppe_Ende();

  void Linie(const Bildort& von, const Bildort& bis, const Strich& strich);
  void Zug(const Linienzug& zug, const Strich& strich);
  void Vieleck(const Linienzug& ecken, const Form& form);
  void Kreis(const Bildort& mitte, double radius, const Form& form);
  /// Turned about its middle, in degrees clockwise.
  void Rechteck(const Bildflaeche& flaeche, const Form& form, double winkel = 0);
  /// One line of text; its place is the middle of its height. Nothing for an empty one.
  void Text(const Bildort& ort, std::string_view text, const Schrift& schrift);

  /// The whole file.
  std::string fertig() const { return xml_ + "</svg>\n"; }

 private:
  void Attribut(std::string_view name, double mass);
  void Attribut(std::string_view name, std::string_view text);
  void Strichattribute(const Strich& strich);
  void Formattribute(const Form& form);
  void Punktattribut(const Linienzug& zug);
  void Drehung(double winkel, const Bildort& um);

  std::string xml_;
};

}  // namespace polarkreis
