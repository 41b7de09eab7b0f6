#pragma once

#include <memory>
#include <vector>

#include "reports/schaubild.h"
#include "reports/svg_blatt.h"

namespace polarkreis {

/// One box of the panel.
class Tafelkasten {
 public:
  virtual ~Tafelkasten() = default;
  /// How wide its contents would like to be.
  virtual double Wunschbreite() const = 0;
  /// Fits the contents to a width; height and drawing go by it.
  virtual void richte_ein(double breite) = 0;
  virtual double Hoehe() const = 0;
  virtual void zeichne(Svg_Blatt& blatt, const Bildort& ecke) const = 0;
};

/// The panel beside the plot: the legend, the table of the marks and the text block, a box each,
/// those that hold something. It is as wide as its contents within limits; what is wider is broken
/// or shortened.
class Tafel {
 public:
  explicit Tafel(const Schaubild& bild);

  /// Its measures; both 0 for an empty one.
  double Breite() const { return breite_; }
  double Hoehe() const { return hoehe_; }

  void zeichne(Svg_Blatt& blatt, const Bildort& ecke) const;

 private:
  std::vector<std::unique_ptr<Tafelkasten>> kaesten_;
  double breite_ = 0, hoehe_ = 0;
};

}  // namespace polarkreis
