#include "konsole.h"

#include <unistd.h>

#include <cstdio>
#include <string>

#include "shell/text.h"

namespace polarkreis::cli {

namespace {

constexpr const char* kZeile_loeschen = "\r\x1b[K";

// Line ends around and inside a box's text would tear the message apart.
std::string einzeilig(std::string_view text) {
  std::string zeile;
  for (char c : text) {
    const bool leerraum = c == '\r' || c == '\n' || c == '\t' || c == ' ';
    if (!leerraum)
      zeile += c;
    else if (!zeile.empty() && zeile.back() != ' ')
      zeile += ' ';
  }
  return std::string(rechts_getrimmt(zeile));
}

}  // namespace

void melde(std::string_view text) {
  const std::string zeile = "polarkreis-cli: " + einzeilig(text) + "\n";
  std::fputs(zeile.c_str(), stderr);
}

void Konsolendialog::zeige(std::string_view text, std::string_view /*titel*/, Symbol /*symbol*/) {
  melde(text);
}

bool Konsolendialog::frage(std::string_view text, std::string_view /*titel*/) {
  melde(std::string(text) + " (answered: yes)");
  return true;
}

Terminalfortschritt::Terminalfortschritt() : terminal_(::isatty(STDERR_FILENO) == 1) {}

Terminalfortschritt::~Terminalfortschritt() {
  loeschen();
}

bool Terminalfortschritt::schritt(std::string_view text, int nummer, int anzahl) {
  if (!terminal_) return true;
  const int prozent = anzahl > 0 ? nummer * 100 / anzahl : 0;
  std::fprintf(stderr, "%s%s  %d %%", kZeile_loeschen, einzeilig(text).c_str(), prozent);
  std::fflush(stderr);
  gezeigt_ = true;
  return true;
}

void Terminalfortschritt::loeschen() {
  if (!gezeigt_) return;
  std::fputs(kZeile_loeschen, stderr);
  gezeigt_ = false;
}

}  // namespace polarkreis::cli
