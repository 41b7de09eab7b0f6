#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"

namespace polarkreis {

/// The component catalogues of the data folder. A catalogue is named by its code: its components
/// stand in "<code>N.rdm", the texts of its lists in "<code>I.rdm", both in fixed records of bytes
/// in the code page 850. (The refrigerants' catalogue is `KM_Katalog`.)

/// Bytes of a record of "<code>N.rdm" and of "<code>I.rdm".
inline constexpr int Bauteilsatz = 570, Listensatz = 128;

inline constexpr std::size_t Codelaenge = 7;
/// True for seven letters or digits: nothing else names a file.
bool ist_Katalogcode(std::string_view code);
/// File names of a catalogue.
std::string Bauteildatei(std::string_view code);
std::string Listendatei(std::string_view code);
/// The list of the catalogues.
inline constexpr std::string_view Katalogdatei = "katalg.lst";
/// The index file of a search kind: "I650.DAT" for 0 and 100, "I600.DAT" for 1, else "I550.DAT".
std::string_view Indexdatei(int Suchart);
/// The type of a catalogue as its code tells: the last two letters EX 1, KP 2, VD 3, KD 4, MV 7;
/// with others there the first two KA 5; else 0.
int Typ_aus_Code(std::string_view code);

/// A row of "katalg.lst".
struct Katalogzeile {
  std::string code;
  std::string Text;  ///< what stands behind the code
};

/// A row of an index file.
struct Indexzeile {
  std::string code;
  std::string Hersteller;
  std::string Katalogtext;
  int Anfang = 0;  ///< record of "<code>N.rdm" that the scan begins with; 0 for no such number
};

/// Reads the catalogues' text files. A missing one is empty; what is wrong in one is left out and
/// told once in the message log.
class Katalogdateien {
 public:
  explicit Katalogdateien(Ablage& dateien) : ablage(dateien) {}

  Ablage& ablage;

  using Felder = std::vector<std::string>;
  /// True for a line's items, a row's number of them at least, that begin with a row.
  using Zeilenbeginn = bool (*)(const Felder& items);
  /// The rows of a text file's content with so many fields each. Items count, not lines: a line may
  /// hold several rows, and a row go over several lines. But an unfinished row ends before a line
  /// that holds the fields of one and looks like its beginning, so that a row that lost a field
  /// costs only itself.
  std::vector<Felder> Feldzeilen(
      std::string_view name, std::string_view inhalt, std::size_t felder,
      Zeilenbeginn beginnt = [](const Felder&) { return true; });
  /// "katalg.lst" in its order: each of its items that begins with a code.
  std::vector<Katalogzeile> Katalogliste();
  /// The index of a search kind in its order.
  std::vector<Indexzeile> Index(int Suchart);

  /// Tells the message log, each text once, and no more than a hundred.
  void melde(std::string_view datei, const std::string& text);

 private:
  std::set<std::string> gemeldet_;
};

/// True for items of a line that begin with a row whose last field, the n-th item, is a number.
bool endet_mit_Zahl(const Katalogdateien::Felder& items, std::size_t n);

/// A record number, 1 or above; 0 for any other text.
int Satznummer(std::string_view text);

}  // namespace polarkreis
