#pragma once

#include "monitor_platz.h"

namespace polarkreis::cli {

/// `monitor upload`: sends a plant's settings, its rules, or both. What could not be sent is told
/// file by file and sets the status.
void monitor_upload(Sitzung& sitzung, const Monitorwuensche& wuensche);
/// `monitor download`: fetches and prints them; a file that could not be fetched is told with what
/// is shown in its place, and sets the status. `speichern` stores them where all came.
void monitor_download(Sitzung& sitzung, const Monitorwuensche& wuensche);

}  // namespace polarkreis::cli
