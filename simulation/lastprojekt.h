#pragma once

#include <string>
#include <string_view>

#include "shell/ablage.h"

namespace polarkreis {

/// Projects of the sibling load modules: their type mark stands fourth in the heading, and the
/// lines behind it are the module's load file in the data folder, byte for byte.

/// The load file of a type mark: "AC" air conditioning, "CR" cold room, "HX" heat exchanger; empty
/// for any other.
std::string_view Lastdatei(std::string_view marke);

/// True for a readable project with nothing but blanks and line ends behind its heading.
bool Lastprojekt_ohne_Zeilen(Ablage& ablage, std::string_view projektdatei);

/// Copies the lines behind the heading to the load file of the project's type mark. False, and
/// nothing changed, if the project can't be read, has no such mark or no lines (the message log
/// tells that), or the file can't be written.
bool Lastprojekt_Oeffnen(Ablage& ablage, std::string_view projektdatei);

/// Writes the project anew: a heading of name, description, an empty item and the mark, and the
/// load file's lines. False, and nothing changed, if the load file is missing or the project can't
/// be written.
bool Lastprojekt_Speichern(Ablage& ablage, std::string_view projektdatei, std::string_view name,
                           std::string_view beschreibung, std::string_view marke);

/// The file name of a load project: a blank one becomes `vorgabe` ("Projekt" if that is empty) with
/// ".prj"; then the last four characters, whatever they are, give way to ".PRJ" unless they are
/// ".PRJ" in any case.
std::string Lastprojekt_Name(std::string_view name, std::string_view vorgabe);

}  // namespace polarkreis
