#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "cycle/katalog_datei.h"
#include "cycle/suchmuster.h"

namespace polarkreis {

/// A component: a record of "<code>N.rdm".
struct Bauteil {
  static constexpr std::size_t Feldzahl = 14;
  int Satz = 0;
  /// The record's texts of 40 characters, trimmed; the first two are the searched ones.
  std::array<std::string, Feldzahl> Felder;
};

/// The components of one catalogue, as its file stood when the object was made. `nummer` is the
/// file's number in the file store as long as the object lives.
class Bauteile {
 public:
  static constexpr int Nummer_sonst = 650;

  Bauteile(Katalogdateien& dateien, std::string_view code, int nummer = Nummer_sonst);
  ~Bauteile();
  Bauteile(const Bauteile&) = delete;
  Bauteile& operator=(const Bauteile&) = delete;

  /// True if the file is there and could be read.
  bool lesbar() const;
  /// The digit that record 51 begins with. Where a blank stands there, the type is the code's and
  /// is written back when the object goes; a file that is absent or read-only stays as it is.
  int Typ();
  /// The components whose first or second field holds the text, among at most `hoechstens` records
  /// from number `Anfang` on. A record whose both fields are blank ends the catalogue. Record 51 is
  /// the type's and no component.
  std::vector<Bauteil> suche(int Anfang, int hoechstens, const Suchmuster& muster);

 private:
  Katalogdateien& dateien_;
  std::string code_;
  std::string datei_;
  int nummer_;
  int anzahl_ = 0;  // records in the file, the last one perhaps cut off
};

/// The type of a catalogue, see `Bauteile::Typ`.
int Katalogtyp(Katalogdateien& dateien, std::string_view code);

}  // namespace polarkreis
