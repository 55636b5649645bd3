#include "editor/panel_layout.h"

namespace editor {

namespace {

using enum BlockKind;

constexpr std::array population = {
    Block{field, "Frame_population(1)", "Nom de la province", {"nom_province"}, 0},
    Block{field, "Frame_population(2)", "Nom de la ville", {"nom_ville"}, 1},
    Block{group,
          "Frame_population(3)",
          "Religion",
          {"religion"},
          2,
          0,
          3,
          3,
          {"Catholique", "Contre-Réforme", "Réformé", "Protestant", "Hindouisme", "Orthodoxe",
           "Sunnite", "Shiite", "Païen", "Confucianisme", "Boudhisme"}},
    Block{list, "Frame_population(4)", "Culture", {"culture"}, 3},
    Block{group,
          "Frame_population(5)",
          "Continent",
          {"continent"},
          4,
          0,
          3,
          3,
          {"Afrique", "Amériques", "Asie", "Europe", "Océanie"}},
    Block{list, "Frame_population(6)", "Région", {"région"}, 5},
    Block{list, "Frame_population(7)", "Aire", {"aire"}, 6},
    Block{group, "Frame_population(8)", "SERG", {"serge"}, 7, 0, 3, 3, {"Non", "Oui"}},
    Block{field, "Frame_population(9)", "Manpow", {"manpower"}, 8},
};

constexpr std::array terrain = {
    Block{group,
          "Frame_terrain(1)",
          "Type de terrain",
          {"terrain"},
          0,
          0,
          3,
          3,
          {"Plaine", "Forêt", "Montagne", "Désert", "Marais", "Océan", "Rivière"}},
    Block{box, "", "Côtier", {"cote"}, 1},
    Block{group,
          "Frame_terrain (2)",
          "Climat",
          {"climat"},
          2,
          0,
          3,
          3,
          {"Froid (8)", "(7)", "(6)", "(5)", "(4)", "(3)", "(2)", "(1)", "Chaud (0)"}},
    Block{boxes,
          "Frame_terrain(4)",
          "Caractéristique océan",
          {"océan"},
          3,
          0,
          3,
          3,
          {"Glace", "Orage", "Galères"}},
    Block{field, "Frame_terrain(5)", "Modification taille", {"taille"}, 4},
    Block{field, "Frame_terrain(6)", "Rivières adj (id)", {"rivière0", "rivière1", "rivière2"}, 5},
};

constexpr std::array economie = {
    Block{field, "Frame_economie (1)", "Revenus", {"income"}, 0},
    Block{group,
          "Frame_economie(2)",
          "Centre de commerce",
          {"cot"},
          1,
          0,
          3,
          3,
          {"Non hist (-3)", "(-2)", "(-1)", "(0)", "(1)", "(2)", "(3)", "(4)", "Historique (5)"}},
    Block{group, "Frame_economie(3)", "Production", {"production"}, 2, 0, 3, 3, {"1",  "2",  "3",
                                                                                 "4",  "5",  "6",
                                                                                 "7",  "8",  "9",
                                                                                 "10", "11", "12",
                                                                                 "13", "14", "15",
                                                                                 "16", "17", "18",
                                                                                 "19", "20", "21"}},
    Block{box, "", "Augmentable", {"production_plus"}, 3},
    Block{field, "Frame_economie (4)", "Valeur de mine", {"mine"}, 4},
};

constexpr std::array<std::string_view, 22> ten_levels = {"0", "1", "2", "3", "4",
                                                         "5", "6", "7", "8", "9"};

constexpr std::array colonie = {
    Block{group, "Frame_colonie(1)", "Tolérance des natifs", {"tol"}, 0, 0, 1, 1, ten_levels},
    Block{group, "Frame_colonie(2)", "Difficulté impl. compt", {"dt"}, 0, 1, 1, 1, ten_levels},
    Block{group, "Frame_colonie(3)", "Difficulté colonisation", {"dc"}, 0, 2, 1, 1, ten_levels},
    Block{numeric, "Frame_colonie (4)", "Efficacité natifs", {"efficacité", "efficacité_s"}, 1},
    Block{numeric, "Frame_colonie(5)", "Férocité", {"férocité", "férocité_s"}, 2},
    Block{field, "Frame_colonie(6)", "Nb guerriers natifs", {"natif"}, 3, 0, 3, 1, {}, "*100"},
    Block{group,
          "Frame_colonie(7)",
          "Traité de Tordesillas",
          {"tot"},
          4,
          0,
          3,
          3,
          {"Aucun", "Portugal", "Espagne"}},
};

constexpr std::array coordonnees = {
    Block{positions, "Frame_coordonnées(1)", "Ville (X, Y)", {"ville(0)", "ville(1)"}, 0},
    Block{positions, "Frame_coordonnées(2)", "Armée (X, Y)", {"armée(0)", "armée(1)"}, 1},
    Block{
        positions, "Frame_coordonnées(3)", "Port (mer, X, Y)", {"Port", "portc(0)", "portc(1)"}, 2},
    Block{positions,
          "Frame_coordonnées(4)",
          "Manufacture (X, Y)",
          {"manufacture(0)", "manufacture(1)"},
          3},
    Block{positions,
          "Frame_coordonnées(5)",
          "Dessin 1 (X, Y, N°)",
          {"dessin(0)", "dessin(1)", "dessin_c(39)"},
          4},
    Block{positions,
          "Frame_coordonnées(6)",
          "Dessin 2 (X, Y, N°)",
          {"dessin(2)", "dessin(3)", "dessin_c(42)"},
          5},
    Block{positions,
          "Frame_coordonnées(7)",
          "Dessin 3 (X, Y, N°)",
          {"dessin(4)", "dessin(5)", "dessin_c(45)"},
          6},
    Block{positions,
          "Frame_coordonnées(8)",
          "Dessin 4 (X, Y, N°)",
          {"dessin(6)", "dessin(7)", "dessin_c(48)"},
          7},
};

} // namespace

const std::array<Tab, 5> tabs = {{
    {"TabStrip1(1)", "Population", "Frame_population", population},
    {"TabStrip1(2)", "Terrain", "Frame_terrain", terrain},
    {"TabStrip1(3)", "Economie", "Frame_economie", economie},
    {"TabStrip1(4)", "Colonie", "Frame_colonie", colonie},
    {"TabStrip1(5)", "Coordonnées", "Frame_coordonnées", coordonnees},
}};

} // namespace editor
