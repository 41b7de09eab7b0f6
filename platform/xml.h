#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>

/// Small helpers over the XML library for files of unknown origin.
namespace polarkreis::xml {

/// A document and the text in which it lives.
class Dokument {
 public:
  /// Takes the text over. False, and why (the end of a sentence), if it is no XML, or if its tree
  /// would take more than half a gigabyte.
  bool lies(std::string text, std::string& grund);
  /// The root element; empty before a successful reading.
  pugi::xml_node wurzel() const { return dokument_.document_element(); }

 private:
  std::string text_;
  pugi::xml_document dokument_;
};

/// The name without its namespace.
std::string_view lokal(std::string_view name);
/// The first child of that name, whatever its namespace; empty if there is none.
pugi::xml_node kind(const pugi::xml_node& knoten, std::string_view name);

}  // namespace polarkreis::xml
