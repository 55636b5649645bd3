#pragma once

#include "data/province_table.h"
#include "editor/selection.h"
#include "gfx/chooser_kind.h"
#include "gfx/graphics.h"
#include "map/maps.h"
#include "map/mode.h"
#include "map/port_placement.h"
#include "shell/configuration.h"
#include "shell/language.h"

#include <cstdint>
#include <string>

namespace shell {

/// The program-wide state. The program owns one; every form works on a reference to it.
struct Session {
    std::string program_folder; // stored path, without a separator at its end
    bool unattended = false;    // no box may wait for an answer: what it would say ends the run

    data::ProvinceTable provinces;
    editor::Selection selection;

    Configuration configuration;
    LanguageTexts language;

    map::Mode mode = map::Mode::normal;
    map::Maps maps;
    map::PortPlacement port_placement;

    gfx::Graphics graphics;
    gfx::ChooserKind chooser_kind = gfx::ChooserKind::CSV;
    std::int16_t cancelled_flag = 0; // 1 after a dialog was closed without a choice
};

} // namespace shell
