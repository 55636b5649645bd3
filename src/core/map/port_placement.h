#pragma once

namespace map {

/// A port is placed by two clicks: its position, then its sea.
struct PortPlacement {
    int stage = 0;    // 0: the port's position is awaited, 1: its sea province
    int province = 0; // identifier of the province whose port was placed at stage 0
};

} // namespace map
