#include "regions.h"

#include <array>
#include <limits>

namespace sample {

namespace {

constexpr int west_end = -172;
constexpr int degrees_across = 360;
constexpr int north_end = 79;
constexpr int degrees_down = 132;

constexpr std::array<Region, 59> all_regions = {{
    {"scandinavia", "europe", 16, 62, 13, "nordic", "protestant catholic",
     "swedish norwegian danish finnish sami icelandic",
     "svealand norway finland lapland jutland holstein iceland"},
    {"britishisles", "europe", -3, 54, 7, "germanic", "protestant reformed catholic",
     "english scottish irish",
     "southernengland midlands northernengland scotland ulster leinster munster"},
    {"lowcountries", "europe", 5, 52, 6, "germanic", "reformed counterreformed", "dutch flemish",
     "holland flanders brabant", true},
    {"germany", "europe", 11, 51, 8, "germanic", "protestant catholic", "saxon bavarian czech",
     "saxony bavaria brandenburg franconia rhineland pomerania bohemia silesia", true},
    {"alpinelands", "europe", 10, 47, 6, "germanic", "catholic reformed", "bavarian lombard",
     "austria", true},
    {"france", "europe", 2, 47, 9, "latin", "catholic reformed", "french occitan breton",
     "parisbasin normandy brittany aquitaine languedoc provence burgundy lorraine"},
    {"iberia", "europe", -5, 40, 10, "latin", "counterreformed catholic",
     "castilian portuguese catalan aragonese andalusian basque",
     "castile aragon catalonia andalusia galicia algarve azores"},
    {"italy", "europe", 13, 42, 8, "latin", "catholic", "tuscan lombard neapolitan sicilian",
     "lombardy tuscany naples apulia sicily"},
    {"balkans", "europe", 22, 42, 9, "slavic", "orthodox sunni", "serbian bulgarian albanian greek",
     "albania bosnia dalmatia morea crete aegeanislands"},
    {"danubebasin", "europe", 22, 47, 8, "slavic", "catholic orthodox", "hungarian croatian",
     "hungarianplain transylvania wallachia moldavia"},
    {"balticlands", "europe", 24, 55, 9, "slavic", "catholic protestant",
     "polish lithuanian latvian estonian",
     "greaterpoland lesserpoland mazovia lithuania prussia livonia courland estonia"},
    {"russia", "europe", 43, 56, 18, "slavic", "orthodox", "russian ruthenian",
     "moscow novgorod kazan astrakhan donsteppe crimea karelia"},
    {"siberia", "asia", 95, 62, 32, "slavic", "exotic orthodox", "russian sami mongol",
     "kamchatka"},
    {"caucasus", "asia", 44, 43, 8, "arabic", "orthodox shiite", "georgian armenian circassian",
     "georgia azerbaijan"},
    {"anatolia", "asia", 33, 39, 9, "arabic", "sunni", "turkish", "anatolianplateau"},
    {"levant", "asia", 38, 33, 8, "arabic", "sunni", "arab kurdish",
     "syria palestine mesopotamia cyprus"},
    {"arabia", "asia", 47, 22, 14, "arabic", "sunni shiite", "arab", "hejaz oman"},
    {"persia", "asia", 55, 33, 12, "arabic", "shiite", "persian", "fars khorasan"},
    {"turkestan", "asia", 66, 44, 15, "arabic", "sunni", "uzbek kazakh", ""},
    {"afghanhighlands", "asia", 68, 34, 10, "indic", "sunni", "pashtun baloch", "punjab kashmir"},
    {"deccan", "asia", 77, 18, 13, "indic", "hindu", "kannada marathi tamil gujarati sinhalese",
     "gujarat malabar coromandel ceylon"},
    {"bengal", "asia", 87, 25, 11, "indic", "hindu sunni", "bengali hindustani",
     "delhi bihar lowerbengal assam"},
    {"indochina", "asia", 102, 16, 12, "eastern", "buddhist",
     "burmese siamese lao khmer vietnamese cham", "malacca"},
    {"malayarchipelago", "asia", 113, -2, 13, "oceanic", "sunni buddhist",
     "malay javanese dayak bugis papuan", "java borneo celebes moluccas"},
    {"philippines", "asia", 123, 12, 7, "oceanic", "exotic catholic", "tagalog", "luzon mindanao"},
    {"southchina", "asia", 110, 26, 13, "eastern", "confucian buddhist", "cantonese han tibetan",
     "guangdong fujian formosa"},
    {"northchina", "asia", 112, 37, 13, "eastern", "confucian", "han", "shandong"},
    {"mongolia", "asia", 102, 47, 16, "eastern", "buddhist", "mongol", ""},
    {"manchuria", "asia", 126, 47, 12, "eastern", "buddhist confucian", "manchu", ""},
    {"korea", "asia", 127, 37, 6, "eastern", "confucian", "korean", ""},
    {"japan", "asia", 139, 37, 8, "eastern", "buddhist", "japanese", "honshu kyushu"},
    {"maghreb", "africa", 0, 32, 13, "arabic", "sunni", "berber arab", "ifriqiya canaryislands"},
    {"sahara", "africa", 10, 21, 19, "african", "sunni", "hausa fulani", "nigerbend"},
    {"nilevalley", "africa", 30, 23, 12, "arabic", "sunni", "arab nubian", "loweregypt"},
    {"hornafrica", "africa", 42, 8, 12, "african", "orthodox sunni", "amhara oromo somali",
     "abyssinia"},
    {"guineacoast", "africa", -4, 9, 14, "african", "exotic", "akan mandinka",
     "senegambia goldcoast benin"},
    {"congobasin", "africa", 22, -3, 15, "african", "exotic", "kongo", "angola"},
    {"southernafrica", "africa", 26, -24, 15, "african", "exotic", "khoikhoi shona swahili",
     "capecolony mozambique"},
    {"madagascar", "africa", 48, -19, 7, "african", "exotic", "malagasy", ""},
    {"canada", "america", -92, 57, 30, "american", "exotic", "inuit algonquin",
     "quebec acadia alaska greenland"},
    {"appalachia", "america", -80, 38, 13, "american", "exotic protestant",
     "iroquois cherokee algonquin", "newengland virginia carolinas florida"},
    {"greatplains", "america", -99, 42, 16, "american", "exotic", "sioux",
     "illinoiscountry louisiana"},
    {"california", "america", -118, 39, 10, "american", "exotic", "apache", ""},
    {"mexico", "america", -102, 23, 11, "american", "exotic", "nahua maya", "valleymexico yucatan"},
    {"centralamerica", "america", -87, 13, 7, "american", "exotic", "maya", ""},
    {"antilles", "america", -73, 20, 6, "american", "exotic", "arawak carib",
     "cuba hispaniola jamaica"},
    {"guiana", "america", -62, 5, 12, "american", "exotic", "carib arawak", "newgranada"},
    {"amazonia", "america", -61, -6, 15, "american", "exotic", "tupi", ""},
    {"brazil", "america", -45, -12, 14, "latin", "exotic catholic", "tupi guarani", "bahia"},
    {"andes", "america", -74, -15, 13, "american", "exotic", "quechua aymara mapuche",
     "peru chile"},
    {"riverplate", "america", -62, -35, 14, "latin", "exotic", "guarani mapuche", "patagonia"},
    {"australia", "oceania", 135, -25, 21, "oceanic", "exotic", "aboriginal maori polynesian",
     "newzealand"},
    {"arcticocean", "", 40, 76, 40, "nordic", "", "", ""},
    {"northatlantic", "", -42, 35, 40, "latin", "", "", ""},
    {"southatlantic", "", -15, -28, 40, "latin", "", "", ""},
    {"indianocean", "", 78, -18, 40, "indic", "", "", ""},
    {"northpacific", "", -155, 30, 40, "eastern", "", "", ""},
    {"northpacific", "", 162, 25, 40, "eastern", "", "", ""},
    {"southpacific", "", -125, -28, 40, "oceanic", "", "", ""},
}};

constexpr std::array<SeaArea, 12> all_sea_areas = {{
    {"northsea", 3, 57},
    {"balticsea", 19, 58},
    {"baybiscay", -6, 46},
    {"westernmediterranean", 5, 38},
    {"easternmediterranean", 27, 34},
    {"blacksea", 34, 43},
    {"arabiansea", 63, 14},
    {"baybengal", 89, 13},
    {"gulfguinea", 2, 0},
    {"gulfmexico", -91, 26},
    {"caribbeansea", -75, 15},
    {"hudsonbay", -82, 62},
}};

} // namespace

std::span<const Region> regions() {
    return all_regions;
}

std::span<const SeaArea> sea_areas() {
    return all_sea_areas;
}

Point on_chart(int longitude, int latitude) {
    return {chart_width * (longitude - west_end) / degrees_across,
            chart_height * (north_end - latitude) / degrees_down};
}

double latitude_of(double chart_y) {
    return north_end - chart_y / chart_height * degrees_down;
}

double reach_on_chart(const Region& region) {
    return chart_width * region.reach / degrees_across;
}

std::size_t region_at(Point point, bool land) {
    std::size_t nearest = 0;
    double least = std::numeric_limits<double>::max();
    for (std::size_t index = 0; index < all_regions.size(); ++index) {
        const Region& region = all_regions[index];
        if (region.continent.empty() == land)
            continue;
        const double reach = reach_on_chart(region);
        const double share =
            distance_squared(point, on_chart(region.longitude, region.latitude)) / (reach * reach);
        if (share < least) {
            least = share;
            nearest = index;
        }
    }
    return nearest;
}

std::vector<std::string_view> words(std::string_view list) {
    std::vector<std::string_view> found;
    while (!list.empty()) {
        const auto end = std::min(list.find(' '), list.size());
        found.push_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return found;
}

} // namespace sample
