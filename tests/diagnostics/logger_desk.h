#pragma once

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "diagnostics/logger.h"
#include "support/temp_folder.h"
#include "support/test_dialog.h"
#include "support/test_uhr.h"

/// Serial ports of a test. What happens on them is noted in order, the clock's waits among it.
class SkriptPort : public polarkreis::SeriellerPort {
 public:
  /// A device gives what each of the next reads finds after a command. A port without one can't be
  /// opened.
  using Geraet = std::function<std::vector<std::string>(const std::string& befehl)>;
  std::map<int, Geraet> geraete;
  /// "open 3 9600,N,8,1", "write ec %*\r", "read", "close", "wait 25".
  std::vector<std::string> ablauf;
  /// Every operation on an open port fails.
  bool gestoert = false;

  void Port(int nummer) override { nummer_ = nummer; }
  void Einstellungen(std::string_view text) override { einstellungen_ = text; }
  void Oeffnen() override {
    ablauf.push_back("open " + std::to_string(nummer_) + " " + einstellungen_);
    offen_ = geraete.contains(nummer_);
    fehler_ = !offen_ || gestoert;
    eingang_.clear();
  }
  void Schliessen() override {
    ablauf.emplace_back("close");
    offen_ = false;
  }
  void Schreiben(std::string_view text) override {
    ablauf.push_back("write " + std::string(text));
    if (offen_) eingang_ = geraete.at(nummer_)(std::string(text));
  }
  std::string Lesen() override {
    ablauf.emplace_back("read");
    if (eingang_.empty()) return {};
    std::string text = eingang_.front();
    eingang_.erase(eingang_.begin());
    return text;
  }
  bool Fehler() const override { return fehler_; }

  /// Commands in order, without their CR.
  std::vector<std::string> befehle() const {
    std::vector<std::string> alle;
    for (const std::string& zeile : ablauf)
      if (zeile.starts_with("write ")) alle.push_back(zeile.substr(6, zeile.size() - 7));
    return alle;
  }

 private:
  int nummer_ = 0;
  std::string einstellungen_;
  std::vector<std::string> eingang_;
  bool offen_ = false, fehler_ = false;
};

/// What an engineer does and sees while the job runs.
struct TestEmpfaenger : polarkreis::Messempfaenger {
  std::function<void()> bei_Ereignis, bei_Messwert;
  int ereignisse = 0, messwerte = 0;
  std::vector<bool> sanduhr;

  void Ereignisse() override {
    ++ereignisse;
    if (bei_Ereignis) bei_Ereignis();
  }
  void Messwert() override {
    ++messwerte;
    if (bei_Messwert) bei_Messwert();
  }
  void Sanduhr(bool an) override { sanduhr.push_back(an); }
};

/// A logger's link with scripted ports and a clock of its own, on a data folder with the English
/// texts and one refrigerant.
struct LoggerDesk {
  TempOrdner ordner;
  polarkreis::Meldungen meldungen;
  polarkreis::Ablage ablage{ordner.pfad(), meldungen};
  polarkreis::Captions captions{ablage};
  TestDialog dialog;
  TestUhr uhr;
  TestEmpfaenger empfaenger;
  SkriptPort port;
  polarkreis::Kaeltemittel km{ablage};
  polarkreis::Kreis kreis{km};
  polarkreis::Messung messung;
  polarkreis::Kanaele kanaele{ablage};
  polarkreis::Solen solen{ablage, captions};
  polarkreis::Luftzustand luft{ablage};
  polarkreis::Kern kern{messung, kanaele, kreis, solen, luft, captions};
  polarkreis::Messdatei datei{messung, ablage, captions, dialog, uhr};
  polarkreis::Messquelle quelle{ablage};
  polarkreis::Logger logger{
      {messung, kanaele, kern, datei, quelle, port, uhr, empfaenger, dialog, captions, ablage}};

  static constexpr const char* Kein_Geraet =
      "No Polarkreis DiaGnostics Divice found  or no valid COM Port.";

  LoggerDesk() {
    for (const auto& eintrag : std::filesystem::directory_iterator(POLARKREIS_DATA)) {
      const auto name = eintrag.path().filename();
      if (name.extension() == ".ENG" || name == "R134A.DAT")
        std::filesystem::create_symlink(eintrag.path(), ordner.pfad(name.string()));
    }
    captions.Captions_Laden();
    messung.KaelteM = "R134A";
    messung.Combo2 = "5s";
    messung.Combo5 = "1 min";
    datei.Anhaengen = polarkreis::Haltbarkeit::wiederholbar;
    uhr.beim_warten = [this](int n) { port.ablauf.push_back("wait " + std::to_string(n)); };
  }

  /// The reply of a base unit whose small R134A plant runs well, with other tokens by position;
  /// positions up to the highest that is named, and the clock behind them.
  static std::string antwort(const std::map<int, std::string>& anders = {}) {
    static const std::vector<std::string> laufend = {"230", "231", "232", "10", "10", "10",
                                                     "1",   "9",   "36",  "12", "7",  "-4",
                                                     "3",   "25",  "30",  "70"};
    const int anzahl = anders.empty() ? 16 : std::max(16, anders.rbegin()->first);
    std::string text;
    for (int position = 1; position <= anzahl; ++position) {
      const auto anderer = anders.find(position);
      if (anderer != anders.end())
        text += anderer->second;
      else
        text += position <= 16 ? laufend[static_cast<std::size_t>(position - 1)] : "1";
      text += ' ';
    }
    return text + "12:05:09 ok\r\n";
  }
  /// A device that gives the same reply to every request.
  static SkriptPort::Geraet immer(std::string text) {
    return [text](const std::string&) { return std::vector<std::string>{text}; };
  }
  /// A device that gives one reply after the other, then none.
  static SkriptPort::Geraet nacheinander(std::vector<std::string> texte) {
    return [texte, n = std::size_t{0}](const std::string&) mutable {
      return n < texte.size() ? std::vector<std::string>{texte[n++]} : std::vector<std::string>{};
    };
  }
  /// Calls once, at the n-th event from now on.
  void beim_Ereignis(int n, const std::function<void()>& was) {
    const int wann = empfaenger.ereignisse + n;
    empfaenger.bei_Ereignis = [this, wann, was] {
      if (empfaenger.ereignisse == wann) was();
    };
  }

  const std::string& zelle(int spalte, int zeile = 3) const {
    return messung.DiaSpread.text(zeile, spalte);
  }
  bool gemeldet(std::string_view text) const {
    for (const std::string& zeile : meldungen.zeilen())
      if (zeile.find(text) != std::string::npos) return true;
    return false;
  }
  int zahl_im_Ablauf(const std::string& was) const {
    return static_cast<int>(std::count(port.ablauf.begin(), port.ablauf.end(), was));
  }
};
