#pragma once

#include <cctype>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/wert.h"

/// An element of a read picture; `gruppe` is the class of the group around it.
struct SvgElement {
  std::string name, text, gruppe;
  std::map<std::string, std::string> attribute;

  std::string wort(const std::string& attribut) const {
    const auto platz = attribute.find(attribut);
    return platz == attribute.end() ? "" : platz->second;
  }
  double zahl(const std::string& attribut) const { return polarkreis::Wert(wort(attribut)); }
};

/// Reads the XML that a picture may consist of, and nothing else: what isn't well-formed throws.
class SvgLeser {
 public:
  explicit SvgLeser(std::string_view xml) : Rest(xml) {
    nimm("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    lies_Element();
    nimm("\n");
    if (!Rest.empty()) throw std::runtime_error("text after the root");
  }

  std::vector<SvgElement> elemente;

  std::vector<SvgElement> alle(std::string_view name, std::string_view gruppe = {}) const {
    std::vector<SvgElement> treffer;
    for (const SvgElement& element : elemente)
      if (element.name == name && (gruppe.empty() || element.gruppe == gruppe))
        treffer.push_back(element);
    return treffer;
  }
  std::vector<std::string> texte(std::string_view gruppe) const {
    std::vector<std::string> texte;
    for (const SvgElement& element : alle("text", gruppe)) texte.push_back(element.text);
    return texte;
  }
  /// The frame of the plot.
  SvgElement rahmen() const { return alle("rect", "Achsen").at(0); }

 private:
  void nimm(std::string_view text) {
    if (!Rest.starts_with(text)) throw std::runtime_error("expected " + std::string(text));
    Rest.remove_prefix(text.size());
  }
  bool folgt(std::string_view text) const { return Rest.starts_with(text); }

  std::string Name() {
    std::string name;
    for (; !Rest.empty() &&
           (std::isalnum(static_cast<unsigned char>(Rest.front())) != 0 || Rest.front() == '-');
         Rest.remove_prefix(1))
      name += Rest.front();
    if (name.empty()) throw std::runtime_error("no name at " + std::string(Rest.substr(0, 20)));
    return name;
  }

  /// Characters up to one of the ends, entities read.
  std::string Zeichen(std::string_view ende) {
    std::string text;
    while (!Rest.empty() && ende.find(Rest.front()) == std::string_view::npos) {
      const auto c = static_cast<unsigned char>(Rest.front());
      if (c == '<' || (c < 0x20 && c != '\n')) throw std::runtime_error("forbidden character");
      text += c == '&' ? Entitaet() : Rest.front();
      if (c != '&') Rest.remove_prefix(1);
    }
    return text;
  }

  char Entitaet() {
    static constexpr std::pair<std::string_view, char> Bekannte[] = {
        {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}};
    for (const auto& [name, zeichen] : Bekannte) {
      if (!folgt(name)) continue;
      Rest.remove_prefix(name.size());
      return zeichen;
    }
    throw std::runtime_error("unknown entity");
  }

  void lies_Attribute(SvgElement& element) {
    while (folgt(" ")) {
      nimm(" ");
      const std::string name = Name();
      nimm("=\"");
      if (!element.attribute.emplace(name, Zeichen("\"")).second)
        throw std::runtime_error("attribute twice: " + name);
      nimm("\"");
    }
  }

  void lies_Element() {
    nimm("<");
    SvgElement element;
    element.name = Name();
    element.gruppe = Gruppe;
    lies_Attribute(element);
    const std::size_t platz = elemente.size();
    elemente.push_back(element);
    if (folgt("/>")) return nimm("/>");
    nimm(">");
    const std::string aussen = Gruppe;
    if (element.name == "g") Gruppe = element.wort("class");
    while (!folgt("</")) {
      elemente[platz].text += Zeichen("<");
      if (!folgt("</")) lies_Element();
    }
    Gruppe = aussen;
    nimm("</" + element.name + ">");
  }

  std::string_view Rest;
  std::string Gruppe;
};
