#pragma once

#include <string_view>

#include "shell/dialog.h"
#include "shell/warten.h"

namespace polarkreis::cli {

/// Message boxes go to standard error. Nobody sits before a command line, so every question is
/// answered with yes, and told.
class Konsolendialog : public Dialog {
 public:
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

/// One line on standard error with the program's name before it.
void melde(std::string_view text);

}  // namespace polarkreis::cli
