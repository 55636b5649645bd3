#include "base/captions.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "editor/combined_selection.h"
#include "editor/panneau.h"
#include "gfx/form2.h"
#include "gfx/form3.h"
#include "map/identification.h"
#include "map/map_view.h"
#include "shell/frm_about.h"
#include "shell/mdi_form1.h"

#include <QAction>
#include <QActionGroup>

#include <algorithm>
#include <array>
#include <vector>

namespace shell {

namespace {

/// The kinds of the graphics menu: the array of its items, and the item of position entry.
struct PreviewMenu {
    gfx::SpriteKind kind;
    std::string_view items;
    map::Mode mode;
};

constexpr std::array<PreviewMenu, 4> preview_menus = {{
    {gfx::SpriteKind::ville, "ville_graph", map::Mode::ville},
    {gfx::SpriteKind::armees, "armée_graph", map::Mode::armees},
    {gfx::SpriteKind::manuf, "manuf_graph", map::Mode::manuf},
    {gfx::SpriteKind::port, "port_graph", map::Mode::port},
}};

std::string item_name(std::string_view items, int number) {
    return std::string(items) + "(" + std::to_string(number) + ")";
}

bool holds_set(const gfx::Sprite& sprite) {
    return !sprite.set_name.empty();
}

/// Returns the first row that holds a set; the first of all without one.
int first_set(const std::vector<gfx::Sprite>& rows) {
    const auto found = std::find_if(rows.begin(), rows.end(), holds_set);
    return found == rows.end() ? 0 : static_cast<int>(found - rows.begin());
}

} // namespace

void MDIForm1::ouvrir_cartes() {
    ask_for_maps(session_.maps);
}

void MDIForm1::ask_for_maps(const map::Maps& proposed) {
    session_.cancelled_flag = 0;
    gfx::Form2(session_, proposed, this).exec();
    if (session_.cancelled_flag == 0)
        open_maps();
}

void MDIForm1::gfx() {
    gfx::Form3 form(session_, this);
    connect(&form, &gfx::Form3::terrain_art_accepted, action("dessin_menu"),
            [this] { action("dessin_menu")->setEnabled(true); });
    form.exec();
    show_graphics();
}

void MDIForm1::quitter() {
    close();
}

void MDIForm1::enter_mode(map::Mode mode) {
    session_.mode = mode;
    check_mode();
    auto* map = map_window();
    if (mode != map::Mode::normal) {
        panel_->forget_shown(); // to be hidden with the focus is not to be left
        if (map)
            map->view().take_focus(); // not the legend: one places now
    }
    enable_place_items();
    panel_->setVisible(mode == map::Mode::normal);
    if (map)
        map->selection_or_mode_changed();
    if (mode == map::Mode::normal) {
        panel_->show_selection(); // clicks in the mode that ends may have moved what it shows
        options();
    }
    show_status_text(map::info(mode).status_text);
}

void MDIForm1::check_mode() {
    for (const auto& mode : map::modes)
        action(mode.menu_item)->setChecked(mode.mode == session_.mode);
}

void MDIForm1::preview(gfx::SpriteKind kind, int item) {
    session_.graphics.previewed_row[kind] = item - 1;
    show_graphics();
}

void MDIForm1::toggle_drawings() {
    session_.graphics.shows_drawings = !session_.graphics.shows_drawings;
    show_graphics();
}

void MDIForm1::show_graphics() {
    options();
    if (map_)
        map_->graphics_changed();
}

void MDIForm1::group_previews() {
    for (const auto& menu : preview_menus) {
        auto* group = new QActionGroup(this); // exclusive: one item of the kind is checked
        for (int item = 1; item <= gfx::info(menu.kind).set_limit; ++item)
            group->addAction(action(item_name(menu.items, item)));
    }
}

void MDIForm1::options() {
    for (const auto& menu : preview_menus) {
        const auto& rows = session_.graphics.sprites.of(menu.kind).rows;
        int& previewed = session_.graphics.previewed_row[menu.kind];
        if (rows.at(static_cast<std::size_t>(previewed)).set_name.empty())
            previewed = first_set(rows);
        for (int item = 1; item <= gfx::info(menu.kind).set_limit; ++item) {
            const std::string name = item_name(menu.items, item);
            const auto& set_name = rows.at(static_cast<std::size_t>(item - 1)).set_name;
            auto* entry = action(name);
            entry->setText(set_name.empty() ? entry->data().toString()
                                            : base::item_text(base::caption_text(set_name)));
            entry->setEnabled(!set_name.empty());
            entry->setChecked(previewed == item - 1);
        }
        if (std::any_of(rows.begin(), rows.end(), holds_set))
            action(map::info(menu.mode).menu_item)->setEnabled(true);
    }
    const bool has_terrain_art = session_.configuration.terrain_art_flag == 1;
    if (has_terrain_art)
        action("dessin_menu")->setEnabled(true);
    action("dessin_graph")->setEnabled(has_terrain_art);
    action("dessin_graph")->setChecked(has_terrain_art && session_.graphics.shows_drawings);
}

void MDIForm1::choose_language(int item) {
    const QString file = languages_.at(item) + QStringLiteral(".lng");
    if (!base::is_storable(file)) {
        base::show_unstorable(session_, this);
        return;
    }
    try {
        read_language_file(session_, base::to_bytes(file));
    } catch (const data::RunTimeError& error) {
        base::show_message(
            session_, this,
            session_.language.text(Text::language_refused, {session_.language.text(error)}));
        return;
    }
    session_.configuration.language_file = base::to_bytes(file);
    base::show_message(session_, this, session_.language.message(data::Message::language_notice));
}

void MDIForm1::propos() {
    frmAbout(session_, this).exec();
}

void MDIForm1::select(const std::string& text) {
    panel_->set_selection_text(text);
    apply_selection();
}

void MDIForm1::assign(const std::vector<Assignment>& assignments) {
    for (const auto& assignment : assignments)
        shell::assign(session_.provinces, session_.selection, assignment);
    table_changed();
}

void MDIForm1::select_clicked(int identifier, bool add, const data::Phrase& place) {
    const std::string present = add ? panel_->selection_text() : std::string();
    panel_->set_selection_text(editor::with_province(present, identifier));
    if (identifier > data::last_province)
        apply_selection(View::stays, map::no_such_province(identifier).within(place));
    else
        apply_selection(View::stays);
}

void MDIForm1::apply_selection(View view, const std::optional<data::RunTimeError>& known_error) {
    const std::string text = panel_->selection_text();
    panel_->write_typed_text(); // a shortcut selects without taking the focus from a field
    if (!editor::is_well_formed(text))
        base::show_message(session_, this,
                           session_.language.message(data::Message::malformed_selection));
    try {
        session_.selection.apply(text);
        panel_->selection_applied();
        remember_selection(text);
    } catch (const data::RunTimeError& error) {
        remember_selection(editor::selection_text(session_.selection.provinces()));
        panel_->forget_shown(); // it still shows what was selected before
        base::show_error(session_, this, known_error.value_or(error));
        return;
    }
    if (map_)
        map_->selection_or_mode_changed();
    if (map_ && view == View::follows)
        map_->follow_selection();
    panel_->show_selection();
}

void MDIForm1::remember_selection(const std::string& text) {
    const auto named = editor::selection_text(session_.selection.provinces());
    history_.add(editor::is_well_formed(text) ? text : named, named);
    action("sélection_précédente")->setEnabled(history_.has_earlier());
    action("sélection_suivante")->setEnabled(history_.has_later());
    enable_place_items();
}

void MDIForm1::selection_precedente() {
    select(history_.go_back());
}

void MDIForm1::selection_suivante() {
    select(history_.go_forward());
}

std::vector<editor::TypedText> MDIForm1::typed_texts() const {
    return panel_->typed_texts();
}

void MDIForm1::keep_typed_text() {
    panel_->keep_typed_text();
}

} // namespace shell
