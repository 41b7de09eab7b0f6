#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cycle/bauteile.h"

namespace polarkreis {

/// The list of a refrigerant, "<REFRIGERANT>.LST": the 18 lists of the compressor catalogue, which
/// is the first of type 0 in "katalg.lst".

inline constexpr int Listenzahl = 18;
/// Records that a list has in "<code>N.rdm", and the first one of the first list.
inline constexpr int Listenblock = 66, Listenanfang = 2;

/// A list of components.
struct Mittelzeile {
  std::string Datei;  ///< "<code>N.rdm"
  std::string Text;
  int Anfang = 0;  ///< record of its first component; 0 for no such number
};

/// The two ways to lay the slots of the lists out; both give the same index.
enum class Slotweite { w50 = 50, w66 = 66 };
/// The record of "<code>I.rdm" with the text of list position 1 to 18, worked out from the
/// position's slot; 0 for any other position.
int Listenindex(int position, Slotweite weite = Slotweite::w66);

/// File name of a refrigerant's list; empty for a designation that the refrigerants' catalogue
/// doesn't hold.
std::string Mittelliste(std::string_view Bezeichnung);

/// The refrigerant's list. A file with content is the list; else it is made of the compressor
/// catalogue. No list, and no file, without a catalogue of type 0, where the texts of its lists are
/// missing or can't be read, and for an unknown designation. `hindernis` takes why the list of a
/// known refrigerant is empty.
std::vector<Mittelzeile> KM_Liste(Katalogdateien& dateien, std::string_view Bezeichnung,
                                  std::string* hindernis = nullptr);

/// The components of a list, as far as an empty record or the next list.
std::vector<Bauteil> Listenbauteile(Katalogdateien& dateien, const Mittelzeile& zeile);

}  // namespace polarkreis
