#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "sitzung.h"

namespace polarkreis::cli {

/// Stands for the working project where a command needs a file.
inline constexpr std::string_view kArbeitsprojekt_Zeichen = "-";

/// The heading of a project file, and how much stands behind it.
struct Dateikopf : Projektkopf {
  std::size_t zeilen = 0;  ///< lines behind the heading
};
/// The heading of a file; nothing where it is absent, too large or can't be read.
std::optional<Dateikopf> projektkopf(Ablage& ablage, const std::string& pfad);

/// The path that a name on the command line stands for: a bare name is sought in the current
/// folder, then in the data folder. Throws `Abbruch` where there is no such file, where it is a
/// folder, empty, too large for a project or not readable.
std::string projektpfad(Sitzung& sitzung, const std::string& name);
/// The content of a project file, or of one that goes with it; `datei` is how messages name it.
/// Throws `Abbruch` where it is too large, not readable or binary.
std::string projekttext(Ablage& ablage, const std::string& pfad, const std::string& datei);
/// Where a file is to be made: a bare name lies in the current folder.
std::string zielpfad(const std::string& name);

/// True for a file that holds the items without a heading, as the working project does.
bool ohne_kopf(const std::string& pfad);

/// Loads the project into the form; an empty name or "-" is the working project. The items of
/// another language are translated in memory, no file is written. A project that ends early is
/// told. Throws `Abbruch` with the reason where there is none, or where the file is no project of
/// the simulation.
Projektdaten& projekt_laden(Sitzung& sitzung, const std::string& name);

/// Refrigerant, capacity and temperatures as a headline for people.
std::string auslegung_text(const Projektdaten& projekt);

/// Puts the form back where it came from. Throws `Abbruch` with the reason where that fails.
void projekt_zuruecklegen(Projektdaten& projekt);

/// Throws `Abbruch` where the texts of a language are not in the data folder: without them no
/// selection can be told from another.
void texte_pruefen(Programm& p, const std::string& sprache);

/// The file store's reason for its last failure, or `sonst`.
std::string grund(const Ablage& ablage, const std::string& sonst);

}  // namespace polarkreis::cli
