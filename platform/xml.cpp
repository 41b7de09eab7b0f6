#include "platform/xml.h"

#include <utility>

namespace polarkreis::xml {

namespace {

// What the library takes for a node and for an attribute, rounded up.
constexpr std::size_t Knotengroesse = 80, Attributgroesse = 48;
constexpr std::size_t Speichergrenze = std::size_t{512} << 20;

/// A bound of the tree's size: a node for each element and each run of text, an attribute for each
/// sign of equality.
std::size_t Baumgroesse(std::string_view text) {
  std::size_t knoten = 0, attribute = 0;
  char davor = '\0';
  for (const char c : text) {
    if ((davor == '<' && c != '/') || (davor == '>' && c != '<')) ++knoten;
    if (c == '=') ++attribute;
    davor = c;
  }
  return knoten * Knotengroesse + attribute * Attributgroesse;
}

}  // namespace

bool Dokument::lies(std::string text, std::string& grund) {
  text_ = std::move(text);
  if (Baumgroesse(text_) > Speichergrenze) {
    grund = "its worksheet is too large: please split it.";
    return false;
  }
  const pugi::xml_parse_result ergebnis =
      dokument_.load_buffer_inplace(text_.data(), text_.size(), pugi::parse_default);
  if (ergebnis && wurzel()) return true;
  grund = "it is damaged.";
  return false;
}

std::string_view lokal(std::string_view name) {
  return name.substr(name.find(':') + 1);
}

pugi::xml_node kind(const pugi::xml_node& knoten, std::string_view name) {
  return knoten.find_child([name](const pugi::xml_node& k) { return lokal(k.name()) == name; });
}

}  // namespace polarkreis::xml
