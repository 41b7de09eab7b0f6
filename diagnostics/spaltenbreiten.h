#pragma once

#include <array>

#include "diagnostics/messung.h"
#include "shell/ablage.h"
#include "shell/captions.h"

namespace polarkreis {

/// What "Diagopt.dat" was good for.
enum class Spaltenlage {
  Standard,  ///< below 50 bytes: the standard layout applies
  gelesen,   ///< above 500 bytes: the widths were read
  belassen,  ///< between them nothing happens
};

/// The widths of the columns of the measurement table and of the table of means, in twentieths of a
/// point, by column; index 0 is the row's heading and stays out of the file.
struct Spaltenbreiten {
  std::array<int, Spalte::Angelegt + 1> Breite;
  Spaltenbreiten();  ///< the standard widths
};

/// Reads "Diagopt.dat", as the form does when it opens. The standard layout sets the standard
/// widths and writes the captions (`Col_Standard`). A number that is none is width 0, one beyond
/// what a table can show is the widest; columns behind the file's end keep theirs.
Spaltenlage Spaltenbreiten_lesen(Spaltenbreiten& breiten, Messung& messung,
                                 const Captions& captions, Ablage& ablage);
/// Writes it, as the form does when it closes; false if the file could not be written.
bool Spaltenbreiten_schreiben(const Spaltenbreiten& breiten, Ablage& ablage);

}  // namespace polarkreis
