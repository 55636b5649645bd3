#pragma once

#include "map/maps.h"

#include <QStringList>

#include <optional>
#include <string>

class QMimeData;

namespace shell {

/// What files that were dropped onto the main frame are to be opened as. Paths are stored paths,
/// empty where there is none.
struct DroppedFiles {
    std::string province_file;
    std::string map_1;
    std::string map_2;
    std::string id_map;

    bool has_maps() const { return !map_1.empty() || !map_2.empty() || !id_map.empty(); }
};

/// Returns what the files (native paths) are: at most one province file and three maps, which their
/// names tell apart, else their order. Nothing when there is anything else among them.
std::optional<DroppedFiles> dropped_files(const QStringList& files);

/// Does the same for dropped data.
std::optional<DroppedFiles> dropped_files(const QMimeData& data);

} // namespace shell
