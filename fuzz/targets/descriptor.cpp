#include "gfx/sprite_tables.h"
#include "targets.h"

void fuzz::descriptor(std::string_view bytes) {
    gfx::SpriteTables tables;
    const auto read_as = [&](std::string_view kind) {
        return accepts([&] { tables.read_descriptor(bytes, kind, "set", "c:\\gfx"); });
    };
    const bool taken = read_as("no kind");
    for (const auto& info : gfx::sprite_kinds) {
        const bool taken_for_kind = read_as(info.word);
        const auto& table = tables.of(info.kind);
        assert(table.count >= 0 && table.count <= info.capacity);
        // A malformed line is an error for every kind; only a known one has too many rows.
        assert(taken_for_kind == taken || (taken && table.count == info.capacity));
        for (const auto& sprite : table.rows)
            assert(sprite.bitmap_path.empty() == sprite.set_name.empty());
        tables.take_rows_out(info.kind, "set");
    }
}
