#include "names.h"

#include "regions.h"

#include <algorithm>
#include <array>
#include <vector>

namespace sample {

namespace {

/// Syllables that a name begins with, goes on with and ends on; "*" in a town stands for the name.
struct Speech {
    std::string_view name;
    std::string_view starts;
    std::string_view middles;
    std::string_view ends;
    std::string_view towns;
};

constexpr std::array<Speech, 10> speeches = {{
    {"nordic", "Hal Skar Bjø Vest Tør Ås Lund Grim Hjal Sønd Rau Fjä Kval Øst Mjö Elv Dør",
     "de re va lä be rø gi ne", "vik land fjord mark heim næs dal å ö bygd holm sund by",
     "*havn *stad *torp Nya_*"},
    {"germanic", "Al Brem Dorn Ei Fal Grün Hol Kal Lau Mühl Nor Os Wald Röd Stein Trau West Ul",
     "den er bel en ter lin wig", "berg feld mark au see tal gau ingen wald heide moor stett",
     "*burg *stadt *hausen Neu_* Bad_*"},
    {"latin", "Al Bel Car Dor Val Mon Ter San Pé Cas Riv Lor Mar Ser Tré Vé Rou Bé Cor Ara",
     "ta ra vi gue né ti mo la se", "gne lles dura nça ria mar ona eda ières zan ño ène sta lès",
     "Saint-* San_* *-la-Vieja Castel_* Villa_*"},
    {"slavic", "Bel Dob Kras Lu Mor Nov Ost Pod Rad Sta Tver Vol Zab Kur Ples Gor Chel",
     "o ni le va ro ze gi", "grad sk ovo vka nitsa mir slav polye gora ye nia tin",
     "*-Gorod Novy_* *ov Stary_*"},
    {"arabic", "Al Bir Dar Ha Ka Mar Na Qas Ra Sa Tab Wa Za Ja Um Fa Khor",
     "ra mi sha ba li ha di na", "bad stan iya mah oun ar an ash era id rif ir",
     "Qasr_* Bab_* *abad Medina_*"},
    {"indic", "Chan Dev Gan In Jai Ka Lak Ma Na Pra Raj Su Tri Va Kri Bha Am",
     "da ra ni pa shi ka va ma", "pur garh nagar desh vati mala kota thal war rashtra gali",
     "*pur *abad *kot Maha_*"},
    {"eastern", "An Bai Chen Dong Fu Guang Han Jin Kai Lin Ming Nan Qing Shan Tai Xi Yun Ha Ki",
     "lo hai ya mo wen ta shi", "zhou yang jiang an ning dao cheng mura shima bol won lai",
     "*fu *cheng New_* *jo"},
    {"oceanic", "A Ho Ka La Ma Na Ra Ta Tu Wa Pu Mo Ke Ba Su Lu", "no ku la ri ta ma we hi nga",
     "nui roa loa tan pa iki rau bu nesia mea kai hiti", "Pulau_* *-Kota Kampong_*"},
    {"african", "Ba Da Gon Ka Lu Ma Nga Ou Sa Tim Wa Zam Ki Mo Du Kwe Bo",
     "ba go ndu la ri me so wa", "dou ga bwe mba ri we zi ko lé nda tu ssa",
     "*-Kraal *ville Fort_*"},
    {"american", "A Chi Hua Ma Mis O Pa Que Ta Tla Wi Xo Yu Ka Nez Co Po",
     "ca la ne pa ti to wa qui", "tlan pec hoa tuck hua pan yac sset nee wak coa ngo ma té",
     "Fort_* San_* *-Pueblo *tepec"},
}};

constexpr std::string_view sea_patterns =
    "Gulf_of_* *_Sea Bay_of_* Strait_of_* *_Deep Coast_of_* *_Shoals Sea_of_* Baie_de_*";

const Speech& speech_of(std::string_view name) {
    const auto* found = std::find_if(speeches.begin(), speeches.end(),
                                     [&](const Speech& speech) { return speech.name == name; });
    return found == speeches.end() ? speeches.front() : *found;
}

std::string word(const Speech& speech, int most_middles, Random& random) {
    std::string utf8(random.pick(words(speech.starts)));
    for (int middle = random.below(most_middles + 1); middle > 0; --middle)
        utf8 += random.pick(words(speech.middles));
    return code_page(utf8.append(random.pick(words(speech.ends))));
}

/// Returns the pattern with the name for its "*" and blanks for its "_".
std::string filled(std::string_view pattern, const std::string& name) {
    std::string text;
    for (const char character : pattern) {
        if (character == '*')
            text += name;
        else
            text += character == '_' ? ' ' : character;
    }
    return text;
}

} // namespace

std::string code_page(std::string_view utf8) {
    std::string bytes;
    for (std::size_t index = 0; index < utf8.size(); ++index) {
        const auto lead = static_cast<unsigned char>(utf8[index]);
        if (lead < 0x80)
            bytes += utf8[index];
        else if ((lead == 0xC2 || lead == 0xC3) && index + 1 < utf8.size())
            bytes += static_cast<char>((lead & 3U) << 6U |
                                       (static_cast<unsigned char>(utf8[++index]) & 0x3FU));
        else if (lead >= 0xC0) // its other bytes below say nothing more
            bytes += '?';
    }
    return bytes;
}

std::string Names::province(std::string_view speech, Random& random) {
    for (int tries = 0;; ++tries) {
        std::string name = word(speech_of(speech), 1 + tries / 20, random);
        if (given_.insert(name).second)
            return name;
    }
}

std::string Names::city(std::string_view speech, const std::string& province, Random& random) {
    const Speech& spoken = speech_of(speech);
    if (random.chance(30))
        return province;
    const std::string name = word(spoken, 1, random);
    return random.chance(45) ? filled(random.pick(words(spoken.towns)), name) : name;
}

std::string Names::sea(std::string_view speech, Random& random) {
    const std::string name = province(speech, random);
    return filled(random.pick(words(sea_patterns)), name);
}

std::string Names::river(std::string_view speech, Random& random) {
    return "River " + province(speech, random);
}

} // namespace sample
