#include "shell/menus.h"

#include "shell/mdi_form1.h"

#include <algorithm>
#include <array>

namespace shell {

namespace {

using gfx::SpriteKind;
using map::Mode;
using map::ShownMap;

template <ShownMap map>
void show_map(MDIForm1& frame) {
    frame.show_map(map);
}

template <Mode mode>
void enter_mode(MDIForm1& frame) {
    frame.enter_mode(mode);
}

template <SpriteKind kind, int item>
void preview(MDIForm1& frame) {
    frame.preview(kind, item);
}

template <void (MDIForm1::*command)()>
void run(MDIForm1& frame) {
    (frame.*command)();
}

constexpr bool checkable = true;
constexpr bool after_separator = true;

constexpr std::array items = {
    MenuItem{"", "fichier", "&Fichier"},
    MenuItem{"fichier", "ouvrir_cartes", "Ouvrir &cartes...", run<&MDIForm1::ouvrir_cartes>,
             "Ctrl+M"},
    MenuItem{"fichier", "ouvrir_csv", "&Ouvrir fichier province...", run<&MDIForm1::ouvrir_csv>,
             "Ctrl+O"},
    MenuItem{"fichier", "gfx", "Emplacement &gfx...", run<&MDIForm1::gfx>, "Ctrl+G"},
    MenuItem{"fichier", "réenregistrer", "", run<&MDIForm1::reenregistrer>, "Ctrl+S", false, false,
             Text::menu_reenregistrer},
    MenuItem{"fichier", "enregister", "&Enregistrer...", run<&MDIForm1::enregister>,
             "Ctrl+Shift+S"},
    MenuItem{"fichier", "récupérer", "", run<&MDIForm1::recuperer>, "", false, false,
             Text::menu_recuperer},
    MenuItem{"fichier", "fichiers_récents", "", nullptr, "", false, after_separator,
             Text::menu_fichiers_recents},
    MenuItem{"fichier", "cartes_récentes", "", nullptr, "", false, false,
             Text::menu_cartes_recentes},
    MenuItem{"fichier", "quitter", "&Quitter", run<&MDIForm1::quitter>, "Ctrl+Q", false,
             after_separator},

    MenuItem{"", "carte", "&Carte"},
    MenuItem{"carte", "carte_1", "Carte &1", show_map<ShownMap::map_1>, "Ctrl+1", checkable},
    MenuItem{"carte", "carte_2", "Carte &2", show_map<ShownMap::map_2>, "Ctrl+2", checkable},
    MenuItem{"carte", "carte_id", "Carte &id", show_map<ShownMap::id_map>, "Ctrl+3", checkable},
    MenuItem{"carte", "zoom_plus", "", run<&MDIForm1::zoom_plus>, "Ctrl++; Ctrl+=", false,
             after_separator, Text::menu_zoom_plus},
    MenuItem{"carte", "zoom_moins", "", run<&MDIForm1::zoom_moins>, "Ctrl+-", false, false,
             Text::menu_zoom_moins},
    MenuItem{"carte", "zoom_1", "", run<&MDIForm1::zoom_1>, "Ctrl+0", false, false,
             Text::menu_zoom_1},
    MenuItem{"carte", "zoom_tout", "", run<&MDIForm1::zoom_tout>, "Ctrl+9", false, false,
             Text::menu_zoom_tout},
    MenuItem{"carte", "montrer", "", run<&MDIForm1::montrer>, "F8", false, false,
             Text::menu_montrer},
    MenuItem{"carte", "colorer", "", nullptr, "", false, after_separator, Text::menu_colorer},
    MenuItem{"colorer", "colorer(0)", "", run<&MDIForm1::end_colours>, "", checkable, false,
             Text::menu_colorer_none},

    MenuItem{"", "recherche", "", nullptr, "", false, false, Text::menu_recherche},
    MenuItem{"recherche", "trouver", "", run<&MDIForm1::trouver>, "Ctrl+F", false, false,
             Text::menu_trouver},
    MenuItem{"recherche", "suivante", "", run<&MDIForm1::suivante>, "F9", false, false,
             Text::menu_suivante},
    MenuItem{"recherche", "vérifier", "", run<&MDIForm1::verifier>, "Ctrl+K", false, false,
             Text::menu_verifier},
    MenuItem{"recherche", "modifications", "", run<&MDIForm1::modifications>, "Ctrl+D", false,
             false, Text::menu_modifications},
    MenuItem{"recherche", "sélection_précédente", "", run<&MDIForm1::selection_precedente>,
             "Alt+Left", false, after_separator, Text::menu_selection_precedente},
    MenuItem{"recherche", "sélection_suivante", "", run<&MDIForm1::selection_suivante>, "Alt+Right",
             false, false, Text::menu_selection_suivante},

    MenuItem{"", "mode", "&Mode"},
    MenuItem{"mode", "normal", "&Normal", enter_mode<Mode::normal>, "F2", checkable},
    MenuItem{"mode", "saisie", "&Saisie"},
    MenuItem{"saisie", "ville_menu", "&Ville", enter_mode<Mode::ville>, "F3", checkable},
    MenuItem{"saisie", "armées_menu", "&Armées", enter_mode<Mode::armees>, "F4", checkable},
    MenuItem{"saisie", "port_menu", "&Port", enter_mode<Mode::port>, "F5", checkable},
    MenuItem{"saisie", "manuf_menu", "&Manufacture", enter_mode<Mode::manuf>, "F6", checkable},
    MenuItem{"saisie", "dessin_menu", "&Dessin", enter_mode<Mode::dessin>, "F7", checkable},

    MenuItem{"", "graphisme", "&Graphisme"},
    MenuItem{"graphisme", "ville_graph(1)", "Ville 1", preview<SpriteKind::ville, 1>, "",
             checkable},
    MenuItem{"graphisme", "ville_graph(2)", "Ville 2", preview<SpriteKind::ville, 2>, "",
             checkable},
    MenuItem{"graphisme", "ville_graph(3)", "Ville 3", preview<SpriteKind::ville, 3>, "",
             checkable},
    MenuItem{"graphisme", "armée_graph(1)", "Armée 1", preview<SpriteKind::armees, 1>, "",
             checkable, after_separator},
    MenuItem{"graphisme", "armée_graph(2)", "Armée 2", preview<SpriteKind::armees, 2>, "",
             checkable},
    MenuItem{"graphisme", "armée_graph(3)", "Armée 3", preview<SpriteKind::armees, 3>, "",
             checkable},
    MenuItem{"graphisme", "armée_graph(4)", "Armée 4", preview<SpriteKind::armees, 4>, "",
             checkable},
    MenuItem{"graphisme", "manuf_graph(1)", "Manufacture 1", preview<SpriteKind::manuf, 1>, "",
             checkable, after_separator},
    MenuItem{"graphisme", "manuf_graph(2)", "Manufacture 2", preview<SpriteKind::manuf, 2>, "",
             checkable},
    MenuItem{"graphisme", "port_graph(1)", "Port 1", preview<SpriteKind::port, 1>, "", checkable,
             after_separator},
    MenuItem{"graphisme", "port_graph(2)", "Port 2", preview<SpriteKind::port, 2>, "", checkable},
    MenuItem{"graphisme", "dessin_graph", "&Dessins", run<&MDIForm1::toggle_drawings>, "",
             checkable, after_separator},

    MenuItem{"", "langue", "&Langue"},
    MenuItem{"", "guide", "", run<&MDIForm1::guide>, "F1", false, false, Text::menu_guide},
    MenuItem{"", "propos", "À &propos...", run<&MDIForm1::propos>},
};

struct MenuTip {
    std::string_view name;
    Text text;
};

constexpr std::array tips = {
    MenuTip{"ouvrir_cartes", Text::tip_ouvrir_cartes},
    MenuTip{"ouvrir_csv", Text::tip_ouvrir_csv},
    MenuTip{"gfx", Text::tip_gfx},
    MenuTip{"réenregistrer", Text::tip_reenregistrer},
    MenuTip{"enregister", Text::tip_enregister},
    MenuTip{"récupérer", Text::tip_recuperer},
    MenuTip{"carte_id", Text::tip_carte_id},
    MenuTip{"zoom_plus", Text::tip_zoom},
    MenuTip{"zoom_moins", Text::tip_zoom},
    MenuTip{"zoom_1", Text::tip_zoom_1},
    MenuTip{"montrer", Text::tip_montrer},
    MenuTip{"colorer", Text::tip_colorer},
    MenuTip{"trouver", Text::tip_trouver},
    MenuTip{"suivante", Text::tip_suivante},
    MenuTip{"vérifier", Text::tip_verifier},
    MenuTip{"modifications", Text::tip_modifications},
    MenuTip{"sélection_précédente", Text::tip_selection_precedente},
    MenuTip{"sélection_suivante", Text::tip_selection_suivante},
    MenuTip{"normal", Text::tip_normal},
    MenuTip{"saisie", Text::tip_saisie},
    MenuTip{"port_menu", Text::tip_port},
    MenuTip{"dessin_menu", Text::tip_dessin},
    MenuTip{"ville_graph(1)", Text::tip_serie},
    MenuTip{"ville_graph(2)", Text::tip_serie},
    MenuTip{"ville_graph(3)", Text::tip_serie},
    MenuTip{"armée_graph(1)", Text::tip_serie},
    MenuTip{"armée_graph(2)", Text::tip_serie},
    MenuTip{"armée_graph(3)", Text::tip_serie},
    MenuTip{"armée_graph(4)", Text::tip_serie},
    MenuTip{"manuf_graph(1)", Text::tip_serie},
    MenuTip{"manuf_graph(2)", Text::tip_serie},
    MenuTip{"port_graph(1)", Text::tip_serie},
    MenuTip{"port_graph(2)", Text::tip_serie},
    MenuTip{"dessin_graph", Text::tip_dessin_graph},
};

} // namespace

std::optional<Text> menu_tip(std::string_view name) {
    const auto* found = std::find_if(tips.begin(), tips.end(),
                                     [&](const MenuTip& each) { return each.name == name; });
    return found == tips.end() ? std::nullopt : std::optional(found->text);
}

std::span<const MenuItem> menu_items() {
    return items;
}

} // namespace shell
