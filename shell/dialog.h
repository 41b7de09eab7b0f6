#pragma once

#include <string>
#include <string_view>

namespace polarkreis {

enum class Symbol { keins = 0, fehler = 16, frage = 32, hinweis = 48 };

/// How the program speaks to its user: the desktop shows boxes, the command line prints, a test
/// records.
class Dialog {
 public:
  virtual ~Dialog() = default;
  virtual void zeige(std::string_view text, std::string_view titel, Symbol symbol) = 0;
  /// A yes/no question; true is yes.
  virtual bool frage(std::string_view text, std::string_view titel) = 0;
};

/// The fixed messages of the error box.
enum class Fehler { Datei_fehlt = 24, Modul_fehlt = 32, Speicher_voll = 427 };

/// The message's text: "Polarkreis error 24: File not existing." A module's name stands behind its
/// message in capitals.
std::string fehlertext(Fehler nummer, std::string_view modul = {});
/// Shows the message in the error box and waits.
void FehlerBOX(Dialog& dialog, Fehler nummer, std::string_view modul = {});

}  // namespace polarkreis
