#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/caption_lines.h"

namespace polarkreis {
namespace {

struct Stem {
  const char* name;
  std::size_t lines;
};

constexpr Stem kStems[] = {{"VerbCapt", 24}, {"SoleCapt", 28},  {"Caption", 249},
                           {"HXCapt", 20},   {"AirCoCap", 118}, {"JMapCap", 67},
                           {"heatcap", 56},  {"DrawCap", 22},   {"PEDcap", 30}};

constexpr const char* kLanguages[] = {"ENG", "GER"};

std::string read_bytes(const std::string& name) {
  std::ifstream in(std::string(POLARKREIS_DATA) + "/" + name, std::ios::binary);
  EXPECT_TRUE(in.is_open()) << name;
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// The lines of a file with their line ends taken off; a line that does not end in CR LF is a
/// failure.
std::vector<std::string> read_lines(const std::string& name) {
  const std::string bytes = read_bytes(name);
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < bytes.size()) {
    const std::size_t end = bytes.find('\n', start);
    if (end == std::string::npos || end == start || bytes[end - 1] != '\r') {
      ADD_FAILURE() << name << " line " << lines.size() + 1 << " does not end in CR LF";
      if (end == std::string::npos) {
        lines.push_back(bytes.substr(start));
        break;
      }
      lines.push_back(bytes.substr(start, end - start));
    } else {
      lines.push_back(bytes.substr(start, end - start - 1));
    }
    start = end + 1;
  }
  return lines;
}

std::string stem_file(const Stem& stem, const char* language) {
  return std::string(stem.name) + "." + language;
}

/// Every caption file: the stems in both languages and the two start-screen texts, with their line
/// counts.
std::vector<std::pair<std::string, std::size_t>> all_files() {
  std::vector<std::pair<std::string, std::size_t>> files;
  for (const char* language : kLanguages) {
    for (const Stem& stem : kStems) files.emplace_back(stem_file(stem, language), stem.lines);
    files.emplace_back(std::string(language) + ".dat", 8);
  }
  return files;
}

std::string trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The text between the quotes, as the program compares it.
std::string comparable(const std::string& line) {
  std::string text = line.size() >= 2 ? trimmed(line.substr(1, line.size() - 2)) : std::string();
  std::transform(text.begin(), text.end(), text.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return text;
}

bool is_utf8(std::string_view bytes) {
  for (std::size_t i = 0; i < bytes.size();) {
    const auto lead = static_cast<unsigned char>(bytes[i++]);
    if (lead < 0x80) continue;
    if (lead < 0xC2 || lead > 0xF4) return false;
    const int following = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    for (int k = 0; k < following; ++k, ++i) {
      if (i >= bytes.size()) return false;
      const auto byte = static_cast<unsigned char>(bytes[i]);
      if ((byte & 0xC0) != 0x80) return false;
      if (k == 0 && ((lead == 0xE0 && byte < 0xA0) || (lead == 0xED && byte > 0x9F) ||
                     (lead == 0xF0 && byte < 0x90) || (lead == 0xF4 && byte > 0x8F))) {
        return false;
      }
    }
  }
  return true;
}

/// One text of a selection: a line of a stem.
struct Line {
  const char* stem;
  int number;

  Line(VerbCapt line) : stem("VerbCapt"), number(static_cast<int>(line)) {}
  Line(SoleCapt line) : stem("SoleCapt"), number(static_cast<int>(line)) {}
  Line(Caption line) : stem("Caption"), number(static_cast<int>(line)) {}
  Line(AirCoCap line) : stem("AirCoCap"), number(static_cast<int>(line)) {}
  Line(JMapCap line) : stem("JMapCap"), number(static_cast<int>(line)) {}
  Line(Heatcap line) : stem("heatcap"), number(static_cast<int>(line)) {}
  Line(PedCap line) : stem("PEDcap"), number(static_cast<int>(line)) {}
};

std::string text_of(const Line& line, const char* language) {
  const auto lines = read_lines(std::string(line.stem) + "." + language);
  const auto index = static_cast<std::size_t>(line.number - 1);
  return index < lines.size() ? comparable(lines[index]) : std::string();
}

struct Selection {
  const char* name;
  std::vector<Line> entries;
  /// Entries that are the same text in every language.
  std::vector<std::string> literals = {};
};

template <typename Enum>
std::vector<Line> lines_between(Enum first, Enum last) {
  std::vector<Line> lines;
  for (int n = static_cast<int>(first); n <= static_cast<int>(last); ++n) {
    lines.emplace_back(static_cast<Enum>(n));
  }
  return lines;
}

std::vector<Selection> selections() {
  using J = JMapCap;
  return {
      {"size", {Heatcap::Klein, PedCap::Mittel, Heatcap::Gross}},
      {"climate class", {PedCap::Niedrig, Heatcap::Normal, PedCap::Hoch, Heatcap::Sehr_hoch}},
      {"suction line insulation", {PedCap::Ohne, PedCap::Niedrig, Heatcap::Normal, PedCap::Hoch}},
      {"temperature range", {J::Bereich_hoch, J::Bereich_mittel, J::Bereich_tief, Heatcap::Normal}},
      {"application",
       {J::Klima_Sommer, J::Klima_lang, J::Klima_laenger, J::Produktionskuehlung,
        J::Prozesskuehlung, J::Kaelteraum, J::Kaelteraum_zwei}},
      {"maintenance", {J::Wartung_gut, J::Wartung_mittel, J::Wartung_schlecht}},
      {"charge", {J::Fuellung_richtig, J::Fuellung_knapp, J::Fuellung_Mangel}},
      {"capacity control", lines_between(J::Regelung_Drehzahl, J::Regelung_stetig)},
      {"expansion device",
       {J::Ventil_thermostatisch, J::Ventil_elektronisch, Caption::Schwimmerventil}},
      {"construction", {Caption::Offen, Caption::Halbhermetisch, Caption::Hermetisch}},
      {"compressor type", {Caption::Hubkolben, Caption::Schraube}, {"SCROLL", "TURBO"}},
      {"kind of condenser",
       {PedCap::Wassergekuehlt, PedCap::Luftgekuehlt, SoleCapt::Trockenkuehler}},
      {"kind of calculation", {J::Auslegungspunkt, J::Jahresrechnung}},
      {"two-stage kinds", {Caption::Zwischenkuehler, Caption::Einspritzung}},
      {"stages", {Caption::Einstufig, Caption::Zweistufig}},
      {"function of a measuring unit", lines_between(VerbCapt::Verdichter, VerbCapt::Economiser)},
      {"month", lines_between(AirCoCap::Januar, AirCoCap::Dezember)},
      {"fuel", lines_between(Heatcap::Heizoel, Heatcap::Strom)},
      {"boiler", lines_between(Heatcap::Kessel_alt, Heatcap::Kessel_Brennwert)},
      {"heat distribution", lines_between(Heatcap::Verteilung_gut, Heatcap::Verteilung_schlecht)},
  };
}

TEST(CaptionFiles, HoldTheirNumberOfLines) {
  for (const auto& [file, count] : all_files()) EXPECT_EQ(read_lines(file).size(), count) << file;
}

TEST(CaptionFiles, QuoteOneTextOnEveryLine) {
  for (const auto& [file, count] : all_files()) {
    std::size_t number = 0;
    for (const std::string& line : read_lines(file)) {
      ++number;
      EXPECT_GE(line.size(), 2u) << file << " line " << number;
      EXPECT_TRUE(line.starts_with('"') && line.ends_with('"')) << file << " line " << number;
      EXPECT_EQ(std::count(line.begin(), line.end(), '"'), 2) << file << " line " << number;
      EXPECT_FALSE(comparable(line).empty()) << file << " line " << number;
    }
  }
}

TEST(CaptionFiles, AreUtf8WithoutAByteOrderMark) {
  for (const auto& [file, count] : all_files()) {
    const std::string bytes = read_bytes(file);
    EXPECT_TRUE(is_utf8(bytes)) << file;
    EXPECT_FALSE(bytes.starts_with("\xEF\xBB\xBF")) << file;
  }
}

TEST(CaptionFiles, RepeatNoTextWithinAFile) {
  for (const auto& [file, count] : all_files()) {
    std::map<std::string, std::size_t> first_line;
    std::size_t number = 0;
    for (const std::string& line : read_lines(file)) {
      ++number;
      const auto [place, inserted] = first_line.emplace(comparable(line), number);
      EXPECT_TRUE(inserted) << file << " line " << number << " repeats line " << place->second;
    }
  }
}

TEST(CaptionFiles, DifferBetweenTheLanguagesInMostLines) {
  for (const Stem& stem : kStems) {
    const auto english = read_lines(stem_file(stem, "ENG"));
    const auto german = read_lines(stem_file(stem, "GER"));
    ASSERT_EQ(english.size(), german.size()) << stem.name;
    std::size_t differing = 0;
    for (std::size_t i = 0; i < english.size(); ++i) differing += english[i] != german[i];
    EXPECT_GT(differing * 5, stem.lines * 4) << stem.name;
  }
}

TEST(CaptionSelections, OfferDifferentTexts) {
  for (const char* language : kLanguages) {
    for (const Selection& selection : selections()) {
      std::vector<std::string> texts = selection.literals;
      for (const Line& line : selection.entries) texts.push_back(text_of(line, language));
      std::sort(texts.begin(), texts.end());
      EXPECT_FALSE(texts.front().empty()) << selection.name << " " << language;
      const auto twice = std::adjacent_find(texts.begin(), texts.end());
      EXPECT_TRUE(twice == texts.end())
          << selection.name << " " << language << ": " << (twice == texts.end() ? "" : *twice);
    }
  }
}

TEST(CaptionSelections, KeepTheSeparatorOutOfThePiecesOfAPlantKind) {
  for (const char* language : kLanguages) {
    for (const Line line :
         {Line(Caption::Einstufig), Line(Caption::Zweistufig), Line(Caption::Direktverdampfung),
          Line(Caption::Zwischenkuehler), Line(Caption::Einspritzung)}) {
      const std::string text = text_of(line, language);
      EXPECT_EQ(text.find(" - "), std::string::npos) << text;
    }
  }
}

TEST(CaptionSelections, NameNoLowerLimitWithoutALeadingDigit) {
  for (const char* language : kLanguages) {
    const std::string text = text_of(PedCap::Ohne, language);
    ASSERT_FALSE(text.empty());
    EXPECT_TRUE(text.front() < '0' || text.front() > '9') << text;
  }
}

TEST(CaptionLabels, EndWithoutAColonOfTheirOwn) {
  for (const char* language : kLanguages) {
    for (const Line& line : lines_between(JMapCap::Energiesimulation, JMapCap::Kaeltepreis)) {
      EXPECT_FALSE(text_of(line, language).ends_with(':')) << language << " " << line.number;
    }
    for (const Line& line : lines_between(Heatcap::Einsparung_Kosten, Heatcap::Verlust)) {
      EXPECT_FALSE(text_of(line, language).ends_with(':')) << language << " " << line.number;
    }
  }
}

TEST(CaptionPositions, HoldTheWordsTheProgramExpectsThere) {
  const std::pair<Line, std::pair<const char*, const char*>> expected[] = {
      {VerbCapt::Economiser, {"ECONOMISER", "ECONOMIZER"}},
      {SoleCapt::Trockenkuehler, {"DRY COOLER", "TROCKENKüHLER"}},
      {Caption::Projekt, {"PROJECT", "PROJEKT"}},
      {Caption::Bewertung, {"RATING", "BEWERTUNG"}},
      {Caption::Schraube, {"SCREW", "SCHRAUBE"}},
      {Caption::Zweistufig, {"TWO-STAGE", "ZWEISTUFIG"}},
      {Caption::Direktverdampfung, {"DIRECT EXPANSION", "DIREKTVERDAMPFUNG"}},
      {AirCoCap::Breite, {"LATITUDE", "BREITE"}},
      {AirCoCap::Januar, {"JANUARY", "JANUAR"}},
      {AirCoCap::Dezember, {"DECEMBER", "DEZEMBER"}},
      {JMapCap::Anwendung, {"APPLICATION", "ANWENDUNG"}},
      {JMapCap::Jahresrechnung, {"ANNUAL RUN", "JAHRESRECHNUNG"}},
      {JMapCap::Kaeltepreis, {"PRICE OF COLD", "KäLTEPREIS"}},
      {Heatcap::Klein, {"SMALL", "KLEIN"}},
      {Heatcap::Sehr_hoch, {"VERY HIGH", "SEHR HOCH"}},
      {Heatcap::Verlust, {"DISTRIBUTION LOSS", "VERTEILUNGSVERLUST"}},
      {PedCap::Mittel, {"MEDIUM", "MITTEL"}},
      {PedCap::Ohne, {"NONE", "OHNE"}},
      {PedCap::Luftgekuehlt, {"AIR-COOLED", "LUFTGEKüHLT"}},
  };
  for (const auto& [line, words] : expected) {
    EXPECT_EQ(text_of(line, "ENG"), words.first);
    EXPECT_EQ(text_of(line, "GER"), words.second);
  }
}

}  // namespace
}  // namespace polarkreis
