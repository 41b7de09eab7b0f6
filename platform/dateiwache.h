#pragma once

#include <memory>
#include <string>

#include "shell/ablage.h"

namespace polarkreis {

/// A watch of one folder by the system's change notices: it spares the file store a question for
/// each file at each step. Nothing where the system has no such notices, or where the folder lies
/// on a file system that doesn't tell every change (a network's, for one); the file store then asks
/// for each file. It sees what any program does to the folder's files under their names there. It
/// doesn't see a write through a memory mapping before its file is closed, nor one through a second
/// name elsewhere: the file store trusts it only for files that had one name when they were read. A
/// watch that lost track (folder moved, removed or put elsewhere) tells a change at every
/// question.
std::unique_ptr<Aenderungswache> Dateiwache_machen(const std::string& ordner);

}  // namespace polarkreis
