#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/dialog.h"

/// A user for tests: keeps what it was told and answers every question alike.
class TestDialog : public polarkreis::Dialog {
 public:
  /// The answer to every question.
  bool antwort = true;
  /// What was shown and asked, in order.
  std::vector<std::string> texte;
  std::vector<std::string> titel;
  std::vector<polarkreis::Symbol> symbole;
  std::vector<std::string> fragen;

  void zeige(std::string_view text, std::string_view kopf, polarkreis::Symbol symbol) override {
    texte.emplace_back(text);
    titel.emplace_back(kopf);
    symbole.push_back(symbol);
  }
  bool frage(std::string_view text, std::string_view) override {
    fragen.emplace_back(text);
    return antwort;
  }
};
