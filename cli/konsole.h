#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "shell/dialog.h"
#include "shell/warten.h"

namespace polarkreis::cli {

/// How a command line answers a question: as told beforehand, or by asking who sits before the
/// terminal (no where there is none).
enum class Antwortweise { ja, nein, fragen };

/// Message boxes go to standard error. A question that isn't asked is told with its answer; most
/// commands answer with yes, since nobody sits before a command line.
class Konsolendialog : public Dialog {
 public:
  Antwortweise antwort = Antwortweise::ja;
  void zeige(std::string_view text, std::string_view titel, Symbol symbol) override;
  bool frage(std::string_view text, std::string_view titel) override;
};

/// One line of progress on standard error, rewritten in place and cleared at the end. Silent where
/// standard error is no terminal.
class Terminalfortschritt : public Fortschritt {
 public:
  Terminalfortschritt();
  ~Terminalfortschritt() override;
  Terminalfortschritt(const Terminalfortschritt&) = delete;
  Terminalfortschritt& operator=(const Terminalfortschritt&) = delete;
  bool schritt(std::string_view text, int nummer, int anzahl) override;
  /// Clears the line, so that a message can stand there.
  void loeschen();

 private:
  bool terminal_;
  bool gezeigt_ = false;
};

/// The text without what a terminal would obey: control characters and escape sequences show as
/// "?".
std::string sichtbar(std::string_view text);
/// The first characters of a longer text, with "..." behind them.
std::string gekuerzt(std::string_view text, std::size_t zeichen = 60);

/// One line on standard error with the program's name before it. Texts of files may stand in it:
/// what isn't visible is replaced, and overlong words and lines are shortened in the middle, so
/// that the message around them stays.
void melde(std::string_view text);

}  // namespace polarkreis::cli
